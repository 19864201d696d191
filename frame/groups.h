// Objects of an array taken together, one in each lane: how the objects of every layout are reached, how their elements
// move between memory and lanes, and what becomes of a group in which an object fails.
//
// A group has W lanes, one register or several. Where fewer objects are left, the other lanes repeat the last of them:
// they compute, and store, the same once more. Objects with contiguous rows move by pieces of 16 bytes (RowGroup); all
// others element by element (gatherElements, scatterElements), by loops over the lanes that stay loops, since unrolling
// them multiplies the compile time.
#pragma once

#include "frame/numbers.h"
#include "frame/pieces.h"

namespace zepm
{

// ---- The rule for groups --------------------------------------------------------------------------------------------

// Serves objects 0 to count - 1 in their order. group(k, size) serves objects k to k + size - 1 and returns true; or,
// where one of them fails, writes nothing and returns false. one(k) serves a single object. The first object that fails
// ends the call: a group with one is done again object by object, and so are fewer than leastGroup objects.
template <class Group, class One>
ZEPM_INLINE Status forGroups(int32 count, int32 groupSize, int32 leastGroup, Group group, One one)
{
    for (int32 left = count; left > 0; left -= groupSize)
    {
        const int32 k = count - left, size = left < groupSize ? left : groupSize;
        if (size >= leastGroup && group(k, size)) continue;
        for (int32 n = k; n < k + size; ++n)
            if (const Status status = one(n)) return status;
    }
    return stsOk;
}

} // namespace zepm

namespace zepm::ZEPM_LEVEL
{

// ---- Elements of any layout -----------------------------------------------------------------------------------------

// One lane of a register, or of several, in memory.
template <class T, class V>
ZEPM_INLINE T getLane(const V& x, int lane)
{
    return load<T>(reinterpret_cast<const char*>(&x) + lane * sz<T>);
}
template <class T, class V>
ZEPM_INLINE void setLane(V& x, int lane, T value)
{
    store<T>(reinterpret_cast<char*>(&x) + lane * sz<T>, value);
}

// visit(lane, object) for the W lanes of a group of size objects from k on.
template <int W, class Visit>
ZEPM_INLINE void forLanes(int32 k, int32 size, Visit visit)
{
    for (int lane = 0; lane < W; ++lane) visit(lane, k + (lane < size ? lane : size - 1));
}

// Element (i, j) of all objects of a group becomes x[i][j].
template <class T, int W, int Rows, int Columns, class V, class View>
ZEPM_INLINE void gatherElements(const View& view, int32 k, int32 size, V (&x)[Rows][Columns])
{
    forLanes<W>(k, size, [&](int lane, int32 number) ZEPM_INLINED {
        const auto object = view.object(number);
        for (int i = 0; i < Rows; ++i)
        {
            ZEPM_UNROLL
            for (int j = 0; j < Columns; ++j) setLane<T>(x[i][j], lane, object.get(i, j));
        }
    });
}

// The same to memory.
template <class T, int W, int Rows, int Columns, class V, class View>
ZEPM_INLINE void scatterElements(const View& view, int32 k, int32 size, const V (&x)[Rows][Columns])
{
    for (int lane = 0; lane < size; ++lane)
    {
        const auto object = view.object(k + lane);
        for (int i = 0; i < Rows; ++i)
        {
            ZEPM_UNROLL
            for (int j = 0; j < Columns; ++j) object.set(i, j, getLane<T>(x[i][j], lane));
        }
    }
}

// ---- Contiguous elements --------------------------------------------------------------------------------------------

template <class View>
inline constexpr bool hasContiguousRows = false;
template <class T, bool Fixed>
inline constexpr bool hasContiguousRows<StridedView<T, true, Fixed>> = true;
template <class T>
inline constexpr bool hasContiguousRows<ListView<T, true>> = true;

// M contiguous elements of each lane become x[0] to x[M - 1]. piece.operator()<R, First, Length>() gives Length of them
// from element First on, of every lane whose number in its piece is R, each at the place of its piece.
template <class T, int W, int M, int First = 0, class Piece>
ZEPM_INLINE void transposeFrom(Piece piece, Vec<T, W>* x)
{
    constexpr int C = pieceLength<T>;
    constexpr int length = M - First < C ? M - First : C;
    Vec<T, W> square[C];
    each<C>([&]<int R>() ZEPM_INLINED { square[R] = piece.template operator()<R, First, length>(); });
    transposePieces<T, W>(square);
    ZEPM_UNROLL
    for (int e = 0; e < length; ++e) x[First + e] = square[e];
    if constexpr (M - First > C) transposeFrom<T, W, M, First + C>(piece, x);
}

// M contiguous elements at p[n] for each lane n; element e of all of them becomes x[e].
template <class T, int W, int M>
ZEPM_INLINE void loadTransposed(const char* const* p, Vec<T, W>* x)
{
    constexpr int C = pieceLength<T>;
    const auto piece = [&]<int R, int First, int Length>() ZEPM_INLINED {
        return joinParts<T, C, W / C>(
            [&]<int G>() ZEPM_INLINED { return loadFirst<T, C, Length>(p[G * C + R] + First * sz<T>); });
    };
    transposeFrom<T, W, M>(piece, x);
}

// The same to memory.
template <class T, int W, int M, int First = 0>
ZEPM_INLINE void storeTransposed(char* const* p, const Vec<T, W>* x)
{
    constexpr int C = pieceLength<T>;
    constexpr int length = M - First < C ? M - First : C;
    Vec<T, W> square[C] = {};
    ZEPM_UNROLL
    for (int e = 0; e < length; ++e) square[e] = x[First + e];
    transposePieces<T, W>(square);
    // In the order of the lanes, so that successive objects are written one after the other.
    each<W>([&]<int Lane>() ZEPM_INLINED {
        storeFirst<T, C, length>(p[Lane] + First * sz<T>, lanesOf<T, W, Lane / C * C, C>(square[Lane % C]));
    });
    if constexpr (M - First > C) storeTransposed<T, W, M, First + C>(p, x);
}

// W addresses at a distance.
template <class Char, int W>
struct Addresses
{
    Char* p[W];

    ZEPM_INLINE Addresses(Char* first, ptrdiff_t step)
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) p[n] = first + n * step;
    }
};

// The addresses of objects k to k + size - 1, one for each lane.
template <class T, int W, bool Contiguous, bool Fixed>
ZEPM_INLINE void locateObjects(const StridedView<T, Contiguous, Fixed>& view, int32 k, int32 size, Bytes<T> (&p)[W])
{
    constexpr int A = W < lanes<ptrdiff_t> ? W : lanes<ptrdiff_t>;
    const auto first = view.object(k).p;
    if (W == 1 || Fixed)
        for (int n = 0; n < W; ++n) p[n] = first;
    else if (size == W && A <= 2) // in registers of two the addresses take longer than one by one
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n) p[n] = first + n * view.stride0;
    }
    else if (size == W)
    {
        const auto steps = eachLane<ptrdiff_t, A>([&](int n) ZEPM_INLINED { return n * view.stride0; });
        ZEPM_UNROLL
        for (int n = 0; n < W; n += A)
        {
            const auto at = reinterpret_cast<ptrdiff_t>(first + n * view.stride0);
            storeVec<ptrdiff_t, A>(reinterpret_cast<char*>(p + n), broadcast<ptrdiff_t, A>(at) + steps);
        }
    }
    else
    {
        auto at = first;
        ZEPM_UNROLL
        for (int n = 0; n < W; ++n)
        {
            p[n] = at;
            at += n + 1 < size ? view.stride0 : 0;
        }
    }
}
template <class T, int W, bool Contiguous>
ZEPM_INLINE void locateObjects(const ListView<T, Contiguous>& view, int32 k, int32 size, Bytes<T> (&p)[W])
{
    constexpr int A = W < lanes<ptrdiff_t> ? W : lanes<ptrdiff_t>;
    if (size == W)
    {
        ZEPM_UNROLL
        for (int n = 0; n < W; n += A)
            storeVec<ptrdiff_t, A>(reinterpret_cast<char*>(p + n),
                                   loadVec<ptrdiff_t, A>(reinterpret_cast<const char*>(view.pp + k + n)) +
                                       broadcast<ptrdiff_t, A>(view.shift));
    }
    else
        for (int n = 0; n < W; ++n) p[n] = view.object(k + (n < size ? n : size - 1)).p;
}

// The distance from one object to the next, if it is the same for all; otherwise 0.
template <class T, bool Contiguous, bool Fixed>
ZEPM_INLINE ptrdiff_t distanceOf(const StridedView<T, Contiguous, Fixed>& view)
{
    return Fixed ? 0 : view.stride0;
}
template <class T, bool Contiguous>
ZEPM_INLINE ptrdiff_t distanceOf(const ListView<T, Contiguous>&)
{
    return 0;
}

// A row number for each lane.
template <int W>
struct LaneRows
{
    int32 row[W];
};

template <int W>
ZEPM_INLINE LaneRows<W> sameRow(int32 row)
{
    LaneRows<W> rows;
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n) rows.row[n] = row;
    return rows;
}

// Objects of contiguous rows, one for each lane.
template <class T, int W>
struct RowGroup
{
    using Element = std::remove_const_t<T>;
    Bytes<T> p[W];
    ptrdiff_t stride1;
    ptrdiff_t step; // as distanceOf, but 0 if lanes repeat an object

    template <class View>
    ZEPM_INLINE RowGroup(const View& view, int32 k, int32 size)
        : stride1(view.stride1), step(W > 1 && size == W ? distanceOf(view) : 0)
    {
        locateObjects<T, W>(view, k, size, p);
    }

    // Element (0, j) of each lane, j its own.
    ZEPM_INLINE Vec<Element, W> getAcross(const LaneRows<W>& rows) const
    {
        return eachLane<Element, W>([&](int n) ZEPM_INLINED { return load<T>(p[n] + rows.row[n] * sz<T>); });
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
            for (int j = 0; j < N; ++j) x[j] = load<T>(at[0] + j * sz<T>);
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
            for (int j = 0; j < N; ++j) store<T>(at[0] + j * sz<T>, x[j]);
        }
    }
    // Vectors of N elements.
    template <int N>
    ZEPM_INLINE void readVectors(Vec<Element, W> (&x)[N]) const
    {
        if constexpr (N == 3 && W >= pieceLength<Element>)
        {
            if (step == N * sz<T>) return loadDense<Element, W, N>(p[0], x);
        }
        readRow<N>(sameRow<W>(0), x);
    }
    template <int N>
    ZEPM_INLINE void writeVectors(const Vec<Element, W> (&x)[N]) const
    {
        if constexpr (N == 3 && W >= pieceLength<Element>)
        {
            if (step == N * sz<T>) return storeDense<Element, W, N>(p[0], x);
        }
        writeRow<N>(sameRow<W>(0), x);
    }
};

// Rows without gaps are taken as one, where that saves pieces.
template <class T, int Columns, int W>
inline constexpr bool joinsRows = W > 1 && Columns % pieceLength<T> != 0;

template <class T, int W, int Rows, int Columns>
ZEPM_INLINE void readMatrix(const RowGroup<const T, W>& group, Vec<T, W> (&x)[Rows][Columns])
{
    if constexpr (joinsRows<T, Columns, W>)
    {
        if (group.stride1 == Columns * sz<T>)
        {
            Vec<T, W> row[Rows * Columns];
            loadTransposed<T, W, Rows * Columns>(group.p, row);
            ZEPM_UNROLL
            for (int e = 0; e < Rows * Columns; ++e) x[e / Columns][e % Columns] = row[e];
            return;
        }
    }
    ZEPM_UNROLL
    for (int32 i = 0; i < Rows; ++i) group.template readRow<Columns>(sameRow<W>(i), x[i]);
}
template <class T, int W, int Rows, int Columns>
ZEPM_INLINE void writeMatrix(const RowGroup<T, W>& group, const Vec<T, W> (&x)[Rows][Columns])
{
    if constexpr (joinsRows<T, Columns, W>)
    {
        if (group.stride1 == Columns * sz<T>)
        {
            Vec<T, W> row[Rows * Columns];
            ZEPM_UNROLL
            for (int e = 0; e < Rows * Columns; ++e) row[e] = x[e / Columns][e % Columns];
            storeTransposed<T, W, Rows * Columns>(group.p, row);
            return;
        }
    }
    ZEPM_UNROLL
    for (int32 i = 0; i < Rows; ++i) group.template writeRow<Columns>(sameRow<W>(i), x[i]);
}

} // namespace zepm::ZEPM_LEVEL
