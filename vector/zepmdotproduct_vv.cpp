// zepmDotProduct_vv: d = sum over j of s1[j] * s2[j]
#include "vector/dotproduct.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownDotProduct_vv_32f_Packed(const DotVv<float32, S>& x) { return reducePacked<FromFirst, Peeled>(x); }
Status ownDotProduct_vv_32f_Strided(const DotVv<float32, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vv_32f_P(const DotVv<float32, P>& x) { return reduceTable<FromFirst, InPairs>(x); }
Status ownDotProduct_vv_64f_Packed(const DotVv<float64, S>& x) { return reducePacked<FourAsEvensAndOdds, Peeled>(x); }
Status ownDotProduct_vv_64f_Strided(const DotVv<float64, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownDotProduct_vv_64f_P(const DotVv<float64, P>& x) { return reduceTable<FromFirst, InPairs>(x); }

} // namespace zepm

using namespace zepm;

Status zepmDotProduct_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2,
                             float32* pDst, int32 len)
{
    const DotVv<float32, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, pDst, len};
    return enterQuick(x, shortSum<FromFirst>(), order<Pointers, Sizes, Strides>{}, ownDotProduct_vv_32f_Packed,
                      ownDotProduct_vv_32f_Strided);
}

Status zepmDotProduct_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                               int32 src2RoiShift, float32* pDst, int32 len)
{
    const DotVv<float32, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, pDst, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownDotProduct_vv_32f_P);
}

Status zepmDotProduct_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2,
                             float64* pDst, int32 len)
{
    const DotVv<float64, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, pDst, len};
    return enterQuick(x, shortSum<FourAsEvensAndOdds>(), order<Pointers, Sizes, Strides>{}, ownDotProduct_vv_64f_Packed,
                      ownDotProduct_vv_64f_Strided);
}

Status zepmDotProduct_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                               int32 src2RoiShift, float64* pDst, int32 len)
{
    const DotVv<float64, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, pDst, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownDotProduct_vv_64f_P);
}
