// zepmAffineTransform3DH_mva: d[k] = the point of the homogeneous vector m * (s[k], 1)
#include "geometry/homogeneous.h"
#include "geometry/points.h"
#include "zepm_geometry.h"

namespace zepm
{

namespace
{

// A point that cannot be divided does not end the array.
ZEPM_INLINE Status transformHomogeneous(const Mva3DH& x, ptrdiff_t srcStride2, ptrdiff_t dstStride2)
{
    Homogeneous formula;
    const auto matrix = x.src1.view<false>(0).object(0);
    for (int32 i = 0; i < 4; ++i)
        for (int32 j = 0; j < 4; ++j) formula.m[i][j] = matrix.get(i, j);
    const bool ok = transformPoints(formula, {x.src2.p, x.src2.stride0, srcStride2},
                                    {x.dst.p, x.dst.stride0, dstStride2}, x.count);
    return ok ? stsOk : stsDivByZeroErr;
}

} // namespace

Status ownAffineTransform3DH_mva_32f_Packed(const Mva3DH& x)
{
    return transformHomogeneous(x, sizeof(float32), sizeof(float32));
}
Status ownAffineTransform3DH_mva_32f_Strided(const Mva3DH& x)
{
    return transformHomogeneous(x, x.src2.stride2, x.dst.stride2);
}

} // namespace zepm

using namespace zepm;

Status zepmAffineTransform3DH_mva_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                                      int32 src2Stride0, int32 src2Stride2, float32* pDst, int32 dstStride0,
                                      int32 dstStride2, int32 count)
{
    const Mva3DH x{{pSrc1, src1Stride1, src1Stride2}, {pSrc2, src2Stride0, src2Stride2}, {pDst, dstStride0, dstStride2},
                   count};
    return enter(x, order<Pointers, Count, Strides>{}, parallelFrom<785>{}, ownAffineTransform3DH_mva_32f_Packed,
                 ownAffineTransform3DH_mva_32f_Strided, ownOMP_zepmAffineTransform3DH_mva_32f);
}
