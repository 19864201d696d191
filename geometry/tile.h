// A tile of points between memory and registers: N points, element j of all of them in one register.
#pragma once

#include "frame/dense.h"

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
    return gathered<N>([&](int g) ZEPM_INLINED { return loadPoint<Size>(p + g * step); });
}

template <int Size, int N>
ZEPM_INLINE void storePoints(char* p, ptrdiff_t step, Lanes<N> x)
{
    scattered<N>(x, [&](int g, Lanes<4> point) ZEPM_INLINED { storePoint<Size>(p + g * step, point); });
}

// In records of 16 bytes: whole registers, less the last element of each record where it is not the point's. The masked
// loads and stores of AVX2 are slower than pieces, the loads beyond the caches and the stores anywhere.
template <int Size, int N>
ZEPM_INLINE Lanes<N> loadRecords(const char* p)
{
    if constexpr (Size == 4) return loadVec<float32, N>(p);
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
    if constexpr (Size == 4) storeVec<float32, N>(p, x);
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
