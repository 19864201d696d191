// Inverses of 4 by 4 matrices.
#include "geometry/inverse.h"
#include "geometry/m4.h"

namespace zepm::ZEPM_LEVEL
{

Status invert(const float32* pSrc, float32* pDet, float32* pDst)
{
    const Cofactors<float32> cofactors(loadMatrix(pSrc));
    if (cofactors.isSingular())
    {
        if (pDet) store<float32>(pDet, 0);
        return stsSingularErr;
    }
    if (pDet) store<float32>(pDet, cofactors.determinant);
    storeMatrix(pDst, cofactors.inverse());
    return stsOk;
}

// Rounded to float32 at the end.
Status invertInFloat64(const float32* pSrc, float32* pDst)
{
    const Matrix4<float32> m = loadMatrix(pSrc);
    Matrix4<float64> wide;
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) wide.row[i] = __builtin_convertvector(m.row[i], Vec<float64, 4>);
    const Cofactors<float64> cofactors(wide);
    if (cofactors.isSingular()) return stsSingularErr;
    const Matrix4<float64> inverse = cofactors.inverse();
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) storeFixed<4>(pDst + 4 * i, __builtin_convertvector(inverse.row[i], FixedVec<4>));
    return stsOk;
}

} // namespace zepm::ZEPM_LEVEL
