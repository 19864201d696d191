// Kernels and drivers of Sub on vectors.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CombineVv<float32, S>> ownSub_vv_32f_Packed, ownSub_vv_32f_Strided;
KernelOf<CombineVv<float32, P>> ownSub_vv_32f_P;
KernelOf<CombineVv<float64, S>> ownSub_vv_64f_Packed, ownSub_vv_64f_Strided;
KernelOf<CombineVv<float64, P>> ownSub_vv_64f_P;

KernelOf<CombineVc<float32, S>> ownSub_vc_32f_Packed, ownSub_vc_32f_Strided;
KernelOf<CombineVc<float32, P>> ownSub_vc_32f_P;
KernelOf<CombineVc<float64, S>> ownSub_vc_64f_Packed, ownSub_vc_64f_Strided;
KernelOf<CombineVc<float64, P>> ownSub_vc_64f_P;

KernelOf<CombineVc<float32, S>> ownSub_cv_32f_Packed, ownSub_cv_32f_Strided;
KernelOf<CombineVc<float32, P>> ownSub_cv_32f_P;
KernelOf<CombineVc<float64, S>> ownSub_cv_64f_Packed, ownSub_cv_64f_Strided;
KernelOf<CombineVc<float64, P>> ownSub_cv_64f_P;

KernelOf<CombineVac<float32, S>> ownSub_vac_32f_Packed, ownSub_vac_32f_Strided, ownOMP_zepmSub_vac_32f;
KernelOf<CombineVac<float32, L>> ownSub_vac_32f_L_Packed, ownSub_vac_32f_L_Strided, ownOMP_zepmSub_vac_32f_L;
KernelOf<CombineVac<float32, P>> ownSub_vac_32f_P, ownOMP_zepmSub_vac_32f_P;
KernelOf<CombineVac<float64, S>> ownSub_vac_64f_Packed, ownSub_vac_64f_Strided, ownOMP_zepmSub_vac_64f;
KernelOf<CombineVac<float64, L>> ownSub_vac_64f_L_Packed, ownSub_vac_64f_L_Strided, ownOMP_zepmSub_vac_64f_L;
KernelOf<CombineVac<float64, P>> ownSub_vac_64f_P, ownOMP_zepmSub_vac_64f_P;

KernelOf<CombineCva<float32, S>> ownSub_cva_32f_Packed, ownSub_cva_32f_Strided, ownOMP_zepmSub_cva_32f;
KernelOf<CombineCva<float32, L>> ownSub_cva_32f_L_Packed, ownSub_cva_32f_L_Strided, ownOMP_zepmSub_cva_32f_L;
KernelOf<CombineCva<float32, P>> ownSub_cva_32f_P, ownOMP_zepmSub_cva_32f_P;
KernelOf<CombineCva<float64, S>> ownSub_cva_64f_Packed, ownSub_cva_64f_Strided, ownOMP_zepmSub_cva_64f;
KernelOf<CombineCva<float64, L>> ownSub_cva_64f_L_Packed, ownSub_cva_64f_L_Strided, ownOMP_zepmSub_cva_64f_L;
KernelOf<CombineCva<float64, P>> ownSub_cva_64f_P, ownOMP_zepmSub_cva_64f_P;

KernelOf<CombineVaca<float32, S>> ownSub_vaca_32f_Packed, ownSub_vaca_32f_Strided, ownOMP_zepmSub_vaca_32f;
KernelOf<CombineVaca<float32, L>> ownSub_vaca_32f_L_Packed, ownSub_vaca_32f_L_Strided, ownOMP_zepmSub_vaca_32f_L;
KernelOf<CombineVaca<float32, P>> ownSub_vaca_32f_P, ownOMP_zepmSub_vaca_32f_P;
KernelOf<CombineVaca<float64, S>> ownSub_vaca_64f_Packed, ownSub_vaca_64f_Strided, ownOMP_zepmSub_vaca_64f;
KernelOf<CombineVaca<float64, L>> ownSub_vaca_64f_L_Packed, ownSub_vaca_64f_L_Strided, ownOMP_zepmSub_vaca_64f_L;
KernelOf<CombineVaca<float64, P>> ownSub_vaca_64f_P, ownOMP_zepmSub_vaca_64f_P;

KernelOf<CombineVaca<float32, S>> ownSub_cava_32f_Packed, ownSub_cava_32f_Strided, ownOMP_zepmSub_cava_32f;
KernelOf<CombineVaca<float32, L>> ownSub_cava_32f_L_Packed, ownSub_cava_32f_L_Strided, ownOMP_zepmSub_cava_32f_L;
KernelOf<CombineVaca<float32, P>> ownSub_cava_32f_P, ownOMP_zepmSub_cava_32f_P;
KernelOf<CombineVaca<float64, S>> ownSub_cava_64f_Packed, ownSub_cava_64f_Strided, ownOMP_zepmSub_cava_64f;
KernelOf<CombineVaca<float64, L>> ownSub_cava_64f_L_Packed, ownSub_cava_64f_L_Strided, ownOMP_zepmSub_cava_64f_L;
KernelOf<CombineVaca<float64, P>> ownSub_cava_64f_P, ownOMP_zepmSub_cava_64f_P;

KernelOf<CombineVav<float32, S>> ownSub_vav_32f_Packed, ownSub_vav_32f_Strided, ownOMP_zepmSub_vav_32f;
KernelOf<CombineVav<float32, L>> ownSub_vav_32f_L_Packed, ownSub_vav_32f_L_Strided, ownOMP_zepmSub_vav_32f_L;
KernelOf<CombineVav<float32, P>> ownSub_vav_32f_P, ownOMP_zepmSub_vav_32f_P;
KernelOf<CombineVav<float64, S>> ownSub_vav_64f_Packed, ownSub_vav_64f_Strided, ownOMP_zepmSub_vav_64f;
KernelOf<CombineVav<float64, L>> ownSub_vav_64f_L_Packed, ownSub_vav_64f_L_Strided, ownOMP_zepmSub_vav_64f_L;
KernelOf<CombineVav<float64, P>> ownSub_vav_64f_P, ownOMP_zepmSub_vav_64f_P;

KernelOf<CombineVva<float32, S>> ownSub_vva_32f_Packed, ownSub_vva_32f_Strided, ownOMP_zepmSub_vva_32f;
KernelOf<CombineVva<float32, L>> ownSub_vva_32f_L_Packed, ownSub_vva_32f_L_Strided, ownOMP_zepmSub_vva_32f_L;
KernelOf<CombineVva<float32, P>> ownSub_vva_32f_P, ownOMP_zepmSub_vva_32f_P;
KernelOf<CombineVva<float64, S>> ownSub_vva_64f_Packed, ownSub_vva_64f_Strided, ownOMP_zepmSub_vva_64f;
KernelOf<CombineVva<float64, L>> ownSub_vva_64f_L_Packed, ownSub_vva_64f_L_Strided, ownOMP_zepmSub_vva_64f_L;
KernelOf<CombineVva<float64, P>> ownSub_vva_64f_P, ownOMP_zepmSub_vva_64f_P;

KernelOf<CombineVava<float32, S>> ownSub_vava_32f_Packed, ownSub_vava_32f_Strided, ownOMP_zepmSub_vava_32f;
KernelOf<CombineVava<float32, L>> ownSub_vava_32f_L_Packed, ownSub_vava_32f_L_Strided, ownOMP_zepmSub_vava_32f_L;
KernelOf<CombineVava<float32, P>> ownSub_vava_32f_P, ownOMP_zepmSub_vava_32f_P;
KernelOf<CombineVava<float64, S>> ownSub_vava_64f_Packed, ownSub_vava_64f_Strided, ownOMP_zepmSub_vava_64f;
KernelOf<CombineVava<float64, L>> ownSub_vava_64f_L_Packed, ownSub_vava_64f_L_Strided, ownOMP_zepmSub_vava_64f_L;
KernelOf<CombineVava<float64, P>> ownSub_vava_64f_P, ownOMP_zepmSub_vava_64f_P;

KernelOf<CombineVca<float32, S>> ownSub_vca_32f_Packed, ownSub_vca_32f_Strided, ownOMP_zepmSub_vca_32f;
KernelOf<CombineVca<float32, L>> ownSub_vca_32f_L_Packed, ownSub_vca_32f_L_Strided, ownOMP_zepmSub_vca_32f_L;
KernelOf<CombineVca<float32, P>> ownSub_vca_32f_P, ownOMP_zepmSub_vca_32f_P;
KernelOf<CombineVca<float64, S>> ownSub_vca_64f_Packed, ownSub_vca_64f_Strided, ownOMP_zepmSub_vca_64f;
KernelOf<CombineVca<float64, L>> ownSub_vca_64f_L_Packed, ownSub_vca_64f_L_Strided, ownOMP_zepmSub_vca_64f_L;
KernelOf<CombineVca<float64, P>> ownSub_vca_64f_P, ownOMP_zepmSub_vca_64f_P;

KernelOf<CombineVca<float32, S>> ownSub_cav_32f_Packed, ownSub_cav_32f_Strided, ownOMP_zepmSub_cav_32f;
KernelOf<CombineVca<float32, L>> ownSub_cav_32f_L_Packed, ownSub_cav_32f_L_Strided, ownOMP_zepmSub_cav_32f_L;
KernelOf<CombineVca<float32, P>> ownSub_cav_32f_P, ownOMP_zepmSub_cav_32f_P;
KernelOf<CombineVca<float64, S>> ownSub_cav_64f_Packed, ownSub_cav_64f_Strided, ownOMP_zepmSub_cav_64f;
KernelOf<CombineVca<float64, L>> ownSub_cav_64f_L_Packed, ownSub_cav_64f_L_Strided, ownOMP_zepmSub_cav_64f_L;
KernelOf<CombineVca<float64, P>> ownSub_cav_64f_P, ownOMP_zepmSub_cav_64f_P;
}

} // namespace zepm
