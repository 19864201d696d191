// zepmL2Norm_v: d = sqrt(sum over j of s[j] * s[j])
#include "vector/norms.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownL2Norm_v_32f_Packed(const NormV<float32, S>& x) { return reducePacked<Neighbours, Peeled>(x); }
Status ownL2Norm_v_32f_Strided(const NormV<float32, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_v_32f_P(const NormV<float32, P>& x) { return reduceTable<FromFirst, InPairs>(x); }
Status ownL2Norm_v_64f_Packed(const NormV<float64, S>& x) { return reducePacked<EvensAndOdds, InPairs>(x); }
Status ownL2Norm_v_64f_Strided(const NormV<float64, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_v_64f_P(const NormV<float64, P>& x) { return reduceTable<FromFirst, InPairs>(x); }

} // namespace zepm

using namespace zepm;

Status zepmL2Norm_v_32f(const float32* pSrc, int32 srcStride2, float32* pDst, int32 len)
{
    const NormV<float32, S> x{{pSrc, srcStride2}, pDst, len};
    return enterQuick(x, shortSum<Neighbours>(), order<Pointers, Sizes, Strides>{}, ownL2Norm_v_32f_Packed,
                      ownL2Norm_v_32f_Strided);
}

Status zepmL2Norm_v_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 len)
{
    const NormV<float32, P> x{{ppSrc, srcRoiShift}, pDst, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownL2Norm_v_32f_P);
}

Status zepmL2Norm_v_64f(const float64* pSrc, int32 srcStride2, float64* pDst, int32 len)
{
    const NormV<float64, S> x{{pSrc, srcStride2}, pDst, len};
    return enterQuick(x, shortSum<EvensAndOdds>(), order<Pointers, Sizes, Strides>{}, ownL2Norm_v_64f_Packed,
                      ownL2Norm_v_64f_Strided);
}

Status zepmL2Norm_v_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 len)
{
    const NormV<float64, P> x{{ppSrc, srcRoiShift}, pDst, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownL2Norm_v_64f_P);
}
