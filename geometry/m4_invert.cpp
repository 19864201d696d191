// zepmDet, zepmInvert of m4
#include "geometry/fixed.h"
#include "geometry/m4.h"
#include "zepm_geometry.h"

using namespace zepm;

Status zepmDet_m4_32f(const float32* pSrc, float32* pDst)
{
    const baseline::Matrix4<float32> m = baseline::loadMatrix(pSrc);
    const baseline::FixedVec<4> products = m.row[0] * baseline::minors(m.row[1], m.row[2], m.row[3]);
    store<float32>(pDst, products[0] - products[1] + products[2] - products[3]);
    return stsOk;
}

Status zepmInvert_m4_32f(const float32* pSrc, float32* pDet, float32* pDst)
{
    return ZEPM_AT_LEVEL(invert)(pSrc, pDet, pDst);
}
