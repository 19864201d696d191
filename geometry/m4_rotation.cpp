// zepmRotationX, zepmRotationY, zepmRotationZ, zepmRotationYawPitchRoll of m4; zepmRotationAxis of v3m4
#include "geometry/fixed.h"
#include "zepm_geometry.h"

#include <cmath>

using namespace zepm;
using namespace zepm::baseline;

namespace
{

// Computed in float64 and rounded.
struct SineCosine
{
    float32 sine, cosine;
    explicit SineCosine(float32 angle)
    {
        float64 s, c;
        sincos(static_cast<float64>(angle), &s, &c);
        sine = static_cast<float32>(s);
        cosine = static_cast<float32>(c);
    }
};

} // namespace

Status zepmRotationX_m4_32f(float32 angle, float32* pDst)
{
    const SineCosine a(angle);
    const float32 s = a.sine, c = a.cosine;
    storeRows(pDst, {{1, 0, 0, 0}, {0, c, s, 0}, {0, -s, c, 0}, {0, 0, 0, 1}});
    return stsOk;
}

Status zepmRotationY_m4_32f(float32 angle, float32* pDst)
{
    const SineCosine a(angle);
    const float32 s = a.sine, c = a.cosine;
    storeRows(pDst, {{c, 0, -s, 0}, {0, 1, 0, 0}, {s, 0, c, 0}, {0, 0, 0, 1}});
    return stsOk;
}

Status zepmRotationZ_m4_32f(float32 angle, float32* pDst)
{
    const SineCosine a(angle);
    const float32 s = a.sine, c = a.cosine;
    storeRows(pDst, {{c, s, 0, 0}, {-s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}});
    return stsOk;
}

Status zepmRotationAxis_v3m4_32f(const float32* pAxis, float32 angle, float32* pDst)
{
    const SineCosine a(angle);
    const float32 s = a.sine, c = a.cosine, q = 1 - c;
    const FixedVec<3> axis = normalized<3>(loadFixed<3>(pAxis));
    const float32 x = axis[0], y = axis[1], z = axis[2];
    const float32 qx = q * x, qy = q * y, qz = q * z;
    storeRows(pDst, {{qx * x + c, qy * x + s * z, qz * x - s * y, 0},
                     {qx * y - s * z, qy * y + c, y * qz + s * x, 0},
                     {s * y + qx * z, qy * z - s * x, c + z * qz, 0},
                     {0, 0, 0, 1}});
    return stsOk;
}

Status zepmRotationYawPitchRoll_m4_32f(float32 yaw, float32 pitch, float32 roll, float32* pDst)
{
    const SineCosine aboutY(yaw), aboutX(pitch), aboutZ(roll);
    const float32 sy = aboutY.sine, cy = aboutY.cosine;
    const float32 sp = aboutX.sine, cp = aboutX.cosine;
    const float32 sr = aboutZ.sine, cr = aboutZ.cosine;
    storeRows(pDst, {{sy * sp * sr + cy * cr, sr * cp, sp * cy * sr - sy * cr, 0},
                     {sy * sp * cr - cy * sr, cr * cp, sy * sr + cr * (sp * cy), 0},
                     {sy * cp, -sp, cy * cp, 0},
                     {0, 0, 0, 1}});
    return stsOk;
}
