// Kernels and drivers of Add on vectors.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CombineVv<float32, S>> ownAdd_vv_32f_Packed, ownAdd_vv_32f_Strided;
KernelOf<CombineVv<float32, P>> ownAdd_vv_32f_P;
KernelOf<CombineVv<float64, S>> ownAdd_vv_64f_Packed, ownAdd_vv_64f_Strided;
KernelOf<CombineVv<float64, P>> ownAdd_vv_64f_P;

KernelOf<CombineVc<float32, S>> ownAdd_vc_32f_Packed, ownAdd_vc_32f_Strided;
KernelOf<CombineVc<float32, P>> ownAdd_vc_32f_P;
KernelOf<CombineVc<float64, S>> ownAdd_vc_64f_Packed, ownAdd_vc_64f_Strided;
KernelOf<CombineVc<float64, P>> ownAdd_vc_64f_P;

KernelOf<CombineVac<float32, S>> ownAdd_vac_32f_Packed, ownAdd_vac_32f_Strided, ownOMP_zepmAdd_vac_32f;
KernelOf<CombineVac<float32, L>> ownAdd_vac_32f_L_Packed, ownAdd_vac_32f_L_Strided, ownOMP_zepmAdd_vac_32f_L;
KernelOf<CombineVac<float32, P>> ownAdd_vac_32f_P, ownOMP_zepmAdd_vac_32f_P;
KernelOf<CombineVac<float64, S>> ownAdd_vac_64f_Packed, ownAdd_vac_64f_Strided, ownOMP_zepmAdd_vac_64f;
KernelOf<CombineVac<float64, L>> ownAdd_vac_64f_L_Packed, ownAdd_vac_64f_L_Strided, ownOMP_zepmAdd_vac_64f_L;
KernelOf<CombineVac<float64, P>> ownAdd_vac_64f_P, ownOMP_zepmAdd_vac_64f_P;

KernelOf<CombineVaca<float32, S>> ownAdd_vaca_32f_Packed, ownAdd_vaca_32f_Strided, ownOMP_zepmAdd_vaca_32f;
KernelOf<CombineVaca<float32, L>> ownAdd_vaca_32f_L_Packed, ownAdd_vaca_32f_L_Strided, ownOMP_zepmAdd_vaca_32f_L;
KernelOf<CombineVaca<float32, P>> ownAdd_vaca_32f_P, ownOMP_zepmAdd_vaca_32f_P;
KernelOf<CombineVaca<float64, S>> ownAdd_vaca_64f_Packed, ownAdd_vaca_64f_Strided, ownOMP_zepmAdd_vaca_64f;
KernelOf<CombineVaca<float64, L>> ownAdd_vaca_64f_L_Packed, ownAdd_vaca_64f_L_Strided, ownOMP_zepmAdd_vaca_64f_L;
KernelOf<CombineVaca<float64, P>> ownAdd_vaca_64f_P, ownOMP_zepmAdd_vaca_64f_P;

KernelOf<CombineVav<float32, S>> ownAdd_vav_32f_Packed, ownAdd_vav_32f_Strided, ownOMP_zepmAdd_vav_32f;
KernelOf<CombineVav<float32, L>> ownAdd_vav_32f_L_Packed, ownAdd_vav_32f_L_Strided, ownOMP_zepmAdd_vav_32f_L;
KernelOf<CombineVav<float32, P>> ownAdd_vav_32f_P, ownOMP_zepmAdd_vav_32f_P;
KernelOf<CombineVav<float64, S>> ownAdd_vav_64f_Packed, ownAdd_vav_64f_Strided, ownOMP_zepmAdd_vav_64f;
KernelOf<CombineVav<float64, L>> ownAdd_vav_64f_L_Packed, ownAdd_vav_64f_L_Strided, ownOMP_zepmAdd_vav_64f_L;
KernelOf<CombineVav<float64, P>> ownAdd_vav_64f_P, ownOMP_zepmAdd_vav_64f_P;

KernelOf<CombineVava<float32, S>> ownAdd_vava_32f_Packed, ownAdd_vava_32f_Strided, ownOMP_zepmAdd_vava_32f;
KernelOf<CombineVava<float32, L>> ownAdd_vava_32f_L_Packed, ownAdd_vava_32f_L_Strided, ownOMP_zepmAdd_vava_32f_L;
KernelOf<CombineVava<float32, P>> ownAdd_vava_32f_P, ownOMP_zepmAdd_vava_32f_P;
KernelOf<CombineVava<float64, S>> ownAdd_vava_64f_Packed, ownAdd_vava_64f_Strided, ownOMP_zepmAdd_vava_64f;
KernelOf<CombineVava<float64, L>> ownAdd_vava_64f_L_Packed, ownAdd_vava_64f_L_Strided, ownOMP_zepmAdd_vava_64f_L;
KernelOf<CombineVava<float64, P>> ownAdd_vava_64f_P, ownOMP_zepmAdd_vava_64f_P;

KernelOf<CombineVca<float32, S>> ownAdd_vca_32f_Packed, ownAdd_vca_32f_Strided, ownOMP_zepmAdd_vca_32f;
KernelOf<CombineVca<float32, L>> ownAdd_vca_32f_L_Packed, ownAdd_vca_32f_L_Strided, ownOMP_zepmAdd_vca_32f_L;
KernelOf<CombineVca<float32, P>> ownAdd_vca_32f_P, ownOMP_zepmAdd_vca_32f_P;
KernelOf<CombineVca<float64, S>> ownAdd_vca_64f_Packed, ownAdd_vca_64f_Strided, ownOMP_zepmAdd_vca_64f;
KernelOf<CombineVca<float64, L>> ownAdd_vca_64f_L_Packed, ownAdd_vca_64f_L_Strided, ownOMP_zepmAdd_vca_64f_L;
KernelOf<CombineVca<float64, P>> ownAdd_vca_64f_P, ownOMP_zepmAdd_vca_64f_P;
}

} // namespace zepm
