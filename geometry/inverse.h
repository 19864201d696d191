// The inverse of a 4 by 4 matrix by cofactors, in either element type.
#pragma once

#include "geometry/fixed.h"

namespace zepm::ZEPM_LEVEL
{

// Below this magnitude of the determinant a matrix is singular.
template <class T>
inline constexpr T leastDeterminant = static_cast<T>(sizeof(T) == 4 ? 0x1p-119 : 0x1p-1014);

// float32: the 12-bit estimate and one Newton step.
ZEPM_INLINE float32 reciprocal(float32 x)
{
    const float32 q = reciprocalEstimate(x);
    return q + q - x * (q * q);
}
ZEPM_INLINE float64 reciprocal(float64 x) { return 1 / x; }

// Two rows, in one register where it holds them.
template <class T>
struct TwoRows
{
    static constexpr int parts = lanes<T> >= 8 ? 1 : 2, N = 8 / parts;
    Vec<T, N> part[parts];

    ZEPM_INLINE TwoRows() {}
    ZEPM_INLINE TwoRows(Vec<T, 4> x, Vec<T, 4> y)
    {
        if constexpr (parts == 1)
            part[0] = join<T, 4>(x, y);
        else
            part[0] = x, part[1] = y;
    }
    ZEPM_INLINE Vec<T, 4> first() const
    {
        if constexpr (parts == 1)
            return half<T, 8, 0>(part[0]);
        else
            return part[0];
    }
    ZEPM_INLINE Vec<T, 4> second() const
    {
        if constexpr (parts == 1)
            return half<T, 8, 1>(part[0]);
        else
            return part[1];
    }
};

// Lane c of each row is its lane c + By, modulo 4.
template <int By, class T, int N>
ZEPM_INLINE Vec<T, N> rotated(Vec<T, N> x)
{
    return permute<T, N>(x, [](int lane) { return lane / 4 * 4 + (lane + By) % 4; });
}

// The 2 by 2 minors of two rows: lane c holds that of columns c and c + 1, or c and c + 2.
template <class T, int N>
struct Minors
{
    Vec<T, N> next, second;
    ZEPM_INLINE Minors(Vec<T, N> a, Vec<T, N> b)
        : next(a * rotated<1, T, N>(b) - rotated<1, T, N>(a) * b),
          second(a * rotated<2, T, N>(b) - rotated<2, T, N>(a) * b)
    {
    }
    // The 3 by 3 minors of row r before these two: lane c holds that of columns c + 1, c + 2, c + 3.
    ZEPM_INLINE Vec<T, N> withRow(Vec<T, N> r) const
    {
        return rotated<1, T, N>(r) * rotated<2, T, N>(next) - rotated<2, T, N>(r) * rotated<1, T, N>(second) +
               rotated<3, T, N>(r) * rotated<1, T, N>(next);
    }
};

template <class T>
struct Cofactors
{
    Matrix4<T> c; // apart from their sign
    T determinant;

    ZEPM_INLINE explicit Cofactors(const Matrix4<T>& m)
    {
        // The columns are taken cyclically; the permutation is even, so only the sign (-1)^(r + c) is still missing.
        const TwoRows<T> a(m.row[2], m.row[0]), b(m.row[3], m.row[1]);
        const TwoRows<T> r1r3(m.row[1], m.row[3]), r0r2(m.row[0], m.row[2]);
        TwoRows<T> c02, c13;
        ZEPM_UNROLL
        for (int i = 0; i < TwoRows<T>::parts; ++i)
        {
            const Minors<T, TwoRows<T>::N> minors(a.part[i], b.part[i]);
            c02.part[i] = minors.withRow(r1r3.part[i]);
            c13.part[i] = minors.withRow(r0r2.part[i]);
        }
        c = {{c02.first(), c13.first(), c02.second(), c13.second()}};

        // Down column 0: (3 + 1) + (2 + 0), those of odd rows negative.
        determinant = m.row[2][0] * c.row[2][0] + m.row[0][0] * c.row[0][0] -
                      (m.row[3][0] * c.row[3][0] + m.row[1][0] * c.row[1][0]);
    }
    ZEPM_INLINE bool isSingular() const
    {
        return determinant < leastDeterminant<T> && determinant > -leastDeterminant<T>;
    }
    ZEPM_INLINE Matrix4<T> inverse() const
    {
        const T scale = reciprocal(determinant);
        const Vec<T, 4> even{scale, -scale, scale, -scale}, odd = -even;
        const Matrix4<T> t = transposed(c);
        return {{t.row[0] * even, t.row[1] * odd, t.row[2] * even, t.row[3] * odd}};
    }
};

} // namespace zepm::ZEPM_LEVEL
