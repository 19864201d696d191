// zepmExtract_v: d[j] = s[j]. The destination has no gaps.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmExtract_v_32f(const float32* pSrc, int32 srcStride2, float32* pDst, int32 len)
{
    const ExtractV<float32, S> x{{bits(pSrc), srcStride2}, {bits(pDst)}, len};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Strides>{}, moveElements<ExtractV<float32, S>>);
}

Status zepmExtract_v_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 len)
{
    const ExtractV<float32, P> x{{bits(ppSrc), srcRoiShift}, {bits(pDst)}, len};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, moveElements);
}

Status zepmExtract_v_64f(const float64* pSrc, int32 srcStride2, float64* pDst, int32 len)
{
    const ExtractV<float64, S> x{{bits(pSrc), srcStride2}, {bits(pDst)}, len};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Strides>{}, moveElements<ExtractV<float64, S>>);
}

Status zepmExtract_v_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 len)
{
    const ExtractV<float64, P> x{{bits(ppSrc), srcRoiShift}, {bits(pDst)}, len};
    // The sizes before the pointers.
    return enter(x, order<Sizes, Pointers, RoiShifts>{}, moveElements);
}
