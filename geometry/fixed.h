// Fixed-size vectors, 4 by 4 matrices and single points in registers. Sources are read in full before a result is
// stored, so that a destination may be a source.
#pragma once

#include "frame/pieces.h"
#include "geometry/formulas.h"

namespace zepm::ZEPM_LEVEL
{

// ---- Vectors --------------------------------------------------------------------------------------------------------

// A v3 has its last element twice, so that no lane computes on anything that is not there.
template <int N>
using FixedVec = Vec<float32, N == 2 ? 2 : 4>;

template <int N>
ZEPM_INLINE FixedVec<N> loadFixed(const float32* p)
{
    if constexpr (N == 3)
    {
        const FixedVec<4> xy = loadTwo(bytes(p));
        return __builtin_shufflevector(xy, FixedVec<4>{load<float32>(p + 2), 0, 0, 0}, 0, 1, 4, 4);
    }
    else
    {
        return loadVec<float32, N>(bytes(p));
    }
}

template <int N>
ZEPM_INLINE void storeFixed(float32* p, FixedVec<N> x)
{
    storeFirst<float32, N == 2 ? 2 : 4, N>(bytes(p), x);
}

template <int N>
ZEPM_INLINE FixedVec<N> broadcastFixed(float32 x)
{
    return broadcast < float32, N == 2 ? 2 : 4 > (x);
}

// The first N elements of a row.
template <int N>
ZEPM_INLINE FixedVec<N> prefix(FixedVec<4> x)
{
    if constexpr (N == 2)
        return FixedVec<2>{x[0], x[1]};
    else
        return x;
}

// The sum of a[i] * b[i], in index order.
template <int N>
ZEPM_INLINE float32 dot(FixedVec<N> a, FixedVec<N> b)
{
    const FixedVec<N> products = a * b;
    float32 sum = products[0];
    ZEPM_UNROLL
    for (int i = 1; i < N; ++i) sum += products[i];
    return sum;
}

template <int N>
ZEPM_INLINE float32 length(FixedVec<N> a)
{
    return __builtin_sqrtf(dot<N>(a, a));
}

template <int N>
ZEPM_INLINE FixedVec<N> normalized(FixedVec<N> a)
{
    return a / broadcastFixed<N>(length<N>(a));
}

// a x b of v3: the next element of a by the one after it of b, less the same exchanged.
ZEPM_INLINE FixedVec<3> cross(FixedVec<3> a, FixedVec<3> b)
{
    return __builtin_shufflevector(a, a, 1, 2, 0, 0) * __builtin_shufflevector(b, b, 2, 0, 1, 1) -
           __builtin_shufflevector(a, a, 2, 0, 1, 1) * __builtin_shufflevector(b, b, 1, 2, 0, 0);
}

// The 3 by 3 minors of the rows u, v, t: number i leaves column i out, expanded along u.
ZEPM_INLINE FixedVec<4> minors(FixedVec<4> u, FixedVec<4> v, FixedVec<4> t)
{
    auto minor = [&](int p, int q) ZEPM_INLINED { return v[p] * t[q] - v[q] * t[p]; };
    const float32 m01 = minor(0, 1), m02 = minor(0, 2), m03 = minor(0, 3);
    const float32 m12 = minor(1, 2), m13 = minor(1, 3), m23 = minor(2, 3);
    return FixedVec<4>{m23 * u[1] - m13 * u[2] + m12 * u[3], m23 * u[0] - m03 * u[2] + m02 * u[3],
                       m13 * u[0] - m03 * u[1] + m01 * u[3], m12 * u[0] - m02 * u[1] + m01 * u[2]};
}

// ---- Matrices -------------------------------------------------------------------------------------------------------

template <class T>
struct Matrix4
{
    Vec<T, 4> row[4];
};

ZEPM_INLINE Matrix4<float32> loadMatrix(const float32* p)
{
    return {{loadFixed<4>(p), loadFixed<4>(p + 4), loadFixed<4>(p + 8), loadFixed<4>(p + 12)}};
}

ZEPM_INLINE void storeMatrix(float32* p, const Matrix4<float32>& m)
{
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) storeFixed<4>(p + 4 * i, m.row[i]);
}

ZEPM_INLINE void storeRows(float32* p, const float32 (&rows)[4][4])
{
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) storeFixed<4>(p + 4 * i, FixedVec<4>{rows[i][0], rows[i][1], rows[i][2], rows[i][3]});
}

template <class T>
ZEPM_INLINE Matrix4<T> transposed(const Matrix4<T>& m)
{
    Vec<T, 4> rows[4] = {m.row[0], m.row[1], m.row[2], m.row[3]};
    transpose<T, 4>(rows);
    return {{rows[0], rows[1], rows[2], rows[3]}};
}

template <int Lane, class T>
ZEPM_INLINE Vec<T, 4> lane4(Vec<T, 4> x)
{
    return __builtin_shufflevector(x, x, Lane, Lane, Lane, Lane);
}

// Each element summed in index order. Wider registers would save one product less than the choice of a level costs.
ZEPM_INLINE Matrix4<float32> product(const Matrix4<float32>& a, const Matrix4<float32>& b)
{
    Matrix4<float32> d;
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i)
        d.row[i] = lane4<0, float32>(a.row[i]) * b.row[0] + lane4<1, float32>(a.row[i]) * b.row[1] +
                   lane4<2, float32>(a.row[i]) * b.row[2] + lane4<3, float32>(a.row[i]) * b.row[3];
    return d;
}

// ---- Points ---------------------------------------------------------------------------------------------------------

// The formula with whole rows for elements: a result of fewer than four elements has anything behind them.
template <class Formula>
ZEPM_INLINE FixedVec<4> transformed(const Matrix4<float32>& m, FixedVec<Formula::in> point)
{
    float32 p[Formula::in];
    ZEPM_UNROLL
    for (int i = 0; i < Formula::in; ++i) p[i] = point[i];
    const FixedVec<4> result = Formula::element(m.row, p);
    if constexpr (Formula::divides)
        return result / lane4<3, float32>(result);
    else
        return result;
}

// The same for arrays.
template <class Formula>
ZEPM_INLINE Through<Formula> through(const Matrix4<float32>& m)
{
    Through<Formula> formula;
    storeMatrix(formula.e, m);
    return formula;
}

} // namespace zepm::ZEPM_LEVEL
