// The vocabulary of all vector code: the compilers' vector types, loaded from and stored to any address.
//
// A source that profits from wider registers is compiled once for each instruction-set level, with ZEPM_LEVEL naming
// the level's namespace; everything that vector code uses lies in that namespace or is always inlined, so that the
// linker can never join code of two levels. Sources outside the levels see the baseline.
#pragma once

#include "frame/operands.h"

#include <immintrin.h>
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

template <class T, int N>
ZEPM_INLINE Vec<T, N> broadcast(T x)
{
    if constexpr (N == 1)
        return x;
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            return Vec<T, N>{(static_cast<void>(Lane), x)...};
        }
    (std::make_integer_sequence<int, N>{});
}

// The vector whose lane n is lane Place(n) of x. Place is a function object with a constexpr call operator.
template <class T, int N, class Place>
ZEPM_INLINE Vec<T, N> permute(Vec<T, N> x, Place)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(x, x, Place{}(Lane)...);
    }
    (std::make_integer_sequence<int, N>{});
}

// A whole register to an address aligned to it, past the caches; fenceStreams() orders it before what comes after.
template <class T>
ZEPM_INLINE void streamVec(char* p, Vec<T, lanes<T>> x)
{
#if defined(__AVX512F__)
    _mm512_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m512>(x));
#elif defined(__AVX2__)
    _mm256_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m256>(x));
#else
    _mm_stream_ps(reinterpret_cast<float*>(p), reinterpret_cast<__m128>(x));
#endif
}

// Any vector to an address that is a multiple of 16, likewise.
template <class T, int N>
ZEPM_INLINE void streamPieces(char* p, Vec<T, N> x)
{
    constexpr int E = 16 / static_cast<int>(sizeof(T));
    [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
    {
        auto piece = [&]<int First>() __attribute__((always_inline))
        {
            const Vec<T, E> y = __builtin_shufflevector(x, x, (First + Lane)...);
            _mm_stream_ps(reinterpret_cast<float*>(p + First * sizeof(T)), reinterpret_cast<__m128>(y));
        };
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline))
        {
            (piece.template operator()<I * E>(), ...);
        }
        (std::make_integer_sequence<int, N / E>{});
    }
    (std::make_integer_sequence<int, E>{});
}

ZEPM_INLINE void fenceStreams() { _mm_sfence(); }

} // namespace zepm::ZEPM_LEVEL
