// A tile of points between memory and registers: N points, element j of all of them in one register.
#pragma once

#include "geometry/groups.h"

namespace zepm::ZEPM_LEVEL
{

// ---- One point in a group -------------------------------------------------------------------------------------------

// Elements behind the Size of a point are not touched; their lanes hold anything.
template <int Size>
ZEPM_INLINE Lanes<4> loadPoint(const char* p)
{
    if constexpr (Size == 4)
        return loadVec<float32, 4>(p);
    else
    {
        const Lanes<4> xy = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
        if constexpr (Size == 2) return xy;
        return __builtin_shufflevector(xy, Lanes<4>{load<float32>(p + 8), 0, 0, 0}, 0, 1, 4, 5);
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

// Points at so many bytes from one to the next, one in each group.
template <int Size, int N>
ZEPM_INLINE Lanes<N> loadPoints(const char* p, ptrdiff_t step)
{
    return gathered<N>([&](int g) __attribute__((always_inline)) { return loadPoint<Size>(p + g * step); });
}

template <int Size, int N>
ZEPM_INLINE void storePoints(char* p, ptrdiff_t step, Lanes<N> x)
{
    scattered<N>(x, [&](int g, Lanes<4> point) __attribute__((always_inline)) {
        storePoint<Size>(p + g * step, point);
    });
}

// In records of 16 bytes: whole registers, less the last element of each record where it is not the point's. The masked
// loads and stores of AVX2 are slower than pieces, the loads beyond the caches and the stores anywhere.
template <int Size, int N>
ZEPM_INLINE Lanes<N> loadRecords(const char* p)
{
    if constexpr (Size == 4)
        return loadVec<float32, N>(p);
#if defined(__AVX512F__)
    else if constexpr (Size == 3 && N == 16)
        return _mm512_maskz_loadu_ps(0x7777, p);
#endif
    else
        return loadPoints<Size, N>(p, 16);
}

template <int Size, int N>
ZEPM_INLINE void storeRecords(char* p, Lanes<N> x)
{
    if constexpr (Size == 4)
        storeVec<float32, N>(p, x);
#if defined(__AVX512F__)
    else if constexpr (Size == 3 && N == 16)
        _mm512_mask_storeu_ps(p, 0x7777, x);
#endif
    else
        storePoints<Size, N>(p, 16, x);
}

// ---- How points lie -------------------------------------------------------------------------------------------------
//
// Each way loads elements 0 to Size - 1 of the points from k on and stores them. The order of the points in the lanes
// is the same in both and its own affair.

// Anywhere, the elements side by side. Point G * i + g goes through group g of register i, so that points in records
// are whole registers. IsRecords: at 16 bytes from one to the next.
template <bool IsRecords>
struct Apart
{
    ptrdiff_t step;

    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[4];
        ZEPM_UNROLL
        for (int i = 0; i < 4; ++i)
        {
            if constexpr (IsRecords)
                r[i] = loadRecords<Size, N>(p + i * N * 4);
            else
                r[i] = loadPoints<Size, N>(p + i * (N / 4) * step, step);
        }
        transposeGroups<N>(r);
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) x[j] = r[j];
    }

    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[4];
        ZEPM_UNROLL
        for (int j = 0; j < 4; ++j) r[j] = x[j < Size ? j : 0];
        transposeGroups<N>(r);
        ZEPM_UNROLL
        for (int i = 0; i < 4; ++i)
        {
            if constexpr (IsRecords)
                storeRecords<Size, N>(p + i * N * 4, r[i]);
            else
                storePoints<Size, N>(p + i * (N / 4) * step, step, r[i]);
        }
    }
};

// Two or three elements without gaps: group g takes points 4 * g to 4 * g + 3, its lanes of Size registers.
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
        else // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
        {
            const Lanes<N> xy23 = shuffled<N, 2, 3, 1, 2>(r[1], r[2]), yz01 = shuffled<N, 1, 2, 0, 1>(r[0], r[1]);
            x[0] = shuffled<N, 0, 3, 0, 2>(r[0], xy23);
            x[1] = shuffled<N, 0, 2, 1, 3>(yz01, xy23);
            x[2] = shuffled<N, 1, 3, 0, 3>(yz01, r[2]);
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
        else
        {
            const Lanes<N> x02y02 = shuffled<N, 0, 2, 0, 2>(x[0], x[1]), y13z13 = shuffled<N, 1, 3, 1, 3>(x[1], x[2]);
            const Lanes<N> z02x13 = shuffled<N, 0, 2, 1, 3>(x[2], x[0]);
            r[0] = shuffled<N, 0, 2, 0, 2>(x02y02, z02x13);
            r[1] = shuffled<N, 0, 2, 1, 3>(y13z13, x02y02);
            r[2] = shuffled<N, 1, 3, 1, 3>(z02x13, y13z13);
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
