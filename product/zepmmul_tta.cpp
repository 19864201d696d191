// zepmMul_tta: d[k] = transpose(s1) * transpose(s2[k])
#include "product/mul.h"
#include "product/multiply.h"
#include "zepm_product.h"

namespace zepm
{

Status ownMul_tta_32f_Packed(const MultiplyTta<float32, S>& x) { return multiplyPacked(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tta_32f_Strided(const MultiplyTta<float32, S>& x) { return multiplyStrided(x, sizes<3, 4, 5, 6>{}); }
// No order has a body of its own: sums start from zero at every order.
Status ownMul_tta_32f_L_Packed(const MultiplyTta<float32, L>& x) { return multiplyPacked(x, sizes<>{}); }
Status ownMul_tta_32f_L_Strided(const MultiplyTta<float32, L>& x) { return forEachObject(x, ownMul_tt_32f_Strided); }
Status ownMul_tta_32f_P(const MultiplyTta<float32, P>& x) { return multiplyTable(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tta_64f_Packed(const MultiplyTta<float64, S>& x) { return multiplyPacked(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tta_64f_Strided(const MultiplyTta<float64, S>& x) { return multiplyStrided(x, sizes<3, 4, 5, 6>{}); }
// No order has a body of its own: sums start from zero at every order.
Status ownMul_tta_64f_L_Packed(const MultiplyTta<float64, L>& x) { return multiplyPacked(x, sizes<>{}); }
Status ownMul_tta_64f_L_Strided(const MultiplyTta<float64, L>& x) { return forEachObject(x, ownMul_tt_64f_Strided); }
Status ownMul_tta_64f_P(const MultiplyTta<float64, P>& x) { return multiplyTable(x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_tta_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float32* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count)
{
    const MultiplyTta<float32, S> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                    {{pSrc2, src2Stride0, src2Stride1, src2Stride2}, src2Width, src2Height},
                                    {pDst, dstStride0, dstStride1, dstStride2},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides>{}, parallelFrom<2501, 1441>{},
                 ownMul_tta_32f_Packed, ownMul_tta_32f_Strided, ownOMP_zepmMul_tta_32f);
}

Status zepmMul_tta_32f_L(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count)
{
    const MultiplyTta<float32, L> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                    {{ppSrc2, src2RoiShift, src2Stride1, src2Stride2}, src2Width, src2Height},
                                    {ppDst, dstRoiShift, dstStride1, dstStride2},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides, RoiShifts>{}, parallelFrom<3601, 1441>{},
                 ownMul_tta_32f_L_Packed, ownMul_tta_32f_L_Strided, ownOMP_zepmMul_tta_32f_L);
}

Status zepmMul_tta_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count)
{
    const MultiplyTta<float32, P> x{{{ppSrc1, src1RoiShift}, src1Width, src1Height},
                                    {{ppSrc2, src2RoiShift, src2Stride0}, src2Width, src2Height},
                                    {ppDst, dstRoiShift, dstStride0},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides, RoiShifts>{}, parallelFrom<1441>{},
                 ownMul_tta_32f_P, ownOMP_zepmMul_tta_32f_P);
}

Status zepmMul_tta_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                       const float64* pSrc2, int32 src2Stride0, int32 src2Stride1, int32 src2Stride2, int32 src2Width,
                       int32 src2Height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                       int32 count)
{
    const MultiplyTta<float64, S> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                    {{pSrc2, src2Stride0, src2Stride1, src2Stride2}, src2Width, src2Height},
                                    {pDst, dstStride0, dstStride1, dstStride2},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides>{}, parallelFrom<3601, 1441>{},
                 ownMul_tta_64f_Packed, ownMul_tta_64f_Strided, ownOMP_zepmMul_tta_64f);
}

Status zepmMul_tta_64f_L(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride1, int32 src2Stride2,
                         int32 src2Width, int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                         int32 dstStride2, int32 count)
{
    const MultiplyTta<float64, L> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                    {{ppSrc2, src2RoiShift, src2Stride1, src2Stride2}, src2Width, src2Height},
                                    {ppDst, dstRoiShift, dstStride1, dstStride2},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides, RoiShifts>{}, parallelFrom<3601, 1441>{},
                 ownMul_tta_64f_L_Packed, ownMul_tta_64f_L_Strided, ownOMP_zepmMul_tta_64f_L);
}

Status zepmMul_tta_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                         const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, int32 src2Width,
                         int32 src2Height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count)
{
    const MultiplyTta<float64, P> x{{{ppSrc1, src1RoiShift}, src1Width, src1Height},
                                    {{ppSrc2, src2RoiShift, src2Stride0}, src2Width, src2Height},
                                    {ppDst, dstRoiShift, dstStride0},
                                    count};
    return enter(x, order<Pointers, Count, Sizes, SizeMatch, Strides, RoiShifts>{}, parallelFrom<1441>{},
                 ownMul_tta_64f_P, ownOMP_zepmMul_tta_64f_P);
}
