// The arithmetic of the solvers' algorithms, on one matrix (W is 1: plain scalars, and jumps) or on one in each lane
// of a register (selections). With mask ? x : y on values of either kind, one text of an algorithm serves both.
#pragma once

#include "frame/lanes.h"

#include <climits>

namespace zepm::ZEPM_LEVEL
{

template <class T>
using IntOf = std::conditional_t<sizeof(T) == 4, int32, int64_t>;

// The result of a comparison: bool, or all bits of a lane.
template <class T, int W>
using Mask = std::conditional_t<W == 1, bool, Vec<IntOf<T>, W>>;

ZEPM_INLINE float32 absolute(float32 x) { return __builtin_fabsf(x); }
ZEPM_INLINE float64 absolute(float64 x) { return __builtin_fabs(x); }
template <class V>
ZEPM_INLINE V absolute(V x)
{
    using Bits = decltype(x < x);
    constexpr auto magnitude = sizeof(x[0]) == 4 ? int64_t{INT32_MAX} : INT64_MAX;
    return reinterpret_cast<V>(reinterpret_cast<Bits>(x) & static_cast<IntOf<decltype(+x[0])>>(magnitude));
}

ZEPM_INLINE bool butNot(bool a, bool b) { return a && !b; }
template <class M>
ZEPM_INLINE M butNot(M a, M b)
{
    return a & ~b;
}

// x and y change places where the mask says so.
template <class X>
ZEPM_INLINE void exchange(bool mask, X& x, X& y)
{
    if (!mask) return;
    const X kept = x;
    x = y;
    y = kept;
}
template <class M, class V>
ZEPM_INLINE void exchange(M mask, V& x, V& y)
{
    if constexpr (registerBytes == 16) // without an instruction that selects
    {
        const M difference = mask & (reinterpret_cast<M>(x) ^ reinterpret_cast<M>(y));
        x = reinterpret_cast<V>(reinterpret_cast<M>(x) ^ difference);
        y = reinterpret_cast<V>(reinterpret_cast<M>(y) ^ difference);
    }
    else
    {
        const V kept = x;
        x = mask ? y : x;
        y = mask ? kept : y;
    }
}

// Whether the mask is set in any lane.
ZEPM_INLINE bool any(bool mask) { return mask; }
template <class M>
ZEPM_INLINE bool any(M mask)
{
#if defined(__AVX512F__)
    if constexpr (sizeof(M) == 64) return _mm512_movepi32_mask(reinterpret_cast<__m512i>(mask)) != 0;
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(M) == 32) return _mm256_movemask_epi8(reinterpret_cast<__m256i>(mask)) != 0;
#endif
    if constexpr (sizeof(M) == 16) return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask)) != 0;
}

// x(n) for each lane n.
template <class T, int W, class F>
ZEPM_INLINE Vec<T, W> eachLane(F x)
{
    if constexpr (W == 1)
        return x(0);
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            return Vec<T, W>{x(Lane)...};
        }
    (std::make_integer_sequence<int, W>{});
}

} // namespace zepm::ZEPM_LEVEL
