// zepmTrace_ma: d[k] = sum over i of s[k][i][i]
#include "vector/reduce.h"
#include "vector/trace.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownTrace_ma_32f_Packed(const TraceMa<float32, S>& x) { return tracePacked(x); }
Status ownTrace_ma_32f_Strided(const TraceMa<float32, S>& x) { return traceStrided(x); }
Status ownTrace_ma_32f_L_Packed(const TraceMa<float32, L>& x) { return tracePacked(x); }
Status ownTrace_ma_32f_L_Strided(const TraceMa<float32, L>& x) { return traceStrided(x); }
Status ownTrace_ma_32f_P(const TraceMa<float32, P>& x) { return traceTable(x); }
Status ownTrace_ma_64f_Packed(const TraceMa<float64, S>& x) { return tracePacked(x); }
Status ownTrace_ma_64f_Strided(const TraceMa<float64, S>& x) { return traceStrided(x); }
Status ownTrace_ma_64f_L_Packed(const TraceMa<float64, L>& x) { return tracePacked(x); }
Status ownTrace_ma_64f_L_Strided(const TraceMa<float64, L>& x) { return traceStrided(x); }
Status ownTrace_ma_64f_P(const TraceMa<float64, P>& x) { return traceTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmTrace_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 widthHeight,
                        float32* pDst, int32 count)
{
    const TraceMa<float32, S> x{{pSrc, srcStride0, srcStride1, srcStride2}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3601>{}, ownTrace_ma_32f_Packed,
                 ownTrace_ma_32f_Strided, ownOMP_zepmTrace_ma_32f);
}

Status zepmTrace_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          int32 widthHeight, float32* pDst, int32 count)
{
    const TraceMa<float32, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601>{}, ownTrace_ma_32f_L_Packed,
                 ownTrace_ma_32f_L_Strided, ownOMP_zepmTrace_ma_32f_L);
}

Status zepmTrace_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 widthHeight,
                          float32* pDst, int32 count)
{
    const TraceMa<float32, P> x{{ppSrc, srcRoiShift, srcStride0}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601>{}, ownTrace_ma_32f_P,
                 ownOMP_zepmTrace_ma_32f_P);
}

Status zepmTrace_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 widthHeight,
                        float64* pDst, int32 count)
{
    const TraceMa<float64, S> x{{pSrc, srcStride0, srcStride1, srcStride2}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3601>{}, ownTrace_ma_64f_Packed,
                 ownTrace_ma_64f_Strided, ownOMP_zepmTrace_ma_64f);
}

Status zepmTrace_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                          int32 widthHeight, float64* pDst, int32 count)
{
    const TraceMa<float64, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601>{}, ownTrace_ma_64f_L_Packed,
                 ownTrace_ma_64f_L_Strided, ownOMP_zepmTrace_ma_64f_L);
}

Status zepmTrace_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 widthHeight,
                          float64* pDst, int32 count)
{
    const TraceMa<float64, P> x{{ppSrc, srcRoiShift, srcStride0}, widthHeight, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3601>{}, ownTrace_ma_64f_P,
                 ownOMP_zepmTrace_ma_64f_P);
}
