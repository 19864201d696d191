// zepmEigenValuesVectorsSym_ma: s[k] = v[k] diag(w[k]) transposed(v[k])
#include "eigen/eigenvaluesvectorssym.h"
#include "eigen/symmetric_kernels.h"
#include "zepm_eigen.h"

namespace zepm
{

namespace
{

constexpr Rules plain{}, wideScalars{.wideScalars = true};

} // namespace

Status ownEigenValuesVectorsSym_ma_32f_Packed(const SymmetricVectorsMa<float32, S>& x)
{
    return solveSymmetricArray<wideScalars, Packed>(x);
}
Status ownEigenValuesVectorsSym_ma_32f_Strided(const SymmetricVectorsMa<float32, S>& x)
{
    return solveSymmetricArray<wideScalars, Strided>(x);
}
Status ownEigenValuesVectorsSym_ma_32f_L_Packed(const SymmetricVectorsMa<float32, L>& x)
{
    return solveSymmetricArray<wideScalars, Packed>(x);
}
Status ownEigenValuesVectorsSym_ma_32f_L_Strided(const SymmetricVectorsMa<float32, L>& x)
{
    return solveSymmetricArray<wideScalars, Strided>(x);
}
Status ownEigenValuesVectorsSym_ma_32f_P(const SymmetricVectorsMa<float32, P>& x)
{
    return solveSymmetricArray<wideScalars, Table>(x);
}
Status ownEigenValuesVectorsSym_ma_64f_Packed(const SymmetricVectorsMa<float64, S>& x)
{
    return solveSymmetricArray<plain, Packed>(x);
}
Status ownEigenValuesVectorsSym_ma_64f_Strided(const SymmetricVectorsMa<float64, S>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesVectorsSym_ma_64f_L_Packed(const SymmetricVectorsMa<float64, L>& x)
{
    return solveSymmetricArray<plain, Packed>(x);
}
Status ownEigenValuesVectorsSym_ma_64f_L_Strided(const SymmetricVectorsMa<float64, L>& x)
{
    return solveSymmetricArray<plain, Strided>(x);
}
Status ownEigenValuesVectorsSym_ma_64f_P(const SymmetricVectorsMa<float64, P>& x)
{
    return solveSymmetricArray<plain, Table>(x);
}

} // namespace zepm

using namespace zepm;

Status zepmEigenValuesVectorsSym_ma_32f(const float32* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                        float32* pBuffer, float32* pDstVectors, int32 dstStride0, int32 dstStride1,
                                        int32 dstStride2, float32* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricVectorsMa<float32, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                           pBuffer,
                                           {pDstVectors, dstStride0, dstStride1, dstStride2},
                                           pDstValues,
                                           widthHeight,
                                           count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_32f_Packed, ownEigenValuesVectorsSym_ma_32f_Strided,
                 ownOMP_zepmEigenValuesVectorsSym_ma_32f);
}

Status zepmEigenValuesVectorsSym_ma_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride1,
                                          int32 srcStride2, float32* pBuffer, float32* const* ppDst, int32 dstRoiShift,
                                          int32 dstStride1, int32 dstStride2, float32* pDstValues, int32 widthHeight,
                                          int32 count)
{
    const SymmetricVectorsMa<float32, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                           pBuffer,
                                           {ppDst, dstRoiShift, dstStride1, dstStride2},
                                           pDstValues,
                                           widthHeight,
                                           count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_32f_L_Packed, ownEigenValuesVectorsSym_ma_32f_L_Strided,
                 ownOMP_zepmEigenValuesVectorsSym_ma_32f_L);
}

Status zepmEigenValuesVectorsSym_ma_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                          float32* pBuffer, float32* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                          float32* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricVectorsMa<float32, P> x{
        {ppSrc, srcRoiShift, srcStride0}, pBuffer, {ppDst, dstRoiShift, dstStride0}, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_32f_P, ownOMP_zepmEigenValuesVectorsSym_ma_32f_P);
}

Status zepmEigenValuesVectorsSym_ma_64f(const float64* pSrc, int32 srcStride0, int32 srcStride1, int32 srcStride2,
                                        float64* pBuffer, float64* pDstVectors, int32 dstStride0, int32 dstStride1,
                                        int32 dstStride2, float64* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricVectorsMa<float64, S> x{{pSrc, srcStride0, srcStride1, srcStride2},
                                           pBuffer,
                                           {pDstVectors, dstStride0, dstStride1, dstStride2},
                                           pDstValues,
                                           widthHeight,
                                           count};
    return enter(x, order<Pointers, Sizes, Count, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_64f_Packed, ownEigenValuesVectorsSym_ma_64f_Strided,
                 ownOMP_zepmEigenValuesVectorsSym_ma_64f);
}

Status zepmEigenValuesVectorsSym_ma_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride1,
                                          int32 srcStride2, float64* pBuffer, float64* const* ppDst, int32 dstRoiShift,
                                          int32 dstStride1, int32 dstStride2, float64* pDstValues, int32 widthHeight,
                                          int32 count)
{
    const SymmetricVectorsMa<float64, L> x{{ppSrc, srcRoiShift, srcStride1, srcStride2},
                                           pBuffer,
                                           {ppDst, dstRoiShift, dstStride1, dstStride2},
                                           pDstValues,
                                           widthHeight,
                                           count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_64f_L_Packed, ownEigenValuesVectorsSym_ma_64f_L_Strided,
                 ownOMP_zepmEigenValuesVectorsSym_ma_64f_L);
}

Status zepmEigenValuesVectorsSym_ma_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0,
                                          float64* pBuffer, float64* const* ppDst, int32 dstRoiShift, int32 dstStride0,
                                          float64* pDstValues, int32 widthHeight, int32 count)
{
    const SymmetricVectorsMa<float64, P> x{
        {ppSrc, srcRoiShift, srcStride0}, pBuffer, {ppDst, dstRoiShift, dstStride0}, pDstValues, widthHeight, count};
    return enter(x, order<Pointers, Sizes, Count, RoiShifts, Strides>{}, parallelFrom<701>{},
                 ownEigenValuesVectorsSym_ma_64f_P, ownOMP_zepmEigenValuesVectorsSym_ma_64f_P);
}
