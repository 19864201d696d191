/* zepm_product.h: products of matrices.
 *
 * One pair of matrices      zepmMul_  mm mt tm tt
 * Arrays of matrices        zepmMul_  mam mat tam tat mma mta tma tta mama mata tama tata
 *
 * Each in 32f and 64f; single pairs in the layouts S and P, arrays in S, L and P. In the formulas s1, s2 are sources, d
 * the destination, k the object (0 to count - 1).
 *
 * srcWidth and srcHeight are the columns and rows of an operand as it is stored, also where the product takes its
 * transpose; strides and tables describe it as it is stored. The destination has the rows and columns that each formula
 * names, and no sizes of its own.
 *
 * Each result element is the sum of its products in ascending order of the inner index, every product and every sum
 * rounded to the element type. Sums start from zero, but from the first product where all sizes are one order of 3 to 6
 * for which the kernel has a body of its own: a sum of products -0 is then -0. Where the elements of all operands are
 * contiguous (every stride2 is the element size) and the sizes are not such an order, the last rows of the result,
 * behind the last whole block of four, may instead sum the products of even and of odd index apart: one or two such
 * rows in mm and tt, one in tm, none in mt, and alike in the array forms.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsCountErr, stsSizeErr (a size below 1),
 * stsSizeMatchErr (the inner sizes differ), stsStrideErr, stsRoiShiftErr. A destination that overlaps a source is not
 * supported.
 *
 * zepmMul_mm_32f_P and zepmMul_tt_64f_P take sizes from 1 to 3 whose bitwise or is 3 for order 3: the tables must then
 * be those of three matrices of order 3.
 *
 * Arrays above a limit of each function's own are shared among threads; no result depends on it.
 */
#ifndef ZEPM_PRODUCT_H
#define ZEPM_PRODUCT_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The product of two matrices: d = s1 * s2, src1Height rows of src2Width columns; src1Width = src2Height. */
Status zepmMul_mm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float32* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_mm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float32* const* ppDst, int32 dstRoiShift);
Status zepmMul_mm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float64* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_mm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float64* const* ppDst, int32 dstRoiShift);

/* The product of a matrix and a transposed matrix: d = s1 * transpose(s2), src1Height rows of src2Height columns;
 * src1Width = src2Width. */
Status zepmMul_mt_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float32* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_mt_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float32* const* ppDst, int32 dstRoiShift);
Status zepmMul_mt_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float64* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_mt_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float64* const* ppDst, int32 dstRoiShift);

/* The product of a transposed matrix and a matrix: d = transpose(s1) * s2, src1Width rows of src2Width columns;
 * src1Height = src2Height. */
Status zepmMul_tm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float32* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_tm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float32* const* ppDst, int32 dstRoiShift);
Status zepmMul_tm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float64* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_tm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float64* const* ppDst, int32 dstRoiShift);

/* The product of two transposed matrices: d = transpose(s1) * transpose(s2), src1Width rows of src2Height columns;
 * src1Height = src2Width. */
Status zepmMul_tt_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float32* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_tt_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float32* const* ppDst, int32 dstRoiShift);
Status zepmMul_tt_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float64* pDst, int32 dstStride1, int32 dstStride2);
Status zepmMul_tt_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float64* const* ppDst, int32 dstRoiShift);

/* The products of an array of matrices and one matrix: d[k] = s1[k] * s2, src1Height rows of src2Width columns;
 * src1Width = src2Height. */
Status zepmMul_mam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_mam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of an array of matrices and one transposed matrix: d[k] = s1[k] * transpose(s2), src1Height rows of
 * src2Height columns; src1Width = src2Width. */
Status zepmMul_mat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_mat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of an array of transposed matrices and one matrix: d[k] = transpose(s1[k]) * s2, src1Width rows of
 * src2Width columns; src1Height = src2Height. */
Status zepmMul_tam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_tam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of an array of transposed matrices and one transposed matrix: d[k] = transpose(s1[k]) * transpose(s2),
 * src1Width rows of src2Height columns; src1Height = src2Width. */
Status zepmMul_tat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float32* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_tat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                       int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         int32 src1Width, int32 src1Height, const float64* pSrc2, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                         int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of one matrix and an array of matrices: d[k] = s1 * s2[k], src1Height rows of src2Width columns;
 * src1Width = src2Height. */
Status zepmMul_mma_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mma_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mma_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_mma_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mma_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mma_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of one matrix and an array of transposed matrices: d[k] = s1 * transpose(s2[k]), src1Height rows of
 * src2Height columns; src1Width = src2Width. */
Status zepmMul_mta_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mta_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mta_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_mta_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_mta_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_mta_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of one transposed matrix and an array of matrices: d[k] = transpose(s1) * s2[k], src1Width rows of
 * src2Width columns; src1Height = src2Height. */
Status zepmMul_tma_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tma_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tma_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_tma_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tma_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tma_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of one transposed matrix and an array of transposed matrices: d[k] = transpose(s1) * transpose(s2[k]),
 * src1Width rows of src2Height columns; src1Height = src2Width. */
Status zepmMul_tta_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tta_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tta_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmMul_tta_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count);
Status zepmMul_tta_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count);
Status zepmMul_tta_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

/* The products of an array of matrices and an array of matrices: d[k] = s1[k] * s2[k], src1Height rows of src2Width
 * columns; src1Width = src2Height. */
Status zepmMul_mama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_mama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_mama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);
Status zepmMul_mama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_mama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_mama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);

/* The products of an array of matrices and an array of transposed matrices: d[k] = s1[k] * transpose(s2[k]), src1Height
 * rows of src2Height columns; src1Width = src2Width. */
Status zepmMul_mata_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_mata_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_mata_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);
Status zepmMul_mata_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_mata_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_mata_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);

/* The products of an array of transposed matrices and an array of matrices: d[k] = transpose(s1[k]) * s2[k], src1Width
 * rows of src2Width columns; src1Height = src2Height. */
Status zepmMul_tama_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_tama_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_tama_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);
Status zepmMul_tama_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_tama_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_tama_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);

/* The products of an array of transposed matrices and an array of transposed matrices: d[k] = transpose(s1[k]) *
 * transpose(s2[k]), src1Width rows of src2Height columns; src1Height = src2Width. */
Status zepmMul_tata_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_tata_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_tata_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);
Status zepmMul_tata_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2, int32 src1Width,
                        int32 src1Height, const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2,
                        int32 src2Width, int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1,
                        int32 dstStride2, int32 count);
Status zepmMul_tata_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                          int32 src1Width, int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift,
                          int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 count);
Status zepmMul_tata_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, int32 src1Width,
                          int32 src1Height, const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                          int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                          int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
