// zepmLComb_vv: d[j] = s1[j] * val1 + s2[j] * val2
#include "vector/lcomb.h"
#include "vector/linear.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownLComb_vv_32f_Packed(const LCombVv<float32, S>& x) { return linearPacked(x); }
Status ownLComb_vv_32f_Strided(const LCombVv<float32, S>& x) { return linearStrided(x); }
Status ownLComb_vv_32f_P(const LCombVv<float32, P>& x) { return linearTable(x); }
Status ownLComb_vv_64f_Packed(const LCombVv<float64, S>& x) { return linearPacked(x); }
Status ownLComb_vv_64f_Strided(const LCombVv<float64, S>& x) { return linearStrided(x); }
Status ownLComb_vv_64f_P(const LCombVv<float64, P>& x) { return linearTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmLComb_vv_32f(const float32* pSrc1, int32 src1Stride2, float32 val1, const float32* pSrc2, int32 src2Stride2,
                        float32 val2, float32* pDst, int32 dstStride2, int32 len)
{
    const LCombVv<float32, S> x{{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len}, {val1, val2}};
    return enterQuick(x, smallLinear, order<Pointers, Sizes, Strides>{}, ownLComb_vv_32f_Packed,
                      ownLComb_vv_32f_Strided);
}

Status zepmLComb_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, float32 val1, const float32* const* ppSrc2,
                          int32 src2RoiShift, float32 val2, float32* const* ppDst, int32 dstRoiShift, int32 len)
{
    const LCombVv<float32, P> x{{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len},
                                {val1, val2}};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLComb_vv_32f_P);
}

Status zepmLComb_vv_64f(const float64* pSrc1, int32 src1Stride2, float64 val1, const float64* pSrc2, int32 src2Stride2,
                        float64 val2, float64* pDst, int32 dstStride2, int32 len)
{
    const LCombVv<float64, S> x{{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len}, {val1, val2}};
    return enterQuick(x, smallLinear, order<Pointers, Sizes, Strides>{}, ownLComb_vv_64f_Packed,
                      ownLComb_vv_64f_Strided);
}

Status zepmLComb_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, float64 val1, const float64* const* ppSrc2,
                          int32 src2RoiShift, float64 val2, float64* const* ppDst, int32 dstRoiShift, int32 len)
{
    const LCombVv<float64, P> x{{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len},
                                {val1, val2}};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownLComb_vv_64f_P);
}
