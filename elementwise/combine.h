// The element-wise kernels: d(i, j) = op(a(i, j), b(i, j)) for each object, whatever the operands are.
//
// combinePacked serves contiguous rows with wide code; combineStrided and combineTable are plain loops over views,
// written out for a few sizes; where the elements of successive objects lie side by side, they too become rows.
// forEachObject is the kernel of an array that only loops over the kernel of one object.
#pragma once

#include "elementwise/forms.h"
#include "elementwise/row.h"
#include "elementwise/rows.h"

namespace zepm
{

// ---- What a block is ------------------------------------------------------------------------------------------------

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

template <class>
inline constexpr bool isTransposedBlock = false;
template <class Matrix>
inline constexpr bool isTransposedBlock<TransposedBlock<Matrix>> = true;

// A table's rows are as long as they are stored.
template <bool Contiguous, class Block, class X>
ZEPM_INLINE auto viewOf(const Block& block, const X& x)
{
    return block.template view<Contiguous>(isTransposedBlock<Block> ? x.height : x.width);
}

// ---- Plain loops ----------------------------------------------------------------------------------------------------

// The sizes for which a kernel's loops over elements are written out: lengths of vectors, orders of square matrices.
template <int Rank, int32... Size>
struct written
{
};
template <int32... Length>
using lengths = written<1, Length...>;
template <int32... Order>
using orders = written<2, Order...>;

// One object, ascending: with overlapping operands each result may feed the next, as a plain loop gives it.
template <class Op, class A, class B, class D>
ZEPM_INLINE void combineObject(Op op, const A& a, const B& b, const D& d, int32 width, int32 height)
{
    for (int32 i = 0; i < height; ++i)
        for (int32 j = 0; j < width; ++j) d.set(i, j, op(a.get(i, j), b.get(i, j)));
}

template <int32 Width, int32 Height, class Op, class A, class B, class D>
ZEPM_INLINE void combineWritten(Op op, const A& a, const B& b, const D& d)
{
    auto row = [&](int32 i) __attribute__((always_inline))
    {
        ZEPM_UNROLL
        for (int32 j = 0; j < Width; ++j) d.set(i, j, op(a.get(i, j), b.get(i, j)));
    };
    if constexpr (Height == 3)
        row(0), row(1), row(2);
    else
        for (int32 i = 0; i < Height; ++i) row(i);
}

// The test on the size comes once a call, outside the loop over objects.
template <class Op, class A, class B, class D, int Rank, int32... Sizes>
ZEPM_INLINE void combineViews(Op op, const A& a, const B& b, const D& d, int32 width, int32 height, int32 count,
                              written<Rank, Sizes...>)
{
    [[maybe_unused]] auto combineIfSize = [&]<int32 Width>() __attribute__((always_inline))
    {
        constexpr int32 Height = Rank == 1 ? 1 : Width;
        if (width != Width || height != Height) return false;
        for (int32 k = 0; k < count; ++k) combineWritten<Width, Height>(op, a.object(k), b.object(k), d.object(k));
        return true;
    };
    if ((... || combineIfSize.template operator()<Sizes>())) return;
    for (int32 k = 0; k < count; ++k) combineObject(op, a.object(k), b.object(k), d.object(k), width, height);
}

// ---- Contiguous rows ------------------------------------------------------------------------------------------------

template <class T, bool IsArray, int Rank>
ZEPM_INLINE RowOperand rowsOf(const StridedBlock<T, IsArray, Rank>& block)
{
    return {bytes(block.p), IsArray ? block.stride0 : RowOperand::fixed, block.stride1};
}
template <class T, int Rank>
ZEPM_INLINE RowOperand rowsOf(const ListBlock<T, Rank>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift, block.stride1};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantBlock<T>& block)
{
    return {bytes(&block.val), RowOperand::fixed, 0};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantArrayBlock<T>& block)
{
    return {bytes(block.p), block.stride0, 0};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantListBlock<T>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift, 0};
}

// ---- Elements side by side ------------------------------------------------------------------------------------------

// Where the elements of successive objects lie side by side in every array, element (i, j) of all objects is a row.
template <class T>
ZEPM_INLINE bool liesAcross(const T& block)
{
    if constexpr (T::isArray)
        return block.stride0 == sizeof(typename T::Element);
    else
        return true;
}

template <class Block, class X>
ZEPM_INLINE RowOperand rowAcross(const Block& block, const X& x, int32 i, int32 j)
{
    if constexpr (isConstantBlock<Block>)
        return rowsOf(block);
    else
        return {viewOf<false>(block, x).object(0).at(i, j), RowOperand::fixed, 0};
}

template <class Op, class X>
ZEPM_INLINE void combineAcross(Op op, const X& x)
{
    using T = typename decltype(x.dst)::Element;
    // The operand that is the same for all objects is the constant of these rows, and stands second.
    constexpr bool isConstant = !decltype(x.src1)::isArray || !decltype(x.src2)::isArray;
    constexpr bool flips = !decltype(x.src1)::isArray;
    for (int32 i = 0; i < x.height; ++i)
        for (int32 j = 0; j < x.width; ++j)
        {
            const RowOperand a = rowAcross(x.src1, x, i, j), b = rowAcross(x.src2, x, i, j),
                             d = rowAcross(x.dst, x, i, j);
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
    switch (x.width)
    {
    case 3: return ssse3::rowOf<T, 3>(op, a, b, d);
    case 4: return ssse3::rowOf<T, 4>(op, a, b, d);
    case 5: return ssse3::rowOf<T, 5>(op, a, b, d);
    case 6: return ssse3::rowOf<T, 6>(op, a, b, d);
    default: break;
    }
    auto apart = [&](const char* s) __attribute__((always_inline))
    {
        return s == d || ssse3::areApart(s, d, x.width * static_cast<ptrdiff_t>(sizeof(T)));
    };
    bool isApart = x.width > 6 && apart(a);
    if constexpr (!isConstant) isApart = isApart && apart(b);
    if (isApart)
        combineRows<Op, T>({rowsOf(x.src1), rowsOf(x.src2), rowsOf(x.dst), isConstant, false, x.width, 1});
    else
        combineObject(op, viewOf<true>(x.src1, x).object(0), viewOf<true>(x.src2, x).object(0),
                      viewOf<true>(x.dst, x).object(0), x.width, 1);
}

// Contiguous elements.
template <class Op, class X>
ZEPM_INLINE Status combinePacked(Op op, const X& x)
{
    using Dst = decltype(x.dst);
    using T = typename Dst::Element;
    constexpr bool isConstant = isConstantBlock<decltype(x.src2)>;
    if constexpr (X::rank == 2)
    {
        // Where one source alone is transposed, it stands first.
        constexpr bool isTransposedA = isTransposedBlock<decltype(x.src1)>;
        constexpr bool isTransposedB = isTransposedBlock<decltype(x.src2)>;
        if constexpr (isTransposedB && !isTransposedA)
            combineMatrices<decltype(flipped(op)), T>(
                {{rowsOf(x.src2), rowsOf(x.src1), rowsOf(x.dst), false, isListBlock<Dst>, x.width, x.count},
                 x.height,
                 true,
                 false});
        else
            combineMatrices<Op, T>(
                {{rowsOf(x.src1), rowsOf(x.src2), rowsOf(x.dst), isConstant, isListBlock<Dst>, x.width, x.count},
                 x.height,
                 isTransposedA,
                 isTransposedB});
    }
    else if constexpr (Dst::isArray && !isConstant && !decltype(x.src1)::isArray)
        // A fixed source stands second.
        combineRows<decltype(flipped(op)), T>(
            {rowsOf(x.src2), rowsOf(x.src1), rowsOf(x.dst), false, isListBlock<Dst>, x.width, x.count});
    else if constexpr (Dst::isArray)
        combineRows<Op, T>(
            {rowsOf(x.src1), rowsOf(x.src2), rowsOf(x.dst), isConstant, isListBlock<Dst>, x.width, x.count});
    else
        combineVector(op, x);
    return stsOk;
}

// Elements at any distance, or behind tables; the sizes are those written out.
template <class Op, class X, class Written = lengths<>>
ZEPM_INLINE Status combineStrided(Op op, const X& x, Written sizes = {})
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
    combineViews(op, viewOf<false>(x.src1, x), viewOf<false>(x.src2, x), viewOf<false>(x.dst, x), x.width, x.height,
                 x.count, sizes);
    return stsOk;
}

template <class Op, class X, class Written = lengths<>>
ZEPM_INLINE Status combineTable(Op op, const X& x, Written sizes = {})
{
    return combineStrided(op, x, sizes);
}

// The arrays of L whose kernel is a loop over the kernel of one object.
template <class X, class One>
ZEPM_INLINE Status forEachObject(const X& x, Status (*kernel)(const One&))
{
    for (int32 k = 0; k < x.count; ++k)
    {
        if constexpr (X::rank == 1)
            kernel({x.src1.object(k), x.src2.object(k), x.dst.object(k), x.width});
        else
            kernel({x.src1.object(k), x.src2.object(k), x.dst.object(k), x.width, x.height});
    }
    return stsOk;
}

} // namespace zepm
