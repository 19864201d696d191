// zepmEigenValuesVectorsSym_m: s = v diag(w) transposed(v)
#include "eigen/eigenvaluesvectorssym.h"
#include "eigen/symmetric_kernels.h"
#include "zepm_eigen.h"

namespace zepm
{

namespace
{

constexpr Rules sorted{.sortsSingular = true};
constexpr Rules wideRoots{.wideRootTopDown = true, .wideRootBottomUp = true};
constexpr Rules wideRootsSorted{.wideRootTopDown = true, .wideRootBottomUp = true, .sortsSingular = true};

} // namespace

Status ownEigenValuesVectorsSym_m_32f_Packed(const SymmetricVectorsM<float32, S>& x)
{
    return solveSymmetric<wideRootsSorted, Packed>(x);
}
Status ownEigenValuesVectorsSym_m_32f_Strided(const SymmetricVectorsM<float32, S>& x)
{
    return solveSymmetric<wideRoots, Strided>(x);
}
Status ownEigenValuesVectorsSym_m_32f_P(const SymmetricVectorsM<float32, P>& x)
{
    return solveSymmetric<wideRootsSorted, Table>(x);
}
Status ownEigenValuesVectorsSym_m_64f_Packed(const SymmetricVectorsM<float64, S>& x)
{
    return solveSymmetric<sorted, Packed>(x);
}
Status ownEigenValuesVectorsSym_m_64f_Strided(const SymmetricVectorsM<float64, S>& x)
{
    return solveSymmetric<sorted, Strided>(x);
}
Status ownEigenValuesVectorsSym_m_64f_P(const SymmetricVectorsM<float64, P>& x)
{
    return solveSymmetric<sorted, Table>(x);
}

} // namespace zepm

using namespace zepm;

Status zepmEigenValuesVectorsSym_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pBuffer,
                                       float32* pDstVectors, int32 dstStride1, int32 dstStride2, float32* pDstValues,
                                       int32 widthHeight)
{
    const SymmetricVectorsM<float32, S> x{
        {pSrc, srcStride1, srcStride2}, pBuffer, {pDstVectors, dstStride1, dstStride2}, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownEigenValuesVectorsSym_m_32f_Packed,
                 ownEigenValuesVectorsSym_m_32f_Strided);
}

Status zepmEigenValuesVectorsSym_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pBuffer,
                                         float32* const* ppDst, int32 dstRoiShift, float32* pDstValues,
                                         int32 widthHeight)
{
    const SymmetricVectorsM<float32, P> x{{ppSrc, srcRoiShift}, pBuffer, {ppDst, dstRoiShift}, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownEigenValuesVectorsSym_m_32f_P);
}

Status zepmEigenValuesVectorsSym_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pBuffer,
                                       float64* pDstVectors, int32 dstStride1, int32 dstStride2, float64* pDstValues,
                                       int32 widthHeight)
{
    const SymmetricVectorsM<float64, S> x{
        {pSrc, srcStride1, srcStride2}, pBuffer, {pDstVectors, dstStride1, dstStride2}, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownEigenValuesVectorsSym_m_64f_Packed,
                 ownEigenValuesVectorsSym_m_64f_Strided);
}

Status zepmEigenValuesVectorsSym_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pBuffer,
                                         float64* const* ppDst, int32 dstRoiShift, float64* pDstValues,
                                         int32 widthHeight)
{
    const SymmetricVectorsM<float64, P> x{{ppSrc, srcRoiShift}, pBuffer, {ppDst, dstRoiShift}, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownEigenValuesVectorsSym_m_64f_P);
}
