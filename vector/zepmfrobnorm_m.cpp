// zepmFrobNorm_m: d = sqrt(sum over i, j of s[i][j] * s[i][j])
#include "vector/norms.h"
#include "vector/reduce.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownFrobNorm_m_32f(const NormM<float32, S>& x) { return normMatrix<ColumnsOrEights>(x); }
Status ownFrobNorm_m_32f_P(const NormM<float32, P>& x) { return normTable<InFours>(x); }
Status ownFrobNorm_m_64f(const NormM<float64, S>& x) { return normMatrix<RowsInPairs>(x); }
Status ownFrobNorm_m_64f_P(const NormM<float64, P>& x) { return normTable<InFours>(x); }

} // namespace zepm

using namespace zepm;

Status zepmFrobNorm_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                          float32* pDst)
{
    const NormM<float32, S> x{{pSrc, srcStride1, srcStride2}, width, height, pDst};
    return enterQuick(x, smallNorm<ColumnsOrEights>(), order<Pointers, Sizes, Strides>{}, ownFrobNorm_m_32f);
}

Status zepmFrobNorm_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 width, int32 height, float32* pDst)
{
    const NormM<float32, P> x{{ppSrc, srcRoiShift}, width, height, pDst};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownFrobNorm_m_32f_P);
}

Status zepmFrobNorm_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, int32 width, int32 height,
                          float64* pDst)
{
    const NormM<float64, S> x{{pSrc, srcStride1, srcStride2}, width, height, pDst};
    return enterQuick(x, smallNorm<RowsInPairs>(), order<Pointers, Sizes, Strides>{}, ownFrobNorm_m_64f);
}

Status zepmFrobNorm_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 width, int32 height, float64* pDst)
{
    const NormM<float64, P> x{{ppSrc, srcRoiShift}, width, height, pDst};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownFrobNorm_m_64f_P);
}
