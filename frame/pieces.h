// Registers and their parts: loads and stores of fewer elements than a register holds, registers made of parts and
// taken apart, and the transpositions by which rows become columns.
//
// A piece is 16 bytes of a register. Shuffles that stay within pieces are single instructions at every level.
#pragma once

#include "frame/machine.h"

namespace zepm::ZEPM_LEVEL
{

template <class T>
inline constexpr int pieceLength = 16 / static_cast<int>(sizeof(T));

// ---- Parts ----------------------------------------------------------------------------------------------------------

// Lanes First to First + Count - 1; a single one is a scalar.
template <class T, int N, int First, int Count>
ZEPM_INLINE Vec<T, Count> lanesOf(Vec<T, N> x)
{
    if constexpr (Count == N)
        return x;
    else if constexpr (Count == 1)
        return x[First];
    else if constexpr (Count == N / 2 && First % Count == 0)
        return half<T, N, First / Count>(x);
    else
        return permute<T, N, Count>(x, [](int lane) { return First + lane; });
}

// A register of Parts parts of N lanes each, part.operator()<R>() for R from First on.
template <class T, int N, int Parts, int First = 0, class Part>
ZEPM_INLINE Vec<T, N * Parts> joinParts(Part part)
{
    if constexpr (Parts == 1)
        return part.template operator()<First>();
    else
        return join<T, N * Parts / 2>(joinParts<T, N, Parts / 2, First>(part),
                                      joinParts<T, N, Parts / 2, First + Parts / 2>(part));
}

// Its parts again: visit.operator()<R>(part) in their order.
template <class T, int N, int Parts, int First = 0, class Visit>
ZEPM_INLINE void splitParts(Vec<T, N * Parts> x, Visit visit)
{
    if constexpr (Parts == 1)
    {
        visit.template operator()<First>(x);
    }
    else
    {
        splitParts<T, N, Parts / 2, First>(half<T, N * Parts, 0>(x), visit);
        splitParts<T, N, Parts / 2, First + Parts / 2>(half<T, N * Parts, 1>(x), visit);
    }
}

// One vector of N lanes, Times over.
template <class T, int N, int Times>
ZEPM_INLINE Vec<T, N * Times> repeat(Vec<T, N> x)
{
    return joinParts<T, N, Times>([&]<int>() ZEPM_INLINED { return x; });
}

// ---- Fewer elements than a vector has -------------------------------------------------------------------------------

// The first Count of N elements; the other lanes are zero. No byte behind them is read.
template <class T, int N, int Count>
ZEPM_INLINE Vec<T, N> loadFirst(const char* p)
{
    static_assert(Count <= N);
    if constexpr (Count == N)
        return loadVec<T, N>(p);
    else if constexpr (Count == 0)
        return Vec<T, N>{};
    else if constexpr (Count == 1)
        return Vec<T, N>{load<T>(p)};
    else if constexpr (N == 4 && sizeof(T) == 4)
    {
        const auto two = reinterpret_cast<Vec<T, 4>>(loadTwo(p));
        if constexpr (Count == 2)
            return two;
        else
            return shuffle<T, 4>(two, Vec<T, 4>{load<T>(p + 2 * sz<T>)},
                                 [](int lane) { return lane < 2 ? lane : lane + 2; });
    }
    else if constexpr (Count <= N / 2)
        return join<T, N / 2>(loadFirst<T, N / 2, Count>(p), Vec<T, N / 2>{});
    else
        return join<T, N / 2>(loadVec<T, N / 2>(p), loadFirst<T, N / 2, Count - N / 2>(p + N / 2 * sz<T>));
}

// The first Count of N elements to memory. No byte behind them is written.
template <class T, int N, int Count>
ZEPM_INLINE void storeFirst(char* p, Vec<T, N> x)
{
    static_assert(Count <= N);
    if constexpr (Count == N)
        storeVec<T, N>(p, x);
    else if constexpr (Count == 0)
        return;
    else if constexpr (Count == 1)
        store<T>(p, x[0]);
    else if constexpr (N == 4 && sizeof(T) == 4)
    {
        store<float64>(p, reinterpret_cast<Vec<float64, 2>>(x)[0]);
        if constexpr (Count == 3) store<T>(p + 2 * sz<T>, x[2]);
    }
    else if constexpr (Count <= N / 2)
        storeFirst<T, N / 2, Count>(p, half<T, N, 0>(x));
    else
    {
        storeVec<T, N / 2>(p, half<T, N, 0>(x));
        storeFirst<T, N / 2, Count - N / 2>(p + N / 2 * sz<T>, half<T, N, 1>(x));
    }
}

// A vector of whole pieces to a multiple of 16, past the caches.
template <class T, int N>
ZEPM_INLINE void streamPieces(char* p, Vec<T, N> x)
{
    splitParts<T, pieceLength<T>, N / pieceLength<T>>(x, [&]<int R>(Vec<T, pieceLength<T>> piece)
                                                             ZEPM_INLINED { streamPiece(p + R * 16, piece); });
}

// ---- Shuffles within pieces -----------------------------------------------------------------------------------------

// In each piece, the elements of x at the first half of the Places in it, then those of y at the others.
template <class T, int N, int... Place>
ZEPM_INLINE Vec<T, N> shufflePieces(Vec<T, N> x, Vec<T, N> y)
{
    return shuffle<T, N>(x, y, [](int lane) {
        constexpr int places[] = {Place...}, length = pieceLength<T>;
        const int within = lane % length;
        return lane - within + places[within] + (within < length / 2 ? 0 : N);
    });
}

// Element E of each piece in all lanes of the piece.
template <class T, int N, int E>
ZEPM_INLINE Vec<T, N> spread(Vec<T, N> x)
{
    return permute<T, N>(x, [](int lane) { return lane / pieceLength<T> * pieceLength<T> + E; });
}

// In each piece, runs of Span elements of x and y by turns: of their lower halves, or of the upper ones.
template <class T, int N, int Span, bool Upper>
ZEPM_INLINE Vec<T, N> interleave(Vec<T, N> x, Vec<T, N> y)
{
    return shuffle<T, N>(x, y, [](int lane) {
        constexpr int length = pieceLength<T>;
        const int within = lane % length, run = within / Span;
        return lane - within + (run / 2) * Span + (Upper ? length / 2 : 0) + within % Span + (run % 2) * N;
    });
}

// ---- Transpositions -------------------------------------------------------------------------------------------------

// Each square of pieces transposed: element e of piece r of the registers changes places with element r of piece e.
template <class T, int N>
ZEPM_INLINE void transposePieces(Vec<T, N> (&x)[pieceLength<T>])
{
    if constexpr (pieceLength<T> == 4)
    {
        const Vec<T, N> a = interleave<T, N, 1, false>(x[0], x[1]), b = interleave<T, N, 1, true>(x[0], x[1]);
        const Vec<T, N> c = interleave<T, N, 1, false>(x[2], x[3]), d = interleave<T, N, 1, true>(x[2], x[3]);
        x[0] = interleave<T, N, 2, false>(a, c);
        x[1] = interleave<T, N, 2, true>(a, c);
        x[2] = interleave<T, N, 2, false>(b, d);
        x[3] = interleave<T, N, 2, true>(b, d);
    }
    else
    {
        const Vec<T, N> lower = interleave<T, N, 1, false>(x[0], x[1]);
        x[1] = interleave<T, N, 1, true>(x[0], x[1]);
        x[0] = lower;
    }
}

// N rows of N elements into columns. The blocks of S by S elements off the diagonal of each block twice as large change
// places, down to pieces.
template <class T, int N, int S = N / 2>
ZEPM_INLINE void transpose(Vec<T, N> (&x)[N])
{
    if constexpr (2 * S == pieceLength<T>)
    {
        each<N / pieceLength<T>>([&]<int I>() ZEPM_INLINED {
            transposePieces<T, N>(reinterpret_cast<Vec<T, N>(&)[pieceLength<T>]>(x[I * pieceLength<T>]));
        });
    }
    else if constexpr (S > 0)
    {
        each<N / 2>([&]<int I>() ZEPM_INLINED {
            constexpr int i = I / S * 2 * S + I % S;
            const Vec<T, N> near =
                shuffle<T, N>(x[i], x[i + S], [](int lane) { return lane & S ? N + lane - S : lane; });
            x[i + S] = shuffle<T, N>(x[i], x[i + S], [](int lane) { return lane & S ? N + lane : lane + S; });
            x[i] = near;
        });
        transpose<T, N, S / 2>(x);
    }
}

// ---- Vectors of two or three elements without gaps, element j of N of them in x[j] ----------------------------------

// Whether lanes are taken from anywhere in two registers by one instruction: then whole registers move, not pieces.
template <class T, int N, int Size>
inline constexpr bool shufflesWhole = registerBytes == 64 && N == lanes<T>&& Size == 3;

// From pieces side by side, piece I of each group of Size of them in r[I].
template <class T, int N, int Size>
ZEPM_INLINE void separateDense(const Vec<T, N> (&r)[Size], Vec<T, N> (&x)[Size])
{
    static_assert(Size == 2 || Size == 3);
    if constexpr (Size == 2 && pieceLength<T> == 4) // x0 y0 x1 y1, x2 y2 x3 y3
    {
        x[0] = shufflePieces<T, N, 0, 2, 0, 2>(r[0], r[1]);
        x[1] = shufflePieces<T, N, 1, 3, 1, 3>(r[0], r[1]);
    }
    else if constexpr (Size == 2) // x0 y0, x1 y1
    {
        x[0] = shufflePieces<T, N, 0, 0>(r[0], r[1]);
        x[1] = shufflePieces<T, N, 1, 1>(r[0], r[1]);
    }
    else if constexpr (pieceLength<T> == 4) // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
    {
        const auto yz01 = shufflePieces<T, N, 1, 2, 0, 1>(r[0], r[1]);
        const auto xy23 = shufflePieces<T, N, 2, 3, 1, 2>(r[1], r[2]);
        x[0] = shufflePieces<T, N, 0, 3, 0, 2>(r[0], xy23);
        x[1] = shufflePieces<T, N, 0, 2, 1, 3>(yz01, xy23);
        x[2] = shufflePieces<T, N, 1, 3, 0, 3>(yz01, r[2]);
    }
    else // x0 y0, z0 x1, y1 z1
    {
        x[0] = shufflePieces<T, N, 0, 1>(r[0], r[1]);
        x[1] = shufflePieces<T, N, 1, 0>(r[0], r[2]);
        x[2] = shufflePieces<T, N, 0, 1>(r[1], r[2]);
    }
}

// Vector v is lane v: pieces 3 * g to 3 * g + 2 in memory hold the vectors of piece g of each register.
template <class T, int N, int Size>
ZEPM_INLINE void loadDense(const char* p, Vec<T, N> (&x)[Size])
{
    if constexpr (shufflesWhole<T, N, Size>)
    {
        const Vec<T, N> a = loadVec<T, N>(p), b = loadVec<T, N>(p + N * sz<T>), c = loadVec<T, N>(p + 2 * N * sz<T>);
        each<3>([&]<int J>() ZEPM_INLINED { // element J of vector n is element 3 * n + J of a, b and c
            const Vec<T, N> ab = shuffle<T, N>(a, b, [](int n) { return 3 * n + J < 2 * N ? 3 * n + J : 0; });
            x[J] = shuffle<T, N>(ab, c, [](int n) { return 3 * n + J < 2 * N ? n : 3 * n + J - N; });
        });
        return;
    }
    Vec<T, N> r[Size];
    each<Size>([&]<int I>() ZEPM_INLINED {
        r[I] = joinParts<T, pieceLength<T>, N / pieceLength<T>>(
            [&]<int G>() ZEPM_INLINED { return loadVec<T, pieceLength<T>>(p + (G * Size + I) * 16); });
    });
    separateDense<T, N>(r, x);
}

// The same to memory. Streams stores past the caches, to a multiple of 16.
template <class T, int N, int Size, bool Streams = false>
ZEPM_INLINE void storeDense(char* p, const Vec<T, N> (&x)[Size])
{
    static_assert(Size == 2 || Size == 3);
    Vec<T, N> r[Size];
    if constexpr (shufflesWhole<T, N, Size>)
    {
        each<3>([&]<int I>() ZEPM_INLINED { // lane n of r[I] is element (I * N + n) % 3 of vector (I * N + n) / 3
            const Vec<T, N> xy = shuffle<T, N>(x[0], x[1], [](int n) {
                const int element = I * N + n;
                return element / 3 + (element % 3 == 1 ? N : 0);
            });
            r[I] = shuffle<T, N>(xy, x[2], [](int n) { return (I * N + n) % 3 == 2 ? N + (I * N + n) / 3 : n; });
        });
        if constexpr (!Streams)
        {
            each<3>([&]<int I>() ZEPM_INLINED { storeVec<T, N>(p + I * N * sz<T>, r[I]); });
            return;
        }
    }
    else if constexpr (Size == 2)
    {
        r[0] = interleave<T, N, 1, false>(x[0], x[1]);
        r[1] = interleave<T, N, 1, true>(x[0], x[1]);
    }
    else if constexpr (pieceLength<T> == 4)
    {
        const auto x02y02 = shufflePieces<T, N, 0, 2, 0, 2>(x[0], x[1]);
        const auto z02x13 = shufflePieces<T, N, 0, 2, 1, 3>(x[2], x[0]);
        const auto y13z13 = shufflePieces<T, N, 1, 3, 1, 3>(x[1], x[2]);
        r[0] = shufflePieces<T, N, 0, 2, 0, 2>(x02y02, z02x13);
        r[1] = shufflePieces<T, N, 0, 2, 1, 3>(y13z13, x02y02);
        r[2] = shufflePieces<T, N, 1, 3, 1, 3>(z02x13, y13z13);
    }
    else
    {
        r[0] = shufflePieces<T, N, 0, 0>(x[0], x[1]);
        r[1] = shufflePieces<T, N, 0, 1>(x[2], x[0]);
        r[2] = shufflePieces<T, N, 1, 1>(x[1], x[2]);
    }
    each<Size>([&]<int I>() ZEPM_INLINED {
        splitParts<T, pieceLength<T>, N / pieceLength<T>>(r[I], [&]<int G>(Vec<T, pieceLength<T>> piece) ZEPM_INLINED {
            char* const to = p + (shufflesWhole<T, N, Size> ? I * N * sz<T> + G * 16 : (G * Size + I) * 16);
            if constexpr (Streams)
                streamPiece(to, piece);
            else
                storeVec<T, pieceLength<T>>(to, piece);
        });
    });
}

} // namespace zepm::ZEPM_LEVEL
