// zepmTrace_m: d = sum over i of s[i][i]
#include "vector/reduce.h"
#include "vector/trace.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownTrace_m_32f_Packed(const TraceM<float32, S>& x) { return tracePacked(x); }
Status ownTrace_m_32f_Strided(const TraceM<float32, S>& x) { return traceStrided(x); }
Status ownTrace_m_32f_P(const TraceM<float32, P>& x) { return traceTable(x); }
Status ownTrace_m_64f_Packed(const TraceM<float64, S>& x) { return tracePacked(x); }
Status ownTrace_m_64f_Strided(const TraceM<float64, S>& x) { return traceStrided(x); }
Status ownTrace_m_64f_P(const TraceM<float64, P>& x) { return traceTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmTrace_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 widthHeight, float32* pDst)
{
    const TraceM<float32, S> x{{pSrc, srcStride1, srcStride2}, widthHeight, pDst};
    return enterQuick(x, smallTrace, order<Pointers, Sizes, Strides>{}, ownTrace_m_32f_Packed, ownTrace_m_32f_Strided);
}

Status zepmTrace_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 widthHeight, float32* pDst)
{
    const TraceM<float32, P> x{{ppSrc, srcRoiShift}, widthHeight, pDst};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownTrace_m_32f_P);
}

Status zepmTrace_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 widthHeight, float64* pDst)
{
    const TraceM<float64, S> x{{pSrc, srcStride1, srcStride2}, widthHeight, pDst};
    return enterQuick(x, smallTrace, order<Pointers, Sizes, Strides>{}, ownTrace_m_64f_Packed, ownTrace_m_64f_Strided);
}

Status zepmTrace_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 widthHeight, float64* pDst)
{
    const TraceM<float64, P> x{{ppSrc, srcRoiShift}, widthHeight, pDst};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownTrace_m_64f_P);
}
