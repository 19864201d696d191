// Kernels and drivers of LUDecomp.
#pragma once

#include "solver/forms.h"

namespace zepm
{

extern "C" {

Status ownLUDecomp_m_32f_Packed(const FactorM<float32, S>& x);
Status ownLUDecomp_m_32f_Strided(const FactorM<float32, S>& x);
Status ownLUDecomp_m_32f_P(const FactorM<float32, P>& x);
Status ownLUDecomp_m_64f_Packed(const FactorM<float64, S>& x);
Status ownLUDecomp_m_64f_Strided(const FactorM<float64, S>& x);
Status ownLUDecomp_m_64f_P(const FactorM<float64, P>& x);

Status ownLUDecomp_ma_32f_Packed(const FactorMa<float32, S>& x);
Status ownLUDecomp_ma_32f_Strided(const FactorMa<float32, S>& x);
Status ownOMP_zepmLUDecomp_ma_32f(const FactorMa<float32, S>& x);
Status ownLUDecomp_ma_32f_L_Packed(const FactorMa<float32, L>& x);
Status ownLUDecomp_ma_32f_L_Strided(const FactorMa<float32, L>& x);
Status ownOMP_zepmLUDecomp_ma_32f_L(const FactorMa<float32, L>& x);
Status ownLUDecomp_ma_32f_P(const FactorMa<float32, P>& x);
Status ownOMP_zepmLUDecomp_ma_32f_P(const FactorMa<float32, P>& x);
Status ownLUDecomp_ma_64f_Packed(const FactorMa<float64, S>& x);
Status ownLUDecomp_ma_64f_Strided(const FactorMa<float64, S>& x);
Status ownOMP_zepmLUDecomp_ma_64f(const FactorMa<float64, S>& x);
Status ownLUDecomp_ma_64f_L_Packed(const FactorMa<float64, L>& x);
Status ownLUDecomp_ma_64f_L_Strided(const FactorMa<float64, L>& x);
Status ownOMP_zepmLUDecomp_ma_64f_L(const FactorMa<float64, L>& x);
Status ownLUDecomp_ma_64f_P(const FactorMa<float64, P>& x);
Status ownOMP_zepmLUDecomp_ma_64f_P(const FactorMa<float64, P>& x);
}

} // namespace zepm
