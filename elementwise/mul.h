// Kernels and drivers of the multiplication by a constant.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CombineVc<float32, S>> ownMul_vc_32f_Packed, ownMul_vc_32f_Strided;
KernelOf<CombineVc<float32, P>> ownMul_vc_32f_P;
KernelOf<CombineVc<float64, S>> ownMul_vc_64f_Packed, ownMul_vc_64f_Strided;
KernelOf<CombineVc<float64, P>> ownMul_vc_64f_P;

KernelOf<ScaleVac<float32, S>> ownMul_vac_32f_Packed, ownMul_vac_32f_Strided, ownOMP_zepmMul_vac_32f;
KernelOf<ScaleVac<float32, L>> ownMul_vac_32f_L_Packed, ownMul_vac_32f_L_Strided, ownOMP_zepmMul_vac_32f_L;
KernelOf<ScaleVac<float32, P>> ownMul_vac_32f_P, ownOMP_zepmMul_vac_32f_P;
KernelOf<ScaleVac<float64, S>> ownMul_vac_64f_Packed, ownMul_vac_64f_Strided, ownOMP_zepmMul_vac_64f;
KernelOf<ScaleVac<float64, L>> ownMul_vac_64f_L_Packed, ownMul_vac_64f_L_Strided, ownOMP_zepmMul_vac_64f_L;
KernelOf<ScaleVac<float64, P>> ownMul_vac_64f_P, ownOMP_zepmMul_vac_64f_P;

KernelOf<CombineVca<float32, S>> ownMul_vca_32f_Packed, ownMul_vca_32f_Strided, ownOMP_zepmMul_vca_32f;
KernelOf<CombineVca<float32, L>> ownMul_vca_32f_L_Packed, ownMul_vca_32f_L_Strided, ownOMP_zepmMul_vca_32f_L;
KernelOf<CombineVca<float32, P>> ownMul_vca_32f_P, ownOMP_zepmMul_vca_32f_P;
KernelOf<CombineVca<float64, S>> ownMul_vca_64f_Packed, ownMul_vca_64f_Strided, ownOMP_zepmMul_vca_64f;
KernelOf<CombineVca<float64, L>> ownMul_vca_64f_L_Packed, ownMul_vca_64f_L_Strided, ownOMP_zepmMul_vca_64f_L;
KernelOf<CombineVca<float64, P>> ownMul_vca_64f_P, ownOMP_zepmMul_vca_64f_P;

KernelOf<CombineVaca<float32, S>> ownMul_vaca_32f_Packed, ownMul_vaca_32f_Strided, ownOMP_zepmMul_vaca_32f;
KernelOf<CombineVaca<float32, L>> ownMul_vaca_32f_L_Packed, ownMul_vaca_32f_L_Strided, ownOMP_zepmMul_vaca_32f_L;
KernelOf<CombineVaca<float32, P>> ownMul_vaca_32f_P, ownOMP_zepmMul_vaca_32f_P;
KernelOf<CombineVaca<float64, S>> ownMul_vaca_64f_Packed, ownMul_vaca_64f_Strided, ownOMP_zepmMul_vaca_64f;
KernelOf<CombineVaca<float64, L>> ownMul_vaca_64f_L_Packed, ownMul_vaca_64f_L_Strided, ownOMP_zepmMul_vaca_64f_L;
KernelOf<CombineVaca<float64, P>> ownMul_vaca_64f_P, ownOMP_zepmMul_vaca_64f_P;

KernelOf<CombineMc<float32, S>> ownMul_mc_32f_Packed, ownMul_mc_32f_Strided;
KernelOf<CombineMc<float32, P>> ownMul_mc_32f_P;
KernelOf<CombineMc<float64, S>> ownMul_mc_64f_Packed, ownMul_mc_64f_Strided;
KernelOf<CombineMc<float64, P>> ownMul_mc_64f_P;

KernelOf<CombineTc<float32, S>> ownMul_tc_32f_Packed, ownMul_tc_32f_Strided;
KernelOf<CombineTc<float32, P>> ownMul_tc_32f_P;
KernelOf<CombineTc<float64, S>> ownMul_tc_64f_Packed, ownMul_tc_64f_Strided;
KernelOf<CombineTc<float64, P>> ownMul_tc_64f_P;

KernelOf<CombineMac<float32, S>> ownMul_mac_32f_Packed, ownMul_mac_32f_Strided, ownOMP_zepmMul_mac_32f;
KernelOf<CombineMac<float32, L>> ownMul_mac_32f_L_Packed, ownMul_mac_32f_L_Strided, ownOMP_zepmMul_mac_32f_L;
KernelOf<CombineMac<float32, P>> ownMul_mac_32f_P, ownOMP_zepmMul_mac_32f_P;
KernelOf<CombineMac<float64, S>> ownMul_mac_64f_Packed, ownMul_mac_64f_Strided, ownOMP_zepmMul_mac_64f;
KernelOf<CombineMac<float64, L>> ownMul_mac_64f_L_Packed, ownMul_mac_64f_L_Strided, ownOMP_zepmMul_mac_64f_L;
KernelOf<CombineMac<float64, P>> ownMul_mac_64f_P, ownOMP_zepmMul_mac_64f_P;

KernelOf<CombineTac<float32, S>> ownMul_tac_32f_Packed, ownMul_tac_32f_Strided, ownOMP_zepmMul_tac_32f;
KernelOf<CombineTac<float32, L>> ownMul_tac_32f_L_Packed, ownMul_tac_32f_L_Strided, ownOMP_zepmMul_tac_32f_L;
KernelOf<CombineTac<float32, P>> ownMul_tac_32f_P, ownOMP_zepmMul_tac_32f_P;
KernelOf<CombineTac<float64, S>> ownMul_tac_64f_Packed, ownMul_tac_64f_Strided, ownOMP_zepmMul_tac_64f;
KernelOf<CombineTac<float64, L>> ownMul_tac_64f_L_Packed, ownMul_tac_64f_L_Strided, ownOMP_zepmMul_tac_64f_L;
KernelOf<CombineTac<float64, P>> ownMul_tac_64f_P, ownOMP_zepmMul_tac_64f_P;
}

} // namespace zepm
