// zepmSaxpy_vava: d[k][j] = s1[k][j] * val + s2[k][j]
#include "vector/linear.h"
#include "vector/saxpy.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownSaxpy_vava_32f_Packed(const SaxpyVava<float32, S>& x) { return linearPacked(x); }
Status ownSaxpy_vava_32f_Strided(const SaxpyVava<float32, S>& x) { return linearStrided(x); }
Status ownSaxpy_vava_32f_L_Packed(const SaxpyVava<float32, L>& x) { return linearPacked(x); }
Status ownSaxpy_vava_32f_L_Strided(const SaxpyVava<float32, L>& x) { return linearStrided(x); }
Status ownSaxpy_vava_32f_P(const SaxpyVava<float32, P>& x) { return linearTable(x); }
Status ownSaxpy_vava_64f_Packed(const SaxpyVava<float64, S>& x) { return linearPacked(x); }
Status ownSaxpy_vava_64f_Strided(const SaxpyVava<float64, S>& x) { return linearStrided(x); }
Status ownSaxpy_vava_64f_L_Packed(const SaxpyVava<float64, L>& x) { return linearPacked(x); }
Status ownSaxpy_vava_64f_L_Strided(const SaxpyVava<float64, L>& x) { return linearStrided(x); }
Status ownSaxpy_vava_64f_P(const SaxpyVava<float64, P>& x) { return linearTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmSaxpy_vava_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride2, float32 val, const float32* pSrc2,
                          int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2,
                          int32 len, int32 count)
{
    const SaxpyVava<float32, S> x{{{pSrc1, src1Stride0, src1Stride2},
                                   {pSrc2, src2Stride0, src2Stride2},
                                   {pDst, dstStride0, dstStride2},
                                   len,
                                   count},
                                  {val}};
    return enterLinear(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3001, 2001>{},
                       ownSaxpy_vava_32f_Packed, ownSaxpy_vava_32f_Strided, ownOMP_zepmSaxpy_vava_32f);
}

Status zepmSaxpy_vava_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float32 val,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst,
                            int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const SaxpyVava<float32, L> x{{{ppSrc1, src1RoiShift, src1Stride2},
                                   {ppSrc2, src2RoiShift, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride2},
                                   len,
                                   count},
                                  {val}};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501, 1001>{},
                 ownSaxpy_vava_32f_L_Packed, ownSaxpy_vava_32f_L_Strided, ownOMP_zepmSaxpy_vava_32f_L);
}

Status zepmSaxpy_vava_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float32 val,
                            const float32* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst,
                            int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const SaxpyVava<float32, P> x{{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift, src2Stride0},
                                   {ppDst, dstRoiShift, dstStride0},
                                   len,
                                   count},
                                  {val}};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1201>{}, ownSaxpy_vava_32f_P,
                 ownOMP_zepmSaxpy_vava_32f_P);
}

Status zepmSaxpy_vava_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride2, float64 val, const float64* pSrc2,
                          int32 src2Stride0, int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2,
                          int32 len, int32 count)
{
    const SaxpyVava<float64, S> x{{{pSrc1, src1Stride0, src1Stride2},
                                   {pSrc2, src2Stride0, src2Stride2},
                                   {pDst, dstStride0, dstStride2},
                                   len,
                                   count},
                                  {val}};
    return enterLinear(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3001, 1201>{},
                       ownSaxpy_vava_64f_Packed, ownSaxpy_vava_64f_Strided, ownOMP_zepmSaxpy_vava_64f);
}

Status zepmSaxpy_vava_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride2, float64 val,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst,
                            int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const SaxpyVava<float64, L> x{{{ppSrc1, src1RoiShift, src1Stride2},
                                   {ppSrc2, src2RoiShift, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride2},
                                   len,
                                   count},
                                  {val}};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1001>{},
                 ownSaxpy_vava_64f_L_Packed, ownSaxpy_vava_64f_L_Strided, ownOMP_zepmSaxpy_vava_64f_L);
}

Status zepmSaxpy_vava_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0, float64 val,
                            const float64* const* ppSrc2, int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst,
                            int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const SaxpyVava<float64, P> x{{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift, src2Stride0},
                                   {ppDst, dstRoiShift, dstStride0},
                                   len,
                                   count},
                                  {val}};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1201>{}, ownSaxpy_vava_64f_P,
                 ownOMP_zepmSaxpy_vava_64f_P);
}
