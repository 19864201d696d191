// zepmExtract_t: d(i, j) = s(j, i). The destination has no gaps.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmExtract_t_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pDst, int32 width,
                         int32 height)
{
    const ExtractT<float32, S> x{{bits(pSrc), srcStride1, srcStride2}, {bits(pDst)}, width, height};
    return enter(x, order<Pointers, Sizes, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_t_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pDst, int32 width, int32 height)
{
    const ExtractT<float32, P> x{{bits(ppSrc), srcRoiShift}, {bits(pDst)}, width, height};
    // The sizes before the pointers.
    return enter(x, order<Sizes, Pointers, RoiShifts>{}, moveElements);
}

Status zepmExtract_t_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pDst, int32 width,
                         int32 height)
{
    const ExtractT<float64, S> x{{bits(pSrc), srcStride1, srcStride2}, {bits(pDst)}, width, height};
    return enter(x, order<Pointers, Sizes, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_t_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pDst, int32 width, int32 height)
{
    const ExtractT<float64, P> x{{bits(ppSrc), srcRoiShift}, {bits(pDst)}, width, height};
    // The sizes before the pointers.
    return enter(x, order<Sizes, Pointers, RoiShifts>{}, moveElements);
}
