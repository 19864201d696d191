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
    const float32 q = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
    return q + q - x * (q * q);
}
ZEPM_INLINE float64 reciprocal(float64 x) { return 1 / x; }

// Lane r is lane r + By of x, modulo 4.
template <int By, class T>
ZEPM_INLINE Vec<T, 4> rotated(Vec<T, 4> x)
{
    return __builtin_shufflevector(x, x, By, (1 + By) % 4, (2 + By) % 4, (3 + By) % 4);
}

// The 2 by 2 minors of two columns: lane r holds that of rows r and r + 1, or r and r + 2.
template <class T>
struct Minors
{
    Vec<T, 4> next, second;
    ZEPM_INLINE Minors(Vec<T, 4> a, Vec<T, 4> b)
        : next(a * rotated<1, T>(b) - rotated<1, T>(a) * b), second(a * rotated<2, T>(b) - rotated<2, T>(a) * b)
    {
    }
    // The 3 by 3 minors of column c before these two: lane r holds that of rows r + 1, r + 2, r + 3.
    ZEPM_INLINE Vec<T, 4> behind(Vec<T, 4> c) const
    {
        return rotated<1, T>(c) * rotated<2, T>(next) - rotated<2, T>(c) * rotated<1, T>(second) +
               rotated<3, T>(c) * rotated<1, T>(next);
    }
};

template <class T>
struct Inverse
{
    T determinant;
    bool isSingular;
    Matrix4<T> matrix; // unless singular

    ZEPM_INLINE explicit Inverse(const Matrix4<T>& m)
    {
        // Rows r + 1, r + 2, r + 3 modulo 4 stand in ascending order but for an even permutation, so these are the
        // cofactors (r, i) apart from the alternating sign.
        const Matrix4<T> columns = transposed(m);
        const Minors<T> of23(columns.row[2], columns.row[3]), of01(columns.row[0], columns.row[1]);
        const Vec<T, 4> minors[4] = {of23.behind(columns.row[1]), of23.behind(columns.row[0]),
                                     of01.behind(columns.row[3]), of01.behind(columns.row[2])};

        // Along column 0: (3 + 1) + (2 + 0), those of odd rows negative.
        const Vec<T, 4> products = columns.row[0] * minors[0];
        const Vec<T, 4> pairs = products + rotated<2, T>(products);
        determinant = pairs[0] - pairs[1];
        isSingular = (determinant < 0 ? -determinant : determinant) < leastDeterminant<T>;
        if (isSingular) return;
        const T scale = reciprocal(determinant);
        const Vec<T, 4> even{scale, -scale, scale, -scale}, odd = -even;
        matrix = {{minors[0] * even, minors[1] * odd, minors[2] * even, minors[3] * odd}};
    }
};

} // namespace zepm::ZEPM_LEVEL
