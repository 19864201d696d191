// zepmAdd_mm: d(i, j) = s1(i, j) + s2(i, j)
#include "elementwise/add_matrices.h"
#include "elementwise/combine.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownAdd_mm_32f_Packed(const CombineMm<float32, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_mm_32f_Strided(const CombineMm<float32, S>& x) { return combineStrided(Plus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownAdd_mm_32f_P(const CombineMm<float32, P>& x) { return combineTable(Plus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownAdd_mm_64f_Packed(const CombineMm<float64, S>& x) { return combinePacked(Plus{}, x); }
Status ownAdd_mm_64f_Strided(const CombineMm<float64, S>& x) { return combineStrided(Plus{}, x, sizes<3, 4, 5, 6>{}); }
Status ownAdd_mm_64f_P(const CombineMm<float64, P>& x) { return combineTable(Plus{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmAdd_mm_32f(const float32* pSrc1, int32 src1Stride1, int32 src1Stride2, const float32* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float32* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height)
{
    const CombineMm<float32, S> x{{pSrc1, src1Stride1, src1Stride2},
                                  {pSrc2, src2Stride1, src2Stride2},
                                  {pDst, dstStride1, dstStride2},
                                  width,
                                  height};
    return enterQuick(x, smallObjects(Plus{}), order<Pointers, Sizes, Strides>{}, ownAdd_mm_32f_Packed,
                      ownAdd_mm_32f_Strided);
}

Status zepmAdd_mm_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                        int32 src2RoiShift, float32* const* ppDst, int32 dstRoiShift, int32 width, int32 height)
{
    const CombineMm<float32, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownAdd_mm_32f_P);
}

Status zepmAdd_mm_64f(const float64* pSrc1, int32 src1Stride1, int32 src1Stride2, const float64* pSrc2,
                      int32 src2Stride1, int32 src2Stride2, float64* pDst, int32 dstStride1, int32 dstStride2,
                      int32 width, int32 height)
{
    const CombineMm<float64, S> x{{pSrc1, src1Stride1, src1Stride2},
                                  {pSrc2, src2Stride1, src2Stride2},
                                  {pDst, dstStride1, dstStride2},
                                  width,
                                  height};
    return enterQuick(x, smallObjects(Plus{}), order<Pointers, Sizes, Strides>{}, ownAdd_mm_64f_Packed,
                      ownAdd_mm_64f_Strided);
}

Status zepmAdd_mm_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                        int32 src2RoiShift, float64* const* ppDst, int32 dstRoiShift, int32 width, int32 height)
{
    const CombineMm<float64, P> x{{ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownAdd_mm_64f_P);
}
