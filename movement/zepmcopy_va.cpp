// zepmCopy_va: d[k][j] = s[k][j], from layout to layout.
//
// stride0 is tested where there is more than one object.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmCopy_va_32f_SS(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* pDst, int32 dstStride0,
                          int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, S, S> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Count, InnerStrides, ObjectStrides>{},
                      moveElements<CopyVa<float32, S, S>>);
}

Status zepmCopy_va_32f_SL(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, S, L> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_SP(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float32, S, P> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    // The shifts before the strides.
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, InnerStrides, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_LS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, L, S> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_LL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, L, L> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts>{}, moveElements);
}

Status zepmCopy_va_32f_LP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float32, L, P> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    // The shifts before the strides.
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, InnerStrides, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_PS(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, P, S> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_PL(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float32, P, L> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_32f_PP(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float32, P, P> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_SS(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* pDst, int32 dstStride0,
                          int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, S, S> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enterQuick(x, AsRun{}, order<Pointers, Sizes, Count, InnerStrides, ObjectStrides>{},
                      moveElements<CopyVa<float64, S, S>>);
}

Status zepmCopy_va_64f_SL(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, S, L> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_SP(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float64, S, P> x{
        {bits(pSrc), srcStride0, srcStride2}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_LS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, L, S> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_LL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, L, L> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts>{}, moveElements);
}

Status zepmCopy_va_64f_LP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float64, L, P> x{
        {bits(ppSrc), srcRoiShift, srcStride2}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_PS(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pDst,
                          int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, P, S> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(pDst), dstStride0, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_PL(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CopyVa<float64, P, L> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts, ObjectStrides>{}, moveElements);
}

Status zepmCopy_va_64f_PP(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* const* ppDst,
                          int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CopyVa<float64, P, P> x{
        {bits(ppSrc), srcRoiShift, srcStride0}, {bits(ppDst), dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, ObjectStrides>{}, moveElements);
}
