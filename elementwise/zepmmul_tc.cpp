// zepmMul_tc: d(i, j) = s(j, i) * val
#include "elementwise/combine.h"
#include "elementwise/mul.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownMul_tc_32f_Packed(const CombineTc<float32, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_tc_32f_Strided(const CombineTc<float32, S>& x) { return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tc_32f_P(const CombineTc<float32, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tc_64f_Packed(const CombineTc<float64, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_tc_64f_Strided(const CombineTc<float64, S>& x) { return combineStrided(Times{}, x, sizes<3, 4, 5, 6>{}); }
Status ownMul_tc_64f_P(const CombineTc<float64, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_tc_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32 val, float32* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height)
{
    const CombineTc<float32, S> x{{pSrc, srcStride1, srcStride2}, {val}, {pDst, dstStride1, dstStride2}, width, height};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownMul_tc_32f_Packed, ownMul_tc_32f_Strided);
}

Status zepmMul_tc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height)
{
    const CombineTc<float32, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownMul_tc_32f_P);
}

Status zepmMul_tc_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64 val, float64* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height)
{
    const CombineTc<float64, S> x{{pSrc, srcStride1, srcStride2}, {val}, {pDst, dstStride1, dstStride2}, width, height};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownMul_tc_64f_Packed, ownMul_tc_64f_Strided);
}

Status zepmMul_tc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height)
{
    const CombineTc<float64, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownMul_tc_64f_P);
}
