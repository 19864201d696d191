// Pivot row numbers of a group of matrices, one matrix in each lane, and rows brought to their order.
#pragma once

#include "frame/groups.h"
#include "solver/forms.h"

namespace zepm::ZEPM_LEVEL
{

// The orders that are written out.
inline constexpr sizes<3, 4, 5, 6> writtenOrders;
inline constexpr int largestWrittenOut = 6;

// What f gives for one of them.
template <class F>
ZEPM_INLINE auto forWrittenOrder(int32 order, F f)
{
    return forSize(order, writtenOrders, f, [&]() ZEPM_INLINED { return f.template operator()<largestWrittenOut>(); });
}

// ---- Between memory and lanes ---------------------------------------------------------------------------------------

template <int W, class V>
ZEPM_INLINE auto laneOf(V x, int n)
{
    if constexpr (W == 1)
        return x;
    else
        return x[n];
}

// The pivots of a group: the n of each lane one after the other. I is int32 or const int32. Where lanes repeat an
// object the pivots are in a copy of their own.
template <class I, int W>
struct GroupPivots
{
    Bytes<I> p;

    ZEPM_INLINE GroupPivots(const DenseBlock<I>& block, int32 k, int32 size, int32 n) : p(bytes(block.object(k, n).p))
    {
        if (W == 1 || size == W) return;
        int32 e = 0;
        for (; e < size * n; ++e) copy[e] = block.object(k, n).get(e);
        for (; e < W * n; ++e) copy[e] = copy[e - n];
        p = bytes(copy);
    }
    // What has been written, from the copy to where it belongs.
    ZEPM_INLINE void finish(const DenseBlock<I>& block, int32 k, int32 size, int32 n) const
    {
        if (W == 1 || size == W) return;
        for (int32 e = 0; e < size * n; ++e) block.object(k, n).set(e, copy[e]);
    }

private:
    int32 copy[W * largestWrittenOut];
};

template <int N, int W>
ZEPM_INLINE void readPivots(const char* p, LaneRows<W> (&rows)[N])
{
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n)
    {
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) rows[i].row[n] = load<int32>(p + (n * N + i) * 4);
    }
}
// The first piece of each lane as it stands: of lanes r, r + pieceLength ... in x[r].
template <class T, int W>
ZEPM_INLINE void loadPieces(const char* const* p, Vec<T, W> (&x)[pieceLength<T>])
{
    constexpr int C = pieceLength<T>;
    each<C>([&]<int R>() ZEPM_INLINED {
        x[R] = joinParts<T, C, W / C>([&]<int G>() ZEPM_INLINED { return loadVec<T, C>(p[G * C + R]); });
    });
}

// By lane: lane n of row[i] is the pivot i of object n.
template <class Int, int N, int W>
ZEPM_INLINE void readPivotLanes(const char* p, Vec<Int, W> (&row)[N])
{
    static_assert(W >= pieceLength<int32>);
    Vec<int32, W> narrow[N];
    if constexpr (N == 3)
        loadDense<int32, W, N>(p, narrow);
    else
        loadTransposed<int32, W, N>(Addresses<const char, W>(p, N * 4).p, narrow);
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) row[i] = __builtin_convertvector(narrow[i], Vec<Int, W>);
}
template <class Int, int N, int W>
ZEPM_INLINE void writePivotLanes(char* p, const Vec<Int, W> (&row)[N])
{
    if constexpr (W >= pieceLength<int32>)
    {
        Vec<int32, W> narrow[N];
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) narrow[i] = __builtin_convertvector(row[i], Vec<int32, W>);
        if constexpr (N == 3)
            storeDense<int32, W, N>(p, narrow);
        else
            storeTransposed<int32, W, N>(Addresses<char, W>(p, N * 4).p, narrow);
    }
    else
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n)
        {
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i) store<int32>(p + (n * N + i) * 4, static_cast<int32>(laneOf<W>(row[i], n)));
        }
    }
}

// ---- Rows in pivot order --------------------------------------------------------------------------------------------

// Whether rows are permuted in registers, by selections, rather than by an address for each row of each lane. Measured:
// faster at order 3 where the level has an instruction that selects, slower at larger orders.
template <int N>
inline constexpr bool permutesRows = registerBytes > 16 && N == 3;

// x(row) in each lane, row its own from 0 to N - 1.
template <int N, class I, class F>
ZEPM_INLINE auto picked(I row, F x)
{
    auto result = x(0);
    ZEPM_UNROLL
    for (int r = 1; r < N; ++r) result = row == r ? x(r) : result;
    return result;
}

// y[row[i]] = x[i] in each lane; row is a permutation.
template <int N, int Columns, class V, class I>
ZEPM_INLINE void putRows(const V (&x)[N][Columns], const I (&row)[N], V (&y)[N][Columns])
{
    ZEPM_UNROLL
    for (int r = 0; r < N; ++r)
    {
        ZEPM_UNROLL
        for (int j = 0; j < Columns; ++j)
        {
            y[r][j] = x[0][j];
            ZEPM_UNROLL
            for (int i = 1; i < N; ++i) y[r][j] = row[i] == r ? x[i][j] : y[r][j];
        }
    }
}

} // namespace zepm::ZEPM_LEVEL
