// The ways of the exported functions into the level source: blocks become views, and calls on objects without gaps one
// run of bytes.
#pragma once

#include "elementwise/rows.h"
#include "movement/forms.h"
#include "movement/moves.h"

namespace zepm
{

// ---- Views ----------------------------------------------------------------------------------------------------------
//
// One kind of view for each layout: whether elements are contiguous, and whether there is one object, is seen in the
// strides. With a count of 1 no stride between objects is looked at.

template <class T>
using StridedObjects = StridedView<T, false, false>;
template <class T>
using ListedObjects = ListView<T, false>;
template <class T>
using TabledObjects = TableView<T, false>;
template <class T>
using TransposedTable = TransposedView<TabledObjects<T>>;

template <class T, bool IsArray, int Rank, class X>
ZEPM_INLINE StridedObjects<T> viewIn(const X&, const StridedBlock<T, IsArray, Rank>& block)
{
    return {bytes(block.p), block.stride0, block.stride1, block.stride2};
}
template <class T, int Rank, class X>
ZEPM_INLINE ListedObjects<T> viewIn(const X&, const ListBlock<T, Rank>& block)
{
    return {block.pp, block.roiShift, block.stride1, block.stride2};
}
template <class T, bool IsArray, class X>
ZEPM_INLINE TabledObjects<T> viewIn(const X& x, const TableBlock<T, IsArray>& block)
{
    return {block.pp, block.roiShift, block.stride0, x.width};
}
template <class T, class X>
ZEPM_INLINE StridedObjects<T> viewIn(const X& x, const DenseBlock<T>& block)
{
    const ptrdiff_t rowSize = static_cast<ptrdiff_t>(sizeof(T)) * x.width;
    return {bytes(block.p), x.height * rowSize, rowSize, static_cast<ptrdiff_t>(sizeof(T))};
}

// A transposed object has its strides exchanged. A table's rows are as long as they are stored.
template <class T, class X, bool IsArray>
ZEPM_INLINE StridedObjects<T> viewIn(const X&, const TransposedBlock<StridedBlock<T, IsArray, 2>>& block)
{
    return {bytes(block.p), block.stride0, block.stride2, block.stride1};
}
template <class T, class X>
ZEPM_INLINE ListedObjects<T> viewIn(const X&, const TransposedBlock<ListBlock<T, 2>>& block)
{
    return {block.pp, block.roiShift, block.stride2, block.stride1};
}
template <class T, class X, bool IsArray>
ZEPM_INLINE TransposedTable<T> viewIn(const X& x, const TransposedBlock<TableBlock<T, IsArray>>& block)
{
    return {{block.pp, block.roiShift, block.stride0, x.height}};
}

// ---- Kernels --------------------------------------------------------------------------------------------------------

// Elements as they lie.
template <class X>
Status moveElements(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const auto from = viewIn(x, x.src);
    const auto to = viewIn(x, x.dst);
    ZEPM_AT_LEVEL(moveObjects<T, std::remove_const_t<decltype(from)>, std::remove_const_t<decltype(to)>>)
    (from, to, x.width, x.height, x.count);
    return stsOk;
}

// Rows that are contiguous as they are stored into those of the transpose, which must not overlap them.
template <class X>
Status moveTransposed(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const auto from = viewIn(x, x.src);
    const auto to = viewIn(x, x.dst);
    ZEPM_AT_LEVEL(transposeObjects<T, std::remove_const_t<decltype(from)>, std::remove_const_t<decltype(to)>>)
    (from, to, x.width, x.height, x.count);
    return stsOk;
}

template <class X>
Status writeIdentity(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const auto to = viewIn(x, x.dst);
    ZEPM_AT_LEVEL(fillIdentity<T, std::remove_const_t<decltype(to)>>)(to, x.width, x.height, x.count);
    return stsOk;
}

// ---- Objects without gaps -------------------------------------------------------------------------------------------

// Whether each row begins where the one before ends, and each object likewise; then all of these strides are valid. The
// size of a row need not fit an address.
template <class T, bool IsArray, int Rank, class X>
ZEPM_INLINE bool isRun(const X& x, const StridedBlock<T, IsArray, Rank>& block)
{
    const int64_t rowSize = static_cast<int64_t>(sizeof(T)) * x.width;
    return block.p && block.stride2 == sizeof(T) && (Rank == 1 || block.stride1 == rowSize) &&
           (!IsArray || block.stride0 == x.height * rowSize);
}
template <class T, class X>
ZEPM_INLINE bool isRun(const X&, const DenseBlock<T>& block)
{
    return block.p;
}

// What enterQuick takes: objects without gaps on either side. A short one costs what memmove does.
struct AsRun
{
    template <class X>
    ZEPM_INLINE bool operator()(const X& x) const
    {
        using T = typename decltype(x.dst)::Element;
        if (!x.sizesValid() || x.count < 1 || !isRun(x, x.src) || !isRun(x, x.dst)) return false;
        const ptrdiff_t size = static_cast<ptrdiff_t>(sizeof(T)) * x.width * x.height * x.count;
        char* const to = bytes(x.dst.p);
        const char* const from = bytes(x.src.p);
        if (size < longRun && !smears(to, from, size))
            __builtin_memmove(to, from, static_cast<size_t>(size));
        else
            ZEPM_AT_LEVEL(moveRun<T>)(to, from, size);
        return true;
    }
};

} // namespace zepm
