// zepmSub_vac: d[k][j] = s[k][j] - val
#include "elementwise/combine.h"
#include "elementwise/sub.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_vac_32f_Packed(const CombineVac<float32, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vac_32f_Strided(const CombineVac<float32, S>& x) { return combineStrided(Minus{}, x); }
Status ownSub_vac_32f_L_Packed(const CombineVac<float32, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vac_32f_L_Strided(const CombineVac<float32, L>& x) { return combineStrided(Minus{}, x); }
Status ownSub_vac_32f_P(const CombineVac<float32, P>& x) { return combineTable(Minus{}, x); }
Status ownSub_vac_64f_Packed(const CombineVac<float64, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vac_64f_Strided(const CombineVac<float64, S>& x) { return combineStrided(Minus{}, x); }
Status ownSub_vac_64f_L_Packed(const CombineVac<float64, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vac_64f_L_Strided(const CombineVac<float64, L>& x) { return combineStrided(Minus{}, x); }
Status ownSub_vac_64f_P(const CombineVac<float64, P>& x) { return combineTable(Minus{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmSub_vac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVac<float32, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<4801>{}, ownSub_vac_32f_Packed,
                      ownSub_vac_32f_Strided, ownOMP_zepmSub_vac_32f);
}

Status zepmSub_vac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVac<float32, L> x{
        {ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2501>{}, ownSub_vac_32f_L_Packed,
                 ownSub_vac_32f_L_Strided, ownOMP_zepmSub_vac_32f_L);
}

Status zepmSub_vac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVac<float32, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vac_32f_P,
                 ownOMP_zepmSub_vac_32f_P);
}

Status zepmSub_vac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVac<float64, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1401>{}, ownSub_vac_64f_Packed,
                      ownSub_vac_64f_Strided, ownOMP_zepmSub_vac_64f);
}

Status zepmSub_vac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVac<float64, L> x{
        {ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2501>{}, ownSub_vac_64f_L_Packed,
                 ownSub_vac_64f_L_Strided, ownOMP_zepmSub_vac_64f_L);
}

Status zepmSub_vac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVac<float64, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vac_64f_P,
                 ownOMP_zepmSub_vac_64f_P);
}
