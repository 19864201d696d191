// Kernels and drivers of Sub on vectors.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

Status ownSub_vv_32f_Packed(const Vv<float32, S>& x);
Status ownSub_vv_32f_Strided(const Vv<float32, S>& x);
Status ownSub_vv_32f_P(const Vv<float32, P>& x);
Status ownSub_vv_64f_Packed(const Vv<float64, S>& x);
Status ownSub_vv_64f_Strided(const Vv<float64, S>& x);
Status ownSub_vv_64f_P(const Vv<float64, P>& x);

Status ownSub_vc_32f_Packed(const Vc<float32, S>& x);
Status ownSub_vc_32f_Strided(const Vc<float32, S>& x);
Status ownSub_vc_32f_P(const Vc<float32, P>& x);
Status ownSub_vc_64f_Packed(const Vc<float64, S>& x);
Status ownSub_vc_64f_Strided(const Vc<float64, S>& x);
Status ownSub_vc_64f_P(const Vc<float64, P>& x);

Status ownSub_cv_32f_Packed(const Vc<float32, S>& x);
Status ownSub_cv_32f_Strided(const Vc<float32, S>& x);
Status ownSub_cv_32f_P(const Vc<float32, P>& x);
Status ownSub_cv_64f_Packed(const Vc<float64, S>& x);
Status ownSub_cv_64f_Strided(const Vc<float64, S>& x);
Status ownSub_cv_64f_P(const Vc<float64, P>& x);

Status ownSub_vac_32f_Packed(const Vac<float32, S>& x);
Status ownSub_vac_32f_Strided(const Vac<float32, S>& x);
Status ownOMP_zepmSub_vac_32f(const Vac<float32, S>& x);
Status ownSub_vac_32f_L_Packed(const Vac<float32, L>& x);
Status ownSub_vac_32f_L_Strided(const Vac<float32, L>& x);
Status ownOMP_zepmSub_vac_32f_L(const Vac<float32, L>& x);
Status ownSub_vac_32f_P(const Vac<float32, P>& x);
Status ownOMP_zepmSub_vac_32f_P(const Vac<float32, P>& x);
Status ownSub_vac_64f_Packed(const Vac<float64, S>& x);
Status ownSub_vac_64f_Strided(const Vac<float64, S>& x);
Status ownOMP_zepmSub_vac_64f(const Vac<float64, S>& x);
Status ownSub_vac_64f_L_Packed(const Vac<float64, L>& x);
Status ownSub_vac_64f_L_Strided(const Vac<float64, L>& x);
Status ownOMP_zepmSub_vac_64f_L(const Vac<float64, L>& x);
Status ownSub_vac_64f_P(const Vac<float64, P>& x);
Status ownOMP_zepmSub_vac_64f_P(const Vac<float64, P>& x);

Status ownSub_cva_32f_Packed(const Cva<float32, S>& x);
Status ownSub_cva_32f_Strided(const Cva<float32, S>& x);
Status ownOMP_zepmSub_cva_32f(const Cva<float32, S>& x);
Status ownSub_cva_32f_L_Packed(const Cva<float32, L>& x);
Status ownSub_cva_32f_L_Strided(const Cva<float32, L>& x);
Status ownOMP_zepmSub_cva_32f_L(const Cva<float32, L>& x);
Status ownSub_cva_32f_P(const Cva<float32, P>& x);
Status ownOMP_zepmSub_cva_32f_P(const Cva<float32, P>& x);
Status ownSub_cva_64f_Packed(const Cva<float64, S>& x);
Status ownSub_cva_64f_Strided(const Cva<float64, S>& x);
Status ownOMP_zepmSub_cva_64f(const Cva<float64, S>& x);
Status ownSub_cva_64f_L_Packed(const Cva<float64, L>& x);
Status ownSub_cva_64f_L_Strided(const Cva<float64, L>& x);
Status ownOMP_zepmSub_cva_64f_L(const Cva<float64, L>& x);
Status ownSub_cva_64f_P(const Cva<float64, P>& x);
Status ownOMP_zepmSub_cva_64f_P(const Cva<float64, P>& x);

Status ownSub_vaca_32f_Packed(const Vaca<float32, S>& x);
Status ownSub_vaca_32f_Strided(const Vaca<float32, S>& x);
Status ownOMP_zepmSub_vaca_32f(const Vaca<float32, S>& x);
Status ownSub_vaca_32f_L_Packed(const Vaca<float32, L>& x);
Status ownSub_vaca_32f_L_Strided(const Vaca<float32, L>& x);
Status ownOMP_zepmSub_vaca_32f_L(const Vaca<float32, L>& x);
Status ownSub_vaca_32f_P(const Vaca<float32, P>& x);
Status ownOMP_zepmSub_vaca_32f_P(const Vaca<float32, P>& x);
Status ownSub_vaca_64f_Packed(const Vaca<float64, S>& x);
Status ownSub_vaca_64f_Strided(const Vaca<float64, S>& x);
Status ownOMP_zepmSub_vaca_64f(const Vaca<float64, S>& x);
Status ownSub_vaca_64f_L_Packed(const Vaca<float64, L>& x);
Status ownSub_vaca_64f_L_Strided(const Vaca<float64, L>& x);
Status ownOMP_zepmSub_vaca_64f_L(const Vaca<float64, L>& x);
Status ownSub_vaca_64f_P(const Vaca<float64, P>& x);
Status ownOMP_zepmSub_vaca_64f_P(const Vaca<float64, P>& x);

Status ownSub_cava_32f_Packed(const Vaca<float32, S>& x);
Status ownSub_cava_32f_Strided(const Vaca<float32, S>& x);
Status ownOMP_zepmSub_cava_32f(const Vaca<float32, S>& x);
Status ownSub_cava_32f_L_Packed(const Vaca<float32, L>& x);
Status ownSub_cava_32f_L_Strided(const Vaca<float32, L>& x);
Status ownOMP_zepmSub_cava_32f_L(const Vaca<float32, L>& x);
Status ownSub_cava_32f_P(const Vaca<float32, P>& x);
Status ownOMP_zepmSub_cava_32f_P(const Vaca<float32, P>& x);
Status ownSub_cava_64f_Packed(const Vaca<float64, S>& x);
Status ownSub_cava_64f_Strided(const Vaca<float64, S>& x);
Status ownOMP_zepmSub_cava_64f(const Vaca<float64, S>& x);
Status ownSub_cava_64f_L_Packed(const Vaca<float64, L>& x);
Status ownSub_cava_64f_L_Strided(const Vaca<float64, L>& x);
Status ownOMP_zepmSub_cava_64f_L(const Vaca<float64, L>& x);
Status ownSub_cava_64f_P(const Vaca<float64, P>& x);
Status ownOMP_zepmSub_cava_64f_P(const Vaca<float64, P>& x);

Status ownSub_vav_32f_Packed(const Vav<float32, S>& x);
Status ownSub_vav_32f_Strided(const Vav<float32, S>& x);
Status ownOMP_zepmSub_vav_32f(const Vav<float32, S>& x);
Status ownSub_vav_32f_L_Packed(const Vav<float32, L>& x);
Status ownSub_vav_32f_L_Strided(const Vav<float32, L>& x);
Status ownOMP_zepmSub_vav_32f_L(const Vav<float32, L>& x);
Status ownSub_vav_32f_P(const Vav<float32, P>& x);
Status ownOMP_zepmSub_vav_32f_P(const Vav<float32, P>& x);
Status ownSub_vav_64f_Packed(const Vav<float64, S>& x);
Status ownSub_vav_64f_Strided(const Vav<float64, S>& x);
Status ownOMP_zepmSub_vav_64f(const Vav<float64, S>& x);
Status ownSub_vav_64f_L_Packed(const Vav<float64, L>& x);
Status ownSub_vav_64f_L_Strided(const Vav<float64, L>& x);
Status ownOMP_zepmSub_vav_64f_L(const Vav<float64, L>& x);
Status ownSub_vav_64f_P(const Vav<float64, P>& x);
Status ownOMP_zepmSub_vav_64f_P(const Vav<float64, P>& x);

Status ownSub_vva_32f_Packed(const Vva<float32, S>& x);
Status ownSub_vva_32f_Strided(const Vva<float32, S>& x);
Status ownOMP_zepmSub_vva_32f(const Vva<float32, S>& x);
Status ownSub_vva_32f_L_Packed(const Vva<float32, L>& x);
Status ownSub_vva_32f_L_Strided(const Vva<float32, L>& x);
Status ownOMP_zepmSub_vva_32f_L(const Vva<float32, L>& x);
Status ownSub_vva_32f_P(const Vva<float32, P>& x);
Status ownOMP_zepmSub_vva_32f_P(const Vva<float32, P>& x);
Status ownSub_vva_64f_Packed(const Vva<float64, S>& x);
Status ownSub_vva_64f_Strided(const Vva<float64, S>& x);
Status ownOMP_zepmSub_vva_64f(const Vva<float64, S>& x);
Status ownSub_vva_64f_L_Packed(const Vva<float64, L>& x);
Status ownSub_vva_64f_L_Strided(const Vva<float64, L>& x);
Status ownOMP_zepmSub_vva_64f_L(const Vva<float64, L>& x);
Status ownSub_vva_64f_P(const Vva<float64, P>& x);
Status ownOMP_zepmSub_vva_64f_P(const Vva<float64, P>& x);

Status ownSub_vava_32f_Packed(const Vava<float32, S>& x);
Status ownSub_vava_32f_Strided(const Vava<float32, S>& x);
Status ownOMP_zepmSub_vava_32f(const Vava<float32, S>& x);
Status ownSub_vava_32f_L_Packed(const Vava<float32, L>& x);
Status ownSub_vava_32f_L_Strided(const Vava<float32, L>& x);
Status ownOMP_zepmSub_vava_32f_L(const Vava<float32, L>& x);
Status ownSub_vava_32f_P(const Vava<float32, P>& x);
Status ownOMP_zepmSub_vava_32f_P(const Vava<float32, P>& x);
Status ownSub_vava_64f_Packed(const Vava<float64, S>& x);
Status ownSub_vava_64f_Strided(const Vava<float64, S>& x);
Status ownOMP_zepmSub_vava_64f(const Vava<float64, S>& x);
Status ownSub_vava_64f_L_Packed(const Vava<float64, L>& x);
Status ownSub_vava_64f_L_Strided(const Vava<float64, L>& x);
Status ownOMP_zepmSub_vava_64f_L(const Vava<float64, L>& x);
Status ownSub_vava_64f_P(const Vava<float64, P>& x);
Status ownOMP_zepmSub_vava_64f_P(const Vava<float64, P>& x);

Status ownSub_vca_32f_Packed(const Vca<float32, S>& x);
Status ownSub_vca_32f_Strided(const Vca<float32, S>& x);
Status ownOMP_zepmSub_vca_32f(const Vca<float32, S>& x);
Status ownSub_vca_32f_L_Packed(const Vca<float32, L>& x);
Status ownSub_vca_32f_L_Strided(const Vca<float32, L>& x);
Status ownOMP_zepmSub_vca_32f_L(const Vca<float32, L>& x);
Status ownSub_vca_32f_P(const Vca<float32, P>& x);
Status ownOMP_zepmSub_vca_32f_P(const Vca<float32, P>& x);
Status ownSub_vca_64f_Packed(const Vca<float64, S>& x);
Status ownSub_vca_64f_Strided(const Vca<float64, S>& x);
Status ownOMP_zepmSub_vca_64f(const Vca<float64, S>& x);
Status ownSub_vca_64f_L_Packed(const Vca<float64, L>& x);
Status ownSub_vca_64f_L_Strided(const Vca<float64, L>& x);
Status ownOMP_zepmSub_vca_64f_L(const Vca<float64, L>& x);
Status ownSub_vca_64f_P(const Vca<float64, P>& x);
Status ownOMP_zepmSub_vca_64f_P(const Vca<float64, P>& x);

Status ownSub_cav_32f_Packed(const Vca<float32, S>& x);
Status ownSub_cav_32f_Strided(const Vca<float32, S>& x);
Status ownOMP_zepmSub_cav_32f(const Vca<float32, S>& x);
Status ownSub_cav_32f_L_Packed(const Vca<float32, L>& x);
Status ownSub_cav_32f_L_Strided(const Vca<float32, L>& x);
Status ownOMP_zepmSub_cav_32f_L(const Vca<float32, L>& x);
Status ownSub_cav_32f_P(const Vca<float32, P>& x);
Status ownOMP_zepmSub_cav_32f_P(const Vca<float32, P>& x);
Status ownSub_cav_64f_Packed(const Vca<float64, S>& x);
Status ownSub_cav_64f_Strided(const Vca<float64, S>& x);
Status ownOMP_zepmSub_cav_64f(const Vca<float64, S>& x);
Status ownSub_cav_64f_L_Packed(const Vca<float64, L>& x);
Status ownSub_cav_64f_L_Strided(const Vca<float64, L>& x);
Status ownOMP_zepmSub_cav_64f_L(const Vca<float64, L>& x);
Status ownSub_cav_64f_P(const Vca<float64, P>& x);
Status ownOMP_zepmSub_cav_64f_P(const Vca<float64, P>& x);
}

} // namespace zepm
