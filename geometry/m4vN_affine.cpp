// zepmAffineTransform, zepmAffineTransformCoord, zepmAffineTransformNormal of m4v2, m4v3, m4v4 and of arrays of points
#include "geometry/fixed.h"
#include "geometry/points.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

template <class Formula>
ZEPM_INLINE Status transformOne(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    const FixedVec<4> result = transformed<Formula>(loadMatrix(pSrc1), loadFixed<Formula::in>(pSrc2));
    storeFixed<Formula::out>(pDst, prefix<Formula::out>(result));
    return stsOk;
}

template <class Formula>
ZEPM_INLINE Status transformArray(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                  int32 dstStride0, int32 count)
{
    if (count < 1) return stsOk;
    transformPoints(through<Formula>(loadMatrix(pSrc1)), {pSrc2, src2Stride0}, {pDst, dstStride0}, count);
    return stsOk;
}

} // namespace

Status zepmAffineTransform_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Affine<2>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransform_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Affine<3>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransform_m4v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Affine<4>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransform_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count)
{
    return transformArray<Affine<2>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransform_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count)
{
    return transformArray<Affine<3>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransform_m4v4a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                     int32 dstStride0, int32 count)
{
    return transformArray<Affine<4>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransformCoord_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Coord<2>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransformCoord_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Coord<3>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransformCoord_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                          int32 dstStride0, int32 count)
{
    return transformArray<Coord<2>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransformCoord_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                          int32 dstStride0, int32 count)
{
    return transformArray<Coord<3>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransformNormal_m4v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Normal<2>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransformNormal_m4v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return transformOne<Normal<3>>(pSrc1, pSrc2, pDst);
}

Status zepmAffineTransformNormal_m4v2a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                           int32 dstStride0, int32 count)
{
    return transformArray<Normal<2>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}

Status zepmAffineTransformNormal_m4v3a_32f(const float32* pSrc1, const float32* pSrc2, int32 src2Stride0, float32* pDst,
                                           int32 dstStride0, int32 count)
{
    return transformArray<Normal<3>>(pSrc1, pSrc2, src2Stride0, pDst, dstStride0, count);
}
