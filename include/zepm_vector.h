/* zepm_vector.h: sums over vectors and matrices, vector products, linear combinations.
 *
 * Inner products        zepmDotProduct_    vv, arrays vav vava
 * Vector products       zepmCrossProduct_  vv, arrays vav vva vava
 * Norms                 zepmL2Norm_        v, arrays va
 *                       zepmFrobNorm_      m, arrays ma
 * Traces                zepmTrace_         m, arrays ma
 * Linear combinations   zepmSaxpy_         vv, arrays vav vva vava
 *                       zepmLComb_         vv, arrays vav vava
 *
 * Each in 32f and 64f; single objects in the layouts S and P, arrays in S, L and P. In the formulas s, s1, s2 are
 * sources, d the destination, i the row, j the column or element (0 to len - 1), k the object (0 to count - 1).
 *
 * Numbers. All arithmetic is in the element type: nothing is widened, fused, or scaled against overflow. The order in
 * which a sum adds belongs to the function, the layout and whether elements are contiguous, so that the last place can
 * differ between them; in DotProduct (vv, and vava_32f) and L2Norm_v_32f of contiguous elements it depends on where the
 * second vector, or the only one, lies modulo 16 bytes, where it has 8 elements or more.
 *
 * Results of sums (DotProduct, L2Norm, FrobNorm, Trace) are numbers without gaps in every layout: pDst[k] is that of
 * object k. They must not lie in a source, but for the result of a single Trace.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsCountErr, stsSizeErr (a size below 1),
 * stsStrideErr, stsRoiShiftErr.
 *
 * Arrays above a limit of each function's own are shared among threads; no result depends on it.
 */
#ifndef ZEPM_VECTOR_H
#define ZEPM_VECTOR_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The inner product of two vectors: d = sum over j of s1[j] s2[j]. */
Status zepmDotProduct_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2,
                             float32* pDst, int32 len);
Status zepmDotProduct_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                               int32 src2RoiShift, float32* pDst, int32 len);
Status zepmDotProduct_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2,
                             float64* pDst, int32 len);
Status zepmDotProduct_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                               int32 src2RoiShift, float64* pDst, int32 len);

/* The inner products of an array of vectors and one vector: d[k] = sum over j of s1[k][j] s2[j]. */
Status zepmDotProduct_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                              int32 src2Stride2, float32* pDst, int32 len, int32 count);
Status zepmDotProduct_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                const float32* pSrc2, int32 src2Stride2, float32* pDst, int32 len, int32 count);
Status zepmDotProduct_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                const float32* const* ppSrc2, int32 src2RoiShift, float32* pDst, int32 len,
                                int32 count);
Status zepmDotProduct_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                              int32 src2Stride2, float64* pDst, int32 len, int32 count);
Status zepmDotProduct_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                const float64* pSrc2, int32 src2Stride2, float64* pDst, int32 len, int32 count);
Status zepmDotProduct_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                const float64* const* ppSrc2, int32 src2RoiShift, float64* pDst, int32 len,
                                int32 count);

/* The inner products of two arrays of vectors: d[k] = sum over j of s1[k][j] s2[k][j]. */
Status zepmDotProduct_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                               int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 len, int32 count);
Status zepmDotProduct_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* pDst,
                                 int32 len, int32 count);
Status zepmDotProduct_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* pDst,
                                 int32 len, int32 count);
Status zepmDotProduct_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                               int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 len, int32 count);
Status zepmDotProduct_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* pDst,
                                 int32 len, int32 count);
Status zepmDotProduct_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* pDst,
                                 int32 len, int32 count);

/* Vectors of exactly three elements; in P three table entries for each operand. No fourth element is read or written.
 */

/* The vector product of two vectors: d = s1 x s2. */
Status zepmCrossProduct_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2,
                               float32* pDst, int32 dstStride2);
Status zepmCrossProduct_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                                 int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift);
Status zepmCrossProduct_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2,
                               float64* pDst, int32 dstStride2);
Status zepmCrossProduct_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                                 int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift);

/* The vector products of an array of vectors and one vector: d[k] = s1[k] x s2. d may be s1. */
Status zepmCrossProduct_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                                int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 count);
Status zepmCrossProduct_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                  const float32* pSrc2, int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count);
Status zepmCrossProduct_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                  const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst,
                                  int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmCrossProduct_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                                int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 count);
Status zepmCrossProduct_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                  const float64* pSrc2, int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count);
Status zepmCrossProduct_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                  const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst,
                                  int32 dstRoiShift, int32 dstStride0, int32 count);

/* The vector products of one vector and an array of vectors: d[k] = s1 x s2[k]. d may be s2. */
Status zepmCrossProduct_vva_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride0,
                                int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 count);
Status zepmCrossProduct_vva_32f_L(const float32* pSrc1, int32 src1Stride2, const float32* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count);
Status zepmCrossProduct_vva_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride0, int32 count);
Status zepmCrossProduct_vva_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride0,
                                int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 count);
Status zepmCrossProduct_vva_64f_L(const float64* pSrc1, int32 src1Stride2, const float64* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count);
Status zepmCrossProduct_vva_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride0, int32 count);

/* The vector products of two arrays of vectors: d[k] = s1[k] x s2[k]. */
Status zepmCrossProduct_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                                 int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0,
                                 int32 dstStride2, int32 count);
Status zepmCrossProduct_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                   const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                   float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 count);
Status zepmCrossProduct_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                   const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                   float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmCrossProduct_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                                 int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 dstStride0,
                                 int32 dstStride2, int32 count);
Status zepmCrossProduct_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                   const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                   float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 count);
Status zepmCrossProduct_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                   const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                   float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The Euclidean norm of a vector: d = sqrt(sum over j of s[j]^2). */
Status zepmL2Norm_v_32f(const float32* pSrc, int32 srcStride2, float32* pDst, int32 len);
Status zepmL2Norm_v_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 len);
Status zepmL2Norm_v_64f(const float64* pSrc, int32 srcStride2, float64* pDst, int32 len);
Status zepmL2Norm_v_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 len);

/* The Euclidean norms of an array of vectors: d[k] = sqrt(sum over j of s[k][j]^2). */
Status zepmL2Norm_va_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 len,
                         int32 count);
Status zepmL2Norm_va_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst, int32 len,
                           int32 count);
Status zepmL2Norm_va_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst, int32 len,
                           int32 count);
Status zepmL2Norm_va_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 len,
                         int32 count);
Status zepmL2Norm_va_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst, int32 len,
                           int32 count);
Status zepmL2Norm_va_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst, int32 len,
                           int32 count);

/* The Frobenius norm of a matrix of height rows and width columns: d = sqrt(sum over i, j of s[i][j]^2). */
Status zepmFrobNorm_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                          float32* pDst);
Status zepmFrobNorm_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 width, int32 height, float32* pDst);
Status zepmFrobNorm_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                          float64* pDst);
Status zepmFrobNorm_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 width, int32 height, float64* pDst);

/* The Frobenius norms of an array of matrices: d[k] = sqrt(sum over i, j of s[k][i][j]^2). */
Status zepmFrobNorm_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                           int32 height, float32* pDst, int32 count);
Status zepmFrobNorm_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32 width, int32 height, float32* pDst, int32 count);
Status zepmFrobNorm_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                             int32 height, float32* pDst, int32 count);
Status zepmFrobNorm_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                           int32 height, float64* pDst, int32 count);
Status zepmFrobNorm_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32 width, int32 height, float64* pDst, int32 count);
Status zepmFrobNorm_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                             int32 height, float64* pDst, int32 count);

/* The trace of a square matrix of order widthHeight: d = sum over i of s[i][i]. */
Status zepmTrace_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 widthHeight, float32* pDst);
Status zepmTrace_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 widthHeight, float32* pDst);
Status zepmTrace_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 widthHeight, float64* pDst);
Status zepmTrace_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 widthHeight, float64* pDst);

/* The traces of an array of square matrices: d[k] = sum over i of s[k][i][i]. */
Status zepmTrace_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 widthHeight,
                        float32* pDst, int32 count);
Status zepmTrace_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          int32 widthHeight, float32* pDst, int32 count);
Status zepmTrace_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 widthHeight,
                          float32* pDst, int32 count);
Status zepmTrace_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 widthHeight,
                        float64* pDst, int32 count);
Status zepmTrace_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          int32 widthHeight, float64* pDst, int32 count);
Status zepmTrace_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 widthHeight,
                          float64* pDst, int32 count);

/* Saxpy and LComb. Each product is rounded, then the sum. A destination may be a source, element for element. Where a
 * contiguous vector of more than 6 elements overlaps a source otherwise, the result is that of an ascending loop. */

/* A vector times a value, and a vector: d[j] = s1[j] val + s2[j]. */
Status zepmSaxpy_vv_32f(const float32* pSrc1, int32 src1Stride2, float32 val, const float32* pSrc2, int32 src2Stride2,
                        float32* pDst, int32 dstStride2, int32 len);
Status zepmSaxpy_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, float32 val, const float32* const* ppSrc2,
                          int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 len);
Status zepmSaxpy_vv_64f(const float64* pSrc1, int32 src1Stride2, float64 val, const float64* pSrc2, int32 src2Stride2,
                        float64* pDst, int32 dstStride2, int32 len);
Status zepmSaxpy_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, float64 val, const float64* const* ppSrc2,
                          int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 len);

/* An array of vectors times a value, and one vector: d[k][j] = s1[k][j] val + s2[j]. */
Status zepmSaxpy_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, float32 val, const float32* pSrc2,
                         int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float32 val,
                           const float32* pSrc2, int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift,
                           int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float32 val,
                           const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                           int32 dstStride0, int32 len, int32 count);
Status zepmSaxpy_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, float64 val, const float64* pSrc2,
                         int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float64 val,
                           const float64* pSrc2, int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift,
                           int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float64 val,
                           const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                           int32 dstStride0, int32 len, int32 count);

/* One vector times a value, and an array of vectors: d[k][j] = s1[j] val + s2[k][j]. */
Status zepmSaxpy_vva_32f(const float32* pSrc1, int32 src1Stride2, float32 val, const float32* pSrc2, int32 src2Stride0,
                         int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vva_32f_L(const float32* pSrc1, int32 src1Stride2, float32 val, const float32* const* ppSrc2,
                           int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift,
                           int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vva_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, float32 val, const float32* const* ppSrc2,
                           int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                           int32 dstStride0, int32 len, int32 count);
Status zepmSaxpy_vva_64f(const float64* pSrc1, int32 src1Stride2, float64 val, const float64* pSrc2, int32 src2Stride0,
                         int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vva_64f_L(const float64* pSrc1, int32 src1Stride2, float64 val, const float64* const* ppSrc2,
                           int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift,
                           int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vva_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, float64 val, const float64* const* ppSrc2,
                           int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                           int32 dstStride0, int32 len, int32 count);

/* An array of vectors times a value, and an array of vectors: d[k][j] = s1[k][j] val + s2[k][j]. */
Status zepmSaxpy_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, float32 val, const float32* pSrc2,
                          int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2,
                          int32 len, int32 count);
Status zepmSaxpy_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float32 val,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst,
                            int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float32 val,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                            int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSaxpy_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, float64 val, const float64* pSrc2,
                          int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2,
                          int32 len, int32 count);
Status zepmSaxpy_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float64 val,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst,
                            int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSaxpy_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float64 val,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                            int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* A linear combination of two vectors: d[j] = s1[j] val1 + s2[j] val2. */
Status zepmLComb_vv_32f(const float32* pSrc1, int32 src1Stride2, float32 val1, const float32* pSrc2, int32 src2Stride2,
                        float32 val2, float32* pDst, int32 dstStride2, int32 len);
Status zepmLComb_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, float32 val1, const float32* const* ppSrc2,
                          int32 src2RoiShift, float32 val2, float32* const* ppDst, int32 dstRoiShift, int32 len);
Status zepmLComb_vv_64f(const float64* pSrc1, int32 src1Stride2, float64 val1, const float64* pSrc2, int32 src2Stride2,
                        float64 val2, float64* pDst, int32 dstStride2, int32 len);
Status zepmLComb_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, float64 val1, const float64* const* ppSrc2,
                          int32 src2RoiShift, float64 val2, float64* const* ppDst, int32 dstRoiShift, int32 len);

/* Linear combinations of an array of vectors and one vector: d[k][j] = s1[k][j] val1 + s2[j] val2. */
Status zepmLComb_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, float32 val1, const float32* pSrc2,
                         int32 src2Stride2, float32 val2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len,
                         int32 count);
Status zepmLComb_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float32 val1,
                           const float32* pSrc2, int32 src2Stride2, float32 val2, float32* const* ppDst,
                           int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float32 val1,
                           const float32* const* ppSrc2, int32 src2RoiShift, float32 val2, float32* const* ppDst,
                           int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmLComb_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, float64 val1, const float64* pSrc2,
                         int32 src2Stride2, float64 val2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len,
                         int32 count);
Status zepmLComb_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float64 val1,
                           const float64* pSrc2, int32 src2Stride2, float64 val2, float64* const* ppDst,
                           int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float64 val1,
                           const float64* const* ppSrc2, int32 src2RoiShift, float64 val2, float64* const* ppDst,
                           int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* Linear combinations of two arrays of vectors: d[k][j] = s1[k][j] val1 + s2[k][j] val2. */
Status zepmLComb_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, float32 val1,
                          const float32* pSrc2, int32 src2Stride0, int32 src2Stride2, float32 val2, float32* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float32 val1,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32 val2,
                            float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float32 val1,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32 val2,
                            float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmLComb_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, float64 val1,
                          const float64* pSrc2, int32 src2Stride0, int32 src2Stride2, float64 val2, float64* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float64 val1,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64 val2,
                            float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmLComb_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float64 val1,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64 val2,
                            float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
