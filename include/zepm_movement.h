/* zepm_movement.h: objects from layout to layout, without gaps, transposed; identity matrices.
 *
 * Copy          arrays va ma, from each layout to each: SS SL SP LS LL LP PS PL PP, the source's first
 * Extract       v m t, arrays va ma ta
 * LoadIdentity  arrays ma
 * Transpose     m, arrays ma
 *
 * Each in 32f and 64f. Extract and Transpose of single objects are there in the layouts S and P, of arrays in S, L and
 * P, LoadIdentity in S, L and P. In the formulas s is the source, d the destination, i the row (0 to height - 1), j the
 * column or element (0 to width - 1 or len - 1), k the object (0 to count - 1). Elements are moved bit for bit: a
 * signalling NaN arrives as it was.
 *
 * The destination of Extract has no gaps: element (i, j) of object k is pDst[(k * height + i) * width + j]. width and
 * height are those of the result in all functions but Transpose, where they are the source's: its destination has
 * height columns and width rows, and so has the table of a destination in P.
 *
 * Strides and shifts are in bytes; see zepm_types.h for the layouts and for what is demanded of them. All functions
 * return stsOk, or one of these with nothing written: stsNullPtrErr, stsSizeErr (a size below 1), stsCountErr,
 * stsStrideErr, stsRoiShiftErr. Copy and LoadIdentity look at stride0 only if count is above 1.
 *
 * Where the destination of Copy overlaps its source, the result is that of a loop over objects, rows and elements in
 * ascending order: moved towards lower addresses elements arrive intact, moved towards higher ones some are copied
 * again. The other functions support no overlap. All of them run on the calling thread.
 */
#ifndef ZEPM_MOVEMENT_H
#define ZEPM_MOVEMENT_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Vectors from one layout to another: d[k][j] = s[k][j]. */
Status zepmCopy_va_32f_SS(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 dstStride0,
                          int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_SL(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_SP(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmCopy_va_32f_LS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_LL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_LP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmCopy_va_32f_PS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_PL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_32f_PP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmCopy_va_64f_SS(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 dstStride0,
                          int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_SL(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_SP(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmCopy_va_64f_LS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_LL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_LP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);
Status zepmCopy_va_64f_PS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_PL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count);
Status zepmCopy_va_64f_PP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count);

/* Matrices from one layout to another: d[k](i, j) = s[k](i, j). */
Status zepmCopy_ma_32f_SS(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32* pDst,
                          int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmCopy_ma_32f_SL(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_32f_SP(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_32f_LS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_32f_LL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_32f_LP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_32f_PS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                          int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmCopy_ma_32f_PL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_32f_PP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);
Status zepmCopy_ma_64f_SS(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64* pDst,
                          int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmCopy_ma_64f_SL(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_64f_SP(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_64f_LS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_64f_LL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width,
                          int32 height, int32 count);
Status zepmCopy_ma_64f_LP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_64f_PS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                          int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count);
Status zepmCopy_ma_64f_PL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                          int32 count);
Status zepmCopy_ma_64f_PP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 width, int32 height, int32 count);

/* A vector without gaps: d[j] = s[j]. */
Status zepmExtract_v_32f(const float32* pSrc, int32 srcStride2, float32* pDst, int32 len);
Status zepmExtract_v_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 len);
Status zepmExtract_v_64f(const float64* pSrc, int32 srcStride2, float64* pDst, int32 len);
Status zepmExtract_v_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 len);

/* A matrix without gaps: d(i, j) = s(i, j). */
Status zepmExtract_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pDst, int32 width,
                         int32 height);
Status zepmExtract_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 width, int32 height);
Status zepmExtract_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pDst, int32 width,
                         int32 height);
Status zepmExtract_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 width, int32 height);

/* The transpose of a matrix without gaps: d(i, j) = s(j, i). The source is stored as width rows of height elements. */
Status zepmExtract_t_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pDst, int32 width,
                         int32 height);
Status zepmExtract_t_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 width, int32 height);
Status zepmExtract_t_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pDst, int32 width,
                         int32 height);
Status zepmExtract_t_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 width, int32 height);

/* An array of vectors without gaps: d[k][j] = s[k][j]. */
Status zepmExtract_va_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 len,
                          int32 count);
Status zepmExtract_va_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst, int32 len,
                            int32 count);
Status zepmExtract_va_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst, int32 len,
                            int32 count);
Status zepmExtract_va_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 len,
                          int32 count);
Status zepmExtract_va_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst, int32 len,
                            int32 count);
Status zepmExtract_va_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst, int32 len,
                            int32 count);

/* An array of matrices without gaps: d[k](i, j) = s[k](i, j). */
Status zepmExtract_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32* pDst,
                          int32 width, int32 height, int32 count);
Status zepmExtract_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float32* pDst, int32 width, int32 height, int32 count);
Status zepmExtract_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                            int32 width, int32 height, int32 count);
Status zepmExtract_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64* pDst,
                          int32 width, int32 height, int32 count);
Status zepmExtract_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float64* pDst, int32 width, int32 height, int32 count);
Status zepmExtract_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                            int32 width, int32 height, int32 count);

/* The transposes of an array of matrices without gaps: d[k](i, j) = s[k](j, i). */
Status zepmExtract_ta_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32* pDst,
                          int32 width, int32 height, int32 count);
Status zepmExtract_ta_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float32* pDst, int32 width, int32 height, int32 count);
Status zepmExtract_ta_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                            int32 width, int32 height, int32 count);
Status zepmExtract_ta_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64* pDst,
                          int32 width, int32 height, int32 count);
Status zepmExtract_ta_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float64* pDst, int32 width, int32 height, int32 count);
Status zepmExtract_ta_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                            int32 width, int32 height, int32 count);

/* Identity matrices: d[k](i, j) = 1 where i is j, else 0. Matrices need not be square. */
Status zepmLoadIdentity_ma_32f(float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                               int32 height, int32 count);
Status zepmLoadIdentity_ma_32f_L(float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                                 int32 width, int32 height, int32 count);
Status zepmLoadIdentity_ma_32f_P(float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                                 int32 count);
Status zepmLoadIdentity_ma_64f(float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                               int32 height, int32 count);
Status zepmLoadIdentity_ma_64f_L(float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                                 int32 width, int32 height, int32 count);
Status zepmLoadIdentity_ma_64f_P(float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                                 int32 count);

/* The transpose of a matrix: d(j, i) = s(i, j). */
Status zepmTranspose_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                           float32* pDst, int32 dstStride1, int32 dstStride2);
Status zepmTranspose_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 width, int32 height,
                             float32* const* ppDst, int32 dstRoiShift);
Status zepmTranspose_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                           float64* pDst, int32 dstStride1, int32 dstStride2);
Status zepmTranspose_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 width, int32 height,
                             float64* const* ppDst, int32 dstRoiShift);

/* The transposes of an array of matrices: d[k](j, i) = s[k](i, j). */
Status zepmTranspose_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                            int32 height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                            int32 count);
Status zepmTranspose_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                              int32 width, int32 height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                              int32 dstStride2, int32 count);
Status zepmTranspose_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                              int32 height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);
Status zepmTranspose_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                            int32 height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                            int32 count);
Status zepmTranspose_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                              int32 width, int32 height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                              int32 dstStride2, int32 count);
Status zepmTranspose_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                              int32 height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
