// zepmSub_mam: d[k](i, j) = s1[k](i, j) - s2(i, j)
#include "elementwise/combine.h"
#include "elementwise/sub_matrices.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_mam_32f_Packed(const CombineMam<float32, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_mam_32f_Strided(const CombineMam<float32, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_mam_32f_L_Packed(const CombineMam<float32, L>& x) { return combinePacked(Minus{}, x); }
Status ownSub_mam_32f_L_Strided(const CombineMam<float32, L>& x) { return forEachObject(x, ownSub_mm_32f_Strided); }
Status ownSub_mam_32f_P(const CombineMam<float32, P>& x) { return combineTable(Minus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownSub_mam_64f_Packed(const CombineMam<float64, S>& x) { return combinePacked(Minus{}, x); }
Status ownSub_mam_64f_Strided(const CombineMam<float64, S>& x)
{
    return combineStrided(Minus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownSub_mam_64f_L_Packed(const CombineMam<float64, L>& x) { return forEachObject(x, ownSub_mm_64f_Packed); }
Status ownSub_mam_64f_L_Strided(const CombineMam<float64, L>& x) { return forEachObject(x, ownSub_mm_64f_Strided); }
Status ownSub_mam_64f_P(const CombineMam<float64, P>& x) { return combineTable(Minus{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmSub_mam_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    CombineMam<float32, S> x{{pSrc1, src1Stride0, src1Stride1, src1Stride2},
                             {pSrc2, src2Stride1, src2Stride2},
                             {pDst, dstStride0, dstStride1, dstStride2},
                             width,
                             height,
                             count};
    // The strides before the sizes.
    return enterDense(Minus{}, x, order<Pointers, Count, Strides, Sizes>{}, parallelFrom<3000, 2000>{},
                      ownSub_mam_32f_Packed, ownSub_mam_32f_Strided, ownOMP_zepmSub_mam_32f);
}

Status zepmSub_mam_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineMam<float32, L> x{{ppSrc1, src1RoiShift, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownSub_mam_32f_L_Packed,
                 ownSub_mam_32f_L_Strided, ownOMP_zepmSub_mam_32f_L);
}

Status zepmSub_mam_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count)
{
    const CombineMam<float32, P> x{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift},
                                   {ppDst, dstRoiShift, dstStride0},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownSub_mam_32f_P,
                 ownOMP_zepmSub_mam_32f_P);
}

Status zepmSub_mam_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    CombineMam<float64, S> x{{pSrc1, src1Stride0, src1Stride1, src1Stride2},
                             {pSrc2, src2Stride1, src2Stride2},
                             {pDst, dstStride0, dstStride1, dstStride2},
                             width,
                             height,
                             count};
    // The strides before the sizes.
    return enterDense(Minus{}, x, order<Pointers, Count, Strides, Sizes>{}, parallelFrom<2000>{}, ownSub_mam_64f_Packed,
                      ownSub_mam_64f_Strided, ownOMP_zepmSub_mam_64f);
}

Status zepmSub_mam_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineMam<float64, L> x{{ppSrc1, src1RoiShift, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownSub_mam_64f_L_Packed,
                 ownSub_mam_64f_L_Strided, ownOMP_zepmSub_mam_64f_L);
}

Status zepmSub_mam_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count)
{
    const CombineMam<float64, P> x{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift},
                                   {ppDst, dstRoiShift, dstStride0},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownSub_mam_64f_P,
                 ownOMP_zepmSub_mam_64f_P);
}
