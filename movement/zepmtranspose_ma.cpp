// zepmTranspose_ma: d[k](j, i) = s[k](i, j).
//
// The sizes are those of the source; the call is one on the result, whose width is the height of the source.
#include "movement/move.h"
#include "movement/transpose.h"
#include "zepm_movement.h"

namespace zepm
{

Status ownTranspose_ma_32f_Packed(const TransposeMa<float32, S>& x) { return moveTransposed(x); }
Status ownTranspose_ma_32f_Strided(const TransposeMa<float32, S>& x) { return moveElements(x); }
Status ownTranspose_ma_32f_L_Packed(const TransposeMa<float32, L>& x) { return moveTransposed(x); }
Status ownTranspose_ma_32f_L_Strided(const TransposeMa<float32, L>& x) { return moveElements(x); }
Status ownTranspose_ma_32f_P(const TransposeMa<float32, P>& x) { return moveElements(x); }
Status ownTranspose_ma_64f_Packed(const TransposeMa<float64, S>& x) { return moveTransposed(x); }
Status ownTranspose_ma_64f_Strided(const TransposeMa<float64, S>& x) { return moveElements(x); }
Status ownTranspose_ma_64f_L_Packed(const TransposeMa<float64, L>& x) { return moveTransposed(x); }
Status ownTranspose_ma_64f_L_Strided(const TransposeMa<float64, L>& x) { return moveElements(x); }
Status ownTranspose_ma_64f_P(const TransposeMa<float64, P>& x) { return moveElements(x); }

} // namespace zepm

using namespace zepm;

Status zepmTranspose_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                            int32 height, float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                            int32 count)
{
    const TransposeMa<float32, S> x{{bits(pSrc), srcStride0, srcStride1, srcStride2},
                                    {bits(pDst), dstStride0, dstStride1, dstStride2},
                                    height,
                                    width,
                                    count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, ownTranspose_ma_32f_Packed, ownTranspose_ma_32f_Strided);
}

Status zepmTranspose_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                              int32 width, int32 height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                              int32 dstStride2, int32 count)
{
    const TransposeMa<float32, L> x{{bits(ppSrc), srcRoiShift, srcStride1, srcStride2},
                                    {bits(ppDst), dstRoiShift, dstStride1, dstStride2},
                                    height,
                                    width,
                                    count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, ownTranspose_ma_32f_L_Packed,
                 ownTranspose_ma_32f_L_Strided);
}

Status zepmTranspose_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                              int32 height, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count)
{
    const TransposeMa<float32, P> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride0}, height, width, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, ownTranspose_ma_32f_P);
}

Status zepmTranspose_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                            int32 height, float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2,
                            int32 count)
{
    const TransposeMa<float64, S> x{{bits(pSrc), srcStride0, srcStride1, srcStride2},
                                    {bits(pDst), dstStride0, dstStride1, dstStride2},
                                    height,
                                    width,
                                    count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, ownTranspose_ma_64f_Packed, ownTranspose_ma_64f_Strided);
}

Status zepmTranspose_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                              int32 width, int32 height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1,
                              int32 dstStride2, int32 count)
{
    const TransposeMa<float64, L> x{{bits(ppSrc), srcRoiShift, srcStride1, srcStride2},
                                    {bits(ppDst), dstRoiShift, dstStride1, dstStride2},
                                    height,
                                    width,
                                    count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, ownTranspose_ma_64f_L_Packed,
                 ownTranspose_ma_64f_L_Strided);
}

Status zepmTranspose_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                              int32 height, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 count)
{
    const TransposeMa<float64, P> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride0}, height, width, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, ownTranspose_ma_64f_P);
}
