// zepmLUDecomp_m: P A = L U of one matrix
#include "solver/factor.h"
#include "solver/ludecomp.h"
#include "zepm_solver.h"

namespace zepm
{

Status ownLUDecomp_m_32f_Packed(const FactorM<float32, S>& x) { return factorPacked(x); }
Status ownLUDecomp_m_32f_Strided(const FactorM<float32, S>& x) { return factorGeneral(x); }
Status ownLUDecomp_m_32f_P(const FactorM<float32, P>& x) { return factorGeneral(x); }
Status ownLUDecomp_m_64f_Packed(const FactorM<float64, S>& x) { return factorPacked(x); }
Status ownLUDecomp_m_64f_Strided(const FactorM<float64, S>& x) { return factorGeneral(x); }
Status ownLUDecomp_m_64f_P(const FactorM<float64, P>& x) { return factorGeneral(x); }

} // namespace zepm

using namespace zepm;

Status zepmLUDecomp_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32* pDstIndex, float32* pDst,
                          int32 dstStride1, int32 dstStride2, int32 widthHeight)
{
    const FactorM<float32, S> x{{pSrc, srcStride1, srcStride2}, pDstIndex, {pDst, dstStride1, dstStride2}, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownLUDecomp_m_32f_Packed, ownLUDecomp_m_32f_Strided);
}

Status zepmLUDecomp_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32* pDstIndex, float32* const* ppDst,
                            int32 dstRoiShift, int32 widthHeight)
{
    const FactorM<float32, P> x{{ppSrc, srcRoiShift}, pDstIndex, {ppDst, dstRoiShift}, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLUDecomp_m_32f_P);
}

Status zepmLUDecomp_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32* pDstIndex, float64* pDst,
                          int32 dstStride1, int32 dstStride2, int32 widthHeight)
{
    const FactorM<float64, S> x{{pSrc, srcStride1, srcStride2}, pDstIndex, {pDst, dstStride1, dstStride2}, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownLUDecomp_m_64f_Packed, ownLUDecomp_m_64f_Strided);
}

Status zepmLUDecomp_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32* pDstIndex, float64* const* ppDst,
                            int32 dstRoiShift, int32 widthHeight)
{
    const FactorM<float64, P> x{{ppSrc, srcRoiShift}, pDstIndex, {ppDst, dstRoiShift}, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLUDecomp_m_64f_P);
}
