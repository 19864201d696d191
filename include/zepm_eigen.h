/* zepm_eigen.h: eigenproblems.
 *
 * Symmetric matrices                   zepmEigenValuesSym_         m ma
 *                                      zepmEigenValuesVectorsSym_  m ma
 *
 * Each in 32f and 64f; single matrices in the layouts S and P, arrays in S, L and P. In the formulas s is the source, w
 * the eigenvalues, v the eigenvectors, k the object (0 to count - 1), n is widthHeight.
 *
 * s         n by n. It is only read, and not tested for symmetry.
 * w         n elements for each object without gaps, those of object k at pDstValues + k * n, in every layout. In
 *           descending order; at n = 2 the value of larger magnitude stands first.
 * v         n by n, at strides or behind a table as the layout has it: column j is the eigenvector of w[j], of unit
 *           length.
 * pBuffer   room for n * n elements at any alignment; its contents afterwards are of no use.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsSizeErr (n below 1), stsCountErr,
 * stsRoiShiftErr, stsStrideErr. Beyond these, eps being 2^-23 in 32f and 2^-52 in 64f:
 *
 *   stsSingularErr    An eigenvalue is (nearly) zero. From n = 3 on the product of the eigenvalues is within eps of
 *                     zero (a product that may hold factors from before the values had settled); the values of the
 *                     object are written, not in order. At n = 2 the determinant is within eps of zero; nothing of the
 *                     object is written. Never at n = 1.
 *   stsEigenFailErr   30 sweeps did not settle an eigenvalue; what is written of the object is of no use. In 10^6
 *                     random matrices of order 3 to 6 this meets one in 7,500 to 12,000 in 32f, one in 20,000 to 40,000
 *                     in 64f. The same matrix with rows and columns in reverse almost always converges; its eigenvalues
 *                     are the same, the rows of its eigenvectors in reverse.
 *
 * All tolerances are absolute: matrices should be scaled so that their elements are near 1. An iteration that reaches
 * rotations of a length within eps, or steps within eps before its element is zero, loses accuracy without a report;
 * this is rare but where eigenvalues are repeated.
 *
 * An array ends at the first object that fails; those before it are complete, those behind it are untouched. Large
 * arrays are shared among threads: a failure then ends its thread's share alone, the first one reported stands, and
 * pBuffer is not used.
 */
#ifndef ZEPM_EIGEN_H
#define ZEPM_EIGEN_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The eigenvalues of a symmetric matrix: w = eigenvalues of s. */
Status zepmEigenValuesSym_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pBuffer,
                                float32* pDstValues, int32 widthHeight);
Status zepmEigenValuesSym_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pBuffer, float32* pDstValues,
                                  int32 widthHeight);
Status zepmEigenValuesSym_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pBuffer,
                                float64* pDstValues, int32 widthHeight);
Status zepmEigenValuesSym_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pBuffer, float64* pDstValues,
                                  int32 widthHeight);

/* The eigenvalues of each symmetric matrix of an array: w[k] = eigenvalues of s[k]. In zepmEigenValuesSym_ma_32f with
 * contiguous elements (srcStride2 of 4) the tolerance at n = 2 is 2^-52. */
Status zepmEigenValuesSym_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                 float32* pBuffer, float32* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesSym_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                   float32* pBuffer, float32* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesSym_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pBuffer,
                                   float32* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesSym_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                 float64* pBuffer, float64* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesSym_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                   float64* pBuffer, float64* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesSym_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pBuffer,
                                   float64* pDstValues, int32 widthHeight, int32 count);

/* The eigenvalues and eigenvectors of a symmetric matrix: s = v diag(w) transposed(v). With stsSingularErr from n = 3
 * on values and vectors are complete and in order, but for zepmEigenValuesVectorsSym_m_32f with a stride2 other than 4:
 * there they are complete, not in order. */
Status zepmEigenValuesVectorsSym_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pBuffer,
                                       float32* pDstVectors, int32 dstStride1, int32 dstStride2, float32* pDstValues,
                                       int32 widthHeight);
Status zepmEigenValuesVectorsSym_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pBuffer,
                                         float32* const* ppDst, int32 dstRoiShift, float32* pDstValues,
                                         int32 widthHeight);
Status zepmEigenValuesVectorsSym_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pBuffer,
                                       float64* pDstVectors, int32 dstStride1, int32 dstStride2, float64* pDstValues,
                                       int32 widthHeight);
Status zepmEigenValuesVectorsSym_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pBuffer,
                                         float64* const* ppDst, int32 dstRoiShift, float64* pDstValues,
                                         int32 widthHeight);

/* The eigenvalues and eigenvectors of each symmetric matrix of an array: s[k] = v[k] diag(w[k]) transposed(v[k]). With
 * stsSingularErr from n = 3 on values and vectors of the object are complete, not in order. */
Status zepmEigenValuesVectorsSym_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                        float32* pBuffer, float32* pDstVectors, int32 dstStride0, int32 dstStride1,
                                        int32 dstStride2, float32* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesVectorsSym_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1,
                                          int32 srcStride2, float32* pBuffer, float32* const* ppDst, int32 dstRoiShift,
                                          int32 dstStride1, int32 dstStride2, float32* pDstValues, int32 widthHeight,
                                          int32 count);
Status zepmEigenValuesVectorsSym_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                          float32* pBuffer, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                          float32* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesVectorsSym_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                        float64* pBuffer, float64* pDstVectors, int32 dstStride0, int32 dstStride1,
                                        int32 dstStride2, float64* pDstValues, int32 widthHeight, int32 count);
Status zepmEigenValuesVectorsSym_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1,
                                          int32 srcStride2, float64* pBuffer, float64* const* ppDst, int32 dstRoiShift,
                                          int32 dstStride1, int32 dstStride2, float64* pDstValues, int32 widthHeight,
                                          int32 count);
Status zepmEigenValuesVectorsSym_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                          float64* pBuffer, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                          float64* pDstValues, int32 widthHeight, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
