// Kernels and drivers of EigenValuesSym.
#pragma once

#include "eigen/symmetric_forms.h"

namespace zepm
{

extern "C" {

Status ownEigenValuesSym_m_32f_Packed(const SymmetricValuesM<float32, S>& x);
Status ownEigenValuesSym_m_32f_Strided(const SymmetricValuesM<float32, S>& x);
Status ownEigenValuesSym_m_32f_P(const SymmetricValuesM<float32, P>& x);
Status ownEigenValuesSym_m_64f_Packed(const SymmetricValuesM<float64, S>& x);
Status ownEigenValuesSym_m_64f_Strided(const SymmetricValuesM<float64, S>& x);
Status ownEigenValuesSym_m_64f_P(const SymmetricValuesM<float64, P>& x);

Status ownEigenValuesSym_ma_32f_Packed(const SymmetricValuesMa<float32, S>& x);
Status ownEigenValuesSym_ma_32f_Strided(const SymmetricValuesMa<float32, S>& x);
Status ownOMP_zepmEigenValuesSym_ma_32f(const SymmetricValuesMa<float32, S>& x);
Status ownEigenValuesSym_ma_32f_L_Packed(const SymmetricValuesMa<float32, L>& x);
Status ownEigenValuesSym_ma_32f_L_Strided(const SymmetricValuesMa<float32, L>& x);
Status ownOMP_zepmEigenValuesSym_ma_32f_L(const SymmetricValuesMa<float32, L>& x);
Status ownEigenValuesSym_ma_32f_P(const SymmetricValuesMa<float32, P>& x);
Status ownOMP_zepmEigenValuesSym_ma_32f_P(const SymmetricValuesMa<float32, P>& x);
Status ownEigenValuesSym_ma_64f_Packed(const SymmetricValuesMa<float64, S>& x);
Status ownEigenValuesSym_ma_64f_Strided(const SymmetricValuesMa<float64, S>& x);
Status ownOMP_zepmEigenValuesSym_ma_64f(const SymmetricValuesMa<float64, S>& x);
Status ownEigenValuesSym_ma_64f_L_Packed(const SymmetricValuesMa<float64, L>& x);
Status ownEigenValuesSym_ma_64f_L_Strided(const SymmetricValuesMa<float64, L>& x);
Status ownOMP_zepmEigenValuesSym_ma_64f_L(const SymmetricValuesMa<float64, L>& x);
Status ownEigenValuesSym_ma_64f_P(const SymmetricValuesMa<float64, P>& x);
Status ownOMP_zepmEigenValuesSym_ma_64f_P(const SymmetricValuesMa<float64, P>& x);
}

} // namespace zepm
