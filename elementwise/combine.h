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

// Calls f(op, x, a, b) with the sources of x, exchanged where the level sources expect it: a source that alone is
// transposed comes first, a row that serves all objects second. f must not capture x, which would be spilled to memory.
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

// Serves objects without gaps and returns true; returns false if any operand has gaps.
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
                ZEPM_AT_LEVEL(combineDense<typename Dst::Element, decltype(inOrder)>)
                (inOrder, sequenceOf(a).p, sequenceOf(b).p, bytes(x.dst.p), static_cast<ptrdiff_t>(x.width) * x.height,
                 x.count, sourcesOf<A, B>);
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
        const RowCall rows{sequenceOf(a), sequenceOf(b), sequenceOf(x.dst), isConstantBlock<B>, isListBlock<Dst>,
                           x.width,       x.count};
        if constexpr (X::rank == 1)
            ZEPM_AT_LEVEL(combineRows<typename Dst::Element, InOrder>)(inOrder, rows);
        else
        {
            MatrixCall matrices{rows,
                                x.height,
                                rowStrideOf(a),
                                rowStrideOf(b),
                                rowStrideOf(x.dst),
                                isTransposedBlock<A>,
                                isTransposedBlock<B>};
            ZEPM_AT_LEVEL(combineMatrices<typename Dst::Element, InOrder>)(inOrder, matrices);
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
        return sequenceOf(block).p;
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
                ZEPM_AT_LEVEL(combineDense<T, decltype(flipped(op))>)(flipped(op), b, a, d, x.count, 1, sources);
            else
                ZEPM_AT_LEVEL(combineDense<T, Op>)(op, a, b, d, x.count, 1, sources);
        }
}

// Fewer objects than this do not repay a call for each element.
inline constexpr int32 leastObjectsAcross = 16;

// ---- Kernels --------------------------------------------------------------------------------------------------------

// The sizes of single objects for which a row is written out: lengths of vectors, orders of dense square matrices.
inline constexpr sizes<3, 4, 5, 6> writtenRows;

// The source that stands second in a row: where its elements are, or the constant.
template <class Block>
ZEPM_INLINE auto rowOperand(const Block& block)
{
    if constexpr (isConstantBlock<Block>)
        return block.val;
    else
        return bytes(block.p);
}

// Serves single objects of the sizes written out, without gaps; false where x is another call.
template <class Op, class X>
ZEPM_INLINE bool combineIfSmall(Op op, const X& x)
{
    using T = typename decltype(x.dst)::Element;
    if constexpr (isTransposedBlock<decltype(x.src1)> || isTransposedBlock<decltype(x.src2)>)
        return false;
    else
    {
        if ((X::rank == 2 && x.width != x.height) || !isDense(x, x.width)) return false;
        return forSize(
            x.width, writtenRows,
            [&]<int32 N>() ZEPM_INLINED {
                ZEPM_LEVEL::rowOf<T, X::rank == 1 ? N : N * N>(op, bytes(x.src1.p), rowOperand(x.src2), bytes(x.dst.p));
                return true;
            },
            []() ZEPM_INLINED { return false; });
    }
}

// One vector with contiguous elements. A long one that overlaps a source without being that source takes the plain
// loop.
template <class Op, class X>
ZEPM_INLINE void combineVector(Op op, const X& x)
{
    if (combineIfSmall(op, x)) return;
    using T = typename decltype(x.dst)::Element;
    constexpr bool isConstant = isConstantBlock<decltype(x.src2)>;
    const char* const a = bytes(x.src1.p);
    char* const d = bytes(x.dst.p);
    const auto b = rowOperand(x.src2);
    auto apart = [&](const char* s) ZEPM_INLINED {
        return s == d || ZEPM_LEVEL::areApart(s, d, x.width * static_cast<ptrdiff_t>(sizeof(T)));
    };
    bool isApart = x.width > 6 && apart(a);
    if constexpr (!isConstant) isApart = isApart && apart(b);
    if (isApart) ZEPM_AT_LEVEL(combineDense<T, Op>)
    (op, a, sequenceOf(x.src2).p, d, x.width, 1, sourcesOf<decltype(x.src1), decltype(x.src2)>);
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

// What enterQuick takes for single objects.
template <class Op>
ZEPM_INLINE auto smallObjects(Op op)
{
    return [op](const auto& x) ZEPM_INLINED { return combineIfSmall(op, x); };
}

// Arrays in S. A serial call on operands without gaps does not come to a kernel: their strides need no check, and they
// go where the work is done in registers. A short dense call takes about a cycle a result; storing the argument struct
// would be a tenth of it.
template <class Op, class X, class Order, class Limits>
ZEPM_INLINE Status enterDense(Op op, const X& x, Order steps, Limits limits, KernelOf<X>* packed, KernelOf<X>* general,
                              KernelOf<X>* driver)
{
    const auto serve = [op](const X& call) ZEPM_INLINED {
        using Sound = order<Pointers, Sizes, Count>;
        return isPacked(call) && Sound::check(call) == stsOk && !isHeavy<Limits::packed>(call) &&
               combineIfDense(op, call);
    };
    return enterQuick(x, serve, steps, limits, packed, general, driver);
}

} // namespace zepm
