// zepmDotProduct, zepmLenSqr, zepmLen, zepmNormalize, zepmCrossProduct of v2, v3, v4
#include "geometry/fixed.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

template <int N>
ZEPM_INLINE Status dotProduct(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    store<float32>(pDst, dot<N>(loadFixed<N>(pSrc1), loadFixed<N>(pSrc2)));
    return stsOk;
}

template <int N>
ZEPM_INLINE Status len(const float32* pSrc, float32* pDst)
{
    store<float32>(pDst, length<N>(loadFixed<N>(pSrc)));
    return stsOk;
}

template <int N>
ZEPM_INLINE Status normalize(const float32* pSrc, float32* pDst)
{
    storeFixed<N>(pDst, normalized<N>(loadFixed<N>(pSrc)));
    return stsOk;
}

} // namespace

Status zepmDotProduct_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return dotProduct<2>(pSrc1, pSrc2, pDst);
}

Status zepmDotProduct_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return dotProduct<3>(pSrc1, pSrc2, pDst);
}

Status zepmDotProduct_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return dotProduct<4>(pSrc1, pSrc2, pDst);
}

Status zepmLenSqr_v2_32f(const float32* pSrc, float32* pDst) { return dotProduct<2>(pSrc, pSrc, pDst); }
Status zepmLenSqr_v3_32f(const float32* pSrc, float32* pDst) { return dotProduct<3>(pSrc, pSrc, pDst); }
Status zepmLenSqr_v4_32f(const float32* pSrc, float32* pDst) { return dotProduct<4>(pSrc, pSrc, pDst); }

Status zepmLen_v2_32f(const float32* pSrc, float32* pDst) { return len<2>(pSrc, pDst); }
Status zepmLen_v3_32f(const float32* pSrc, float32* pDst) { return len<3>(pSrc, pDst); }
Status zepmLen_v4_32f(const float32* pSrc, float32* pDst) { return len<4>(pSrc, pDst); }

Status zepmNormalize_v2_32f(const float32* pSrc, float32* pDst) { return normalize<2>(pSrc, pDst); }
Status zepmNormalize_v3_32f(const float32* pSrc, float32* pDst) { return normalize<3>(pSrc, pDst); }
Status zepmNormalize_v4_32f(const float32* pSrc, float32* pDst) { return normalize<4>(pSrc, pDst); }

Status zepmCrossProduct_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    const FixedVec<2> a = loadFixed<2>(pSrc1), b = loadFixed<2>(pSrc2);
    store<float32>(pDst, a[0] * b[1] - a[1] * b[0]);
    return stsOk;
}

Status zepmCrossProduct_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    storeFixed<3>(pDst, cross(loadFixed<3>(pSrc1), loadFixed<3>(pSrc2)));
    return stsOk;
}

Status zepmCrossProduct_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32* pDst)
{
    const FixedVec<4> m = minors(loadFixed<4>(pSrc1), loadFixed<4>(pSrc2), loadFixed<4>(pSrc3));
    storeFixed<4>(pDst, FixedVec<4>{m[0], 0 - m[1], m[2], 0 - m[3]});
    return stsOk;
}
