// Kernels and drivers of Add on vectors.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

Status ownAdd_vv_32f_Packed(const Vv<float32, S>& x);
Status ownAdd_vv_32f_Strided(const Vv<float32, S>& x);
Status ownAdd_vv_32f_P(const Vv<float32, P>& x);
Status ownAdd_vv_64f_Packed(const Vv<float64, S>& x);
Status ownAdd_vv_64f_Strided(const Vv<float64, S>& x);
Status ownAdd_vv_64f_P(const Vv<float64, P>& x);

Status ownAdd_vc_32f_Packed(const Vc<float32, S>& x);
Status ownAdd_vc_32f_Strided(const Vc<float32, S>& x);
Status ownAdd_vc_32f_P(const Vc<float32, P>& x);
Status ownAdd_vc_64f_Packed(const Vc<float64, S>& x);
Status ownAdd_vc_64f_Strided(const Vc<float64, S>& x);
Status ownAdd_vc_64f_P(const Vc<float64, P>& x);

Status ownAdd_vac_32f_Packed(const Vac<float32, S>& x);
Status ownAdd_vac_32f_Strided(const Vac<float32, S>& x);
Status ownOMP_zepmAdd_vac_32f(const Vac<float32, S>& x);
Status ownAdd_vac_32f_L_Packed(const Vac<float32, L>& x);
Status ownAdd_vac_32f_L_Strided(const Vac<float32, L>& x);
Status ownOMP_zepmAdd_vac_32f_L(const Vac<float32, L>& x);
Status ownAdd_vac_32f_P(const Vac<float32, P>& x);
Status ownOMP_zepmAdd_vac_32f_P(const Vac<float32, P>& x);
Status ownAdd_vac_64f_Packed(const Vac<float64, S>& x);
Status ownAdd_vac_64f_Strided(const Vac<float64, S>& x);
Status ownOMP_zepmAdd_vac_64f(const Vac<float64, S>& x);
Status ownAdd_vac_64f_L_Packed(const Vac<float64, L>& x);
Status ownAdd_vac_64f_L_Strided(const Vac<float64, L>& x);
Status ownOMP_zepmAdd_vac_64f_L(const Vac<float64, L>& x);
Status ownAdd_vac_64f_P(const Vac<float64, P>& x);
Status ownOMP_zepmAdd_vac_64f_P(const Vac<float64, P>& x);

Status ownAdd_vaca_32f_Packed(const Vaca<float32, S>& x);
Status ownAdd_vaca_32f_Strided(const Vaca<float32, S>& x);
Status ownOMP_zepmAdd_vaca_32f(const Vaca<float32, S>& x);
Status ownAdd_vaca_32f_L_Packed(const Vaca<float32, L>& x);
Status ownAdd_vaca_32f_L_Strided(const Vaca<float32, L>& x);
Status ownOMP_zepmAdd_vaca_32f_L(const Vaca<float32, L>& x);
Status ownAdd_vaca_32f_P(const Vaca<float32, P>& x);
Status ownOMP_zepmAdd_vaca_32f_P(const Vaca<float32, P>& x);
Status ownAdd_vaca_64f_Packed(const Vaca<float64, S>& x);
Status ownAdd_vaca_64f_Strided(const Vaca<float64, S>& x);
Status ownOMP_zepmAdd_vaca_64f(const Vaca<float64, S>& x);
Status ownAdd_vaca_64f_L_Packed(const Vaca<float64, L>& x);
Status ownAdd_vaca_64f_L_Strided(const Vaca<float64, L>& x);
Status ownOMP_zepmAdd_vaca_64f_L(const Vaca<float64, L>& x);
Status ownAdd_vaca_64f_P(const Vaca<float64, P>& x);
Status ownOMP_zepmAdd_vaca_64f_P(const Vaca<float64, P>& x);

Status ownAdd_vav_32f_Packed(const Vav<float32, S>& x);
Status ownAdd_vav_32f_Strided(const Vav<float32, S>& x);
Status ownOMP_zepmAdd_vav_32f(const Vav<float32, S>& x);
Status ownAdd_vav_32f_L_Packed(const Vav<float32, L>& x);
Status ownAdd_vav_32f_L_Strided(const Vav<float32, L>& x);
Status ownOMP_zepmAdd_vav_32f_L(const Vav<float32, L>& x);
Status ownAdd_vav_32f_P(const Vav<float32, P>& x);
Status ownOMP_zepmAdd_vav_32f_P(const Vav<float32, P>& x);
Status ownAdd_vav_64f_Packed(const Vav<float64, S>& x);
Status ownAdd_vav_64f_Strided(const Vav<float64, S>& x);
Status ownOMP_zepmAdd_vav_64f(const Vav<float64, S>& x);
Status ownAdd_vav_64f_L_Packed(const Vav<float64, L>& x);
Status ownAdd_vav_64f_L_Strided(const Vav<float64, L>& x);
Status ownOMP_zepmAdd_vav_64f_L(const Vav<float64, L>& x);
Status ownAdd_vav_64f_P(const Vav<float64, P>& x);
Status ownOMP_zepmAdd_vav_64f_P(const Vav<float64, P>& x);

Status ownAdd_vava_32f_Packed(const Vava<float32, S>& x);
Status ownAdd_vava_32f_Strided(const Vava<float32, S>& x);
Status ownOMP_zepmAdd_vava_32f(const Vava<float32, S>& x);
Status ownAdd_vava_32f_L_Packed(const Vava<float32, L>& x);
Status ownAdd_vava_32f_L_Strided(const Vava<float32, L>& x);
Status ownOMP_zepmAdd_vava_32f_L(const Vava<float32, L>& x);
Status ownAdd_vava_32f_P(const Vava<float32, P>& x);
Status ownOMP_zepmAdd_vava_32f_P(const Vava<float32, P>& x);
Status ownAdd_vava_64f_Packed(const Vava<float64, S>& x);
Status ownAdd_vava_64f_Strided(const Vava<float64, S>& x);
Status ownOMP_zepmAdd_vava_64f(const Vava<float64, S>& x);
Status ownAdd_vava_64f_L_Packed(const Vava<float64, L>& x);
Status ownAdd_vava_64f_L_Strided(const Vava<float64, L>& x);
Status ownOMP_zepmAdd_vava_64f_L(const Vava<float64, L>& x);
Status ownAdd_vava_64f_P(const Vava<float64, P>& x);
Status ownOMP_zepmAdd_vava_64f_P(const Vava<float64, P>& x);

Status ownAdd_vca_32f_Packed(const Vca<float32, S>& x);
Status ownAdd_vca_32f_Strided(const Vca<float32, S>& x);
Status ownOMP_zepmAdd_vca_32f(const Vca<float32, S>& x);
Status ownAdd_vca_32f_L_Packed(const Vca<float32, L>& x);
Status ownAdd_vca_32f_L_Strided(const Vca<float32, L>& x);
Status ownOMP_zepmAdd_vca_32f_L(const Vca<float32, L>& x);
Status ownAdd_vca_32f_P(const Vca<float32, P>& x);
Status ownOMP_zepmAdd_vca_32f_P(const Vca<float32, P>& x);
Status ownAdd_vca_64f_Packed(const Vca<float64, S>& x);
Status ownAdd_vca_64f_Strided(const Vca<float64, S>& x);
Status ownOMP_zepmAdd_vca_64f(const Vca<float64, S>& x);
Status ownAdd_vca_64f_L_Packed(const Vca<float64, L>& x);
Status ownAdd_vca_64f_L_Strided(const Vca<float64, L>& x);
Status ownOMP_zepmAdd_vca_64f_L(const Vca<float64, L>& x);
Status ownAdd_vca_64f_P(const Vca<float64, P>& x);
Status ownOMP_zepmAdd_vca_64f_P(const Vca<float64, P>& x);
}

} // namespace zepm
