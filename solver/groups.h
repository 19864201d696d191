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

// The first piece of each lane as it stands: of lanes r, r + pieceLength ... in x[r].
template <class T, int W>
ZEPM_INLINE void loadPieces(const char* const* p, Vec<T, W> (&x)[pieceLength<T>])
{
    [&]<int... R>(std::integer_sequence<int, R...>) __attribute__((always_inline))
    {
        ((x[R] = joinPieces<T, W, pieceLength<T>, R, pieceLength<T>>(p, 0)), ...);
    }
    (std::make_integer_sequence<int, pieceLength<T>>{});
}

// In each piece, the elements of x at the first half of the Places in it, then those of y at the others.
template <class T, int W, int... Place>
struct ShuffledPlace
{
    constexpr int operator()(int lane) const
    {
        constexpr int place[] = {Place...};
        const int length = pieceLength<T>, within = lane % length;
        return lane - within + place[within] + (within < length / 2 ? 0 : W);
    }
};
template <class T, int W, int... Place>
ZEPM_INLINE Vec<T, W> shuffled(Vec<T, W> x, Vec<T, W> y)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(x, y, ShuffledPlace<T, W, Place...>{}(Lane)...);
    }
    (std::make_integer_sequence<int, W>{});
}

// W triples without gaps from p on; element e of all of them becomes x[e].
template <class T, int W>
ZEPM_INLINE void loadTriples(const char* p, Vec<T, W>* x)
{
    constexpr int pieces = W / pieceLength<T>;
    Vec<T, W> r[3];
    ZEPM_UNROLL
    for (int i = 0; i < 3; ++i)
    {
        const char* at[pieces];
        ZEPM_UNROLL
        for (int g = 0; g < pieces; ++g) at[g] = p + (g * 3 + i) * 16;
        r[i] = joinPieces<T, W, pieceLength<T>, 0, 1>(at, 0);
    }
    if constexpr (pieceLength<T> == 4) // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
    {
        const auto yz01 = shuffled<T, W, 1, 2, 0, 1>(r[0], r[1]), xy23 = shuffled<T, W, 2, 3, 1, 2>(r[1], r[2]);
        x[0] = shuffled<T, W, 0, 3, 0, 2>(r[0], xy23);
        x[1] = shuffled<T, W, 0, 2, 1, 3>(yz01, xy23);
        x[2] = shuffled<T, W, 1, 3, 0, 3>(yz01, r[2]);
    }
    else // x0 y0, z0 x1, y1 z1
    {
        x[0] = shuffled<T, W, 0, 1>(r[0], r[1]);
        x[1] = shuffled<T, W, 1, 0>(r[0], r[2]);
        x[2] = shuffled<T, W, 0, 1>(r[1], r[2]);
    }
}
template <class T, int W>
ZEPM_INLINE void storeTriples(char* p, const Vec<T, W>* x)
{
    Vec<T, W> r[3];
    if constexpr (pieceLength<T> == 4)
    {
        const auto a = shuffled<T, W, 0, 2, 0, 2>(x[0], x[1]), b = shuffled<T, W, 0, 2, 1, 3>(x[2], x[0]);
        const auto c = shuffled<T, W, 1, 3, 1, 3>(x[1], x[2]);
        r[0] = shuffled<T, W, 0, 2, 0, 2>(a, b);
        r[1] = shuffled<T, W, 0, 2, 1, 3>(c, a);
        r[2] = shuffled<T, W, 1, 3, 1, 3>(b, c);
    }
    else
    {
        r[0] = shuffled<T, W, 0, 0>(x[0], x[1]);
        r[1] = shuffled<T, W, 0, 1>(x[2], x[0]);
        r[2] = shuffled<T, W, 1, 1>(x[1], x[2]);
    }
    [&]<int... Number>(std::integer_sequence<int, Number...>) __attribute__((always_inline))
    {
        (storePiece<T, pieceLength<T>>(p + Number * 16, pieceOf<T, W, Number / 3>(r[Number % 3])), ...);
    }
    (std::make_integer_sequence<int, 3 * W / pieceLength<T>>{});
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

template <int W>
ZEPM_INLINE LaneRows<W> sameRow(int32 row)
{
    LaneRows<W> rows;
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n) rows.row[n] = row;
    return rows;
}

// Where objects k to k + size - 1 are, one for each lane. Where size is less than W, the other lanes repeat the last
// object: they compute, and store, the same once more.
template <class T, int W, bool Contiguous, bool Fixed>
ZEPM_INLINE void place(const StridedView<T, Contiguous, Fixed>& view, int32 k, int32 size, Bytes<T> (&p)[W])
{
    constexpr int A = W < lanes<ptrdiff_t> ? W : lanes<ptrdiff_t>;
    const auto first = view.object(k).p;
    if (W == 1 || Fixed)
        for (int n = 0; n < W; ++n) p[n] = first;
    else if (size == W)
    {
        const auto steps =
            eachLane<ptrdiff_t, A>([&](int n) __attribute__((always_inline)) { return n * view.stride0; });
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
ZEPM_INLINE void place(const ListView<T, Contiguous>& view, int32 k, int32 size, Bytes<T> (&p)[W])
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
ZEPM_INLINE ptrdiff_t stepOf(const StridedView<T, Contiguous, Fixed>& view)
{
    return Fixed ? 0 : view.stride0;
}
template <class T, bool Contiguous>
ZEPM_INLINE ptrdiff_t stepOf(const ListView<T, Contiguous>&)
{
    return 0;
}

// Objects of contiguous rows, one for each lane.
template <class T, int W>
struct Group
{
    using Element = std::remove_const_t<T>;
    Bytes<T> p[W];
    ptrdiff_t stride1;
    ptrdiff_t step; // as stepOf, but 0 if lanes repeat an object

    template <class View>
    ZEPM_INLINE Group(const View& view, int32 k, int32 size)
        : stride1(view.stride1), step(W > 1 && size == W ? stepOf(view) : 0)
    {
        place<T, W>(view, k, size, p);
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
    // Vectors of N elements.
    template <int N>
    ZEPM_INLINE void readVectors(Vec<Element, W>* x) const
    {
        if constexpr (N == 3 && W >= pieceLength<Element>)
        {
            if (step == N * static_cast<ptrdiff_t>(sizeof(T))) return loadTriples<Element, W>(p[0], x);
        }
        readRow<N>(sameRow<W>(0), x);
    }
    template <int N>
    ZEPM_INLINE void writeVectors(const Vec<Element, W>* x) const
    {
        if constexpr (N == 3 && W >= pieceLength<Element>)
        {
            if (step == N * static_cast<ptrdiff_t>(sizeof(T))) return storeTriples<Element, W>(p[0], x);
        }
        writeRow<N>(sameRow<W>(0), x);
    }
};

// Whether groups move by pieces. All others go through copies in lanes, an element at a time, by loops over the lanes
// that stay loops: it is the unrolled code that takes the compiler long.
template <class View>
inline constexpr bool isContiguous = false;
template <class T, bool Fixed>
inline constexpr bool isContiguous<StridedView<T, true, Fixed>> = true;
template <class T>
inline constexpr bool isContiguous<ListView<T, true>> = true;

// One lane of a register in memory.
template <class T, class V>
ZEPM_INLINE T getLane(const V& x, int lane)
{
    return load<T>(reinterpret_cast<const char*>(&x) + lane * static_cast<ptrdiff_t>(sizeof(T)));
}
template <class T, class V>
ZEPM_INLINE void setLane(V& x, int lane, T value)
{
    store<T>(reinterpret_cast<char*>(&x) + lane * static_cast<ptrdiff_t>(sizeof(T)), value);
}

// The largest order that is written out; the smallest is 3.
inline constexpr int largestWrittenOut = 6;

// What f gives for order n.
template <class F>
ZEPM_INLINE auto forOrder(int32 n, F f)
{
    switch (n)
    {
    case 3: return f.template operator()<3>();
    case 4: return f.template operator()<4>();
    case 5: return f.template operator()<5>();
    default: return f.template operator()<largestWrittenOut>();
    }
}

// The pivots of a group: the n of each lane one after the other. I is int32 or const int32. Where lanes repeat an
// object the pivots are in a copy of their own.
template <class I, int W>
struct GroupPivots
{
    Bytes<I> p;

    ZEPM_INLINE GroupPivots(const PivotBlock<I>& block, int32 k, int32 size, int32 n) : p(bytes(block.object(k, n).p))
    {
        if (W == 1 || size == W) return;
        int32 e = 0;
        for (; e < size * n; ++e) copy[e] = block.object(k, n).get(e);
        for (; e < W * n; ++e) copy[e] = copy[e - n];
        p = bytes(copy);
    }
    // What has been written, from the copy to where it belongs.
    ZEPM_INLINE void finish(const PivotBlock<I>& block, int32 k, int32 size, int32 n) const
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
// By lane: lane n of row[i] is the pivot i of object n.
template <class Int, int N, int W>
ZEPM_INLINE void readPivotLanes(const char* p, Vec<Int, W> (&row)[N])
{
    static_assert(W >= pieceLength<int32>);
    Vec<int32, W> narrow[N];
    if constexpr (N == 3)
        loadTriples<int32, W>(p, narrow);
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
            storeTriples<int32, W>(p, narrow);
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
