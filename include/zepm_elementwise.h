/* zepm_elementwise.h: element-wise arithmetic.
 *
 * Single vectors                       zepmAdd_  vv vc                      zepmSub_  vv vc cv
 * Arrays of vectors                    zepmAdd_  vac vaca vav vava vca      zepmSub_  vac cva vaca cava vav vva vava
 * vca cav
 *
 * Each in 32f and 64f; single vectors in the layouts S and P, arrays in S, L and P. In the formulas s, s1, s2 are
 * sources, d the destination, c the array of constants, j the element (0 to len - 1), k the object (0 to count - 1).
 * Every element is one IEEE operation in the element type. In Sub the operand named first is the minuend; in the
 * argument list a vector stands before a constant whatever the order in the name.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsSizeErr (len below 1), stsCountErr,
 * stsStrideErr, stsRoiShiftErr. A destination may be one of the sources, element for element. Where a single packed
 * vector of more than 6 elements overlaps a source otherwise, the result is that of an ascending loop; no other overlap
 * is supported.
 *
 * Arrays above a limit of each function's own are shared among threads; no result depends on it.
 */
#ifndef ZEPM_ELEMENTWISE_H
#define ZEPM_ELEMENTWISE_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The sum of two vectors: d[j] = s1[j] + s2[j]. */
Status zepmAdd_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2, float32* pDst,
                      int32 dstStride2, int32 len);
Status zepmAdd_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 len);
Status zepmAdd_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2, float64* pDst,
                      int32 dstStride2, int32 len);
Status zepmAdd_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 len);

/* The sum of a vector and a constant: d[j] = s[j] + val. */
Status zepmAdd_vc_32f(const float32* pSrc, int32 srcStride2, float32 val, float32* pDst, int32 dstStride2, int32 len);
Status zepmAdd_vc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 len);
Status zepmAdd_vc_64f(const float64* pSrc, int32 srcStride2, float64 val, float64* pDst, int32 dstStride2, int32 len);
Status zepmAdd_vc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 len);

/* The sum of an array of vectors and one constant: d[k][j] = s[k][j] + val. */
Status zepmAdd_vac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmAdd_vac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* The sum of an array of vectors and an array of constants: d[k][j] = s[k][j] + c[k]. */
Status zepmAdd_vaca_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, const float32* pVal, int32 valStride0,
                        float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vaca_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float32* const* ppVal,
                          int32 valRoiShift, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmAdd_vaca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float32* pVal,
                          int32 valStride0, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);
Status zepmAdd_vaca_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, const float64* pVal, int32 valStride0,
                        float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vaca_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float64* const* ppVal,
                          int32 valRoiShift, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmAdd_vaca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float64* pVal,
                          int32 valStride0, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);

/* The sum of an array of vectors and one vector: d[k][j] = s1[k][j] + s2[j]. */
Status zepmAdd_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float32* pSrc2,
                         int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmAdd_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);
Status zepmAdd_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float64* pSrc2,
                         int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmAdd_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);

/* The sum of two arrays of vectors: d[k][j] = s1[k][j] + s2[k][j]. */
Status zepmAdd_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                        int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2,
                        int32 len, int32 count);
Status zepmAdd_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmAdd_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                        int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2,
                        int32 len, int32 count);
Status zepmAdd_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* The sum of one vector and an array of constants: d[k][j] = s[j] + c[k]. */
Status zepmAdd_vca_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vca_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmAdd_vca_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vca_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmAdd_vca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* A vector less a vector: d[j] = s1[j] - s2[j]. */
Status zepmSub_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2, float32* pDst,
                      int32 dstStride2, int32 len);
Status zepmSub_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 len);
Status zepmSub_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2, float64* pDst,
                      int32 dstStride2, int32 len);
Status zepmSub_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 len);

/* A vector less a constant: d[j] = s[j] - val. */
Status zepmSub_vc_32f(const float32* pSrc, int32 srcStride2, float32 val, float32* pDst, int32 dstStride2, int32 len);
Status zepmSub_vc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 len);
Status zepmSub_vc_64f(const float64* pSrc, int32 srcStride2, float64 val, float64* pDst, int32 dstStride2, int32 len);
Status zepmSub_vc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 len);

/* A constant less a vector: d[j] = val - s[j]. */
Status zepmSub_cv_32f(const float32* pSrc, int32 srcStride2, float32 val, float32* pDst, int32 dstStride2, int32 len);
Status zepmSub_cv_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 len);
Status zepmSub_cv_64f(const float64* pSrc, int32 srcStride2, float64 val, float64* pDst, int32 dstStride2, int32 len);
Status zepmSub_cv_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 len);

/* An array of vectors less one constant: d[k][j] = s[k][j] - val. */
Status zepmSub_vac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSub_vac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* One constant less each of an array of vectors: d[k][j] = val - s[k][j]. */
Status zepmSub_cva_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cva_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cva_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSub_cva_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cva_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cva_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* An array of vectors less an array of constants: d[k][j] = s[k][j] - c[k]. */
Status zepmSub_vaca_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, const float32* pVal, int32 valStride0,
                        float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vaca_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float32* const* ppVal,
                          int32 valRoiShift, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmSub_vaca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float32* pVal,
                          int32 valStride0, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);
Status zepmSub_vaca_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, const float64* pVal, int32 valStride0,
                        float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vaca_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float64* const* ppVal,
                          int32 valRoiShift, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmSub_vaca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float64* pVal,
                          int32 valStride0, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);

/* An array of constants less an array of vectors: d[k][j] = c[k] - s[k][j]. */
Status zepmSub_cava_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, const float32* pVal, int32 valStride0,
                        float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cava_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float32* const* ppVal,
                          int32 valRoiShift, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmSub_cava_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float32* pVal,
                          int32 valStride0, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);
Status zepmSub_cava_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, const float64* pVal, int32 valStride0,
                        float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cava_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float64* const* ppVal,
                          int32 valRoiShift, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmSub_cava_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float64* pVal,
                          int32 valStride0, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);

/* An array of vectors less one vector: d[k][j] = s1[k][j] - s2[j]. */
Status zepmSub_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float32* pSrc2,
                         int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmSub_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);
Status zepmSub_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float64* pSrc2,
                         int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmSub_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);

/* One vector less each of an array of vectors: d[k][j] = s1[j] - s2[k][j]. */
Status zepmSub_vva_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride0,
                       int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vva_32f_L(const float32* pSrc1, int32 src1Stride2, const float32* const* ppSrc2, int32 src2RoiShift,
                         int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmSub_vva_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);
Status zepmSub_vva_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride0,
                       int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vva_64f_L(const float64* pSrc1, int32 src1Stride2, const float64* const* ppSrc2, int32 src2RoiShift,
                         int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count);
Status zepmSub_vva_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count);

/* An array of vectors less an array of vectors: d[k][j] = s1[k][j] - s2[k][j]. */
Status zepmSub_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                        int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2,
                        int32 len, int32 count);
Status zepmSub_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSub_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                        int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2,
                        int32 len, int32 count);
Status zepmSub_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* One vector less each of an array of constants: d[k][j] = s[j] - c[k]. */
Status zepmSub_vca_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vca_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSub_vca_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vca_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_vca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* Each of an array of constants less one vector: d[k][j] = c[k] - s[j]. */
Status zepmSub_cav_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cav_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cav_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmSub_cav_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cav_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmSub_cav_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
