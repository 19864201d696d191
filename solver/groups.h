// Objects of an array taken together, one to a lane: what reaches them, and rows of contiguous elements transposed
// between memory and lanes.
#pragma once

#include "solver/forms.h"
#include "solver/lanes.h"

namespace zepm::ZEPM_LEVEL
{

// ---- Rows of contiguous elements ------------------------------------------------------------------------------------

// A register is made of pieces of 16 bytes, each with elements of one object.
template <class T>
inline constexpr int pieceLength = 16 / static_cast<int>(sizeof(T));
template <class T>
using Piece = Vec<T, pieceLength<T>>;

// The first M elements of a piece; the others are not read, and 0.
template <class T, int M>
ZEPM_INLINE Piece<T> loadPiece(const char* p)
{
    if constexpr (M >= pieceLength<T>)
        return loadVec<T, pieceLength<T>>(p);
    else if constexpr (M == 1)
        return Piece<T>{load<T>(p)};
    else
    {
        const auto two = reinterpret_cast<Piece<T>>(Vec<float64, 2>{load<float64>(p)});
        if constexpr (M == 2)
            return two;
        else
            return __builtin_shufflevector(two, Piece<T>{load<T>(p + 2 * sizeof(T))}, 0, 1, 4, 5);
    }
}

template <class T, int M>
ZEPM_INLINE void storePiece(char* p, Piece<T> x)
{
    if constexpr (M >= pieceLength<T>)
        storeVec<T, pieceLength<T>>(p, x);
    else if constexpr (M == 1)
        store<T>(p, x[0]);
    else
    {
        store<float64>(p, reinterpret_cast<Vec<float64, 2>>(x)[0]);
        if constexpr (M == 3) store<T>(p + 2 * sizeof(T), x[2]);
    }
}

// The pieces at p[First], p[First + Step] ... as one register of W lanes.
template <class T, int W, int M, int First, int Step>
ZEPM_INLINE Vec<T, W> joinPieces(const char* const* p, ptrdiff_t offset)
{
    if constexpr (W == pieceLength<T>)
        return loadPiece<T, M>(p[First] + offset);
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            constexpr int pieces = W / 2 / pieceLength<T>;
            return __builtin_shufflevector(joinPieces<T, W / 2, M, First, Step>(p, offset),
                                           joinPieces<T, W / 2, M, First + pieces * Step, Step>(p, offset), Lane...);
        }
    (std::make_integer_sequence<int, W>{});
}

template <class T, int W, int Number>
ZEPM_INLINE Piece<T> pieceOf(Vec<T, W> x)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(x, x, (Number * pieceLength<T> + Lane)...);
    }
    (std::make_integer_sequence<int, pieceLength<T>>{});
}

// In each piece, runs of Span elements of x and y by turns: of their low halves, or of the high ones.
template <class T, int W, int Span, bool High>
struct InterleavedPlace
{
    constexpr int operator()(int lane) const
    {
        const int length = pieceLength<T>;
        const int within = lane % length, run = within / Span;
        const int from = (run / 2 + (High ? length / Span / 2 : 0)) * Span + within % Span;
        return lane - within + from + (run % 2) * W;
    }
};
template <class T, int W, int Span, bool High>
ZEPM_INLINE Vec<T, W> interleaved(Vec<T, W> x, Vec<T, W> y)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(x, y, InterleavedPlace<T, W, Span, High>{}(Lane)...);
    }
    (std::make_integer_sequence<int, W>{});
}

// Transposes each square of pieces: element e of piece r of the registers changes places with element r of piece e.
template <class T, int W>
ZEPM_INLINE void transposePieces(Vec<T, W> (&x)[pieceLength<T>])
{
    if constexpr (pieceLength<T> == 4)
    {
        const Vec<T, W> a = interleaved<T, W, 1, false>(x[0], x[1]), b = interleaved<T, W, 1, true>(x[0], x[1]);
        const Vec<T, W> c = interleaved<T, W, 1, false>(x[2], x[3]), d = interleaved<T, W, 1, true>(x[2], x[3]);
        x[0] = interleaved<T, W, 2, false>(a, c);
        x[1] = interleaved<T, W, 2, true>(a, c);
        x[2] = interleaved<T, W, 2, false>(b, d);
        x[3] = interleaved<T, W, 2, true>(b, d);
    }
    else
    {
        const Vec<T, W> low = interleaved<T, W, 1, false>(x[0], x[1]);
        x[1] = interleaved<T, W, 1, true>(x[0], x[1]);
        x[0] = low;
    }
}

// M contiguous elements at p[n] for each lane n; element e of all of them becomes x[e].
template <class T, int W, int M, int First = 0>
ZEPM_INLINE void loadTransposed(const char* const* p, Vec<T, W>* x)
{
    constexpr int C = pieceLength<T>;
    constexpr int length = M - First < C ? M - First : C;
    Vec<T, W> square[C];
    [&]<int... R>(std::integer_sequence<int, R...>) __attribute__((always_inline))
    {
        ((square[R] = joinPieces<T, W, length, R, C>(p, First * sizeof(T))), ...);
    }
    (std::make_integer_sequence<int, C>{});
    transposePieces<T, W>(square);
    ZEPM_UNROLL
    for (int e = 0; e < length; ++e) x[First + e] = square[e];
    if constexpr (M - First > C) loadTransposed<T, W, M, First + C>(p, x);
}

// The same back to memory.
template <class T, int W, int M, int First = 0>
ZEPM_INLINE void storeTransposed(char* const* p, const Vec<T, W>* x)
{
    constexpr int C = pieceLength<T>;
    constexpr int length = M - First < C ? M - First : C;
    Vec<T, W> square[C] = {};
    ZEPM_UNROLL
    for (int e = 0; e < length; ++e) square[e] = x[First + e];
    transposePieces<T, W>(square);
    [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        (storePiece<T, length>(p[Lane] + First * sizeof(T), pieceOf<T, W, Lane / C>(square[Lane % C])), ...);
    }
    (std::make_integer_sequence<int, W>{});
    if constexpr (M - First > C) storeTransposed<T, W, M, First + C>(p, x);
}

// ---- Objects by lane ------------------------------------------------------------------------------------------------

template <int W, class V>
ZEPM_INLINE auto laneOf(V x, int n)
{
    if constexpr (W == 1)
        return x;
    else
        return x[n];
}

// Row numbers, one for each lane.
template <int W>
struct LaneRows
{
    int32 row[W];
};

// Objects k to k + size - 1 of contiguous rows, one for each lane. Where size is less than W, the other lanes repeat the
// last object: they compute, and store, the same once more.
template <class T, int W>
struct Group
{
    using Element = std::remove_const_t<T>;
    Bytes<T> p[W];
    ptrdiff_t stride1;

    template <class View>
    ZEPM_INLINE Group(const View& view, int32 k, int32 size)
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) p[n] = view.object(k + (n < size ? n : size - 1)).p;
        stride1 = view.stride1;
    }

    // Element (0, j) of each lane, j its own.
    ZEPM_INLINE Vec<Element, W> getAcross(const LaneRows<W>& rows) const
    {
        return eachLane<Element, W>([&](int n) __attribute__((always_inline)) {
            return load<T>(p[n] + rows.row[n] * static_cast<ptrdiff_t>(sizeof(T)));
        });
    }
    // The N elements of a row of each lane, row its own.
    template <int N>
    ZEPM_INLINE void readRow(const LaneRows<W>& rows, Vec<Element, W>* x) const
    {
        const char* at[W];
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) at[n] = p[n] + rows.row[n] * stride1;
        if constexpr (W > 1)
            loadTransposed<Element, W, N>(at, x);
        else
        {
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j) x[j] = load<T>(at[0] + j * sizeof(T));
        }
    }
    template <int N>
    ZEPM_INLINE void writeRow(const LaneRows<W>& rows, const Vec<Element, W>* x) const
    {
        char* at[W];
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) at[n] = p[n] + rows.row[n] * stride1;
        if constexpr (W > 1)
            storeTransposed<Element, W, N>(at, x);
        else
        {
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j) store<T>(at[0] + j * sizeof(T), x[j]);
        }
    }
};

// The objects of a view without contiguous rows go through copies, one in each lane. An element is copied at a time, by
// loops that stay loops: what is unrolled stands for contiguous rows alone.
template <class View>
inline constexpr bool isContiguous = false;
template <class T, bool Fixed>
inline constexpr bool isContiguous<StridedView<T, true, Fixed>> = true;
template <class T>
inline constexpr bool isContiguous<ListView<T, true>> = true;

// Values in memory by element and lane: registers one after another, seen as their lanes.
template <class T>
struct LaneCopies
{
    char* p;
    int32 width;

    template <class Registers>
    ZEPM_INLINE LaneCopies(Registers& x, int32 numLanes) : p(reinterpret_cast<char*>(&x)), width(numLanes)
    {
    }
    ZEPM_INLINE T get(int32 element, int32 lane) const { return load<T>(at(element, lane)); }
    ZEPM_INLINE void set(int32 element, int32 lane, T x) const { store<T>(at(element, lane), x); }

private:
    ZEPM_INLINE char* at(int32 element, int32 lane) const
    {
        return p + (element * width + lane) * static_cast<ptrdiff_t>(sizeof(T));
    }
};

// The pivots of the objects of a group. I is int32 or const int32.
template <class I, int N, int W>
struct GroupPivots
{
    Bytes<I> p[W];

    ZEPM_INLINE GroupPivots(const PivotBlock<I>& block, int32 k, int32 size)
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) p[n] = bytes(block.object(k + (n < size ? n : size - 1), N).p);
    }
    ZEPM_INLINE void read(LaneRows<W> (&rows)[N]) const
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n)
        {
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i) rows[i].row[n] = PivotObject<I>{reinterpret_cast<I*>(p[n])}.get(i);
        }
    }
    // By lane: lane n of row[i] is the pivot i of object n.
    template <class Int>
    ZEPM_INLINE void readLanes(Vec<Int, W> (&row)[N]) const
    {
        if constexpr (sizeof(Int) == sizeof(int32))
            loadTransposed<int32, W, N>(p, row);
        else
        {
            LaneRows<W> rows[N];
            read(rows);
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i)
                row[i] = eachLane<Int, W>([&](int n) __attribute__((always_inline)) { return rows[i].row[n]; });
        }
    }
    template <class Int>
    ZEPM_INLINE void writeLanes(const Vec<Int, W> (&row)[N]) const
    {
        if constexpr (W > 1 && sizeof(Int) == sizeof(int32))
            storeTransposed<int32, W, N>(p, row);
        else
        {
            ZEPM_UNROLL
            for (int n = 0; n < W; ++n)
            {
                ZEPM_UNROLL
                for (int i = 0; i < N; ++i)
                    PivotObject<I>{reinterpret_cast<I*>(p[n])}.set(i, static_cast<int32>(laneOf<W>(row[i], n)));
            }
        }
    }
};

template <int W>
ZEPM_INLINE LaneRows<W> sameRow(int32 row)
{
    LaneRows<W> rows;
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n) rows.row[n] = row;
    return rows;
}

// ---- Matrices by lane -----------------------------------------------------------------------------------------------

// Rows without gaps are taken as one, where that saves pieces.
template <class T, int N, int W>
inline constexpr bool joinsRows = W > 1 && N % pieceLength<T> != 0;

template <class T, int N, int W>
ZEPM_INLINE void readMatrix(const Group<const T, W>& group, Vec<T, W> (&x)[N][N])
{
    if constexpr (joinsRows<T, N, W>)
    {
        if (group.stride1 == N * static_cast<ptrdiff_t>(sizeof(T)))
        {
            Vec<T, W> row[N * N];
            loadTransposed<T, W, N * N>(group.p, row);
            ZEPM_UNROLL
            for (int e = 0; e < N * N; ++e) x[e / N][e % N] = row[e];
            return;
        }
    }
    ZEPM_UNROLL
    for (int32 i = 0; i < N; ++i) group.template readRow<N>(sameRow<W>(i), x[i]);
}
template <class T, int N, int W>
ZEPM_INLINE void writeMatrix(const Group<T, W>& group, const Vec<T, W> (&x)[N][N])
{
    if constexpr (joinsRows<T, N, W>)
    {
        if (group.stride1 == N * static_cast<ptrdiff_t>(sizeof(T)))
        {
            Vec<T, W> row[N * N];
            ZEPM_UNROLL
            for (int e = 0; e < N * N; ++e) row[e] = x[e / N][e % N];
            storeTransposed<T, W, N * N>(group.p, row);
            return;
        }
    }
    ZEPM_UNROLL
    for (int32 i = 0; i < N; ++i) group.template writeRow<N>(sameRow<W>(i), x[i]);
}

// Whether rows are brought to their places in registers: with an instruction that selects this beats an address for
// each row of each lane at order 3, and not above.
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
