// zepmMul_tac: d[k](i, j) = s[k](j, i) * val
#include "elementwise/combine.h"
#include "elementwise/mul.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownMul_tac_32f_Packed(const CombineTac<float32, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_tac_32f_Strided(const CombineTac<float32, S>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_tac_32f_L_Packed(const CombineTac<float32, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_tac_32f_L_Strided(const CombineTac<float32, L>& x) { return forEachObject(x, ownMul_tc_32f_Strided); }
Status ownMul_tac_32f_P(const CombineTac<float32, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tac_64f_Packed(const CombineTac<float64, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_tac_64f_Strided(const CombineTac<float64, S>& x)
{
    return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{});
}
Status ownMul_tac_64f_L_Packed(const CombineTac<float64, L>& x) { return combinePacked(Times{}, x); }
Status ownMul_tac_64f_L_Strided(const CombineTac<float64, L>& x) { return forEachObject(x, ownMul_tc_64f_Strided); }
Status ownMul_tac_64f_P(const CombineTac<float64, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_tac_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float32 val,
                       float32* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count)
{
    const CombineTac<float32, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                   {val},
                                   {pDst, dstStride0, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3501>{}, ownMul_tac_32f_Packed,
                 ownMul_tac_32f_Strided, ownOMP_zepmMul_tac_32f);
}

Status zepmMul_tac_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float32 val, float32* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count)
{
    const CombineTac<float32, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                   {val},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3501, 1501>{},
                 ownMul_tac_32f_L_Packed, ownMul_tac_32f_L_Strided, ownOMP_zepmMul_tac_32f_L);
}

Status zepmMul_tac_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count)
{
    const CombineTac<float32, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, width, height, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1701>{}, ownMul_tac_32f_P,
                 ownOMP_zepmMul_tac_32f_P);
}

Status zepmMul_tac_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, float64 val,
                       float64* pDst, int32 dstStride0, int32 dstStride1, int32 dstStride2, int32 width, int32 height,
                       int32 count)
{
    const CombineTac<float64, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                   {val},
                                   {pDst, dstStride0, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<3501>{}, ownMul_tac_64f_Packed,
                 ownMul_tac_64f_Strided, ownOMP_zepmMul_tac_64f);
}

Status zepmMul_tac_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                         float64 val, float64* const* ppDst, int32 dstRoiShift, int32 dstStride1, int32 dstStride2,
                         int32 width, int32 height, int32 count)
{
    const CombineTac<float64, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                   {val},
                                   {ppDst, dstRoiShift, dstStride1, dstStride2},
                                   width,
                                   height,
                                   count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<3501>{}, ownMul_tac_64f_L_Packed,
                 ownMul_tac_64f_L_Strided, ownOMP_zepmMul_tac_64f_L);
}

Status zepmMul_tac_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 width, int32 height,
                         int32 count)
{
    const CombineTac<float64, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, width, height, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1701>{}, ownMul_tac_64f_P,
                 ownOMP_zepmMul_tac_64f_P);
}
