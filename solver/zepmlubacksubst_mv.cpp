// zepmLUBackSubst_mv: the x of A x = b
#include "solver/lubacksubst.h"
#include "solver/substitute.h"
#include "zepm_solver.h"

namespace zepm
{

Status ownLUBackSubst_mv_32f_Packed(const SolveMv<float32, S>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mv_32f_Strided(const SolveMv<float32, S>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mv_32f_P(const SolveMv<float32, P>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mv_64f_Packed(const SolveMv<float64, S>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mv_64f_Strided(const SolveMv<float64, S>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mv_64f_P(const SolveMv<float64, P>& x) { return substituteGeneral(x); }

} // namespace zepm

using namespace zepm;

Status zepmLUBackSubst_mv_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                              const float32* pSrc2, int32 src2Stride2, float32* pDst, int32 dstStride2,
                              int32 widthHeight)
{
    const SolveMv<float32, S> x{
        {pSrc, srcStride1, srcStride2}, pSrcIndex, {pSrc2, src2Stride2}, {pDst, dstStride2}, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownLUBackSubst_mv_32f_Packed, ownLUBackSubst_mv_32f_Strided);
}

Status zepmLUBackSubst_mv_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst,
                                int32 dstRoiShift, int32 widthHeight)
{
    const SolveMv<float32, P> x{
        {ppSrc, srcRoiShift}, pSrcIndex, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLUBackSubst_mv_32f_P);
}

Status zepmLUBackSubst_mv_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                              const float64* pSrc2, int32 src2Stride2, float64* pDst, int32 dstStride2,
                              int32 widthHeight)
{
    const SolveMv<float64, S> x{
        {pSrc, srcStride1, srcStride2}, pSrcIndex, {pSrc2, src2Stride2}, {pDst, dstStride2}, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownLUBackSubst_mv_64f_Packed, ownLUBackSubst_mv_64f_Strided);
}

Status zepmLUBackSubst_mv_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst,
                                int32 dstRoiShift, int32 widthHeight)
{
    const SolveMv<float64, P> x{
        {ppSrc, srcRoiShift}, pSrcIndex, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLUBackSubst_mv_64f_P);
}
