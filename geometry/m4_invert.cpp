// zepmDet, zepmInvert of m4
#include "geometry/inverse.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::ssse3;

Status zepmDet_m4_32f(const float32* pSrc, float32* pDst)
{
    const Matrix4<float32> m = loadMatrix(pSrc);
    const Fixed<4> products = m.row[0] * minors(m.row[1], m.row[2], m.row[3]);
    store<float32>(pDst, products[0] - products[1] + products[2] - products[3]);
    return stsOk;
}

Status zepmInvert_m4_32f(const float32* pSrc, float32* pDet, float32* pDst)
{
    const Inverse<float32> inverse(loadMatrix(pSrc));
    if (pDet) store<float32>(pDet, inverse.isSingular ? 0 : inverse.determinant);
    if (inverse.isSingular) return stsSingularErr;
    storeMatrix(pDst, inverse.matrix);
    return stsOk;
}
