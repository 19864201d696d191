// zepmLookAt, zepmOrtho, zepmPerspective of m4, left- and right-handed
#include "geometry/fixed.h"
#include "zepm_geometry.h"

#include <cmath>

using namespace zepm;
using namespace zepm::baseline;

namespace
{

// forward: the view's z axis, not yet of unit length.
ZEPM_INLINE Status lookAlong(FixedVec<3> forward, FixedVec<3> eye, FixedVec<3> up, float32* pDst)
{
    const FixedVec<3> zax = normalized<3>(forward);
    const FixedVec<3> xax = normalized<3>(cross(up, zax));
    const FixedVec<3> yax = cross(zax, xax);
    Matrix4<float32> view = transposed(Matrix4<float32>{{xax, yax, zax, {}}});
    // The products of the three axes and the eye, each in index order.
    const FixedVec<4> dots = view.row[0] * eye[0] + view.row[1] * eye[1] + view.row[2] * eye[2];
    view.row[3] = 0.0f - dots;
    view.row[3][3] = 1;
    storeMatrix(pDst, view);
    return stsOk;
}

// The cotangent of half the angle, which stays in float32.
ZEPM_INLINE float32 cotangentOfHalf(float32 angle)
{
    float32 s, c;
    sincosf(0.5f * angle, &s, &c);
    return c / s;
}

} // namespace

Status zepmLookAtLH_m4_32f(const float32* pEye, const float32* pAt, const float32* pUp, float32* pDst)
{
    const FixedVec<3> eye = loadFixed<3>(pEye);
    return lookAlong(loadFixed<3>(pAt) - eye, eye, loadFixed<3>(pUp), pDst);
}

Status zepmLookAtRH_m4_32f(const float32* pEye, const float32* pAt, const float32* pUp, float32* pDst)
{
    const FixedVec<3> eye = loadFixed<3>(pEye);
    return lookAlong(eye - loadFixed<3>(pAt), eye, loadFixed<3>(pUp), pDst);
}

Status zepmOrthoLH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{2 / w, 0, 0, 0}, {0, 2 / h, 0, 0}, {0, 0, 1 / (zf - zn), 0}, {0, 0, zn / (0 - (zf - zn)), 1}});
    return stsOk;
}

Status zepmOrthoRH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{2 / w, 0, 0, 0}, {0, 2 / h, 0, 0}, {0, 0, 1 / (zn - zf), 0}, {0, 0, zn / (zn - zf), 1}});
    return stsOk;
}

Status zepmOrthoOffCenterLH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{2 / (r - l), 0, 0, 0},
                     {0, 2 / (t - b), 0, 0},
                     {0, 0, 1 / (zf - zn), 0},
                     {(l + r) / (0 - (r - l)), (b + t) / (0 - (t - b)), zn / (0 - (zf - zn)), 1}});
    return stsOk;
}

Status zepmOrthoOffCenterRH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{2 / (r - l), 0, 0, 0},
                     {0, 2 / (t - b), 0, 0},
                     {0, 0, 1 / (zn - zf), 0},
                     {(l + r) / (0 - (r - l)), (b + t) / (0 - (t - b)), zn / (zn - zf), 1}});
    return stsOk;
}

Status zepmPerspectiveLH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{(zn + zn) / w, 0, 0, 0},
                     {0, (zn + zn) / h, 0, 0},
                     {0, 0, zf / (zf - zn), 1},
                     {0, 0, zn * zf / (0 - (zf - zn)), 0}});
    return stsOk;
}

Status zepmPerspectiveRH_m4_32f(float32 w, float32 h, float32 zn, float32 zf, float32* pDst)
{
    storeRows(pDst, {{(zn + zn) / w, 0, 0, 0},
                     {0, (zn + zn) / h, 0, 0},
                     {0, 0, zf / (zn - zf), -1},
                     {0, 0, zn * zf / (zn - zf), 0}});
    return stsOk;
}

Status zepmPerspectiveFovLH_m4_32f(float32 fovY, float32 aspect, float32 zn, float32 zf, float32* pDst)
{
    const float32 y = cotangentOfHalf(fovY);
    storeRows(pDst, {{y / aspect, 0, 0, 0},
                     {0, y, 0, 0},
                     {0, 0, zf / (zf - zn), 1},
                     {0, 0, (0 - zn * zf) / (zf - zn), 0}}); // the product is negated here, not the difference
    return stsOk;
}

Status zepmPerspectiveFovRH_m4_32f(float32 fovY, float32 aspect, float32 zn, float32 zf, float32* pDst)
{
    const float32 y = cotangentOfHalf(fovY);
    storeRows(pDst, {{y / aspect, 0, 0, 0}, {0, y, 0, 0}, {0, 0, zf / (zn - zf), -1}, {0, 0, zn * zf / (zn - zf), 0}});
    return stsOk;
}

Status zepmPerspectiveOffCenterLH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf,
                                         float32* pDst)
{
    storeRows(pDst, {{(zn + zn) / (r - l), 0, 0, 0},
                     {0, (zn + zn) / (t - b), 0, 0},
                     {(l + r) / (0 - (r - l)), (b + t) / (0 - (t - b)), zf / (zf - zn), 1},
                     {0, 0, zn * zf / (0 - (zf - zn)), 0}});
    return stsOk;
}

Status zepmPerspectiveOffCenterRH_m4_32f(float32 l, float32 r, float32 b, float32 t, float32 zn, float32 zf,
                                         float32* pDst)
{
    storeRows(pDst, {{(zn + zn) / (r - l), 0, 0, 0},
                     {0, (zn + zn) / (t - b), 0, 0},
                     {(l + r) / (r - l), (b + t) / (t - b), zf / (zn - zf), -1},
                     {0, 0, zn * zf / (zn - zf), 0}});
    return stsOk;
}
