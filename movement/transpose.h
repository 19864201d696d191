// Kernels of Transpose.
#pragma once

#include "movement/forms.h"

namespace zepm
{

extern "C" {

KernelOf<TransposeM<float32, S>> ownTranspose_m_32f_Packed, ownTranspose_m_32f_Strided;
KernelOf<TransposeM<float32, P>> ownTranspose_m_32f_P;
KernelOf<TransposeM<float64, S>> ownTranspose_m_64f_Packed, ownTranspose_m_64f_Strided;
KernelOf<TransposeM<float64, P>> ownTranspose_m_64f_P;

KernelOf<TransposeMa<float32, S>> ownTranspose_ma_32f_Packed, ownTranspose_ma_32f_Strided;
KernelOf<TransposeMa<float32, L>> ownTranspose_ma_32f_L_Packed, ownTranspose_ma_32f_L_Strided;
KernelOf<TransposeMa<float32, P>> ownTranspose_ma_32f_P;
KernelOf<TransposeMa<float64, S>> ownTranspose_ma_64f_Packed, ownTranspose_ma_64f_Strided;
KernelOf<TransposeMa<float64, L>> ownTranspose_ma_64f_L_Packed, ownTranspose_ma_64f_L_Strided;
KernelOf<TransposeMa<float64, P>> ownTranspose_ma_64f_P;
}

} // namespace zepm
