// A tile of points between memory and registers: N points, element j of all of them in one register.
#pragma once

#include "frame/pieces.h"

namespace zepm::ZEPM_LEVEL
{

// ---- One point in a piece -------------------------------------------------------------------------------------------

// Points at so many bytes from one to the next, one in each piece. Elements behind the Size of a point are not touched;
// their lanes hold anything.
template <int Size, int N>
ZEPM_INLINE Vec<float32, N> loadPoints(const char* p, ptrdiff_t step)
{
    return joinParts<float32, 4, N / 4>([&]<int G>()
                                            ZEPM_INLINED { return loadFirst<float32, 4, Size>(p + G * step); });
}

template <int Size, int N>
ZEPM_INLINE void storePoints(char* p, ptrdiff_t step, Vec<float32, N> x)
{
    splitParts<float32, 4, N / 4>(x, [&]<int G>(Vec<float32, 4> point)
                                         ZEPM_INLINED { storeFirst<float32, 4, Size>(p + G * step, point); });
}

// In records of 16 bytes: whole registers, less the last element of each record where it is not the point's. The masked
// loads and stores of AVX2 are slower than pieces, the loads beyond the caches and the stores anywhere.
template <int Size, int N>
ZEPM_INLINE Vec<float32, N> loadRecords(const char* p)
{
    if constexpr (Size == 4) return loadVec<float32, N>(p);
#if defined(__AVX512F__)
    else if constexpr (Size == 3 && N == 16)
        return loadThreeOfFour(p);
#endif
    else
        return loadPoints<Size, N>(p, 16);
}

template <int Size, int N>
ZEPM_INLINE void storeRecords(char* p, Vec<float32, N> x)
{
    if constexpr (Size == 4) storeVec<float32, N>(p, x);
#if defined(__AVX512F__)
    else if constexpr (Size == 3 && N == 16)
        storeThreeOfFour(p, x);
#endif
    else
        storePoints<Size, N>(p, 16, x);
}

// ---- How points lie -------------------------------------------------------------------------------------------------
//
// Each way loads elements 0 to Size - 1 of N points, or stores them. Which point goes to which lane is chosen by the way;
// its loads and stores agree on it.

// Anywhere, the elements side by side. Point G * i + g goes through piece g of register i, so that points in records
// are whole registers. IsRecords: at 16 bytes from one to the next.
template <bool IsRecords>
struct PointsApart
{
    ptrdiff_t step;

    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Vec<float32, N> (&x)[Size]) const
    {
        Vec<float32, N> r[4];
        ZEPM_UNROLL
        for (int i = 0; i < 4; ++i)
        {
            if constexpr (IsRecords)
                r[i] = loadRecords<Size, N>(p + i * N * 4);
            else
                r[i] = loadPoints<Size, N>(p + i * (N / 4) * step, step);
        }
        transposePieces<float32, N>(r);
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) x[j] = r[j];
    }

    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Vec<float32, N> (&x)[Size]) const
    {
        Vec<float32, N> r[4];
        ZEPM_UNROLL
        for (int j = 0; j < 4; ++j) r[j] = x[j < Size ? j : 0];
        transposePieces<float32, N>(r);
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

// Without gaps.
struct PointsDense
{
    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Vec<float32, N> (&x)[Size]) const
    {
        loadDense<float32, N, Size>(p, x);
    }
    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Vec<float32, N> (&x)[Size]) const
    {
        storeDense<float32, N, Size>(p, x);
    }
};

// Element j of all points side by side.
struct PointsAcross
{
    ptrdiff_t elementStride;

    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Vec<float32, N> (&x)[Size]) const
    {
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) x[j] = loadVec<float32, N>(p + j * elementStride);
    }
    template <int Size, int N>
    ZEPM_INLINE void store(char* p, const Vec<float32, N> (&x)[Size]) const
    {
        ZEPM_UNROLL
        for (int j = 0; j < Size; ++j) storeVec<float32, N>(p + j * elementStride, x[j]);
    }
};

} // namespace zepm::ZEPM_LEVEL
