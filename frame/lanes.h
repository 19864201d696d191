// The vocabulary of all vector code: the compilers' vector types, loaded from and stored to any address.
//
// A source that profits from wider registers is compiled once for each instruction-set level, with ZEPM_LEVEL naming
// the level's namespace; everything that vector code uses lies in that namespace or is always inlined, so that the
// linker can never join code of two levels. Sources outside the levels see the baseline.
//
// What builds on this: machine.h the instructions that the vector types have no spelling for, pieces.h registers as
// parts and their transposition, numbers.h arithmetic on one object or on one in each lane, groups.h objects of an
// array in lanes, streams.h results beyond the caches.
#pragma once

#include "frame/operands.h"

#include <utility>

#ifndef ZEPM_LEVEL
#define ZEPM_LEVEL baseline
#endif

#if defined(__clang__)
#define ZEPM_UNROLL _Pragma("unroll")
#else
#define ZEPM_UNROLL _Pragma("GCC unroll 64")
#endif

namespace zepm::ZEPM_LEVEL
{

#if defined(__AVX512F__)
inline constexpr int registerBytes = 64;
#elif defined(__AVX2__)
inline constexpr int registerBytes = 32;
#else
inline constexpr int registerBytes = 16;
#endif

// Elements in a register of this level.
template <class T>
inline constexpr int lanes = registerBytes / static_cast<int>(sizeof(T));

// The size of an element in address arithmetic.
template <class T>
inline constexpr ptrdiff_t sz = sizeof(T);

template <class T, int N>
struct VectorOf
{
    typedef T type __attribute__((vector_size(N * sizeof(T))));
    typedef T unaligned __attribute__((vector_size(N * sizeof(T)), aligned(1), may_alias));
};
template <class T>
struct VectorOf<T, 1>
{
    typedef T type;
    typedef T unaligned __attribute__((aligned(1), may_alias));
};

// N elements, a power of two; one element is a scalar.
template <class T, int N>
using Vec = typename VectorOf<T, N>::type;

template <class T, int N>
ZEPM_INLINE Vec<T, N> loadVec(const char* p)
{
    return *reinterpret_cast<const typename VectorOf<T, N>::unaligned*>(p);
}

template <class T, int N>
ZEPM_INLINE void storeVec(char* p, Vec<T, N> x)
{
    *reinterpret_cast<typename VectorOf<T, N>::unaligned*>(p) = x;
}

// visit.operator()<0>() to visit.operator()<N - 1>().
template <int N, class Visit>
ZEPM_INLINE void each(Visit visit)
{
    [&]<int... I>(std::integer_sequence<int, I...>) ZEPM_INLINED { (visit.template operator()<I>(), ...); }
    (std::make_integer_sequence<int, N>{});
}

// x(n) for each lane n.
template <class T, int N, class F>
ZEPM_INLINE Vec<T, N> eachLane(F x)
{
    if constexpr (N == 1)
        return x(0);
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED { return Vec<T, N>{x(Lane)...}; }
    (std::make_integer_sequence<int, N>{});
}

template <class T, int N>
ZEPM_INLINE Vec<T, N> broadcast(T x)
{
    return eachLane<T, N>([x](int) ZEPM_INLINED { return x; });
}

// The vector of M lanes whose lane n is lane Place{}(n) of x and y one behind the other; a place of -1 leaves the lane
// undefined. Place is a lambda without captures, or a function object with a constexpr call operator.
template <class T, int N, int M = N, class Place>
ZEPM_INLINE Vec<T, M> shuffle(Vec<T, N> x, Vec<T, N> y, Place)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
    {
        return __builtin_shufflevector(x, y, Place{}(Lane)...);
    }
    (std::make_integer_sequence<int, M>{});
}
template <class T, int N, int M = N, class Place>
ZEPM_INLINE Vec<T, M> permute(Vec<T, N> x, Place place)
{
    return shuffle<T, N, M>(x, x, place);
}

} // namespace zepm::ZEPM_LEVEL
