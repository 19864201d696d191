// Kernels and drivers of LComb.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<LCombVv<float32, S>> ownLComb_vv_32f_Packed, ownLComb_vv_32f_Strided;
KernelOf<LCombVv<float32, P>> ownLComb_vv_32f_P;
KernelOf<LCombVv<float64, S>> ownLComb_vv_64f_Packed, ownLComb_vv_64f_Strided;
KernelOf<LCombVv<float64, P>> ownLComb_vv_64f_P;

KernelOf<LCombVav<float32, S>> ownLComb_vav_32f_Packed, ownLComb_vav_32f_Strided, ownOMP_zepmLComb_vav_32f;
KernelOf<LCombVav<float32, L>> ownLComb_vav_32f_L_Packed, ownLComb_vav_32f_L_Strided, ownOMP_zepmLComb_vav_32f_L;
KernelOf<LCombVav<float32, P>> ownLComb_vav_32f_P, ownOMP_zepmLComb_vav_32f_P;
KernelOf<LCombVav<float64, S>> ownLComb_vav_64f_Packed, ownLComb_vav_64f_Strided, ownOMP_zepmLComb_vav_64f;
KernelOf<LCombVav<float64, L>> ownLComb_vav_64f_L_Packed, ownLComb_vav_64f_L_Strided, ownOMP_zepmLComb_vav_64f_L;
KernelOf<LCombVav<float64, P>> ownLComb_vav_64f_P, ownOMP_zepmLComb_vav_64f_P;

KernelOf<LCombVava<float32, S>> ownLComb_vava_32f_Packed, ownLComb_vava_32f_Strided, ownOMP_zepmLComb_vava_32f;
KernelOf<LCombVava<float32, L>> ownLComb_vava_32f_L_Packed, ownLComb_vava_32f_L_Strided, ownOMP_zepmLComb_vava_32f_L;
KernelOf<LCombVava<float32, P>> ownLComb_vava_32f_P, ownOMP_zepmLComb_vava_32f_P;
KernelOf<LCombVava<float64, S>> ownLComb_vava_64f_Packed, ownLComb_vava_64f_Strided, ownOMP_zepmLComb_vava_64f;
KernelOf<LCombVava<float64, L>> ownLComb_vava_64f_L_Packed, ownLComb_vava_64f_L_Strided, ownOMP_zepmLComb_vava_64f_L;
KernelOf<LCombVava<float64, P>> ownLComb_vava_64f_P, ownOMP_zepmLComb_vava_64f_P;
}

} // namespace zepm
