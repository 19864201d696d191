// Tiles: N x N elements in registers, which is how rows become columns.
#pragma once

#include "frame/lanes.h"

namespace zepm::ZEPM_LEVEL
{

// Calls visit.operator()<0>() to visit.operator()<N - 1>().
template <int N, class Visit>
ZEPM_INLINE void forEachIndex(Visit visit)
{
    [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline))
    {
        (visit.template operator()<I>(), ...);
    }
    (std::make_integer_sequence<int, N>{});
}

// The vector whose lane n is lane Place(n) of x and y one behind the other.
template <class T, int N, class Place>
ZEPM_INLINE Vec<T, N> shuffle(Vec<T, N> x, Vec<T, N> y, Place)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(x, y, Place{}(Lane)...);
    }
    (std::make_integer_sequence<int, N>{});
}

// ---- Parts of a vector ----------------------------------------------------------------------------------------------

// The lower half of a vector; the upper lanes are not defined.
template <class T, int N>
ZEPM_INLINE Vec<T, N> loadHalf(const char* p)
{
    constexpr int half = N / 2;
    if constexpr (half == 1)
        return Vec<T, N>{load<T>(p)};
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            const Vec<T, half> x = loadVec<T, half>(p);
            return __builtin_shufflevector(x, x, (Lane < half ? Lane : -1)...);
        }
    (std::make_integer_sequence<int, N>{});
}

// The lower half of x and that of y.
template <int N>
struct LowHalves
{
    constexpr int operator()(int lane) const { return lane < N / 2 ? lane : N / 2 + lane; }
};

// The first Count elements of a vector of N; the other lanes are not defined. No element behind them is read.
template <class T, int N, int Count>
ZEPM_INLINE Vec<T, N> loadPart(const char* p)
{
    constexpr int half = N / 2;
    if constexpr (Count == N)
        return loadVec<T, N>(p);
    else if constexpr (Count == 1)
        return Vec<T, N>{load<T>(p)};
    else if constexpr (Count == half)
        return loadHalf<T, N>(p);
    else if constexpr (Count > half)
        return shuffle<T, N>(loadHalf<T, N>(p), loadPart<T, N, Count - half>(p + half * sizeof(T)), LowHalves<N>{});
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            const Vec<T, half> x = loadPart<T, half, Count>(p);
            return __builtin_shufflevector(x, x, (Lane < half ? Lane : -1)...);
        }
    (std::make_integer_sequence<int, N>{});
}

// Lanes First to First + Count - 1.
template <class T, int N, int First, int Count>
ZEPM_INLINE auto lanesOf(Vec<T, N> x)
{
    if constexpr (Count == 1)
        return x[First];
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            return __builtin_shufflevector(x, x, (First + Lane)...);
        }
    (std::make_integer_sequence<int, Count>{});
}

// Stores the first Count elements of a vector of N and nothing behind them.
template <class T, int N, int Count>
ZEPM_INLINE void storePart(char* p, Vec<T, N> x)
{
    constexpr int half = N / 2;
    if constexpr (Count == N)
        storeVec<T, N>(p, x);
    else if constexpr (Count <= half)
        storePart<T, half, Count>(p, lanesOf<T, N, 0, half>(x));
    else
    {
        storeVec<T, half>(p, lanesOf<T, N, 0, half>(x));
        storePart<T, half, Count - half>(p + half * sizeof(T), lanesOf<T, N, half, half>(x));
    }
}

// ---- Transposition --------------------------------------------------------------------------------------------------

// Exchanges the blocks of S x S elements off the diagonal of each block of 2 S x 2 S.
template <int N, int S>
struct NearBlocks
{
    constexpr int operator()(int lane) const { return lane & S ? N + lane - S : lane; }
};
template <int N, int S>
struct FarBlocks
{
    constexpr int operator()(int lane) const { return lane & S ? N + lane : lane + S; }
};

// The elements of two vectors alternately, the lower or the upper pair of each four.
template <int N, int First>
struct Alternately
{
    constexpr int operator()(int lane) const { return lane / 4 * 4 + First + lane % 4 / 2 + lane % 2 * N; }
};

// Rows into columns. Blocks are exchanged down to those of 16 bytes; within them four floats cost fewer instructions
// alternately than by blocks of one.
template <class T, int N, int S = N / 2>
ZEPM_INLINE void transpose(Vec<T, N> (&x)[N])
{
    if constexpr (S == 2 && sizeof(T) == 4)
    {
        forEachIndex<N / 4>([&]<int I>() __attribute__((always_inline)) {
            constexpr int i = 4 * I;
            const Vec<T, N> low01 = shuffle<T, N>(x[i], x[i + 1], Alternately<N, 0>{});
            const Vec<T, N> high01 = shuffle<T, N>(x[i], x[i + 1], Alternately<N, 2>{});
            const Vec<T, N> low23 = shuffle<T, N>(x[i + 2], x[i + 3], Alternately<N, 0>{});
            const Vec<T, N> high23 = shuffle<T, N>(x[i + 2], x[i + 3], Alternately<N, 2>{});
            x[i] = shuffle<T, N>(low01, low23, NearBlocks<N, 2>{});
            x[i + 1] = shuffle<T, N>(low01, low23, FarBlocks<N, 2>{});
            x[i + 2] = shuffle<T, N>(high01, high23, NearBlocks<N, 2>{});
            x[i + 3] = shuffle<T, N>(high01, high23, FarBlocks<N, 2>{});
        });
    }
    else if constexpr (S > 0)
    {
        forEachIndex<N / 2>([&]<int I>() __attribute__((always_inline)) {
            constexpr int i = I / S * 2 * S + I % S;
            const Vec<T, N> near = shuffle<T, N>(x[i], x[i + S], NearBlocks<N, S>{});
            x[i + S] = shuffle<T, N>(x[i], x[i + S], FarBlocks<N, S>{});
            x[i] = near;
        });
        transpose<T, N, S / 2>(x);
    }
}

} // namespace zepm::ZEPM_LEVEL
