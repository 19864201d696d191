// Kernels and drivers of LUDecomp.
#pragma once

#include "solver/forms.h"

namespace zepm
{

extern "C" {

KernelOf<FactorM<float32, S>> ownLUDecomp_m_32f_Packed, ownLUDecomp_m_32f_Strided;
KernelOf<FactorM<float32, P>> ownLUDecomp_m_32f_P;
KernelOf<FactorM<float64, S>> ownLUDecomp_m_64f_Packed, ownLUDecomp_m_64f_Strided;
KernelOf<FactorM<float64, P>> ownLUDecomp_m_64f_P;

KernelOf<FactorMa<float32, S>> ownLUDecomp_ma_32f_Packed, ownLUDecomp_ma_32f_Strided, ownOMP_zepmLUDecomp_ma_32f;
KernelOf<FactorMa<float32, L>> ownLUDecomp_ma_32f_L_Packed, ownLUDecomp_ma_32f_L_Strided, ownOMP_zepmLUDecomp_ma_32f_L;
KernelOf<FactorMa<float32, P>> ownLUDecomp_ma_32f_P, ownOMP_zepmLUDecomp_ma_32f_P;
KernelOf<FactorMa<float64, S>> ownLUDecomp_ma_64f_Packed, ownLUDecomp_ma_64f_Strided, ownOMP_zepmLUDecomp_ma_64f;
KernelOf<FactorMa<float64, L>> ownLUDecomp_ma_64f_L_Packed, ownLUDecomp_ma_64f_L_Strided, ownOMP_zepmLUDecomp_ma_64f_L;
KernelOf<FactorMa<float64, P>> ownLUDecomp_ma_64f_P, ownOMP_zepmLUDecomp_ma_64f_P;
}

} // namespace zepm
