// zepmEigenValuesSym_ma: w[k] = the eigenvalues of s[k]
#include "eigen/eigenvaluessym.h"
#include "eigen/symmetric_kernels.h"
#include "zepm_eigen.h"

namespace zepm
{

namespace
{

constexpr Rules plain{}, lowThreshold{.lowOrder2Threshold = true};

} // namespace

Status ownEigenValuesSym_ma_32f_Packed(const SymmetricValuesMa<float32, S>& x)
{
    return solveSymmetricArray<lowThreshold, Packed>(x);
}
Status ownEigenValuesSym_ma_32f_Strided(const SymmetricValuesMa<float32, S>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesSym_ma_32f_L_Packed(const SymmetricValuesMa<float32, L>& x)
{
    return solveSymmetricArray<plain, Packed>(x);
}
Status ownEigenValuesSym_ma_32f_L_Strided(const SymmetricValuesMa<float32, L>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesSym_ma_32f_P(const SymmetricValuesMa<float32, P>& x)
{
    return solveSymmetricArray<plain, Table>(x);
}
Status ownEigenValuesSym_ma_64f_Packed(const SymmetricValuesMa<float64, S>& x)
{
    return solveSymmetricArray<plain, Packed>(x);
}
Status ownEigenValuesSym_ma_64f_Strided(const SymmetricValuesMa<float64, S>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesSym_ma_64f_L_Packed(const SymmetricValuesMa<float64, L>& x)
{
    return solveSymmetricArray<plain, Packed>(x);
}
Status ownEigenValuesSym_ma_64f_L_Strided(const SymmetricValuesMa<float64, L>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesSym_ma_64f_P(const SymmetricValuesMa<float64, P>& x)
{
    return solveSymmetricArray<plain, Table>(x);
}

} // namespace zepm

using namespace zepm;

Status zepmEigenValuesSym_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                 float32* pBuffer, float32* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float32, S> x{
        {pSrc, srcStride0, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, parallelFrom<1001>{}, ownEigenValuesSym_ma_32f_Packed,
                 ownEigenValuesSym_ma_32f_Strided, ownOMP_zepmEigenValuesSym_ma_32f);
}

Status zepmEigenValuesSym_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                   float32* pBuffer, float32* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float32, L> x{
        {ppSrc, srcRoiShift, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<1001>{},
                 ownEigenValuesSym_ma_32f_L_Packed, ownEigenValuesSym_ma_32f_L_Strided,
                 ownOMP_zepmEigenValuesSym_ma_32f_L);
}

Status zepmEigenValuesSym_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32* pBuffer,
                                   float32* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float32, P> x{{ppSrc, srcRoiShift, srcStride0}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<1001>{},
                 ownEigenValuesSym_ma_32f_P, ownOMP_zepmEigenValuesSym_ma_32f_P);
}

Status zepmEigenValuesSym_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                 float64* pBuffer, float64* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float64, S> x{
        {pSrc, srcStride0, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, parallelFrom<1001>{}, ownEigenValuesSym_ma_64f_Packed,
                 ownEigenValuesSym_ma_64f_Strided, ownOMP_zepmEigenValuesSym_ma_64f);
}

Status zepmEigenValuesSym_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1, int32 srcStride2,
                                   float64* pBuffer, float64* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float64, L> x{
        {ppSrc, srcRoiShift, srcStride1, srcStride2}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<1001>{},
                 ownEigenValuesSym_ma_64f_L_Packed, ownEigenValuesSym_ma_64f_L_Strided,
                 ownOMP_zepmEigenValuesSym_ma_64f_L);
}

Status zepmEigenValuesSym_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64* pBuffer,
                                   float64* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricValuesMa<float64, P> x{{ppSrc, srcRoiShift, srcStride0}, pBuffer, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<1001>{},
                 ownEigenValuesSym_ma_64f_P, ownOMP_zepmEigenValuesSym_ma_64f_P);
}
