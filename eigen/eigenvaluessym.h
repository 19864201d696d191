// Kernels and drivers of EigenValuesSym.
#pragma once

#include "eigen/symmetric_forms.h"

namespace zepm
{

extern "C" {

KernelOf<SymmetricValuesM<float32, S>> ownEigenValuesSym_m_32f_Packed, ownEigenValuesSym_m_32f_Strided;
KernelOf<SymmetricValuesM<float32, P>> ownEigenValuesSym_m_32f_P;
KernelOf<SymmetricValuesM<float64, S>> ownEigenValuesSym_m_64f_Packed, ownEigenValuesSym_m_64f_Strided;
KernelOf<SymmetricValuesM<float64, P>> ownEigenValuesSym_m_64f_P;

KernelOf<SymmetricValuesMa<float32, S>> ownEigenValuesSym_ma_32f_Packed, ownEigenValuesSym_ma_32f_Strided,
    ownOMP_zepmEigenValuesSym_ma_32f;
KernelOf<SymmetricValuesMa<float32, L>> ownEigenValuesSym_ma_32f_L_Packed, ownEigenValuesSym_ma_32f_L_Strided,
    ownOMP_zepmEigenValuesSym_ma_32f_L;
KernelOf<SymmetricValuesMa<float32, P>> ownEigenValuesSym_ma_32f_P, ownOMP_zepmEigenValuesSym_ma_32f_P;
KernelOf<SymmetricValuesMa<float64, S>> ownEigenValuesSym_ma_64f_Packed, ownEigenValuesSym_ma_64f_Strided,
    ownOMP_zepmEigenValuesSym_ma_64f;
KernelOf<SymmetricValuesMa<float64, L>> ownEigenValuesSym_ma_64f_L_Packed, ownEigenValuesSym_ma_64f_L_Strided,
    ownOMP_zepmEigenValuesSym_ma_64f_L;
KernelOf<SymmetricValuesMa<float64, P>> ownEigenValuesSym_ma_64f_P, ownOMP_zepmEigenValuesSym_ma_64f_P;
}

} // namespace zepm
