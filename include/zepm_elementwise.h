/* zepm_elementwise.h: element-wise arithmetic.
 *
 * Add   vectors           vv vc
 *       vector arrays     vac vaca vav vava vca
 *       matrices          mm tm tt
 *       matrix arrays     mam mat tam tat mama tama tata
 * Sub   vectors           vv vc cv
 *       vector arrays     vac cva vaca cava vav vva vava vca cav
 *       matrices          mm mt tm tt
 *       matrix arrays     mam mat tam tat mma mta tma tta mama mata tama tata
 * Mul   by a constant     vc mc tc, arrays vac vca vaca mac tac
 *
 * Each in 32f and 64f; single vectors and matrices in the layouts S and P, arrays in S, L and P. In the formulas s, s1,
 * s2 are sources, d the destination, c the array of constants, i the row (0 to height - 1), j the column or element (0
 * to width - 1 or len - 1), k the object (0 to count - 1). Every element is one IEEE operation in the element type. In
 * Sub the operand named first is the minuend; in the argument list a vector or matrix stands before a constant whatever
 * the order in the name.
 *
 * width and height are those of the result. A transposed operand is stored as width rows of height elements; its
 * strides, or its table of element pointers, describe it as it is stored.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsSizeErr (a size below 1),
 * stsCountErr, stsStrideErr, stsRoiShiftErr. A destination may be one of the sources, element for element, unless that
 * source is transposed. Where a single packed vector of more than 6 elements overlaps a source otherwise, the result is
 * that of an ascending loop; no other overlap is supported.
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

/* The sum of two matrices: d(i, j) = s1(i, j) + s2(i, j). */
Status zepmAdd_mm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_mm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmAdd_mm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_mm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* The sum of a transposed matrix and a matrix: d(i, j) = s1(j, i) + s2(i, j). */
Status zepmAdd_tm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_tm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmAdd_tm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_tm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* The sum of two transposed matrices: d(i, j) = s1(j, i) + s2(j, i). */
Status zepmAdd_tt_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_tt_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmAdd_tt_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmAdd_tt_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* The sum of an array of matrices and one matrix: d[k](i, j) = s1[k](i, j) + s2(i, j). */
Status zepmAdd_mam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_mam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of an array of matrices and one transposed matrix: d[k](i, j) = s1[k](i, j) + s2(j, i). */
Status zepmAdd_mat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_mat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of an array of transposed matrices and one matrix: d[k](i, j) = s1[k](j, i) + s2(i, j). */
Status zepmAdd_tam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_tam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of an array of transposed matrices and one transposed matrix: d[k](i, j) = s1[k](j, i) + s2(j, i). */
Status zepmAdd_tat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_tat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of two arrays of matrices: d[k](i, j) = s1[k](i, j) + s2[k](i, j). */
Status zepmAdd_mama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_mama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_mama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_mama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_mama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of an array of transposed matrices and an array of matrices: d[k](i, j) = s1[k](j, i) + s2[k](i, j). */
Status zepmAdd_tama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_tama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_tama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_tama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* The sum of two arrays of transposed matrices: d[k](i, j) = s1[k](j, i) + s2[k](j, i). */
Status zepmAdd_tata_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tata_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_tata_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmAdd_tata_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmAdd_tata_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmAdd_tata_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* A matrix less a matrix: d(i, j) = s1(i, j) - s2(i, j). */
Status zepmSub_mm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_mm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmSub_mm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_mm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* A matrix less a transposed matrix: d(i, j) = s1(i, j) - s2(j, i). */
Status zepmSub_mt_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_mt_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmSub_mt_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_mt_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* A transposed matrix less a matrix: d(i, j) = s1(j, i) - s2(i, j). */
Status zepmSub_tm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_tm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmSub_tm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_tm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* A transposed matrix less a transposed matrix: d(i, j) = s1(j, i) - s2(j, i). */
Status zepmSub_tt_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_tt_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height);
Status zepmSub_tt_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height);
Status zepmSub_tt_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height);

/* An array of matrices less one matrix: d[k](i, j) = s1[k](i, j) - s2(i, j). */
Status zepmSub_mam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of matrices less one transposed matrix: d[k](i, j) = s1[k](i, j) - s2(j, i). */
Status zepmSub_mat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of transposed matrices less one matrix: d[k](i, j) = s1[k](j, i) - s2(i, j). */
Status zepmSub_tam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of transposed matrices less one transposed matrix: d[k](i, j) = s1[k](j, i) - s2(j, i). */
Status zepmSub_tat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* One matrix less each of an array of matrices: d[k](i, j) = s1(i, j) - s2[k](i, j). */
Status zepmSub_mma_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mma_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mma_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mma_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mma_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mma_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* One matrix less each of an array of transposed matrices: d[k](i, j) = s1(i, j) - s2[k](j, i). */
Status zepmSub_mta_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mta_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mta_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mta_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mta_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mta_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* One transposed matrix less each of an array of matrices: d[k](i, j) = s1(j, i) - s2[k](i, j). */
Status zepmSub_tma_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tma_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tma_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tma_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tma_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tma_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* One transposed matrix less each of an array of transposed matrices: d[k](i, j) = s1(j, i) - s2[k](j, i). */
Status zepmSub_tta_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tta_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tta_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tta_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tta_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tta_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                         int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of matrices less an array of matrices: d[k](i, j) = s1[k](i, j) - s2[k](i, j). */
Status zepmSub_mama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_mama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_mama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of matrices less an array of transposed matrices: d[k](i, j) = s1[k](i, j) - s2[k](j, i). */
Status zepmSub_mata_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mata_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_mata_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_mata_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_mata_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_mata_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of transposed matrices less an array of matrices: d[k](i, j) = s1[k](j, i) - s2[k](i, j). */
Status zepmSub_tama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_tama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_tama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* An array of transposed matrices less an array of transposed matrices: d[k](i, j) = s1[k](j, i) - s2[k](j, i). */
Status zepmSub_tata_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float32* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tata_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_tata_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmSub_tata_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                        const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, float64* pDst,
                        int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmSub_tata_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmSub_tata_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                          const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* A vector times a constant: d[j] = s[j] * val. */
Status zepmMul_vc_32f(const float32* pSrc, int32 srcStride2, float32 val, float32* pDst, int32 dstStride2, int32 len);
Status zepmMul_vc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 len);
Status zepmMul_vc_64f(const float64* pSrc, int32 srcStride2, float64 val, float64* pDst, int32 dstStride2, int32 len);
Status zepmMul_vc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 len);

/* An array of vectors times one constant: d[k][j] = s[k][j] * val. */
Status zepmMul_vac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmMul_vac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* One vector times each of an array of constants: d[k][j] = s[j] * c[k]. */
Status zepmMul_vca_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vca_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmMul_vca_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vca_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* An array of vectors times an array of constants: d[k][j] = s[k][j] * c[k]. */
Status zepmMul_vaca_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, const float32* pVal, int32 valStride0,
                        float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vaca_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float32* const* ppVal,
                          int32 valRoiShift, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmMul_vaca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float32* pVal,
                          int32 valStride0, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);
Status zepmMul_vaca_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, const float64* pVal, int32 valStride0,
                        float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmMul_vaca_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, const float64* const* ppVal,
                          int32 valRoiShift, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                          int32 count);
Status zepmMul_vaca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, const float64* pVal,
                          int32 valStride0, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len,
                          int32 count);

/* A matrix times a constant: d(i, j) = s(i, j) * val. */
Status zepmMul_mc_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32 val, float32* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height);
Status zepmMul_mc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height);
Status zepmMul_mc_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64 val, float64* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height);
Status zepmMul_mc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height);

/* A transposed matrix times a constant: d(i, j) = s(j, i) * val. */
Status zepmMul_tc_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32 val, float32* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height);
Status zepmMul_tc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height);
Status zepmMul_tc_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64 val, float64* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height);
Status zepmMul_tc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height);

/* An array of matrices times one constant: d[k](i, j) = s[k](i, j) * val. */
Status zepmMul_mac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32 val,
                       float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count);
Status zepmMul_mac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float32 val, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count);
Status zepmMul_mac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count);
Status zepmMul_mac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64 val,
                       float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count);
Status zepmMul_mac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float64 val, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count);
Status zepmMul_mac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count);

/* An array of transposed matrices times one constant: d[k](i, j) = s[k](j, i) * val. */
Status zepmMul_tac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32 val,
                       float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count);
Status zepmMul_tac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float32 val, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count);
Status zepmMul_tac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count);
Status zepmMul_tac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64 val,
                       float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count);
Status zepmMul_tac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float64 val, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count);
Status zepmMul_tac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
