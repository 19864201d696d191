// zepmProject, zepmUnproject of m4v3 and of arrays of points
#include "geometry/inverse.h"
#include "geometry/points.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::ssse3;

namespace
{

// World, view and projection in one.
ZEPM_INLINE Matrix4<float32> combined(const float32* pProj, const float32* pView, const float32* pWorld)
{
    return product(product(loadMatrix(pWorld), loadMatrix(pView)), loadMatrix(pProj));
}

// The way back, inverted in float64 and rounded.
struct WayBack
{
    bool isSingular;
    Matrix4<float32> matrix;

    WayBack(const float32* pProj, const float32* pView, const float32* pWorld)
    {
        const Matrix4<float32> m = combined(pProj, pView, pWorld);
        Matrix4<float64> wide;
        for (int i = 0; i < 4; ++i) wide.row[i] = __builtin_convertvector(m.row[i], Vec<float64, 4>);
        const Inverse<float64> inverse(wide);
        isSingular = inverse.isSingular;
        if (isSingular) return;
        for (int i = 0; i < 4; ++i) matrix.row[i] = __builtin_convertvector(inverse.matrix.row[i], Fixed<4>);
    }
};

} // namespace

Status zepmProject_m4v3_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                            float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax, float32* pDst)
{
    const Fixed<4> inWorld = transformed<Affine<3>>(loadMatrix(pWorld), loadFixed<3>(pSrc));
    const Fixed<4> inView = transformed<Affine<4>>(loadMatrix(pView), inWorld);
    const Fixed<4> p = transformed<Affine<4>>(loadMatrix(pProj), inView);
    const Fixed<4> inCube = p / lane4<3, float32>(p);
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
    const WayBack back(pProj, pView, pWorld);
    const Fixed<3> inCube{n[0], n[1], n[2], n[2]};
    storeFixed<3>(pDst, back.isSingular ? inCube : transformed<Coord<3>>(back.matrix, inCube));
    return back.isSingular ? stsSingularErr : stsOk;
}

// A singular product leaves pDst as it was. It is reported for a count below 1 as well.
Status zepmUnproject_m4v3a_32f(const float32* pProj, const float32* pView, const float32* pWorld, const float32* pSrc,
                               int32 srcStride0, float32 vpWidth, float32 vpHeight, float32 zMin, float32 zMax,
                               float32* pDst, int32 dstStride0, int32 count)
{
    const WayBack back(pProj, pView, pWorld);
    if (back.isSingular) return stsSingularErr;
    if (count < 1) return stsOk;
    const Unprojection unprojection{FromViewport(vpWidth, vpHeight, zMin, zMax), through<Coord<3>>(back.matrix)};
    transformPoints(unprojection, {pSrc, srcStride0}, {pDst, dstStride0}, count);
    return stsOk;
}
