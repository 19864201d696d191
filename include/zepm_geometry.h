/* zepm_geometry.h: fixed-size 3D geometry.
 *
 * Vectors          zepm  Add Sub MulC Min Max DotProduct LenSqr Len Normalize CrossProduct             _v2 _v3 _v4
 * Interpolation    zepm  BaryCentric Hermite InterpolationCatmullRom InterpolationLinear               _v2 _v3 _v4
 * Matrices         zepm  Identity IsIdentity Scaling Translation RotationX RotationY RotationZ
 *                        RotationYawPitchRoll LookAtLH LookAtRH Ortho... Perspective...
 *                        MulTranspose Transpose Det Invert                                             _m4
 *                  zepmMul_mm4x4, zepmRotationAxis_v3m4
 * Points           zepmAffineTransform                        _m4v2 _m4v3 _m4v4      arrays _m4v2a _m4v3a _m4v4a
 *                  zepmAffineTransformCoord, zepmAffineTransformNormal   _m4v2 _m4v3     arrays _m4v2a _m4v3a
 *                  zepmProject, zepmUnproject                 _m4v3                  arrays _m4v3a
 *                  zepmAffineTransform3DH_mva
 *
 * All in 32f. v2, v3, v4: a vector of 2, 3, 4 contiguous elements. m4: a 4 by 4 matrix of 16 contiguous elements, e[0]
 * to e[15] row by row (row-major). Pointers need no alignment. Points are rows, multiplied from the left, so a
 * translation stands in row 3. Angles are in radians. In the formulas a, b, c are the sources in order, d is the
 * destination; arithmetic is float32 in the order written.
 *
 * Sources are read in full before a result is written, so a destination may be a source.
 *
 * Arrays of points have one stride in bytes for each array, from element 0 of one point to that of the next: any value,
 * also 0 or negative. Each point is computed like a single one, and nothing between the points is touched. Where points
 * overlap, the result is that of a walk from the first point to the last; a count below 1 is nothing to do.
 *
 * No argument is tested: a null pointer faults, and a division by zero gives what IEEE arithmetic prescribes, with
 * stsOk. Four functions return other statuses: zepmMul_mm4x4, zepmInvert_m4, zepmUnproject and
 * zepmAffineTransform3DH_mva.
 */
#ifndef ZEPM_GEOMETRY_H
#define ZEPM_GEOMETRY_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* ---- Vectors ----------------------------------------------------------------------------------------------------- */

/* d[i] = a[i] + b[i] */
Status zepmAdd_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAdd_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAdd_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* d[i] = a[i] - b[i] */
Status zepmSub_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmSub_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmSub_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* d[i] = a[i] * val */
Status zepmMulC_v2_32f(const float32* pSrc, float32 val, float32* pDst);
Status zepmMulC_v3_32f(const float32* pSrc, float32 val, float32* pDst);
Status zepmMulC_v4_32f(const float32* pSrc, float32 val, float32* pDst);

/* d[i] = a[i] if a[i] < b[i], else b[i]: b[i] of equal elements, and where either is a NaN. */
Status zepmMin_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmMin_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmMin_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* d[i] = a[i] if a[i] > b[i], else b[i]: b[i] of equal elements, and where either is a NaN. */
Status zepmMax_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmMax_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmMax_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* *pDst = sum of a[i] * b[i], in index order. */
Status zepmDotProduct_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmDotProduct_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmDotProduct_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* *pDst = sum of a[i] * a[i], in index order. */
Status zepmLenSqr_v2_32f(const float32* pSrc, float32* pDst);
Status zepmLenSqr_v3_32f(const float32* pSrc, float32* pDst);
Status zepmLenSqr_v4_32f(const float32* pSrc, float32* pDst);

/* *pDst = the square root of the sum of a[i] * a[i]. */
Status zepmLen_v2_32f(const float32* pSrc, float32* pDst);
Status zepmLen_v3_32f(const float32* pSrc, float32* pDst);
Status zepmLen_v4_32f(const float32* pSrc, float32* pDst);

/* d[i] = a[i] / the length of a. The zero vector gives NaNs. */
Status zepmNormalize_v2_32f(const float32* pSrc, float32* pDst);
Status zepmNormalize_v3_32f(const float32* pSrc, float32* pDst);
Status zepmNormalize_v4_32f(const float32* pSrc, float32* pDst);

/* *pDst = a[0] * b[1] - a[1] * b[0] */
Status zepmCrossProduct_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* d = a x b */
Status zepmCrossProduct_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* The product of three vectors u, v, t, at right angles to each of them: the cofactors of row 0 of the matrix with
 * the rows (any, u, v, t). With m(p, q) = v[p] * t[q] - v[q] * t[p]:
 *
 *   d[0] =      m(2,3) * u[1] - m(1,3) * u[2] + m(1,2) * u[3]
 *   d[1] = 0 - (m(2,3) * u[0] - m(0,3) * u[2] + m(0,2) * u[3])
 *   d[2] =      m(1,3) * u[0] - m(0,3) * u[1] + m(0,1) * u[3]
 *   d[3] = 0 - (m(1,2) * u[0] - m(0,2) * u[1] + m(0,1) * u[2]) */
Status zepmCrossProduct_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32* pDst);

/* ---- Interpolation ----------------------------------------------------------------------------------------------- */

/* d[i] = (b[i] - a[i]) * val1 + a[i] + (c[i] - a[i]) * val2 */
Status zepmBaryCentric_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst);
Status zepmBaryCentric_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst);
Status zepmBaryCentric_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst);

/* The cubic through positions a and c with tangents b and d at val = 0 and 1. With the coefficients, formed in
 * float64 from the float32 powers t, t2, t3 of val and rounded: h0 = t3 - 3 * t2 + t3, h1 = t - t2 - t2 + t3, h3 = t3
 * - t2:
 *
 *   result[i] = (a[i] - c[i]) * h0 + (a[i] + b[i] * h1 + d[i] * h3) */
Status zepmHermite_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst);
Status zepmHermite_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst);
Status zepmHermite_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst);

/* The cubic through b and c at val = 0 and 1: zepmHermite with the tangents (c - a) / 2 and (d - b) / 2. */
Status zepmInterpolationCatmullRom_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst);
Status zepmInterpolationCatmullRom_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst);
Status zepmInterpolationCatmullRom_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst);

/* d[i] = a[i] + (b[i] - a[i]) * val */
Status zepmInterpolationLinear_v2_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst);
Status zepmInterpolationLinear_v3_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst);
Status zepmInterpolationLinear_v4_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst);

/* ---- Matrices ---------------------------------------------------------------------------------------------------- */

/* The identity. */
Status zepmIdentity_m4_32f(float32* pDst);

/* *pResult = 1 if each element equals that of the identity exactly (-0 is 0, a NaN is not), else 0. */
Status zepmIsIdentity_m4_32f(const float32* pSrc, int32* pResult);

/* The diagonal sx, sy, sz, 1. */
Status zepmScaling_m4_32f(float32 sx, float32 sy, float32 sz, float32* pDst);

/* The identity with tx, ty, tz in row 3. */
Status zepmTranslation_m4_32f(float32 tx, float32 ty, float32 tz, float32* pDst);

/* Rotations about an axis, by sine s and cosine c of the angle, both computed in float64 and rounded. X: e5 = e10 =
 * c, e6 = s, e9 = -s. Y: e0 = e10 = c, e8 = s, e2 = -s. Z: e0 = e5 = c, e1 = s, e4 = -s. */
Status zepmRotationX_m4_32f(float32 angle, float32* pDst);
Status zepmRotationY_m4_32f(float32 angle, float32* pDst);
Status zepmRotationZ_m4_32f(float32 angle, float32* pDst);

/* The rotation about any axis, which need not be of unit length; a zero axis gives NaNs. */
Status zepmRotationAxis_v3m4_32f(const float32* pAxis, float32 angle, float32* pDst);

/* The rotation by roll about Z, then by pitch about X, then by yaw about Y. */
Status zepmRotationYawPitchRoll_m4_32f(float32 yaw, float32 pitch, float32 roll, float32* pDst);

/* World to view for a viewer at pEye who looks at pAt: the columns are xax = normalized(up x zax), yax = zax x xax
 * and zax = normalized(at - eye), in the right-handed form normalized(eye - at); row 3 is 0 - dot(axis, eye). An eye
 * at the target, or an up along the view, gives NaNs. */
Status zepmLookAtLH_m4_32f(const float32* pEye, const float32* pAt, const float32* pUp, float32* pDst);
Status zepmLookAtRH_m4_32f(const float32* pEye, const float32* pAt, const float32* pUp, float32* pDst);

/* The box of width w and height h between depth zn and zf, to x and y within -1 to 1 and z within 0 to 1. RH looks
 * along -z. OffCenter: the box from l to r and from b to t. */
Status zepmOrthoLH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst);
Status zepmOrthoRH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst);
Status zepmOrthoOffCenterLH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf, float32* pDst);
Status zepmOrthoOffCenterRH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf, float32* pDst);

/* The frustum whose section at depth zn is w wide and h high, to the same cube after division by w. OffCenter: the
 * section from l to r and from b to t. Fov: the section by the angle fovY between bottom and top and the ratio aspect
 * of width to height; sine and cosine of the half angle are computed in float32. */
Status zepmPerspectiveLH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst);
Status zepmPerspectiveRH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst);
Status zepmPerspectiveOffCenterLH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf,
                                         float32* pDst);
Status zepmPerspectiveOffCenterRH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf,
                                         float32* pDst);
Status zepmPerspectiveFovLH_m4_32f(float32 fovY, float32 aspect, float32 zn, float32 zf, float32* pDst);
Status zepmPerspectiveFovRH_m4_32f(float32 fovY, float32 aspect, float32 zn, float32 zf, float32* pDst);

/* The product a * b, each element summed in index order. stsNullPtrErr if a pointer is null. */
Status zepmMul_mm4x4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* The transpose of a * b. */
Status zepmMulTranspose_m4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);

/* The transpose. */
Status zepmTranspose_m4_32f(const float32* pSrc, float32* pDst);

/* *pDst = the determinant, expanded along row 0. */
Status zepmDet_m4_32f(const float32* pSrc, float32* pDst);

/* The inverse: the cofactors, times a reciprocal of the determinant from the 12-bit estimate and one Newton step.
 * pDet, which may be null, receives the determinant. stsSingularErr if the determinant is below 2^-119 in magnitude:
 * *pDet is then 0 and pDst as it was.
 *
 * The result is accurate for determinants of magnitude 2^-64 to 2^63. The Newton step squares the estimate, so that
 * with stsOk smaller determinants give infinities, and larger ones an error that grows fourfold with each power of 2,
 * up to twice the inverse from 2^75 on: scale the matrix before. */
Status zepmInvert_m4_32f(const float32* pSrc, float32* pDet, float32* pDst);

/* ---- Points through a matrix ------------------------------------------------------------------------------------- */

/* The vector times the matrix; where it is shorter than 4, with z = 0 and w = 1. The result has 4 elements:
 *
 *   v2  d[j] = e[12+j] + e[j] * x + e[4+j] * y
 *   v3  d[j] = e[12+j] + e[j] * x + e[4+j] * y + e[8+j] * z
 *   v4  d[j] = e[j] * x + e[4+j] * y + (e[8+j] * z + e[12+j] * w) */
Status zepmAffineTransform_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransform_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransform_m4v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransform_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count);
Status zepmAffineTransform_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count);
Status zepmAffineTransform_m4v4a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count);

/* A point times the matrix, divided by its w. The result has as many elements as the point. q is the numerator of
 * element 3:
 *
 *   v2  d[j] = (e[j] * x + e[12+j] + e[4+j] * y) / q
 *   v3  d[j] = (e[12+j] + e[8+j] * z + (e[j] * x + e[4+j] * y)) / q */
Status zepmAffineTransformCoord_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransformCoord_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransformCoord_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                          int32 dstStride0, int32 count);
Status zepmAffineTransformCoord_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                          int32 dstStride0, int32 count);

/* A direction times the matrix, without its translation: d[j] = e[j] * x + e[4+j] * y, in v3 + e[8+j] * z. The result
 * has as many elements as the direction. */
Status zepmAffineTransformNormal_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransformNormal_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst);
Status zepmAffineTransformNormal_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                           int32 dstStride0, int32 count);
Status zepmAffineTransformNormal_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                           int32 dstStride0, int32 count);

/* A point through world, view and projection, divided by its w (p below), to a viewport at (0, 0) whose y points
 * down:
 *
 *   d = (vpWidth / 2 + vpWidth / 2 * p0, vpHeight / 2 - vpHeight / 2 * p1, zMin + (zMax - zMin) * p2)
 *
 * The array form goes through the product world * view * projection, the other from one matrix to the next. */
Status zepmProject_m4v3_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                            float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax, float32* pDst);
Status zepmProject_m4v3a_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                             int32 srcStride0, float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax,
                             float32* pDst, int32 dstStride0, int32 count);

/* From the viewport back: the point n = (2 * x / vpWidth - 1, -2 * y / vpHeight + 1, (z - zMin) / (zMax - zMin)) as
 * in zepmAffineTransformCoord, by the inverse of world * view * projection, computed in float64. stsSingularErr if
 * the determinant is below 2^-1014 in magnitude: pDst then holds n; in the array form it is as it was, and the status
 * is the same for a count below 1. */
Status zepmUnproject_m4v3_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                              float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax, float32* pDst);
Status zepmUnproject_m4v3a_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                               int32 srcStride0, float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax,
                               float32* pDst, int32 dstStride0, int32 count);

/* Each point as a column, the matrix m from the left (m at strides, in row i of m what gives element i), divided by
 * its w:
 *
 *   q = m30 * x + m31 * y + (m32 * z + m33),  d[i] = (1 / q) * (mi0 * x + mi1 * y + (mi2 * z + mi3)),  i = 0, 1, 2
 *
 * Where the magnitude of q is not above 2^-126 the point becomes (FLT_MAX, FLT_MAX, FLT_MAX); the others are computed
 * all the same and the result is stsDivByZeroErr. Otherwise stsOk, or with nothing written stsNullPtrErr, stsCountErr
 * (count below 1), stsStrideErr (a stride below 4 or not a multiple of 4). Many points are shared among threads. */
Status zepmAffineTransform3DH_mva_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                                      int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0,
                                      int32 dstStride2, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
