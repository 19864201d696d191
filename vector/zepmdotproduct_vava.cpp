// zepmDotProduct_vava: d[k] = sum over j of s1[k][j] * s2[k][j]
#include "vector/dotproduct.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownDotProduct_vava_32f_Packed(const DotVava<float32, S>& x) { return reducePacked<FromFirst, Peeled>(x); }
Status ownDotProduct_vava_32f_Strided(const DotVava<float32, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_32f_L_Packed(const DotVava<float32, L>& x) { return reducePacked<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_32f_L_Strided(const DotVava<float32, L>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_32f_P(const DotVava<float32, P>& x) { return reduceTable<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_64f_Packed(const DotVava<float64, S>& x)
{
    return reducePacked<FourAsEvensAndOdds, InPairs>(x);
}
Status ownDotProduct_vava_64f_Strided(const DotVava<float64, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_64f_L_Packed(const DotVava<float64, L>& x)
{
    return reducePacked<FourAsEvensAndOdds, InPairs>(x);
}
Status ownDotProduct_vava_64f_L_Strided(const DotVava<float64, L>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vava_64f_P(const DotVava<float64, P>& x) { return reduceTable<FromFirst, InPairs>(x); }

} // namespace zepm

using namespace zepm;

Status zepmDotProduct_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, const float32* pSrc2,
                               int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 len, int32 count)
{
    const DotVava<float32, S> x{{pSrc1, src1Stride0, src1Stride2}, {pSrc2, src2Stride0, src2Stride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<5001, 2621>{}, ownDotProduct_vava_32f_Packed,
                 ownDotProduct_vava_32f_Strided, ownOMP_zepmDotProduct_vava_32f);
}

Status zepmDotProduct_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* pDst,
                                 int32 len, int32 count)
{
    const DotVava<float32, L> x{
        {ppSrc1, src1RoiShift, src1Stride2}, {ppSrc2, src2RoiShift, src2Stride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2401>{},
                 ownDotProduct_vava_32f_L_Packed, ownDotProduct_vava_32f_L_Strided, ownOMP_zepmDotProduct_vava_32f_L);
}

Status zepmDotProduct_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                 const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* pDst,
                                 int32 len, int32 count)
{
    const DotVava<float32, P> x{
        {ppSrc1, src1RoiShift, src1Stride0}, {ppSrc2, src2RoiShift, src2Stride0}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2401>{}, ownDotProduct_vava_32f_P,
                 ownOMP_zepmDotProduct_vava_32f_P);
}

Status zepmDotProduct_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, const float64* pSrc2,
                               int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 len, int32 count)
{
    const DotVava<float64, S> x{{pSrc1, src1Stride0, src1Stride2}, {pSrc2, src2Stride0, src2Stride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3501, 2001>{}, ownDotProduct_vava_64f_Packed,
                 ownDotProduct_vava_64f_Strided, ownOMP_zepmDotProduct_vava_64f);
}

Status zepmDotProduct_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* pDst,
                                 int32 len, int32 count)
{
    const DotVava<float64, L> x{
        {ppSrc1, src1RoiShift, src1Stride2}, {ppSrc2, src2RoiShift, src2Stride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<4201, 3301>{},
                 ownDotProduct_vava_64f_L_Packed, ownDotProduct_vava_64f_L_Strided, ownOMP_zepmDotProduct_vava_64f_L);
}

Status zepmDotProduct_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                                 const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* pDst,
                                 int32 len, int32 count)
{
    const DotVava<float64, P> x{
        {ppSrc1, src1RoiShift, src1Stride0}, {ppSrc2, src2RoiShift, src2Stride0}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2001>{}, ownDotProduct_vava_64f_P,
                 ownOMP_zepmDotProduct_vava_64f_P);
}
