// zepmMul_vac: d[k][j] = s[k][j] * val
#include "elementwise/combine.h"
#include "elementwise/mul.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownMul_vac_32f_Packed(const ScaleVac<float32, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_vac_32f_Strided(const ScaleVac<float32, S>& x) { return combineStrided(Times{}, x); }
Status ownMul_vac_32f_L_Packed(const ScaleVac<float32, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_vac_32f_L_Strided(const ScaleVac<float32, L>& x) { return combineStrided(Times{}, x); }
Status ownMul_vac_32f_P(const ScaleVac<float32, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_vac_64f_Packed(const ScaleVac<float64, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_vac_64f_Strided(const ScaleVac<float64, S>& x) { return combineStrided(Times{}, x); }
Status ownMul_vac_64f_L_Packed(const ScaleVac<float64, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_vac_64f_L_Strided(const ScaleVac<float64, L>& x) { return combineStrided(Times{}, x); }
Status ownMul_vac_64f_P(const ScaleVac<float64, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_vac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    ScaleVac<float32, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Times{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<2501, 1441>{},
                      ownMul_vac_32f_Packed, ownMul_vac_32f_Strided, ownOMP_zepmMul_vac_32f);
}

Status zepmMul_vac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const ScaleVac<float32, L> x{{ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601, 1441>{},
                 ownMul_vac_32f_L_Packed, ownMul_vac_32f_L_Strided, ownOMP_zepmMul_vac_32f_L);
}

Status zepmMul_vac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const ScaleVac<float32, P> x{{ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1441>{}, ownMul_vac_32f_P,
                 ownOMP_zepmMul_vac_32f_P);
}

Status zepmMul_vac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    ScaleVac<float64, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Times{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3601, 1441>{},
                      ownMul_vac_64f_Packed, ownMul_vac_64f_Strided, ownOMP_zepmMul_vac_64f);
}

Status zepmMul_vac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const ScaleVac<float64, L> x{{ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601, 1441>{},
                 ownMul_vac_64f_L_Packed, ownMul_vac_64f_L_Strided, ownOMP_zepmMul_vac_64f_L);
}

Status zepmMul_vac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const ScaleVac<float64, P> x{{ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1441>{}, ownMul_vac_64f_P,
                 ownOMP_zepmMul_vac_64f_P);
}
