// zepmAdd_vc: d[j] = s[j] + val
#include "elementwise/add.h"
#include "elementwise/combine.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownAdd_vc_32f_Packed(const CombineVc<float32, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_vc_32f_Strided(const CombineVc<float32, S>& x) { return combineStrided(Plus{}, x); }
Status ownAdd_vc_32f_P(const CombineVc<float32, P>& x) { return combineTable(Plus{}, x); }
Status ownAdd_vc_64f_Packed(const CombineVc<float64, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_vc_64f_Strided(const CombineVc<float64, S>& x) { return combineStrided(Plus{}, x); }
Status ownAdd_vc_64f_P(const CombineVc<float64, P>& x) { return combineTable(Plus{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmAdd_vc_32f(const float32* pSrc, int32 srcStride2, float32 val, float32* pDst, int32 dstStride2, int32 len)
{
    const CombineVc<float32, S> x{{pSrc, srcStride2}, {val}, {pDst, dstStride2}, len};
    return enterQuick(x, smallObjects(Plus{}), order<Pointers, Sizes, Strides>{}, ownAdd_vc_32f_Packed,
                      ownAdd_vc_32f_Strided);
}

Status zepmAdd_vc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 len)
{
    const CombineVc<float32, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownAdd_vc_32f_P);
}

Status zepmAdd_vc_64f(const float64* pSrc, int32 srcStride2, float64 val, float64* pDst, int32 dstStride2, int32 len)
{
    const CombineVc<float64, S> x{{pSrc, srcStride2}, {val}, {pDst, dstStride2}, len};
    return enterQuick(x, smallObjects(Plus{}), order<Pointers, Sizes, Strides>{}, ownAdd_vc_64f_Packed,
                      ownAdd_vc_64f_Strided);
}

Status zepmAdd_vc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 len)
{
    const CombineVc<float64, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownAdd_vc_64f_P);
}
