// zepmEigenValuesSym_m: w = the eigenvalues of s
#include "eigen/eigenvaluessym.h"
#include "eigen/symmetric_kernels.h"
#include "zepm_eigen.h"

namespace zepm
{

namespace
{

constexpr Rules plain{}, wideRootTopDown{.wideRootTopDown = true};

} // namespace

Status ownEigenValuesSym_m_32f_Packed(const SymmetricValuesM<float32, S>& x)
{
    return solveSymmetric<wideRootTopDown, Packed>(x);
}
Status ownEigenValuesSym_m_32f_Strided(const SymmetricValuesM<float32, S>& x)
{
    return solveSymmetric<plain, Strided>(x);
}
Status ownEigenValuesSym_m_32f_P(const SymmetricValuesM<float32, P>& x) { return solveSymmetric<plain, Table>(x); }
Status ownEigenValuesSym_m_64f_Packed(const SymmetricValuesM<float64, S>& x)
{
    return solveSymmetric<plain, Packed>(x);
}
Status ownEigenValuesSym_m_64f_Strided(const SymmetricValuesM<float64, S>& x)
{
    return solveSymmetric<plain, Strided>(x);
}
Status ownEigenValuesSym_m_64f_P(const SymmetricValuesM<float64, P>& x) { return solveSymmetric<plain, Table>(x); }

} // namespace zepm

using namespace zepm;

Status zepmEigenValuesSym_m_32f(const float32* pSrc, int32 srcStride1, int32 srcStride2, float32* pBuffer,
                                float32* pDstValues, int32 widthHeight)
{
    const SymmetricValuesM<float32, S> x{{pSrc, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownEigenValuesSym_m_32f_Packed, ownEigenValuesSym_m_32f_Strided);
}

Status zepmEigenValuesSym_m_32f_P(const float32* const* ppSrc, int32 srcRoiShift, float32* pBuffer, float32* pDstValues,
                                  int32 widthHeight)
{
    const SymmetricValuesM<float32, P> x{{ppSrc, srcRoiShift}, pBuffer, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownEigenValuesSym_m_32f_P);
}

Status zepmEigenValuesSym_m_64f(const float64* pSrc, int32 srcStride1, int32 srcStride2, float64* pBuffer,
                                float64* pDstValues, int32 widthHeight)
{
    const SymmetricValuesM<float64, S> x{{pSrc, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, Strides>{}, ownEigenValuesSym_m_64f_Packed, ownEigenValuesSym_m_64f_Strided);
}

Status zepmEigenValuesSym_m_64f_P(const float64* const* ppSrc, int32 srcRoiShift, float64* pBuffer, float64* pDstValues,
                                  int32 widthHeight)
{
    const SymmetricValuesM<float64, P> x{{ppSrc, srcRoiShift}, pBuffer, pDstValues, widthHeight};
    return enter(x, order<Pointers, Sizes, RoiShifts>{}, ownEigenValuesSym_m_64f_P);
}
