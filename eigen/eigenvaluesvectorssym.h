// Kernels and drivers of EigenValuesVectorsSym.
#pragma once

#include "eigen/symmetric_forms.h"

namespace zepm
{

extern "C" {

KernelOf<SymmetricVectorsM<float32, S>> ownEigenValuesVectorsSym_m_32f_Packed, ownEigenValuesVectorsSym_m_32f_Strided;
KernelOf<SymmetricVectorsM<float32, P>> ownEigenValuesVectorsSym_m_32f_P;
KernelOf<SymmetricVectorsM<float64, S>> ownEigenValuesVectorsSym_m_64f_Packed, ownEigenValuesVectorsSym_m_64f_Strided;
KernelOf<SymmetricVectorsM<float64, P>> ownEigenValuesVectorsSym_m_64f_P;

KernelOf<SymmetricVectorsMa<float32, S>> ownEigenValuesVectorsSym_ma_32f_Packed,
    ownEigenValuesVectorsSym_ma_32f_Strided, ownOMP_zepmEigenValuesVectorsSym_ma_32f;
KernelOf<SymmetricVectorsMa<float32, L>> ownEigenValuesVectorsSym_ma_32f_L_Packed,
    ownEigenValuesVectorsSym_ma_32f_L_Strided, ownOMP_zepmEigenValuesVectorsSym_ma_32f_L;
KernelOf<SymmetricVectorsMa<float32, P>> ownEigenValuesVectorsSym_ma_32f_P, ownOMP_zepmEigenValuesVectorsSym_ma_32f_P;
KernelOf<SymmetricVectorsMa<float64, S>> ownEigenValuesVectorsSym_ma_64f_Packed,
    ownEigenValuesVectorsSym_ma_64f_Strided, ownOMP_zepmEigenValuesVectorsSym_ma_64f;
KernelOf<SymmetricVectorsMa<float64, L>> ownEigenValuesVectorsSym_ma_64f_L_Packed,
    ownEigenValuesVectorsSym_ma_64f_L_Strided, ownOMP_zepmEigenValuesVectorsSym_ma_64f_L;
KernelOf<SymmetricVectorsMa<float64, P>> ownEigenValuesVectorsSym_ma_64f_P, ownOMP_zepmEigenValuesVectorsSym_ma_64f_P;
}

} // namespace zepm
