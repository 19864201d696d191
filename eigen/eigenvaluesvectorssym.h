// Kernels and drivers of EigenValuesVectorsSym.
#pragma once

#include "eigen/symmetric_forms.h"

namespace zepm
{

extern "C" {

Status ownEigenValuesVectorsSym_m_32f_Packed(const SymmetricVectorsM<float32, S>& x);
Status ownEigenValuesVectorsSym_m_32f_Strided(const SymmetricVectorsM<float32, S>& x);
Status ownEigenValuesVectorsSym_m_32f_P(const SymmetricVectorsM<float32, P>& x);
Status ownEigenValuesVectorsSym_m_64f_Packed(const SymmetricVectorsM<float64, S>& x);
Status ownEigenValuesVectorsSym_m_64f_Strided(const SymmetricVectorsM<float64, S>& x);
Status ownEigenValuesVectorsSym_m_64f_P(const SymmetricVectorsM<float64, P>& x);

Status ownEigenValuesVectorsSym_ma_32f_Packed(const SymmetricVectorsMa<float32, S>& x);
Status ownEigenValuesVectorsSym_ma_32f_Strided(const SymmetricVectorsMa<float32, S>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_32f(const SymmetricVectorsMa<float32, S>& x);
Status ownEigenValuesVectorsSym_ma_32f_L_Packed(const SymmetricVectorsMa<float32, L>& x);
Status ownEigenValuesVectorsSym_ma_32f_L_Strided(const SymmetricVectorsMa<float32, L>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_32f_L(const SymmetricVectorsMa<float32, L>& x);
Status ownEigenValuesVectorsSym_ma_32f_P(const SymmetricVectorsMa<float32, P>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_32f_P(const SymmetricVectorsMa<float32, P>& x);
Status ownEigenValuesVectorsSym_ma_64f_Packed(const SymmetricVectorsMa<float64, S>& x);
Status ownEigenValuesVectorsSym_ma_64f_Strided(const SymmetricVectorsMa<float64, S>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f(const SymmetricVectorsMa<float64, S>& x);
Status ownEigenValuesVectorsSym_ma_64f_L_Packed(const SymmetricVectorsMa<float64, L>& x);
Status ownEigenValuesVectorsSym_ma_64f_L_Strided(const SymmetricVectorsMa<float64, L>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f_L(const SymmetricVectorsMa<float64, L>& x);
Status ownEigenValuesVectorsSym_ma_64f_P(const SymmetricVectorsMa<float64, P>& x);
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f_P(const SymmetricVectorsMa<float64, P>& x);
}

} // namespace zepm
