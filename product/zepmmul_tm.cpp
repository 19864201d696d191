// zepmMul_tm: d = transpose(s1) * s2
#include "product/mul.h"
#include "product/multiply.h"
#include "zepm_product.h"

namespace zepm
{

// Order 6 has no body of its own.
Status ownMul_tm_32f_Packed(const MultiplyTm<float32, S>& x) { return multiplyPacked(x, sizes<3, 4, 5>{}); }
Status ownMul_tm_32f_Strided(const MultiplyTm<float32, S>& x) { return multiplyStrided(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tm_32f_P(const MultiplyTm<float32, P>& x) { return multiplyTable(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tm_64f_Packed(const MultiplyTm<float64, S>& x) { return multiplyPacked(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tm_64f_Strided(const MultiplyTm<float64, S>& x) { return multiplyStrided(x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tm_64f_P(const MultiplyTm<float64, P>& x) { return multiplyTable(x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_tm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float32* pDst, int32 dstStride1, int32 dstStride2)
{
    const MultiplyTm<float32, S> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                   {{pSrc2, src2Stride1, src2Stride2}, src2Width, src2Height},
                                   {pDst, dstStride1, dstStride2}};
    return enterQuick(x, smallPair(sizes<3, 4, 5>{}), order<Pointers, Sizes, SizeMatch, Strides>{},
                      ownMul_tm_32f_Packed, ownMul_tm_32f_Strided);
}

Status zepmMul_tm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float32* const* ppDst, int32 dstRoiShift)
{
    const MultiplyTm<float32, P> x{{{ppSrc1, src1RoiShift}, src1Width, src1Height},
                                   {{ppSrc2, src2RoiShift}, src2Width, src2Height},
                                   {ppDst, dstRoiShift}};
    return enter(x, order<Pointers, Sizes, SizeMatch, RoiShifts>{}, ownMul_tm_32f_P);
}

Status zepmMul_tm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, int32 src1Width, int32 src1Height,
                      const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, int32 src2Width, int32 src2Height,
                      float64* pDst, int32 dstStride1, int32 dstStride2)
{
    const MultiplyTm<float64, S> x{{{pSrc1, src1Stride1, src1Stride2}, src1Width, src1Height},
                                   {{pSrc2, src2Stride1, src2Stride2}, src2Width, src2Height},
                                   {pDst, dstStride1, dstStride2}};
    return enterQuick(x, smallPair(sizes<3, 4, 5, 6>{}), order<Pointers, Sizes, SizeMatch, Strides>{},
                      ownMul_tm_64f_Packed, ownMul_tm_64f_Strided);
}

Status zepmMul_tm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Width, int32 src1Height,
                        const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Width, int32 src2Height,
                        float64* const* ppDst, int32 dstRoiShift)
{
    const MultiplyTm<float64, P> x{{{ppSrc1, src1RoiShift}, src1Width, src1Height},
                                   {{ppSrc2, src2RoiShift}, src2Width, src2Height},
                                   {ppDst, dstRoiShift}};
    return enter(x, order<Pointers, Sizes, SizeMatch, RoiShifts>{}, ownMul_tm_64f_P);
}
