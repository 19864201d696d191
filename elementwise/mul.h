// Kernels and drivers of the multiplication by a constant.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

Status ownMul_vc_32f_Packed(const Vc<float32, S>& x);
Status ownMul_vc_32f_Strided(const Vc<float32, S>& x);
Status ownMul_vc_32f_P(const Vc<float32, P>& x);
Status ownMul_vc_64f_Packed(const Vc<float64, S>& x);
Status ownMul_vc_64f_Strided(const Vc<float64, S>& x);
Status ownMul_vc_64f_P(const Vc<float64, P>& x);

Status ownMul_vac_32f_Packed(const MulVac<float32, S>& x);
Status ownMul_vac_32f_Strided(const MulVac<float32, S>& x);
Status ownOMP_zepmMul_vac_32f(const MulVac<float32, S>& x);
Status ownMul_vac_32f_L_Packed(const MulVac<float32, L>& x);
Status ownMul_vac_32f_L_Strided(const MulVac<float32, L>& x);
Status ownOMP_zepmMul_vac_32f_L(const MulVac<float32, L>& x);
Status ownMul_vac_32f_P(const MulVac<float32, P>& x);
Status ownOMP_zepmMul_vac_32f_P(const MulVac<float32, P>& x);
Status ownMul_vac_64f_Packed(const MulVac<float64, S>& x);
Status ownMul_vac_64f_Strided(const MulVac<float64, S>& x);
Status ownOMP_zepmMul_vac_64f(const MulVac<float64, S>& x);
Status ownMul_vac_64f_L_Packed(const MulVac<float64, L>& x);
Status ownMul_vac_64f_L_Strided(const MulVac<float64, L>& x);
Status ownOMP_zepmMul_vac_64f_L(const MulVac<float64, L>& x);
Status ownMul_vac_64f_P(const MulVac<float64, P>& x);
Status ownOMP_zepmMul_vac_64f_P(const MulVac<float64, P>& x);

Status ownMul_vca_32f_Packed(const Vca<float32, S>& x);
Status ownMul_vca_32f_Strided(const Vca<float32, S>& x);
Status ownOMP_zepmMul_vca_32f(const Vca<float32, S>& x);
Status ownMul_vca_32f_L_Packed(const Vca<float32, L>& x);
Status ownMul_vca_32f_L_Strided(const Vca<float32, L>& x);
Status ownOMP_zepmMul_vca_32f_L(const Vca<float32, L>& x);
Status ownMul_vca_32f_P(const Vca<float32, P>& x);
Status ownOMP_zepmMul_vca_32f_P(const Vca<float32, P>& x);
Status ownMul_vca_64f_Packed(const Vca<float64, S>& x);
Status ownMul_vca_64f_Strided(const Vca<float64, S>& x);
Status ownOMP_zepmMul_vca_64f(const Vca<float64, S>& x);
Status ownMul_vca_64f_L_Packed(const Vca<float64, L>& x);
Status ownMul_vca_64f_L_Strided(const Vca<float64, L>& x);
Status ownOMP_zepmMul_vca_64f_L(const Vca<float64, L>& x);
Status ownMul_vca_64f_P(const Vca<float64, P>& x);
Status ownOMP_zepmMul_vca_64f_P(const Vca<float64, P>& x);

Status ownMul_vaca_32f_Packed(const Vaca<float32, S>& x);
Status ownMul_vaca_32f_Strided(const Vaca<float32, S>& x);
Status ownOMP_zepmMul_vaca_32f(const Vaca<float32, S>& x);
Status ownMul_vaca_32f_L_Packed(const Vaca<float32, L>& x);
Status ownMul_vaca_32f_L_Strided(const Vaca<float32, L>& x);
Status ownOMP_zepmMul_vaca_32f_L(const Vaca<float32, L>& x);
Status ownMul_vaca_32f_P(const Vaca<float32, P>& x);
Status ownOMP_zepmMul_vaca_32f_P(const Vaca<float32, P>& x);
Status ownMul_vaca_64f_Packed(const Vaca<float64, S>& x);
Status ownMul_vaca_64f_Strided(const Vaca<float64, S>& x);
Status ownOMP_zepmMul_vaca_64f(const Vaca<float64, S>& x);
Status ownMul_vaca_64f_L_Packed(const Vaca<float64, L>& x);
Status ownMul_vaca_64f_L_Strided(const Vaca<float64, L>& x);
Status ownOMP_zepmMul_vaca_64f_L(const Vaca<float64, L>& x);
Status ownMul_vaca_64f_P(const Vaca<float64, P>& x);
Status ownOMP_zepmMul_vaca_64f_P(const Vaca<float64, P>& x);

Status ownMul_mc_32f_Packed(const Mc<float32, S>& x);
Status ownMul_mc_32f_Strided(const Mc<float32, S>& x);
Status ownMul_mc_32f_P(const Mc<float32, P>& x);
Status ownMul_mc_64f_Packed(const Mc<float64, S>& x);
Status ownMul_mc_64f_Strided(const Mc<float64, S>& x);
Status ownMul_mc_64f_P(const Mc<float64, P>& x);

Status ownMul_tc_32f_Packed(const Tc<float32, S>& x);
Status ownMul_tc_32f_Strided(const Tc<float32, S>& x);
Status ownMul_tc_32f_P(const Tc<float32, P>& x);
Status ownMul_tc_64f_Packed(const Tc<float64, S>& x);
Status ownMul_tc_64f_Strided(const Tc<float64, S>& x);
Status ownMul_tc_64f_P(const Tc<float64, P>& x);

Status ownMul_mac_32f_Packed(const Mac<float32, S>& x);
Status ownMul_mac_32f_Strided(const Mac<float32, S>& x);
Status ownOMP_zepmMul_mac_32f(const Mac<float32, S>& x);
Status ownMul_mac_32f_L_Packed(const Mac<float32, L>& x);
Status ownMul_mac_32f_L_Strided(const Mac<float32, L>& x);
Status ownOMP_zepmMul_mac_32f_L(const Mac<float32, L>& x);
Status ownMul_mac_32f_P(const Mac<float32, P>& x);
Status ownOMP_zepmMul_mac_32f_P(const Mac<float32, P>& x);
Status ownMul_mac_64f_Packed(const Mac<float64, S>& x);
Status ownMul_mac_64f_Strided(const Mac<float64, S>& x);
Status ownOMP_zepmMul_mac_64f(const Mac<float64, S>& x);
Status ownMul_mac_64f_L_Packed(const Mac<float64, L>& x);
Status ownMul_mac_64f_L_Strided(const Mac<float64, L>& x);
Status ownOMP_zepmMul_mac_64f_L(const Mac<float64, L>& x);
Status ownMul_mac_64f_P(const Mac<float64, P>& x);
Status ownOMP_zepmMul_mac_64f_P(const Mac<float64, P>& x);

Status ownMul_tac_32f_Packed(const Tac<float32, S>& x);
Status ownMul_tac_32f_Strided(const Tac<float32, S>& x);
Status ownOMP_zepmMul_tac_32f(const Tac<float32, S>& x);
Status ownMul_tac_32f_L_Packed(const Tac<float32, L>& x);
Status ownMul_tac_32f_L_Strided(const Tac<float32, L>& x);
Status ownOMP_zepmMul_tac_32f_L(const Tac<float32, L>& x);
Status ownMul_tac_32f_P(const Tac<float32, P>& x);
Status ownOMP_zepmMul_tac_32f_P(const Tac<float32, P>& x);
Status ownMul_tac_64f_Packed(const Tac<float64, S>& x);
Status ownMul_tac_64f_Strided(const Tac<float64, S>& x);
Status ownOMP_zepmMul_tac_64f(const Tac<float64, S>& x);
Status ownMul_tac_64f_L_Packed(const Tac<float64, L>& x);
Status ownMul_tac_64f_L_Strided(const Tac<float64, L>& x);
Status ownOMP_zepmMul_tac_64f_L(const Tac<float64, L>& x);
Status ownMul_tac_64f_P(const Tac<float64, P>& x);
Status ownOMP_zepmMul_tac_64f_P(const Tac<float64, P>& x);
}

} // namespace zepm
