// zepmAdd_tat: d[k](i, j) = s1[k](j, i) + s2(j, i)
#include "elementwise/add_matrices.h"
#include "elementwise/combine.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownAdd_tat_32f_Packed(const CombineTat<float32, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_tat_32f_Strided(const CombineTat<float32, S>& x)
{
    return combineStrided(Plus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownAdd_tat_32f_L_Packed(const CombineTat<float32, L>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_tat_32f_L_Strided(const CombineTat<float32, L>& x) { return forEachObject(x, ownAdd_tt_32f_Strided); }
Status ownAdd_tat_32f_P(const CombineTat<float32, P>& x) { return combineTable(Plus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownAdd_tat_64f_Packed(const CombineTat<float64, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_tat_64f_Strided(const CombineTat<float64, S>& x)
{
    return combineStrided(Plus{}, x, sizes<3, 4, 5, 6>{});
}
Status ownAdd_tat_64f_L_Packed(const CombineTat<float64, L>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_tat_64f_L_Strided(const CombineTat<float64, L>& x) { return forEachObject(x, ownAdd_tt_64f_Strided); }
Status ownAdd_tat_64f_P(const CombineTat<float64, P>& x) { return combineTable(Plus{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmAdd_tat_32f(const float32* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineTat<float32, S> x{{pSrc1, src1Stride0, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {pDst, dstStride0, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3000, 2000>{}, ownAdd_tat_32f_Packed,
                 ownAdd_tat_32f_Strided, ownOMP_zepmAdd_tat_32f);
}

Status zepmAdd_tat_32f_L(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float32* pSrc2, int32 src2Stride1, int32 src2Stride2, float32* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineTat<float32, L> x{{ppSrc1, src1RoiShift, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownAdd_tat_32f_L_Packed,
                 ownAdd_tat_32f_L_Strided, ownOMP_zepmAdd_tat_32f_L);
}

Status zepmAdd_tat_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float32* const* ppSrc2, int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count)
{
    const CombineTat<float32, P> x{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift},
                                   {ppDst, dstRoiShift, dstStride0},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownAdd_tat_32f_P,
                 ownOMP_zepmAdd_tat_32f_P);
}

Status zepmAdd_tat_64f(const float64* pSrc1, int32 src1Stride0, int32 src1Stride1, int32 src1Stride2,
                       const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride0,
                       int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineTat<float64, S> x{{pSrc1, src1Stride0, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {pDst, dstStride0, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<2000>{}, ownAdd_tat_64f_Packed,
                 ownAdd_tat_64f_Strided, ownOMP_zepmAdd_tat_64f);
}

Status zepmAdd_tat_64f_L(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride1, int32 src1Stride2,
                         const float64* pSrc2, int32 src2Stride1, int32 src2Stride2, float64* const* ppDst,
                         int32 dstRoiShift, int32 dstStride1, int32 dstStride2, int32 width, int32 height, int32 count)
{
    const CombineTat<float64, L> x{{ppSrc1, src1RoiShift, src1Stride1, src1Stride2},
                                   {pSrc2, src2Stride1, src2Stride2},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownAdd_tat_64f_L_Packed,
                 ownAdd_tat_64f_L_Strided, ownOMP_zepmAdd_tat_64f_L);
}

Status zepmAdd_tat_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, int32 src1Stride0,
                         const float64* const* ppSrc2, int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift,
                         int32 dstStride0, int32 width, int32 height, int32 count)
{
    const CombineTat<float64, P> x{{ppSrc1, src1RoiShift, src1Stride0},
                                   {ppSrc2, src2RoiShift},
                                   {ppDst, dstRoiShift, dstStride0},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2000>{}, ownAdd_tat_64f_P,
                 ownOMP_zepmAdd_tat_64f_P);
}
