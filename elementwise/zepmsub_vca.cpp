// zepmSub_vca: d[k][j] = s[j] - c[k]
#include "elementwise/combine.h"
#include "elementwise/sub.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_vca_32f_Packed(const CombineVca<float32, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vca_32f_Strided(const CombineVca<float32, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vca_32f_L_Packed(const CombineVca<float32, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vca_32f_L_Strided(const CombineVca<float32, L>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vca_32f_P(const CombineVca<float32, P>& x) { return combineTable(Minus{}, x); }
Status ownSub_vca_64f_Packed(const CombineVca<float64, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vca_64f_Strided(const CombineVca<float64, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vca_64f_L_Packed(const CombineVca<float64, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vca_64f_L_Strided(const CombineVca<float64, L>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vca_64f_P(const CombineVca<float64, P>& x) { return combineTable(Minus{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmSub_vca_32f(const float32* pSrc, int32 srcStride2, const float32* pVal, int32 valStride0, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVca<float32, S> x{{pSrc, srcStride2}, {pVal, valStride0}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<4801>{}, ownSub_vca_32f_Packed,
                      ownSub_vca_32f_Strided, ownOMP_zepmSub_vca_32f);
}

Status zepmSub_vca_32f_L(const float32* pSrc, int32 srcStride2, const float32* const* ppVal, int32 valRoiShift,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVca<float32, L> x{
        {pSrc, srcStride2}, {ppVal, valRoiShift}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2501>{}, ownSub_vca_32f_L_Packed,
                 ownSub_vca_32f_L_Strided, ownOMP_zepmSub_vca_32f_L);
}

Status zepmSub_vca_32f_P(const float32* const* ppSrc, int32 srcRoiShift, const float32* pVal, int32 valStride0,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVca<float32, P> x{
        {ppSrc, srcRoiShift}, {pVal, valStride0}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vca_32f_P,
                 ownOMP_zepmSub_vca_32f_P);
}

Status zepmSub_vca_64f(const float64* pSrc, int32 srcStride2, const float64* pVal, int32 valStride0, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVca<float64, S> x{{pSrc, srcStride2}, {pVal, valStride0}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1401>{}, ownSub_vca_64f_Packed,
                      ownSub_vca_64f_Strided, ownOMP_zepmSub_vca_64f);
}

Status zepmSub_vca_64f_L(const float64* pSrc, int32 srcStride2, const float64* const* ppVal, int32 valRoiShift,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineVca<float64, L> x{
        {pSrc, srcStride2}, {ppVal, valRoiShift}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2501>{}, ownSub_vca_64f_L_Packed,
                 ownSub_vca_64f_L_Strided, ownOMP_zepmSub_vca_64f_L);
}

Status zepmSub_vca_64f_P(const float64* const* ppSrc, int32 srcRoiShift, const float64* pVal, int32 valStride0,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineVca<float64, P> x{
        {ppSrc, srcRoiShift}, {pVal, valStride0}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vca_64f_P,
                 ownOMP_zepmSub_vca_64f_P);
}
