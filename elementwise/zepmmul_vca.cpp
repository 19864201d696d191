// zepmMul_vca: d[k][j] = s[j] * c[k]
#include "elementwise/combine.h"
#include "elementwise/mul.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownMul_vca_32f_Packed(const CombineVca<float32, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_vca_32f_Strided(const CombineVca<float32, S>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_vca_32f_L_Packed(const CombineVca<float32, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_vca_32f_L_Strided(const CombineVca<float32, L>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_vca_32f_P(const CombineVca<float32, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_vca_64f_Packed(const CombineVca<float64, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_vca_64f_Strided(const CombineVca<float64, S>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_vca_64f_L_Packed(const CombineVca<float64, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_vca_64f_L_Strided(const CombineVca<float64, L>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_vca_64f_P(const CombineVca<float64, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_vca_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVca<float32, S> x{{pSrc, srcStride2}, {pVal, valStride0}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Times{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<2101>{}, ownMul_vca_32f_Packed,
                      ownMul_vca_32f_Strided, ownOMP_zepmMul_vca_32f);
}

Status zepmMul_vca_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVca<float32, L> x{
        {pSrc, srcStride2}, {ppVal, valRoiShift}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1201>{}, ownMul_vca_32f_L_Packed,
                 ownMul_vca_32f_L_Strided, ownOMP_zepmMul_vca_32f_L);
}

Status zepmMul_vca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVca<float32, P> x{
        {ppSrc, srcRoiShift}, {pVal, valStride0}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<651>{}, ownMul_vca_32f_P,
                 ownOMP_zepmMul_vca_32f_P);
}

Status zepmMul_vca_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVca<float64, S> x{{pSrc, srcStride2}, {pVal, valStride0}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Times{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<2101>{}, ownMul_vca_64f_Packed,
                      ownMul_vca_64f_Strided, ownOMP_zepmMul_vca_64f);
}

Status zepmMul_vca_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVca<float64, L> x{
        {pSrc, srcStride2}, {ppVal, valRoiShift}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1201>{}, ownMul_vca_64f_L_Packed,
                 ownMul_vca_64f_L_Strided, ownOMP_zepmMul_vca_64f_L);
}

Status zepmMul_vca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVca<float64, P> x{
        {ppSrc, srcRoiShift}, {pVal, valStride0}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<651>{}, ownMul_vca_64f_P,
                 ownOMP_zepmMul_vca_64f_P);
}
