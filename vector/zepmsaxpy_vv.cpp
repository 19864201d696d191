// zepmSaxpy_vv: d[j] = s1[j] * val + s2[j]
#include "vector/linear.h"
#include "vector/saxpy.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownSaxpy_vv_32f_Packed(const SaxpyVv<float32, S>& x) { return linearPacked(x); }
Status ownSaxpy_vv_32f_Strided(const SaxpyVv<float32, S>& x) { return linearStrided(x); }
Status ownSaxpy_vv_32f_P(const SaxpyVv<float32, P>& x) { return linearTable(x); }
Status ownSaxpy_vv_64f_Packed(const SaxpyVv<float64, S>& x) { return linearPacked(x); }
Status ownSaxpy_vv_64f_Strided(const SaxpyVv<float64, S>& x) { return linearStrided(x); }
Status ownSaxpy_vv_64f_P(const SaxpyVv<float64, P>& x) { return linearTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmSaxpy_vv_32f(const float32* pSrc1, int32 src1Stride2, float32 val, const float32* pSrc2, int32 src2Stride2,
                        float32* pDst, int32 dstStride2, int32 len)
{
    const SaxpyVv<float32, S> x{{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len}, {val}};
    return enterQuick(x, smallLinear, order<Pointers, Sizes, Strides>{}, ownSaxpy_vv_32f_Packed,
                      ownSaxpy_vv_32f_Strided);
}

Status zepmSaxpy_vv_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, float32 val, const float32* const* ppSrc2,
                          int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 len)
{
    const SaxpyVv<float32, P> x{{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len}, {val}};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownSaxpy_vv_32f_P);
}

Status zepmSaxpy_vv_64f(const float64* pSrc1, int32 src1Stride2, float64 val, const float64* pSrc2, int32 src2Stride2,
                        float64* pDst, int32 dstStride2, int32 len)
{
    const SaxpyVv<float64, S> x{{{pSrc1, src1Stride2}, {pSrc2, src2Stride2}, {pDst, dstStride2}, len}, {val}};
    return enterQuick(x, smallLinear, order<Pointers, Sizes, Strides>{}, ownSaxpy_vv_64f_Packed,
                      ownSaxpy_vv_64f_Strided);
}

Status zepmSaxpy_vv_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, float64 val, const float64* const* ppSrc2,
                          int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 len)
{
    const SaxpyVv<float64, P> x{{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, len}, {val}};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownSaxpy_vv_64f_P);
}
