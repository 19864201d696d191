// zepmAdd, zepmSub, zepmMulC, zepmMin, zepmMax of v2, v3, v4
#include "elementwise/operations.h"
#include "geometry/fixed.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

// a where it is less, else b: also of equal elements and with a NaN.
struct Lesser
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a < b ? a : b;
    }
};

struct Greater
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a > b ? a : b;
    }
};

template <int N, class Op>
ZEPM_INLINE Status combine(Op op, const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    storeFixed<N>(pDst, op(loadFixed<N>(pSrc1), loadFixed<N>(pSrc2)));
    return stsOk;
}

template <int N>
ZEPM_INLINE Status scale(const float32* pSrc, float32 val, float32* pDst)
{
    storeFixed<N>(pDst, loadFixed<N>(pSrc) * broadcastFixed<N>(val));
    return stsOk;
}

} // namespace

Status zepmAdd_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<2>(Plus{}, pSrc1, pSrc2, pDst);
}

Status zepmAdd_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<3>(Plus{}, pSrc1, pSrc2, pDst);
}

Status zepmAdd_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<4>(Plus{}, pSrc1, pSrc2, pDst);
}

Status zepmSub_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<2>(Minus{}, pSrc1, pSrc2, pDst);
}

Status zepmSub_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<3>(Minus{}, pSrc1, pSrc2, pDst);
}

Status zepmSub_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<4>(Minus{}, pSrc1, pSrc2, pDst);
}

Status zepmMulC_v2_32f(const float32* pSrc, float32 val, float32* pDst) { return scale<2>(pSrc, val, pDst); }
Status zepmMulC_v3_32f(const float32* pSrc, float32 val, float32* pDst) { return scale<3>(pSrc, val, pDst); }
Status zepmMulC_v4_32f(const float32* pSrc, float32 val, float32* pDst) { return scale<4>(pSrc, val, pDst); }

Status zepmMin_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<2>(Lesser{}, pSrc1, pSrc2, pDst);
}

Status zepmMin_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<3>(Lesser{}, pSrc1, pSrc2, pDst);
}

Status zepmMin_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<4>(Lesser{}, pSrc1, pSrc2, pDst);
}

Status zepmMax_v2_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<2>(Greater{}, pSrc1, pSrc2, pDst);
}

Status zepmMax_v3_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<3>(Greater{}, pSrc1, pSrc2, pDst);
}

Status zepmMax_v4_32f(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    return combine<4>(Greater{}, pSrc1, pSrc2, pDst);
}
