// zepmFrobNorm_ma: d[k] = sqrt(sum over i, j of s[k][i][j] * s[k][i][j])
#include "vector/norms.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownFrobNorm_ma_32f_Packed(const NormMa<float32, S>& x) { return normPacked<ColumnsOrEights>(x); }
Status ownFrobNorm_ma_32f_Strided(const NormMa<float32, S>& x) { return normStrided<ColumnsOrEights>(x); }
Status ownFrobNorm_ma_32f_L_Packed(const NormMa<float32, L>& x) { return normPacked<ColumnsOrEights>(x); }
Status ownFrobNorm_ma_32f_L_Strided(const NormMa<float32, L>& x) { return normStrided<ColumnsOrEights>(x); }
Status ownFrobNorm_ma_32f_P(const NormMa<float32, P>& x) { return normTable<InFours>(x); }
Status ownFrobNorm_ma_64f_Packed(const NormMa<float64, S>& x) { return normPacked<RowsInPairs>(x); }
Status ownFrobNorm_ma_64f_Strided(const NormMa<float64, S>& x) { return normStrided<RowsInPairs>(x); }
Status ownFrobNorm_ma_64f_L_Packed(const NormMa<float64, L>& x) { return normPacked<RowsInPairs>(x); }
Status ownFrobNorm_ma_64f_L_Strided(const NormMa<float64, L>& x) { return normStrided<RowsInPairs>(x); }
Status ownFrobNorm_ma_64f_P(const NormMa<float64, P>& x) { return normTable<InFours>(x); }

} // namespace zepm

using namespace zepm;

Status zepmFrobNorm_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                           int32 height, float32* pDst, int32 count)
{
    const NormMa<float32, S> x{{pSrc, srcStride0, srcStride1, srcStride2}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<2501, 1801>{}, ownFrobNorm_ma_32f_Packed,
                 ownFrobNorm_ma_32f_Strided, ownOMP_zepmFrobNorm_ma_32f);
}

Status zepmFrobNorm_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32 width, int32 height, float32* pDst, int32 count)
{
    const NormMa<float32, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1601>{},
                 ownFrobNorm_ma_32f_L_Packed, ownFrobNorm_ma_32f_L_Strided, ownOMP_zepmFrobNorm_ma_32f_L);
}

Status zepmFrobNorm_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                             int32 height, float32* pDst, int32 count)
{
    const NormMa<float32, P> x{{ppSrc, srcRoiShift, srcStride0}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1501>{}, ownFrobNorm_ma_32f_P,
                 ownOMP_zepmFrobNorm_ma_32f_P);
}

Status zepmFrobNorm_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2, int32 width,
                           int32 height, float64* pDst, int32 count)
{
    const NormMa<float64, S> x{{pSrc, srcStride0, srcStride1, srcStride2}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1801, 1501>{}, ownFrobNorm_ma_64f_Packed,
                 ownFrobNorm_ma_64f_Strided, ownOMP_zepmFrobNorm_ma_64f);
}

Status zepmFrobNorm_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                             int32 width, int32 height, float64* pDst, int32 count)
{
    const NormMa<float64, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1601>{},
                 ownFrobNorm_ma_64f_L_Packed, ownFrobNorm_ma_64f_L_Strided, ownOMP_zepmFrobNorm_ma_64f_L);
}

Status zepmFrobNorm_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, int32 width,
                             int32 height, float64* pDst, int32 count)
{
    const NormMa<float64, P> x{{ppSrc, srcRoiShift, srcStride0}, width, height, pDst, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2501>{}, ownFrobNorm_ma_64f_P,
                 ownOMP_zepmFrobNorm_ma_64f_P);
}
