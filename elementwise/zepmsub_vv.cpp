// zepmSub_vv: d[j] = s1[j] - s2[j]
#include "elementwise/combine.h"
#include "elementwise/sub.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_vv_32f_Packed(const CombineVv<float32, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vv_32f_Strided(const CombineVv<float32, S>& x) { return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownSub_vv_32f_P(const CombineVv<float32, P>& x) { return combineTable(Minus{}, x); }
Status ownSub_vv_64f_Packed(const CombineVv<float64, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_vv_64f_Strided(const CombineVv<float64, S>& x) { return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownSub_vv_64f_P(const CombineVv<float64, P>& x) { return combineTable(Minus{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmSub_vv_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride2, float32* pDst,
                      int32 dstStride2, int32 len)
{
    const CombineVv<float32, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len};
    return enterQuick(x, smallObjects(Minus{}), order<Pointers, Sizes, Strides>{}, ownSub_vv_32f_Packed,
                      ownSub_vv_32f_Strided);
}

Status zepmSub_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 len)
{
    const CombineVv<float32, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownSub_vv_32f_P);
}

Status zepmSub_vv_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride2, float64* pDst,
                      int32 dstStride2, int32 len)
{
    const CombineVv<float64, S> x{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len};
    return enterQuick(x, smallObjects(Minus{}), order<Pointers, Sizes, Strides>{}, ownSub_vv_64f_Packed,
                      ownSub_vv_64f_Strided);
}

Status zepmSub_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 len)
{
    const CombineVv<float64, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownSub_vv_64f_P);
}
