// zepmL2Norm_va: d[k] = sqrt(sum over j of s[k][j] * s[k][j])
#include "vector/norms.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownL2Norm_va_32f_Packed(const NormVa<float32, S>& x) { return reducePacked<Neighbours, OneChain>(x); }
Status ownL2Norm_va_32f_Strided(const NormVa<float32, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_va_32f_L_Packed(const NormVa<float32, L>& x) { return reducePacked<Neighbours, OneChain>(x); }
Status ownL2Norm_va_32f_L_Strided(const NormVa<float32, L>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_va_32f_P(const NormVa<float32, P>& x) { return reduceTable<FromFirst, InPairs>(x); }
Status ownL2Norm_va_64f_Packed(const NormVa<float64, S>& x) { return reducePacked<EvensAndOdds, OneChain>(x); }
Status ownL2Norm_va_64f_Strided(const NormVa<float64, S>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_va_64f_L_Packed(const NormVa<float64, L>& x) { return reducePacked<EvensAndOdds, OneChain>(x); }
Status ownL2Norm_va_64f_L_Strided(const NormVa<float64, L>& x) { return reduceStrided<FromFirst, InPairs>(x); }
Status ownL2Norm_va_64f_P(const NormVa<float64, P>& x) { return reduceTable<FromFirst, InPairs>(x); }

} // namespace zepm

using namespace zepm;

Status zepmL2Norm_va_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 len, int32 count)
{
    const NormVa<float32, S> x{{pSrc, srcStride0, srcStride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1501>{}, ownL2Norm_va_32f_Packed,
                 ownL2Norm_va_32f_Strided, ownOMP_zepmL2Norm_va_32f);
}

Status zepmL2Norm_va_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst, int32 len,
                           int32 count)
{
    const NormVa<float32, L> x{{ppSrc, srcRoiShift, srcStride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{},
                 ownL2Norm_va_32f_L_Packed, ownL2Norm_va_32f_L_Strided, ownOMP_zepmL2Norm_va_32f_L);
}

Status zepmL2Norm_va_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst, int32 len,
                           int32 count)
{
    const NormVa<float32, P> x{{ppSrc, srcRoiShift, srcStride0}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownL2Norm_va_32f_P,
                 ownOMP_zepmL2Norm_va_32f_P);
}

Status zepmL2Norm_va_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 len, int32 count)
{
    const NormVa<float64, S> x{{pSrc, srcStride0, srcStride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1501>{}, ownL2Norm_va_64f_Packed,
                 ownL2Norm_va_64f_Strided, ownOMP_zepmL2Norm_va_64f);
}

Status zepmL2Norm_va_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst, int32 len,
                           int32 count)
{
    const NormVa<float64, L> x{{ppSrc, srcRoiShift, srcStride2}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{},
                 ownL2Norm_va_64f_L_Packed, ownL2Norm_va_64f_L_Strided, ownOMP_zepmL2Norm_va_64f_L);
}

Status zepmL2Norm_va_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst, int32 len,
                           int32 count)
{
    const NormVa<float64, P> x{{ppSrc, srcRoiShift, srcStride0}, pDst, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownL2Norm_va_64f_P,
                 ownOMP_zepmL2Norm_va_64f_P);
}
