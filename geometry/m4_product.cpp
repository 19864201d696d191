// zepmMul of mm4x4; zepmMulTranspose, zepmTranspose of m4
#include "geometry/fixed.h"
#include "geometry/m4.h"
#include "zepm_geometry.h"

using namespace zepm;

// The one fixed-size function that tests its pointers.
Status zepmMul_mm4x4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    if (!pSrc1 || !pSrc2 || !pDst) return stsNullPtrErr;
    return atLevel(ssse3::multiply, avx2::multiply, avx512::multiply)(pSrc1, pSrc2, pDst);
}

Status zepmMulTranspose_m4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return atLevel(ssse3::multiplyTransposed, avx2::multiplyTransposed, avx512::multiplyTransposed)(pSrc1, pSrc2, pDst);
}

Status zepmTranspose_m4_32f(const float32* pSrc, float32* pDst)
{
    ssse3::storeMatrix(pDst, ssse3::transposed(ssse3::loadMatrix(pSrc)));
    return stsOk;
}
