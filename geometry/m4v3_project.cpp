// zepmProject, zepmUnproject of m4v3 and of arrays of points
#include "geometry/fixed.h"
#include "geometry/m4.h"
#include "geometry/points.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

// World, view and projection in one.
Matrix4<float32> combined(const float32* pProj, const float32* pView, const float32* pWorld)
{
    return product(product(loadMatrix(pWorld), loadMatrix(pView)), loadMatrix(pProj));
}

// The way back, or why there is none.
struct CombinedInverse
{
    float32 e[16];
    Status status;
    CombinedInverse(const float32* pProj, const float32* pView, const float32* pWorld)
    {
        storeMatrix(e, combined(pProj, pView, pWorld));
        status = ZEPM_AT_LEVEL(invertInFloat64)(e, e);
    }
};

} // namespace

Status zepmProject_m4v3_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                            float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax, float32* pDst)
{
    const FixedVec<4> inWorld = transformed<Affine<3>>(loadMatrix(pWorld), loadFixed<3>(pSrc));
    const FixedVec<4> inView = transformed<Affine<4>>(loadMatrix(pView), inWorld);
    const FixedVec<4> p = transformed<Affine<4>>(loadMatrix(pProj), inView);
    const FixedVec<4> inCube = p / lane4<3, float32>(p);
    const ToViewport viewport(vpWidth, vpHeight, zMin, zMax);
    for (int i = 0; i < 3; ++i) store<float32>(pDst + i, viewport.element(i, inCube[i]));
    return stsOk;
}

Status zepmProject_m4v3a_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                             int32 srcStride0, float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax,
                             float32* pDst, int32 dstStride0, int32 count)
{
    if (count < 1) return stsOk;
    const Projection projection{through<Coord<3>>(combined(pProj, pView, pWorld)),
                                ToViewport(vpWidth, vpHeight, zMin, zMax)};
    transformPoints(projection, {pSrc, srcStride0}, {pDst, dstStride0}, count);
    return stsOk;
}

// A singular product leaves the point of the cube in pDst.
Status zepmUnproject_m4v3_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                              float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax, float32* pDst)
{
    const float32 point[3] = {load<float32>(pSrc), load<float32>(pSrc + 1), load<float32>(pSrc + 2)};
    float32 n[3];
    FromViewport(vpWidth, vpHeight, zMin, zMax).apply(point, n);
    const CombinedInverse inverse(pProj, pView, pWorld);
    const FixedVec<3> inCube{n[0], n[1], n[2], n[2]};
    storeFixed<3>(pDst, inverse.status ? inCube : transformed<Coord<3>>(loadMatrix(inverse.e), inCube));
    return inverse.status;
}

// A singular product leaves pDst as it was. It is reported for a count below 1 as well.
Status zepmUnproject_m4v3a_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                               int32 srcStride0, float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax,
                               float32* pDst, int32 dstStride0, int32 count)
{
    const CombinedInverse inverse(pProj, pView, pWorld);
    if (inverse.status) return inverse.status;
    if (count < 1) return stsOk;
    const Unprojection unprojection{FromViewport(vpWidth, vpHeight, zMin, zMax),
                                    through<Coord<3>>(loadMatrix(inverse.e))};
    transformPoints(unprojection, {pSrc, srcStride0}, {pDst, dstStride0}, count);
    return stsOk;
}
