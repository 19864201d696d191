// zepmLoadIdentity_ma: d[k](i, j) = 1 where i is j, else 0.
#include "movement/move.h"
#include "zepm_movement.h"

using namespace zepm;

Status zepmLoadIdentity_ma_32f(float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                               int32 height, int32 count)
{
    const IdentityMa<float32, S> x{{bits(pDst), dstStride0, dstStride1, dstStride2}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, ObjectStrides>{}, writeIdentity);
}

Status zepmLoadIdentity_ma_32f_L(float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                                 int32 width, int32 height, int32 count)
{
    const IdentityMa<float32, L> x{{bits(ppDst), dstRoiShift, dstStride1, dstStride2}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts>{}, writeIdentity);
}

Status zepmLoadIdentity_ma_32f_P(float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                                 int32 count)
{
    const IdentityMa<float32, P> x{{bits(ppDst), dstRoiShift, dstStride0}, width, height, count};
    // The shift before the count.
    return enter(x, order<Pointers, Sizes, RoiShifts, Count, ObjectStrides>{}, writeIdentity);
}

Status zepmLoadIdentity_ma_64f(float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width,
                               int32 height, int32 count)
{
    const IdentityMa<float64, S> x{{bits(pDst), dstStride0, dstStride1, dstStride2}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, ObjectStrides>{}, writeIdentity);
}

Status zepmLoadIdentity_ma_64f_L(float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                                 int32 width, int32 height, int32 count)
{
    const IdentityMa<float64, L> x{{bits(ppDst), dstRoiShift, dstStride1, dstStride2}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, InnerStrides, RoiShifts>{}, writeIdentity);
}

Status zepmLoadIdentity_ma_64f_P(float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                                 int32 count)
{
    const IdentityMa<float64, P> x{{bits(ppDst), dstRoiShift, dstStride0}, width, height, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, ObjectStrides>{}, writeIdentity);
}
