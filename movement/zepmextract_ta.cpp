// zepmExtract_ta: d[k](i, j) = s[k](j, i). The destination has no gaps.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmExtract_ta_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32* pDst,
                          int32 width, int32 height, int32 count)
{
    const ExtractTa<float32, S> x{{bits(pSrc), srcStride0, srcStride1, srcStride2}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_ta_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float32* pDst, int32 width, int32 height, int32 count)
{
    const ExtractTa<float32, L> x{
        {bits(ppSrc), srcRoiShift, srcStride1, srcStride2}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_ta_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                            int32 width, int32 height, int32 count)
{
    const ExtractTa<float32, P> x{{bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}

Status zepmExtract_ta_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64* pDst,
                          int32 width, int32 height, int32 count)
{
    const ExtractTa<float64, S> x{{bits(pSrc), srcStride0, srcStride1, srcStride2}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_ta_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                            float64* pDst, int32 width, int32 height, int32 count)
{
    const ExtractTa<float64, L> x{
        {bits(ppSrc), srcRoiShift, srcStride1, srcStride2}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveTransposed, moveElements);
}

Status zepmExtract_ta_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                            int32 width, int32 height, int32 count)
{
    const ExtractTa<float64, P> x{{bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst)}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, moveElements);
}
