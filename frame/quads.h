// Registers as groups of four elements: a row of a matrix, a point, or four of their elements. Shuffles stay within
// groups, where they are cheapest at every level.
#pragma once

#include "frame/machine.h"

namespace zepm::ZEPM_LEVEL
{

template <int N>
using Lanes = Vec<float32, N>;

// In each group lanes A and B of x, then lanes C and D of y.
template <int N, int A, int B, int C, int D>
ZEPM_INLINE Lanes<N> shuffled(Lanes<N> x, Lanes<N> y)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
    {
        constexpr int from[4] = {A, B, N + C, N + D};
        return __builtin_shufflevector(x, y, (Lane / 4 * 4 + from[Lane % 4])...);
    }
    (std::make_integer_sequence<int, N>{});
}

// In each group the lanes of the first or of the second half of x and y in turn.
template <int N, int Half>
ZEPM_INLINE Lanes<N> interleaved(Lanes<N> x, Lanes<N> y)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
    {
        return __builtin_shufflevector(x, y, (Lane / 4 * 4 + 2 * Half + Lane % 4 / 2 + Lane % 2 * N)...);
    }
    (std::make_integer_sequence<int, N>{});
}

// Rows and columns of the 4 by 4 matrix in each group exchanged.
template <int N>
ZEPM_INLINE void transposeGroups(Lanes<N> (&r)[4])
{
    const Lanes<N> low01 = interleaved<N, 0>(r[0], r[1]), low23 = interleaved<N, 0>(r[2], r[3]);
    const Lanes<N> high01 = interleaved<N, 1>(r[0], r[1]), high23 = interleaved<N, 1>(r[2], r[3]);
    r[0] = shuffled<N, 0, 1, 0, 1>(low01, low23);
    r[1] = shuffled<N, 2, 3, 2, 3>(low01, low23);
    r[2] = shuffled<N, 0, 1, 0, 1>(high01, high23);
    r[3] = shuffled<N, 2, 3, 2, 3>(high01, high23);
}

template <int N>
ZEPM_INLINE Lanes<N> joined([[maybe_unused]] Lanes<N / 2> low, [[maybe_unused]] Lanes<N / 2> high)
{
#if defined(__AVX512F__)
    if constexpr (N == 16) return _mm512_insertf32x8(_mm512_castps256_ps512(low), high, 1);
#endif
#if defined(__AVX__)
    if constexpr (N == 8) return _mm256_insertf128_ps(_mm256_castps128_ps256(low), high, 1);
#endif
}

template <int N, int Half>
ZEPM_INLINE Lanes<N / 2> halfOf([[maybe_unused]] Lanes<N> x)
{
#if defined(__AVX512F__)
    if constexpr (N == 16) return _mm512_extractf32x8_ps(x, Half);
#endif
#if defined(__AVX__)
    if constexpr (N == 8) return _mm256_extractf128_ps(x, Half);
#endif
}

// A register from what load gives for each group, and back.
template <int N, int First = 0, class Load>
ZEPM_INLINE Lanes<N> gathered(Load load)
{
    if constexpr (N == 4)
        return load(First);
    else
        return joined<N>(gathered<N / 2, First>(load), gathered<N / 2, First + N / 8>(load));
}

template <int N, int First = 0, class Store>
ZEPM_INLINE void scattered(Lanes<N> x, Store store)
{
    if constexpr (N == 4)
    {
        store(First, x);
    }
    else
    {
        scattered<N / 2, First>(halfOf<N, 0>(x), store);
        scattered<N / 2, First + N / 8>(halfOf<N, 1>(x), store);
    }
}

// The same four elements in each group.
template <int N>
ZEPM_INLINE Lanes<N> repeatedGroup(const float32* p)
{
    return gathered<N>([&](int) ZEPM_INLINED { return loadVec<float32, 4>(bytes(p)); });
}

// Lane Lane of each group in all of its lanes.
template <int N, int Lane>
ZEPM_INLINE Lanes<N> spread(Lanes<N> x)
{
    return shuffled<N, Lane, Lane, Lane, Lane>(x, x);
}

} // namespace zepm::ZEPM_LEVEL
