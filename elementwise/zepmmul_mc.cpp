// zepmMul_mc: d(i, j) = s(i, j) * val
#include "elementwise/combine.h"
#include "elementwise/mul.h"
#include "zepm_elementwise.h"

namespace zepm
{

namespace
{

// The rows of the matrix as an array of vectors.
template <class T>
ZEPM_INLINE ScaleVac<T, S> rowsAsVectors(const CombineMc<T, S>& x)
{
    return {
        {x.src1.p, x.src1.stride1, x.src1.stride2}, x.src2, {x.dst.p, x.dst.stride1, x.dst.stride2}, x.width, x.height};
}

} // namespace

Status ownMul_mc_32f_Packed(const CombineMc<float32, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_mc_32f_Strided(const CombineMc<float32, S>& x) { return ownMul_vac_32f_Strided(rowsAsVectors(x)); }
Status ownMul_mc_32f_P(const CombineMc<float32, P>& x) { return combineTable(Times{}, x, sizes<5, 6>{}); }
Status ownMul_mc_64f_Packed(const CombineMc<float64, S>& x) { return combinePacked(Times{}, x); }
Status ownMul_mc_64f_Strided(const CombineMc<float64, S>& x) { return ownMul_vac_64f_Strided(rowsAsVectors(x)); }
Status ownMul_mc_64f_P(const CombineMc<float64, P>& x) { return combineTable(Times{}, x, sizes<3, 4, 5, 6>{}); }

} // namespace zepm

using namespace zepm;

Status zepmMul_mc_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32 val, float32* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height)
{
    const CombineMc<float32, S> x{{pSrc, srcStride1, srcStride2}, {val}, {pDst, dstStride1, dstStride2}, width, height};
    return enterQuick(x, smallObjects(Times{}), order<Pointers, Sizes, Strides>{}, ownMul_mc_32f_Packed,
                      ownMul_mc_32f_Strided);
}

Status zepmMul_mc_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32 val, float32* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height)
{
    const CombineMc<float32, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownMul_mc_32f_P);
}

Status zepmMul_mc_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64 val, float64* pDst,
                      int32 dstStride1, int32 dstStride2, int32 width, int32 height)
{
    const CombineMc<float64, S> x{{pSrc, srcStride1, srcStride2}, {val}, {pDst, dstStride1, dstStride2}, width, height};
    return enterQuick(x, smallObjects(Times{}), order<Pointers, Sizes, Strides>{}, ownMul_mc_64f_Packed,
                      ownMul_mc_64f_Strided);
}

Status zepmMul_mc_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64 val, float64* const* ppDst,
                        int32 dstRoiShift, int32 width, int32 height)
{
    const CombineMc<float64, P> x{{ppSrc, srcRoiShift}, {val}, {ppDst, dstRoiShift}, width, height};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownMul_mc_64f_P);
}
