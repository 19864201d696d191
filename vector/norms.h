// Kernels and drivers of L2Norm and FrobNorm.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<NormV<float32, S>> ownL2Norm_v_32f_Packed, ownL2Norm_v_32f_Strided;
KernelOf<NormV<float32, P>> ownL2Norm_v_32f_P;
KernelOf<NormV<float64, S>> ownL2Norm_v_64f_Packed, ownL2Norm_v_64f_Strided;
KernelOf<NormV<float64, P>> ownL2Norm_v_64f_P;

KernelOf<NormVa<float32, S>> ownL2Norm_va_32f_Packed, ownL2Norm_va_32f_Strided, ownOMP_zepmL2Norm_va_32f;
KernelOf<NormVa<float32, L>> ownL2Norm_va_32f_L_Packed, ownL2Norm_va_32f_L_Strided, ownOMP_zepmL2Norm_va_32f_L;
KernelOf<NormVa<float32, P>> ownL2Norm_va_32f_P, ownOMP_zepmL2Norm_va_32f_P;
KernelOf<NormVa<float64, S>> ownL2Norm_va_64f_Packed, ownL2Norm_va_64f_Strided, ownOMP_zepmL2Norm_va_64f;
KernelOf<NormVa<float64, L>> ownL2Norm_va_64f_L_Packed, ownL2Norm_va_64f_L_Strided, ownOMP_zepmL2Norm_va_64f_L;
KernelOf<NormVa<float64, P>> ownL2Norm_va_64f_P, ownOMP_zepmL2Norm_va_64f_P;

KernelOf<NormM<float32, S>> ownFrobNorm_m_32f;
KernelOf<NormM<float32, P>> ownFrobNorm_m_32f_P;
KernelOf<NormM<float64, S>> ownFrobNorm_m_64f;
KernelOf<NormM<float64, P>> ownFrobNorm_m_64f_P;

KernelOf<NormMa<float32, S>> ownFrobNorm_ma_32f_Packed, ownFrobNorm_ma_32f_Strided, ownOMP_zepmFrobNorm_ma_32f;
KernelOf<NormMa<float32, L>> ownFrobNorm_ma_32f_L_Packed, ownFrobNorm_ma_32f_L_Strided, ownOMP_zepmFrobNorm_ma_32f_L;
KernelOf<NormMa<float32, P>> ownFrobNorm_ma_32f_P, ownOMP_zepmFrobNorm_ma_32f_P;
KernelOf<NormMa<float64, S>> ownFrobNorm_ma_64f_Packed, ownFrobNorm_ma_64f_Strided, ownOMP_zepmFrobNorm_ma_64f;
KernelOf<NormMa<float64, L>> ownFrobNorm_ma_64f_L_Packed, ownFrobNorm_ma_64f_L_Strided, ownOMP_zepmFrobNorm_ma_64f_L;
KernelOf<NormMa<float64, P>> ownFrobNorm_ma_64f_P, ownOMP_zepmFrobNorm_ma_64f_P;
}

} // namespace zepm
