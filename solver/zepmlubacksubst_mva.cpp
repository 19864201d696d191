// zepmLUBackSubst_mva: the x[k] of A x[k] = b[k]
#include "solver/lubacksubst.h"
#include "solver/substitute.h"
#include "zepm_solver.h"

namespace zepm
{

Status ownLUBackSubst_mva_32f_Packed(const SolveMva<float32, S>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mva_32f_Strided(const SolveMva<float32, S>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mva_32f_L_Packed(const SolveMva<float32, L>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mva_32f_L_Strided(const SolveMva<float32, L>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mva_32f_P(const SolveMva<float32, P>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mva_64f_Packed(const SolveMva<float64, S>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mva_64f_Strided(const SolveMva<float64, S>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mva_64f_L_Packed(const SolveMva<float64, L>& x) { return substitutePacked(x); }
Status ownLUBackSubst_mva_64f_L_Strided(const SolveMva<float64, L>& x) { return substituteGeneral(x); }
Status ownLUBackSubst_mva_64f_P(const SolveMva<float64, P>& x) { return substituteGeneral(x); }

} // namespace zepm

using namespace zepm;

Status zepmLUBackSubst_mva_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                               const float32* pSrc2, int32 src2Stride0, int32 src2Stride2, float32* pDst,
                               int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count)
{
    const SolveMva<float32, S> x{{pSrc, srcStride1, srcStride2}, pSrcIndex,   {pSrc2, src2Stride0, src2Stride2},
                                 {pDst, dstStride0, dstStride2}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<701>{}, ownLUBackSubst_mva_32f_Packed,
                 ownLUBackSubst_mva_32f_Strided, ownOMP_zepmLUBackSubst_mva_32f);
}

Status zepmLUBackSubst_mva_32f_L(const float32* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                 float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 widthHeight,
                                 int32 count)
{
    const SolveMva<float32, L> x{{pSrc, srcStride1, srcStride2},   pSrcIndex,   {ppSrc2, src2RoiShift, src2Stride2},
                                 {ppDst, dstRoiShift, dstStride2}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<701>{},
                 ownLUBackSubst_mva_32f_L_Packed, ownLUBackSubst_mva_32f_L_Strided, ownOMP_zepmLUBackSubst_mva_32f_L);
}

Status zepmLUBackSubst_mva_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                 float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                                 int32 count)
{
    const SolveMva<float32, P> x{
        {ppSrc, srcRoiShift}, pSrcIndex, {ppSrc2, src2RoiShift, src2Stride0}, {ppDst, dstRoiShift, dstStride0},
        widthHeight,          count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<701>{}, ownLUBackSubst_mva_32f_P,
                 ownOMP_zepmLUBackSubst_mva_32f_P);
}

Status zepmLUBackSubst_mva_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                               const float64* pSrc2, int32 src2Stride0, int32 src2Stride2, float64* pDst,
                               int32 dstStride0, int32 dstStride2, int32 widthHeight, int32 count)
{
    const SolveMva<float64, S> x{{pSrc, srcStride1, srcStride2}, pSrcIndex,   {pSrc2, src2Stride0, src2Stride2},
                                 {pDst, dstStride0, dstStride2}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<701>{}, ownLUBackSubst_mva_64f_Packed,
                 ownLUBackSubst_mva_64f_Strided, ownOMP_zepmLUBackSubst_mva_64f);
}

Status zepmLUBackSubst_mva_64f_L(const float64* pSrc, int32 srcStride1, int32 srcStride2, const int32* pSrcIndex,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2,
                                 float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 widthHeight,
                                 int32 count)
{
    const SolveMva<float64, L> x{{pSrc, srcStride1, srcStride2},   pSrcIndex,   {ppSrc2, src2RoiShift, src2Stride2},
                                 {ppDst, dstRoiShift, dstStride2}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<701>{},
                 ownLUBackSubst_mva_64f_L_Packed, ownLUBackSubst_mva_64f_L_Strided, ownOMP_zepmLUBackSubst_mva_64f_L);
}

Status zepmLUBackSubst_mva_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const int32* pSrcIndex,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0,
                                 float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight,
                                 int32 count)
{
    const SolveMva<float64, P> x{
        {ppSrc, srcRoiShift}, pSrcIndex, {ppSrc2, src2RoiShift, src2Stride0}, {ppDst, dstRoiShift, dstStride0},
        widthHeight,          count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<701>{}, ownLUBackSubst_mva_64f_P,
                 ownOMP_zepmLUBackSubst_mva_64f_P);
}
