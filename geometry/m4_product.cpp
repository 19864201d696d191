// zepmMul of mm4x4; zepmMulTranspose, zepmTranspose of m4
#include "geometry/fixed.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

// The one fixed-size function that tests its pointers.
Status zepmMul_mm4x4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    if (!pSrc1 || !pSrc2 || !pDst) return stsNullPtrErr;
    storeMatrix(pDst, product(loadMatrix(pSrc1), loadMatrix(pSrc2)));
    return stsOk;
}

Status zepmMulTranspose_m4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    storeMatrix(pDst, transposed(product(loadMatrix(pSrc1), loadMatrix(pSrc2))));
    return stsOk;
}

Status zepmTranspose_m4_32f(const float32* pSrc, float32* pDst)
{
    storeMatrix(pDst, transposed(loadMatrix(pSrc)));
    return stsOk;
}
