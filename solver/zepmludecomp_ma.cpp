// zepmLUDecomp_ma: P[k] A[k] = L[k] U[k]
#include "solver/factor.h"
#include "solver/ludecomp.h"
#include "zepm_solver.h"

namespace zepm
{

Status ownLUDecomp_ma_32f_Packed(const FactorMa<float32, S>& x) { return factorPacked(x); }
Status ownLUDecomp_ma_32f_Strided(const FactorMa<float32, S>& x) { return factorGeneral(x); }
Status ownLUDecomp_ma_32f_L_Packed(const FactorMa<float32, L>& x) { return factorPacked(x); }
Status ownLUDecomp_ma_32f_L_Strided(const FactorMa<float32, L>& x) { return factorGeneral(x); }
Status ownLUDecomp_ma_32f_P(const FactorMa<float32, P>& x) { return factorGeneral(x); }
Status ownLUDecomp_ma_64f_Packed(const FactorMa<float64, S>& x) { return factorPacked(x); }
Status ownLUDecomp_ma_64f_Strided(const FactorMa<float64, S>& x) { return factorGeneral(x); }
Status ownLUDecomp_ma_64f_L_Packed(const FactorMa<float64, L>& x) { return factorPacked(x); }
Status ownLUDecomp_ma_64f_L_Strided(const FactorMa<float64, L>& x) { return factorGeneral(x); }
Status ownLUDecomp_ma_64f_P(const FactorMa<float64, P>& x) { return factorGeneral(x); }

} // namespace zepm

using namespace zepm;

Status zepmLUDecomp_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32* pDstIndex,
                           float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 widthHeight,
                           int32 count)
{
    const FactorMa<float32, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                 pDstIndex,
                                 {pDst, dstStride0, dstStride1, dstStride2},
                                 widthHeight,
                                 count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1001>{}, ownLUDecomp_ma_32f_Packed,
                 ownLUDecomp_ma_32f_Strided, ownOMP_zepmLUDecomp_ma_32f);
}

Status zepmLUDecomp_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32* pDstIndex, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                             int32 dstStride2, int32 widthHeight, int32 count)
{
    const FactorMa<float32, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                 pDstIndex,
                                 {ppDst, dstRoiShift, dstStride1, dstStride2},
                                 widthHeight,
                                 count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1001>{},
                 ownLUDecomp_ma_32f_L_Packed, ownLUDecomp_ma_32f_L_Strided, ownOMP_zepmLUDecomp_ma_32f_L);
}

Status zepmLUDecomp_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32* pDstIndex,
                             float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight, int32 count)
{
    const FactorMa<float32, P> x{
        {ppSrc, srcRoiShift, srcStride0}, pDstIndex, {ppDst, dstRoiShift, dstStride0}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1001>{}, ownLUDecomp_ma_32f_P,
                 ownOMP_zepmLUDecomp_ma_32f_P);
}

Status zepmLUDecomp_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32* pDstIndex,
                           float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 widthHeight,
                           int32 count)
{
    const FactorMa<float64, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                 pDstIndex,
                                 {pDst, dstStride0, dstStride1, dstStride2},
                                 widthHeight,
                                 count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1001>{}, ownLUDecomp_ma_64f_Packed,
                 ownLUDecomp_ma_64f_Strided, ownOMP_zepmLUDecomp_ma_64f);
}

Status zepmLUDecomp_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32* pDstIndex, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                             int32 dstStride2, int32 widthHeight, int32 count)
{
    const FactorMa<float64, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                 pDstIndex,
                                 {ppDst, dstRoiShift, dstStride1, dstStride2},
                                 widthHeight,
                                 count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1001>{},
                 ownLUDecomp_ma_64f_L_Packed, ownLUDecomp_ma_64f_L_Strided, ownOMP_zepmLUDecomp_ma_64f_L);
}

Status zepmLUDecomp_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32* pDstIndex,
                             float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 widthHeight, int32 count)
{
    const FactorMa<float64, P> x{
        {ppSrc, srcRoiShift, srcStride0}, pDstIndex, {ppDst, dstRoiShift, dstStride0}, widthHeight, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1001>{}, ownLUDecomp_ma_64f_P,
                 ownOMP_zepmLUDecomp_ma_64f_P);
}
