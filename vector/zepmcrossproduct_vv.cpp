// zepmCrossProduct_vv: d = s1 x s2
#include "vector/cross.h"
#include "vector/crossproduct.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownCrossProduct_vv_32f_Packed(const CrossVv<float32, S>& x) { return crossPacked(x); }
Status ownCrossProduct_vv_32f_Strided(const CrossVv<float32, S>& x) { return crossStrided(x); }
Status ownCrossProduct_vv_32f_P(const CrossVv<float32, P>& x) { return crossTable(x); }
Status ownCrossProduct_vv_64f_Packed(const CrossVv<float64, S>& x) { return crossPacked(x); }
Status ownCrossProduct_vv_64f_Strided(const CrossVv<float64, S>& x) { return crossStrided(x); }
Status ownCrossProduct_vv_64f_P(const CrossVv<float64, P>& x) { return crossTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmCrossProduct_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2,
                               float32* pDst, int32 dstStride2)
{
    const CrossVv<float32, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}};
    return enterQuick(x, oneCross, order<Pointers, Strides>{}, ownCrossProduct_vv_32f_Packed,
                      ownCrossProduct_vv_32f_Strided);
}

Status zepmCrossProduct_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                                 int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift)
{
    const CrossVv<float32, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}};
    return enter(x, order<Pointers, RoiShifts>{}, ownCrossProduct_vv_32f_P);
}

Status zepmCrossProduct_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2,
                               float64* pDst, int32 dstStride2)
{
    const CrossVv<float64, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}};
    return enterQuick(x, oneCross, order<Pointers, Strides>{}, ownCrossProduct_vv_64f_Packed,
                      ownCrossProduct_vv_64f_Strided);
}

Status zepmCrossProduct_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                                 int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift)
{
    const CrossVv<float64, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}};
    return enter(x, order<Pointers, RoiShifts>{}, ownCrossProduct_vv_64f_P);
}
