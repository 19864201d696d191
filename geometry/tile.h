// A tile of points between memory and registers: N points, element j of all of them in one register. Registers are
// groups of four lanes; shuffles stay within groups, where they are cheapest at every level.
#pragma once

#include "frame/lanes.h"

namespace zepm::ZEPM_LEVEL
{

// ---- Groups of four lanes -------------------------------------------------------------------------------------------

template <int N>
using Lanes = Vec<float32, N>;

// In each group lanes A and B of x, then lanes C and D of y.
template <int N, int A, int B, int C, int D>
ZEPM_INLINE Lanes<N> shuffled(Lanes<N> x, Lanes<N> y)
{
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
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
    return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
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

// A register from what load gives for each group, and back.
template <int N, int First = 0, class Load>
ZEPM_INLINE Lanes<N> gathered(Load load)
{
    if constexpr (N == 4)
    {
        return load(First);
    }
    else
    {
        const Lanes<N / 2> low = gathered<N / 2, First>(load), high = gathered<N / 2, First + N / 8>(load);
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            return __builtin_shufflevector(low, high, Lane...);
        }
        (std::make_integer_sequence<int, N>{});
    }
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
        [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            scattered<N / 2, First>(__builtin_shufflevector(x, x, Lane...), store);
            scattered<N / 2, First + N / 8>(__builtin_shufflevector(x, x, (N / 2 + Lane)...), store);
        }
        (std::make_integer_sequence<int, N / 2>{});
    }
}

// ---- One point in a group -------------------------------------------------------------------------------------------

// Elements behind the Size of a point are not touched; their lanes hold anything.
template <int Size>
ZEPM_INLINE Lanes<4> loadPoint(const char* p)
{
    if constexpr (Size == 4)
        return loadVec<float32, 4>(p);
#if defined(__AVX__)
    else if constexpr (Size == 3)
        return _mm_maskload_ps(reinterpret_cast<const float32*>(p), _mm_setr_epi32(-1, -1, -1, 0));
#endif
    else
    {
        const Lanes<2> xy = loadVec<float32, 2>(p);
        const float32 z = Size == 3 ? load<float32>(p + 8) : 0;
        return Lanes<4>{xy[0], xy[1], z, 0};
    }
}

template <int Size>
ZEPM_INLINE void storePoint(char* p, Lanes<4> x)
{
    if constexpr (Size == 4)
    {
        storeVec<float32, 4>(p, x);
    }
    else
    {
        storeVec<float32, 2>(p, Lanes<2>{x[0], x[1]});
        if constexpr (Size == 3) store<float32>(p + 8, x[2]);
    }
}

// ---- How points lie -------------------------------------------------------------------------------------------------
//
// Each way loads elements 0 to Size - 1 of the points from k on and stores them. The order of the points in the lanes
// is the same in both and its own affair.

// Anywhere, the elements side by side. Point G * i + g goes through group g of register i, so that records of 16 bytes,
// a Step known when this is compiled, are whole registers.
template <ptrdiff_t Step = 0>
struct Apart
{
    ptrdiff_t stride;
    ZEPM_INLINE ptrdiff_t step() const { return Step ? Step : stride; }

    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Lanes<N> (&x)[Size]) const
    {
        constexpr int groups = N / 4;
        Lanes<N> r[4];
        ZEPM_UNROLL
        for (int i = 0; i < 4; ++i)
        {
            const char* const row = p + i * groups * step();
            if constexpr (Size == 4 && Step == 16)
                r[i] = loadVec<float32, N>(row);
            else
                r[i] = gathered<N>([&](int g) __attribute__((always_inline)) { return loadPoint<Size>(row + g * step()); });
        }
        transposeGroups<N>(r);
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) x[j] = r[j];
    }

    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Lanes<N> (&x)[Size]) const
    {
        constexpr int groups = N / 4;
        Lanes<N> r[4];
        ZEPM_UNROLL
        for (int j = 0; j < 4; ++j) r[j] = x[j < Size ? j : 0];
        transposeGroups<N>(r);
        ZEPM_UNROLL
        for (int i = 0; i < 4; ++i)
        {
            char* const row = p + i * groups * step();
            if constexpr (Size == 4 && Step == 16)
                storeVec<float32, N>(row, r[i]);
            else
                scattered<N>(r[i], [&](int g, Lanes<4> point) __attribute__((always_inline)) {
                    storePoint<Size>(row + g * step(), point);
                });
        }
    }
};

// Without gaps: group g takes points 4 * g to 4 * g + 3, Size registers of each four lanes.
struct Dense
{
    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[Size];
        ZEPM_UNROLL
        for (int i = 0; i < Size; ++i)
            r[i] = gathered<N>([&](int g) __attribute__((always_inline)) {
                return loadVec<float32, 4>(p + (g * Size + i) * 16);
            });
        if constexpr (Size == 2)
        {
            x[0] = shuffled<N, 0, 2, 0, 2>(r[0], r[1]);
            x[1] = shuffled<N, 1, 3, 1, 3>(r[0], r[1]);
        }
        else if constexpr (Size == 3) // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
        {
            const Lanes<N> xy23 = shuffled<N, 2, 3, 1, 2>(r[1], r[2]), yz01 = shuffled<N, 1, 2, 0, 1>(r[0], r[1]);
            x[0] = shuffled<N, 0, 3, 0, 2>(r[0], xy23);
            x[1] = shuffled<N, 0, 2, 1, 3>(yz01, xy23);
            x[2] = shuffled<N, 1, 3, 0, 3>(yz01, r[2]);
        }
        else
        {
            transposeGroups<N>(r);
            ZEPM_UNROLL
            for (int i = 0; i < 4; ++i) x[i] = r[i];
        }
    }

    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[Size];
        if constexpr (Size == 2)
        {
            r[0] = interleaved<N, 0>(x[0], x[1]);
            r[1] = interleaved<N, 1>(x[0], x[1]);
        }
        else if constexpr (Size == 3)
        {
            const Lanes<N> x02y02 = shuffled<N, 0, 2, 0, 2>(x[0], x[1]), y13z13 = shuffled<N, 1, 3, 1, 3>(x[1], x[2]);
            const Lanes<N> z02x13 = shuffled<N, 0, 2, 1, 3>(x[2], x[0]);
            r[0] = shuffled<N, 0, 2, 0, 2>(x02y02, z02x13);
            r[1] = shuffled<N, 0, 2, 1, 3>(y13z13, x02y02);
            r[2] = shuffled<N, 1, 3, 1, 3>(z02x13, y13z13);
        }
        else
        {
            ZEPM_UNROLL
            for (int i = 0; i < 4; ++i) r[i] = x[i];
            transposeGroups<N>(r);
        }
        ZEPM_UNROLL
        for (int i = 0; i < Size; ++i)
            scattered<N>(r[i], [&](int g, Lanes<4> row) __attribute__((always_inline)) {
                storeVec<float32, 4>(p + (g * Size + i) * 16, row);
            });
    }
};

// Element j of all points side by side.
struct Across
{
    ptrdiff_t elementStride;

    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Lanes<N> (&x)[Size]) const
    {
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) x[j] = loadVec<float32, N>(p + j * elementStride);
    }
    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Lanes<N> (&x)[Size]) const
    {
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) storeVec<float32, N>(p + j * elementStride, x[j]);
    }
};

} // namespace zepm::ZEPM_LEVEL
