// zepmTranspose_m: d(j, i) = s(i, j).
//
// The sizes are those of the source; the call is one on the result, whose width is the height of the source.
#include "movement/move.h"
#include "movement/transpose.h"
#include "zepm_movement.h"

namespace zepm
{

Status ownTranspose_m_32f_Packed(const TransposeM<float32, S>& x) { return moveTransposed(x); }
Status ownTranspose_m_32f_Strided(const TransposeM<float32, S>& x) { return moveElements(x); }
Status ownTranspose_m_32f_P(const TransposeM<float32, P>& x) { return moveElements(x); }
Status ownTranspose_m_64f_Packed(const TransposeM<float64, S>& x) { return moveTransposed(x); }
Status ownTranspose_m_64f_Strided(const TransposeM<float64, S>& x) { return moveElements(x); }
Status ownTranspose_m_64f_P(const TransposeM<float64, P>& x) { return moveElements(x); }

} // namespace zepm

using namespace zepm;

Status zepmTranspose_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                           float32* pDst, int32 dstStride1, int32 dstStride2)
{
    const TransposeM<float32, S> x{
        {bits(pSrc), srcStride1, srcStride2}, {bits(pDst), dstStride1, dstStride2}, height, width};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownTranspose_m_32f_Packed, ownTranspose_m_32f_Strided);
}

Status zepmTranspose_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 width, int32 height,
                             float32* const* ppDst, int32 dstRoiShift)
{
    const TransposeM<float32, P> x{{bits(ppSrc), srcRoiShift}, {bits(ppDst), dstRoiShift}, height, width};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownTranspose_m_32f_P);
}

Status zepmTranspose_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                           float64* pDst, int32 dstStride1, int32 dstStride2)
{
    const TransposeM<float64, S> x{
        {bits(pSrc), srcStride1, srcStride2}, {bits(pDst), dstStride1, dstStride2}, height, width};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownTranspose_m_64f_Packed, ownTranspose_m_64f_Strided);
}

Status zepmTranspose_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 width, int32 height,
                             float64* const* ppDst, int32 dstRoiShift)
{
    const TransposeM<float64, P> x{{bits(ppSrc), srcRoiShift}, {bits(ppDst), dstRoiShift}, height, width};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownTranspose_m_64f_P);
}
