// The element-wise kernels: d(i, j) = op(a(i, j), b(i, j)) for each object, whatever the operands are.
//
// combinePacked serves contiguous rows with wide code; combineStrided and combineTable are plain loops over views,
// written out for a few lengths; where the elements of successive objects lie side by side, they too become rows.
// forEachObject is the kernel of an array that only loops over the kernel of one object.
#pragma once

#include "elementwise/forms.h"
#include "elementwise/row.h"
#include "elementwise/rows.h"

namespace zepm
{

// ---- Plain loops ----------------------------------------------------------------------------------------------------

// The lengths for which a kernel's loop over elements is written out.
template <int32... Length>
struct lengths
{
};

// One object, ascending: with overlapping operands each result may feed the next, as a plain loop gives it.
template <class Op, class A, class B, class D>
ZEPM_INLINE void combineObject(Op op, const A& a, const B& b, const D& d, int32 len)
{
    for (int32 j = 0; j < len; ++j) d.set(0, j, op(a.get(0, j), b.get(0, j)));
}

template <int32 Length, class Op, class A, class B, class D>
ZEPM_INLINE void combineObjects(Op op, const A& a, const B& b, const D& d, int32 len, int32 count)
{
    for (int32 k = 0; k < count; ++k)
    {
        if constexpr (Length > 0)
        {
            const auto objectA = a.object(k);
            const auto objectB = b.object(k);
            const auto objectD = d.object(k);
            ZEPM_UNROLL
            for (int32 j = 0; j < Length; ++j) objectD.set(0, j, op(objectA.get(0, j), objectB.get(0, j)));
        }
        else
        {
            combineObject(op, a.object(k), b.object(k), d.object(k), len);
        }
    }
}

// The test on the length comes once a call, outside the loop over objects.
template <class Op, class A, class B, class D>
ZEPM_INLINE void combineViews(Op op, const A& a, const B& b, const D& d, int32 len, int32 count, lengths<>)
{
    combineObjects<0>(op, a, b, d, len, count);
}

template <class Op, class A, class B, class D, int32 First, int32... Rest>
ZEPM_INLINE void combineViews(Op op, const A& a, const B& b, const D& d, int32 len, int32 count,
                              lengths<First, Rest...>)
{
    if (len == First) return combineObjects<First>(op, a, b, d, len, count);
    combineViews(op, a, b, d, len, count, lengths<Rest...>{});
}

// ---- Contiguous rows ------------------------------------------------------------------------------------------------

template <class T, bool IsArray, int Rank>
ZEPM_INLINE RowOperand rowsOf(const StridedBlock<T, IsArray, Rank>& block)
{
    return {bytes(block.p), block.stride0, !IsArray};
}
template <class T, int Rank>
ZEPM_INLINE RowOperand rowsOf(const ListBlock<T, Rank>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift, false};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantBlock<T>& block)
{
    return {bytes(&block.val), 0, true};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantArrayBlock<T>& block)
{
    return {bytes(block.p), block.stride0, false};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantListBlock<T>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift, false};
}

template <class>
inline constexpr bool isConstantBlock = false;
template <class T>
inline constexpr bool isConstantBlock<ConstantBlock<T>> = true;
template <class T>
inline constexpr bool isConstantBlock<ConstantArrayBlock<T>> = true;
template <class T>
inline constexpr bool isConstantBlock<ConstantListBlock<T>> = true;

template <class>
inline constexpr bool isListBlock = false;
template <class T, int Rank>
inline constexpr bool isListBlock<ListBlock<T, Rank>> = true;

// ---- Elements side by side ------------------------------------------------------------------------------------------

// Where the elements of successive objects lie side by side in every array, element j of all objects is a row.
template <class T>
ZEPM_INLINE bool liesAcross(const T& block)
{
    if constexpr (T::isArray)
        return block.stride0 == sizeof(typename T::Element);
    else
        return true;
}

template <class Block>
ZEPM_INLINE RowOperand rowAcross(const Block& block, int32 j)
{
    if constexpr (isConstantBlock<Block>)
        return rowsOf(block);
    else
        return {block.template view<false>(0).object(0).at(0, j), 0, true};
}

template <class Op, class X>
ZEPM_INLINE void combineAcross(Op op, const X& x)
{
    using T = typename decltype(x.dst)::Element;
    // The operand that is the same for all objects is the constant of these rows, and stands second.
    constexpr bool isConstant = !decltype(x.src1)::isArray || !decltype(x.src2)::isArray;
    constexpr bool flips = !decltype(x.src1)::isArray;
    for (int32 j = 0; j < x.len; ++j)
    {
        const RowOperand a = rowAcross(x.src1, j), b = rowAcross(x.src2, j), d = rowAcross(x.dst, j);
        if constexpr (flips)
            combineRows<decltype(flipped(op)), T>({b, a, d, isConstant, false, x.count, 1});
        else
            combineRows<Op, T>({a, b, d, isConstant, false, x.count, 1});
    }
}

// Fewer objects than this do not repay a call for each element.
inline constexpr int32 leastObjectsAcross = 16;

// ---- Kernels --------------------------------------------------------------------------------------------------------

// One vector with contiguous elements. A long one that overlaps a source without being that source takes the plain
// loop.
template <class Op, class X>
ZEPM_INLINE void combineVector(Op op, const X& x)
{
    using T = typename decltype(x.dst)::Element;
    constexpr bool isConstant = isConstantBlock<decltype(x.src2)>;
    const char* const a = bytes(x.src1.p);
    char* const d = bytes(x.dst.p);
    const auto b = [&] {
        if constexpr (isConstant)
            return x.src2.val;
        else
            return bytes(x.src2.p);
    }();
    switch (x.len)
    {
    case 3: return ssse3::rowOf<T, 3>(op, a, b, d);
    case 4: return ssse3::rowOf<T, 4>(op, a, b, d);
    case 5: return ssse3::rowOf<T, 5>(op, a, b, d);
    case 6: return ssse3::rowOf<T, 6>(op, a, b, d);
    default: break;
    }
    auto apart = [&](const char* s) __attribute__((always_inline))
    {
        const auto from = reinterpret_cast<uintptr_t>(s), to = reinterpret_cast<uintptr_t>(d);
        const uintptr_t distance = from < to ? to - from : from - to;
        return distance == 0 || distance / sizeof(T) >= static_cast<uintptr_t>(x.len);
    };
    bool isApart = x.len > 6 && apart(a);
    if constexpr (!isConstant) isApart = isApart && apart(b);
    if (isApart)
        combineRows<Op, T>({rowsOf(x.src1), rowsOf(x.src2), rowsOf(x.dst), isConstant, false, x.len, 1});
    else
        combineObject(op, x.src1.template view<true>(0).object(0), x.src2.template view<true>(0).object(0),
                      x.dst.template view<true>(0).object(0), x.len);
}

// Contiguous elements.
template <class Op, class X>
ZEPM_INLINE Status combinePacked(Op op, const X& x)
{
    using Dst = decltype(x.dst);
    if constexpr (Dst::isArray)
        combineRows<Op, typename Dst::Element>({rowsOf(x.src1), rowsOf(x.src2), rowsOf(x.dst),
                                                isConstantBlock<decltype(x.src2)>, isListBlock<Dst>, x.len, x.count});
    else
        combineVector(op, x);
    return stsOk;
}

// Elements at any distance, or behind tables; the lengths are those written out.
template <class Op, class X, class Lengths = lengths<>>
ZEPM_INLINE Status combineStrided(Op op, const X& x, Lengths written = {})
{
    using Dst = decltype(x.dst);
    if constexpr (Dst::isArray && !isListBlock<Dst>)
    {
        if (x.count >= leastObjectsAcross && x.operands([](const auto& block) { return liesAcross(block); }))
        {
            combineAcross(op, x);
            return stsOk;
        }
    }
    combineViews(op, x.src1.template view<false>(0), x.src2.template view<false>(0), x.dst.template view<false>(0),
                 x.len, x.count, written);
    return stsOk;
}

template <class Op, class X>
ZEPM_INLINE Status combineTable(Op op, const X& x)
{
    return combineStrided(op, x);
}

// The arrays of L whose kernel is a loop over the kernel of one object.
template <class X, class One>
ZEPM_INLINE Status forEachObject(const X& x, Status (*kernel)(const One&))
{
    for (int32 k = 0; k < x.count; ++k) kernel({x.src1.object(k), x.src2.object(k), x.dst.object(k), x.len});
    return stsOk;
}

} // namespace zepm
