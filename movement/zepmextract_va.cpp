// zepmExtract_va: d[k][j] = s[k][j]. The destination has no gaps.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmExtract_va_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 len,
                          int32 count)
{
    const ExtractVa<float32, S> x{{bits(pSrc), srcStride0, srcStride2}, {bits(pDst)}, len, count};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Count, Strides>{}, moveElements<ExtractVa<float32, S>>);
}

Status zepmExtract_va_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst, int32 len,
                            int32 count)
{
    const ExtractVa<float32, L> x{{bits(ppSrc), srcRoiShift, srcStride2}, {bits(pDst)}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}

Status zepmExtract_va_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst, int32 len,
                            int32 count)
{
    const ExtractVa<float32, P> x{{bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst)}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}

Status zepmExtract_va_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 len,
                          int32 count)
{
    const ExtractVa<float64, S> x{{bits(pSrc), srcStride0, srcStride2}, {bits(pDst)}, len, count};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Count, Strides>{}, moveElements<ExtractVa<float64, S>>);
}

Status zepmExtract_va_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst, int32 len,
                            int32 count)
{
    const ExtractVa<float64, L> x{{bits(ppSrc), srcRoiShift, srcStride2}, {bits(pDst)}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}

Status zepmExtract_va_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst, int32 len,
                            int32 count)
{
    const ExtractVa<float64, P> x{{bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst)}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}
