// The element-wise kernels: d(i, j) = op(a(i, j), b(i, j)) for each object, whatever the operands are.
//
// combinePacked serves contiguous rows with wide code; combineStrided and combineTable are plain loops over views,
// written out for a few sizes; where the elements of successive objects lie side by side, they too become rows.
// forEachObject is the kernel of an array that only loops over the kernel of one object.
#pragma once

#include "elementwise/forms.h"
#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "frame/written.h"

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
    auto row = [&](int32 i) ZEPM_INLINED {
        ZEPM_UNROLL
        for (int32 j = 0; j < Width; ++j) d.set(i, j, op(a.get(i, j), b.get(i, j)));
    };
    if constexpr (Height == 3)
        row(0), row(1), row(2);
    else
        for (int32 i = 0; i < Height; ++i) row(i);
}

// The test on the size comes once a call, outside the loop over objects. The sizes written out are lengths of vectors
// or orders of square matrices.
template <int Rank, class Op, class A, class B, class D, class Written>
ZEPM_INLINE void combineViews(Op op, const A& a, const B& b, const D& d, int32 width, int32 height, int32 count,
                              Written written)
{
    forSize(
        Rank == 1 || width == height ? width : 0, written,
        [&]<int32 Width>() ZEPM_INLINED {
            constexpr int32 Height = Rank == 1 ? 1 : Width;
            for (int32 k = 0; k < count; ++k) combineWritten<Width, Height>(op, a.object(k), b.object(k), d.object(k));
        },
        [&]() ZEPM_INLINED {
            for (int32 k = 0; k < count; ++k) combineObject(op, a.object(k), b.object(k), d.object(k), width, height);
        });
}

// ---- Contiguous rows ------------------------------------------------------------------------------------------------

template <class T, bool IsArray, int Rank>
ZEPM_INLINE RowOperand rowsOf(const StridedBlock<T, IsArray, Rank>& block)
{
    return {bytes(block.p), IsArray ? block.stride0 : RowOperand::fixed};
}
template <class T, int Rank>
ZEPM_INLINE RowOperand rowsOf(const ListBlock<T, Rank>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantBlock<T>& block)
{
    return {bytes(&block.val), RowOperand::fixed};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantArrayBlock<T>& block)
{
    return {bytes(block.p), block.stride0};
}
template <class T>
ZEPM_INLINE RowOperand rowsOf(const ConstantListBlock<T>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift};
}

template <class Block>
ZEPM_INLINE ptrdiff_t rowStrideOf(const Block& block)
{
    if constexpr (isConstantBlock<Block>)
        return 0;
    else
        return block.stride1;
}

// Whether each row begins where the one before ends, constants likewise. Strides need not have been validated yet; the
// size of a row need not fit an address.
template <class Block, class X>
ZEPM_INLINE bool liesDense(const Block& block, const X& x)
{
    const int64_t rowSize = static_cast<int64_t>(sizeof(typename Block::Element)) * x.width;
    if constexpr (std::is_same_v<Block, ConstantArrayBlock<typename Block::Element>>)
        return block.stride0 == sizeof(typename Block::Element);
    else if constexpr (!isConstantBlock<Block>)
        return (X::rank == 1 || block.stride1 == rowSize) && (!Block::isArray || block.stride0 == x.height * rowSize);
    else
        return true;
}

template <class A, class B>
inline constexpr Sources sourcesOf = isConstantBlock<B>          ? (!B::isArray  ? Sources::RowsAndOneConstant
                                                                    : A::isArray ? Sources::RowsAndConstants
                                                                                 : Sources::OneRowAndConstants)
                                     : A::isArray && !B::isArray ? Sources::RowsAndOneRow
                                                                 : Sources::RowsAndRows;

// Calls f(op, x, a, b) with the sources of x. Where one source alone is transposed, it stands first; where one row
// serves all objects, it stands second. Captures of f would hold x in memory.
template <class Op, class X, class F>
ZEPM_INLINE auto inTheirOrder(Op op, const X& x, F f)
{
    using Src1 = decltype(x.src1);
    using Src2 = decltype(x.src2);
    constexpr bool isTransposedA = isTransposedBlock<Src1>, isTransposedB = isTransposedBlock<Src2>;
    constexpr bool isFirstOneRow = !Src1::isArray && Src2::isArray && !isConstantBlock<Src2> && !isTransposedA;
    if constexpr ((isTransposedB && !isTransposedA) || isFirstOneRow)
        return f(flipped(op), x, x.src2, x.src1);
    else
        return f(op, x, x.src1, x.src2);
}

// Serves objects without gaps; false where there are any. It takes what it needs from x by value.
template <class Op, class X>
ZEPM_INLINE bool combineIfDense(Op op, const X& call)
{
    return inTheirOrder(op, call, [](auto inOrder, const auto& x, auto a, auto b) ZEPM_INLINED {
        using A = decltype(a);
        using B = decltype(b);
        using Dst = decltype(x.dst);
        if constexpr (!isTransposedBlock<A> && !isTransposedBlock<B> && !isListBlock<Dst>)
        {
            if (liesDense(a, x) && liesDense(b, x) && liesDense(x.dst, x))
            {
                ZEPM_AT_LEVEL(combineDense<decltype(inOrder), typename Dst::Element>)
                (rowsOf(a).p, rowsOf(b).p, bytes(x.dst.p), static_cast<ptrdiff_t>(x.width) * x.height, x.count,
                 sourcesOf<A, B>);
                return true;
            }
        }
        return false;
    });
}

// Objects with contiguous rows.
template <class Op, class X>
ZEPM_INLINE void combineContiguous(Op op, const X& call)
{
    inTheirOrder(op, call, [](auto inOrder, const auto& x, const auto& a, const auto& b) ZEPM_INLINED {
        using A = std::remove_cvref_t<decltype(a)>;
        using B = std::remove_cvref_t<decltype(b)>;
        using Dst = decltype(x.dst);
        using InOrder = decltype(inOrder);
        const RowCall rows{rowsOf(a), rowsOf(b), rowsOf(x.dst), isConstantBlock<B>, isListBlock<Dst>, x.width, x.count};
        if constexpr (X::rank == 1)
            ZEPM_AT_LEVEL(combineRows<InOrder, typename Dst::Element>)(rows);
        else
        {
            MatrixCall matrices{rows,
                                x.height,
                                rowStrideOf(a),
                                rowStrideOf(b),
                                rowStrideOf(x.dst),
                                isTransposedBlock<A>,
                                isTransposedBlock<B>};
            ZEPM_AT_LEVEL(combineMatrices<InOrder, typename Dst::Element>)(matrices);
        }
    });
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
ZEPM_INLINE auto rowAcross(const Block& block, const X& x, int32 i, int32 j)
{
    if constexpr (isConstantBlock<Block>)
        return rowsOf(block).p;
    else
        return viewOf<false>(block, x).object(0).at(i, j);
}

template <class Op, class X>
ZEPM_INLINE void combineAcross(Op op, const X& x)
{
    using T = typename decltype(x.dst)::Element;
    // The operand that is the same for all objects is the constant of these rows, and stands second.
    constexpr bool flips = !decltype(x.src1)::isArray;
    constexpr Sources sources =
        flips || !decltype(x.src2)::isArray ? Sources::RowsAndOneConstant : Sources::RowsAndRows;
    for (int32 i = 0; i < x.height; ++i)
        for (int32 j = 0; j < x.width; ++j)
        {
            const char *const a = rowAcross(x.src1, x, i, j), *const b = rowAcross(x.src2, x, i, j);
            char* const d = rowAcross(x.dst, x, i, j);
            if constexpr (flips)
                ZEPM_AT_LEVEL(combineDense<decltype(flipped(op)), T>)(b, a, d, x.count, 1, sources);
            else
                ZEPM_AT_LEVEL(combineDense<Op, T>)(a, b, d, x.count, 1, sources);
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
    case 3: return baseline::rowOf<T, 3>(op, a, b, d);
    case 4: return baseline::rowOf<T, 4>(op, a, b, d);
    case 5: return baseline::rowOf<T, 5>(op, a, b, d);
    case 6: return baseline::rowOf<T, 6>(op, a, b, d);
    default: break;
    }
    auto apart = [&](const char* s) ZEPM_INLINED {
        return s == d || baseline::areApart(s, d, x.width * static_cast<ptrdiff_t>(sizeof(T)));
    };
    bool isApart = x.width > 6 && apart(a);
    if constexpr (!isConstant) isApart = isApart && apart(b);
    if (isApart) ZEPM_AT_LEVEL(combineDense<Op, T>)
    (a, rowsOf(x.src2).p, d, x.width, 1, sourcesOf<decltype(x.src1), decltype(x.src2)>);
    else combineObject(op, viewOf<true>(x.src1, x).object(0), viewOf<true>(x.src2, x).object(0),
                       viewOf<true>(x.dst, x).object(0), x.width, 1);
}

// Contiguous elements.
template <class Op, class X>
ZEPM_INLINE Status combinePacked(Op op, const X& x)
{
    if constexpr (X::rank == 1 && !decltype(x.dst)::isArray)
        combineVector(op, x);
    else if (!combineIfDense(op, x))
        combineContiguous(op, x);
    return stsOk;
}

// Elements at any distance, or behind tables; the sizes are those written out.
template <class Op, class X, class Written = sizes<>>
ZEPM_INLINE Status combineStrided(Op op, const X& x, Written written = {})
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
    combineViews<X::rank>(op, viewOf<false>(x.src1, x), viewOf<false>(x.src2, x), viewOf<false>(x.dst, x), x.width,
                          x.height, x.count, written);
    return stsOk;
}

template <class Op, class X, class Written = sizes<>>
ZEPM_INLINE Status combineTable(Op op, const X& x, Written written = {})
{
    return combineStrided(op, x, written);
}

// ---- The way in -----------------------------------------------------------------------------------------------------

// All calls but those on operands without gaps, out of the way of these.
template <class X, class Order, class Limits>
[[gnu::noinline, gnu::cold]] Status enterStored(const X& x, KernelOf<X>* packed, KernelOf<X>* general,
                                                KernelOf<X>* driver)
{
    return enter(x, Order{}, Limits{}, packed, general, driver);
}

// As enter, but a serial call on operands without gaps does not come to a kernel: their strides need no check, and they
// go where the work is done in registers. Results are stored one a cycle, so that storing an argument struct would
// tell; x stays in registers, provided that the caller has not made it const.
template <class Op, class X, class Order, class Limits>
ZEPM_INLINE Status enterDense(Op op, const X& x, Order, Limits, KernelOf<X>* packed, KernelOf<X>* general,
                              KernelOf<X>* driver)
{
    using Sound = order<Pointers, Sizes, Count>;
    if (isPacked(x) && Sound::check(x) == stsOk && !isHeavy<Limits::packed>(x) && combineIfDense(op, x)) return stsOk;
    const X stored = x;
    return enterStored<X, Order, Limits>(stored, packed, general, driver);
}

} // namespace zepm
