// zepmSub_vav: d[k][j] = s1[k][j] - s2[j]
// The count is tested after the strides.
#include "elementwise/combine.h"
#include "elementwise/sub.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_vav_32f_Packed(const CombineVav<float32, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vav_32f_Strided(const CombineVav<float32, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vav_32f_L_Packed(const CombineVav<float32, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vav_32f_L_Strided(const CombineVav<float32, L>& x) { return forEachObject(x, ownSub_vv_32f_Strided); }
Status ownSub_vav_32f_P(const CombineVav<float32, P>& x) { return combineTable(Minus{}, x); }
Status ownSub_vav_64f_Packed(const CombineVav<float64, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vav_64f_Strided(const CombineVav<float64, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_vav_64f_L_Packed(const CombineVav<float64, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vav_64f_L_Strided(const CombineVav<float64, L>& x) { return forEachObject(x, ownSub_vv_64f_Strided); }
Status ownSub_vav_64f_P(const CombineVav<float64, P>& x) { return combineTable(Minus{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmSub_vav_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                       int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVav<float32, S> x{
        {pSrc1, src1Stride0, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Sizes, Strides, Count>{}, parallelFrom<4801>{}, ownSub_vav_32f_Packed,
                      ownSub_vav_32f_Strided, ownOMP_zepmSub_vav_32f);
}

Status zepmSub_vav_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float32* pSrc2,
                         int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count)
{
    const CombineVav<float32, L> x{
        {ppSrc1, src1RoiShift, src1Stride2}, {pSrc2, src2Stride2}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Strides, RoiShifts, Count>{}, parallelFrom<2501>{}, ownSub_vav_32f_L_Packed,
                 ownSub_vav_32f_L_Strided, ownOMP_zepmSub_vav_32f_L);
}

Status zepmSub_vav_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count)
{
    const CombineVav<float32, P> x{
        {ppSrc1, src1RoiShift, src1Stride0}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Strides, Count, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vav_32f_P,
                 ownOMP_zepmSub_vav_32f_P);
}

Status zepmSub_vav_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                       int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineVav<float64, S> x{
        {pSrc1, src1Stride0, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(Minus{}, x, order<Pointers, Sizes, Strides, Count>{}, parallelFrom<1401>{}, ownSub_vav_64f_Packed,
                      ownSub_vav_64f_Strided, ownOMP_zepmSub_vav_64f);
}

Status zepmSub_vav_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, const float64* pSrc2,
                         int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len,
                         int32 count)
{
    const CombineVav<float64, L> x{
        {ppSrc1, src1RoiShift, src1Stride2}, {pSrc2, src2Stride2}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Strides, RoiShifts, Count>{}, parallelFrom<2501>{}, ownSub_vav_64f_L_Packed,
                 ownSub_vav_64f_L_Strided, ownOMP_zepmSub_vav_64f_L);
}

Status zepmSub_vav_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 len, int32 count)
{
    const CombineVav<float64, P> x{
        {ppSrc1, src1RoiShift, src1Stride0}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Strides, Count, RoiShifts>{}, parallelFrom<1501>{}, ownSub_vav_64f_P,
                 ownOMP_zepmSub_vav_64f_P);
}
