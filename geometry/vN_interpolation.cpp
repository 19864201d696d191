// zepmBaryCentric, zepmHermite, zepmInterpolationCatmullRom, zepmInterpolationLinear of v2, v3, v4
#include "geometry/fixed.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

template <int N>
ZEPM_INLINE Status baryCentric(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                               float32 val2, float32* pDst)
{
    const FixedVec<N> a = loadFixed<N>(pSrc1), b = loadFixed<N>(pSrc2), c = loadFixed<N>(pSrc3);
    storeFixed<N>(pDst, (b - a) * broadcastFixed<N>(val1) + a + (c - a) * broadcastFixed<N>(val2));
    return stsOk;
}

// From a with tangent b to c with tangent d.
template <int N>
ZEPM_INLINE FixedVec<N> hermite(FixedVec<N> a, FixedVec<N> b, FixedVec<N> c, FixedVec<N> d, float32 t)
{
    const float32 square = t * t;
    const float64 t1 = t, t2 = square, t3 = square * t; // float32 powers, float64 coefficients
    const auto h0 = static_cast<float32>(t3 - 3.0 * t2 + t3);
    const auto h1 = static_cast<float32>(t1 - t2 - t2 + t3);
    const auto h3 = static_cast<float32>(t3 - t2);
    return (a - c) * broadcastFixed<N>(h0) + (a + b * broadcastFixed<N>(h1) + d * broadcastFixed<N>(h3));
}

template <int N>
ZEPM_INLINE Status hermiteCurve(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                                float32 val, float32* pDst)
{
    storeFixed<N>(pDst,
                  hermite<N>(loadFixed<N>(pSrc1), loadFixed<N>(pSrc2), loadFixed<N>(pSrc3), loadFixed<N>(pSrc4), val));
    return stsOk;
}

template <int N>
ZEPM_INLINE Status catmullRom(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                              float32 val, float32* pDst)
{
    const FixedVec<N> a = loadFixed<N>(pSrc1), b = loadFixed<N>(pSrc2);
    const FixedVec<N> c = loadFixed<N>(pSrc3), d = loadFixed<N>(pSrc4);
    const FixedVec<N> half = broadcastFixed<N>(0.5f);
    storeFixed<N>(pDst, hermite<N>(b, (c - a) * half, c, (d - b) * half, val));
    return stsOk;
}

template <int N>
ZEPM_INLINE Status linear(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst)
{
    const FixedVec<N> a = loadFixed<N>(pSrc1), b = loadFixed<N>(pSrc2);
    storeFixed<N>(pDst, a + (b - a) * broadcastFixed<N>(val));
    return stsOk;
}

} // namespace

Status zepmBaryCentric_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst)
{
    return baryCentric<2>(pSrc1, pSrc2, pSrc3, val1, val2, pDst);
}

Status zepmBaryCentric_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst)
{
    return baryCentric<3>(pSrc1, pSrc2, pSrc3, val1, val2, pDst);
}

Status zepmBaryCentric_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, float32 val1,
                              float32 val2, float32* pDst)
{
    return baryCentric<4>(pSrc1, pSrc2, pSrc3, val1, val2, pDst);
}

Status zepmHermite_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst)
{
    return hermiteCurve<2>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmHermite_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst)
{
    return hermiteCurve<3>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmHermite_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3, const float32* pSrc4,
                          float32 val, float32* pDst)
{
    return hermiteCurve<4>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmInterpolationCatmullRom_v2_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst)
{
    return catmullRom<2>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmInterpolationCatmullRom_v3_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst)
{
    return catmullRom<3>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmInterpolationCatmullRom_v4_32f(const float32* pSrc1, const float32* pSrc2, const float32* pSrc3,
                                          const float32* pSrc4, float32 val, float32* pDst)
{
    return catmullRom<4>(pSrc1, pSrc2, pSrc3, pSrc4, val, pDst);
}

Status zepmInterpolationLinear_v2_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst)
{
    return linear<2>(pSrc1, pSrc2, val, pDst);
}

Status zepmInterpolationLinear_v3_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst)
{
    return linear<3>(pSrc1, pSrc2, val, pDst);
}

Status zepmInterpolationLinear_v4_32f(const float32* pSrc1, const float32* pSrc2, float32 val, float32* pDst)
{
    return linear<4>(pSrc1, pSrc2, val, pDst);
}
