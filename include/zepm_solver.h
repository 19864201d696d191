/* zepm_solver.h: direct solvers.
 *
 * LU factors          zepmLUDecomp_     m ma
 * Systems from them   zepmLUBackSubst_  mv mva mava
 *
 * Each in 32f and 64f; single objects in the layouts S and P, arrays in S, L and P. Matrices are square of order
 * n = widthHeight; A, b and x are a matrix, a right-hand side and a solution, k is the object (0 to count - 1). The
 * arithmetic is that of the element type.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsSizeErr (widthHeight below 1), stsCountErr,
 * stsStrideErr, stsRoiShiftErr; what else a function returns stands with it.
 *
 * Pivot indices are int32, n for each matrix without gaps in every layout: those of matrix k begin at entry k * n.
 *
 * Arrays above a limit of each function's own are shared among threads; no result depends on it, but where an object
 * fails.
 */
#ifndef ZEPM_SOLVER_H
#define ZEPM_SOLVER_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The LU factors of a matrix, with partial pivoting. Rows stay where they are: with idx the pivot indices, row idx[p]
 * of A is row p of L U, row idx[p] of the result D holds both,
 *
 *   D[idx[p]][j] = L[p][j] for j < p (L has a unit diagonal),  D[idx[p]][j] = U[p][j] for j >= p,
 *
 * and idx is a permutation of 0 to n - 1. The pivot is the largest magnitude in its column; of equal ones that which is
 * first in idx at that step.
 *
 * stsSingularErr: a pivot has a magnitude below twice the smallest normal number (n from 3 to 6), or at or below the
 * machine epsilon, 2^-23 or 2^-52 (all other n; for n from 7 on the two tests treat matrices of small elements
 * differently). Where pivot p fails, D and idx then hold
 *
 *   n from 3 to 6   the final rows idx[0] to idx[p-1]; the other rows of D are as before the call; idx with p chosen
 *   all other n     all rows, eliminated by p pivots; idx before p is chosen
 *
 * A NaN is never chosen over a number and never fails. D may be A. */
Status zepmLUDecomp_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32* pDstIndex, float32* pDst,
                          int32 dstStride1, int32 dstStride2, int32 widthHeight);
Status zepmLUDecomp_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32* pDstIndex, float32* const* ppDst,
                            int32 dstRoiShift, int32 widthHeight);
Status zepmLUDecomp_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32* pDstIndex, float64* pDst,
                          int32 dstStride1, int32 dstStride2, int32 widthHeight);
Status zepmLUDecomp_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32* pDstIndex, float64* const* ppDst,
                            int32 dstRoiShift, int32 widthHeight);

/* The LU factors of an array of matrices, A[k] into D[k] as zepmLUDecomp_m.
 *
 * stsSingularErr: a matrix is singular. Those in front of it are done, those behind it have not been touched; in a call
 * that was shared among threads this holds in each thread's share. */
Status zepmLUDecomp_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32* pDstIndex,
                           float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 widthHeight,
                           int32 count);
Status zepmLUDecomp_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32* pDstIndex, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                             int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUDecomp_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32* pDstIndex,
                             float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                             int32 count);
Status zepmLUDecomp_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32* pDstIndex,
                           float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 widthHeight,
                           int32 count);
Status zepmLUDecomp_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32* pDstIndex, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                             int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUDecomp_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32* pDstIndex,
                             float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                             int32 count);

/* The solution of A x = b from the factors and pivot indices of A. Their entries are not tested: a zero on the diagonal
 * gives infinities or NaNs. x may be b for n from 3 to 6. */
Status zepmLUBackSubst_mv_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                              const float32* pSrc2, int32 src2Stride2, float32* pDst, int32 dstStride2,
                              int32 widthHeight);
Status zepmLUBackSubst_mv_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst,
                                int32 dstRoiShift, int32 widthHeight);
Status zepmLUBackSubst_mv_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                              const float64* pSrc2, int32 src2Stride2, float64* pDst, int32 dstStride2,
                              int32 widthHeight);
Status zepmLUBackSubst_mv_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst,
                                int32 dstRoiShift, int32 widthHeight);

/* The solutions of A x[k] = b[k], one matrix and an array of right-hand sides. For n from 3 to 6 they are multiplied by
 * reciprocals of the diagonal of U and may differ from zepmLUBackSubst_mv in the last place. x may be b for these n. */
Status zepmLUBackSubst_mva_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                               const float32* pSrc2, int32 src2Stride0, int32 src2Stride2, float32* pDst,
                               int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUBackSubst_mva_32f_L(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                 float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 widthHeight,
                                 int32 count);
Status zepmLUBackSubst_mva_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                 float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                                 int32 count);
Status zepmLUBackSubst_mva_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                               const float64* pSrc2, int32 src2Stride0, int32 src2Stride2, float64* pDst,
                               int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUBackSubst_mva_64f_L(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                 float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 widthHeight,
                                 int32 count);
Status zepmLUBackSubst_mva_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                 float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                                 int32 count);

/* The solutions of A[k] x[k] = b[k], each as zepmLUBackSubst_mv. x may be b for n from 3 to 6. */
Status zepmLUBackSubst_mava_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                const int32* pSrcIndex, const float32* pSrc2, int32 src2Stride0, int32 src2Stride2,
                                float32* pDst, int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUBackSubst_mava_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                  const int32* pSrcIndex, const float32* const* ppSrc2, int32 src2RoiShift,
                                  int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2,
                                  int32 widthHeight, int32 count);
Status zepmLUBackSubst_mava_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                  const int32* pSrcIndex, const float32* const* ppSrc2, int32 src2RoiShift,
                                  int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                  int32 widthHeight, int32 count);
Status zepmLUBackSubst_mava_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                const int32* pSrcIndex, const float64* pSrc2, int32 src2Stride0, int32 src2Stride2,
                                float64* pDst, int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count);
Status zepmLUBackSubst_mava_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                  const int32* pSrcIndex, const float64* const* ppSrc2, int32 src2RoiShift,
                                  int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2,
                                  int32 widthHeight, int32 count);
Status zepmLUBackSubst_mava_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                  const int32* pSrcIndex, const float64* const* ppSrc2, int32 src2RoiShift,
                                  int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                  int32 widthHeight, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
