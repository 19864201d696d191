// Kernels and drivers of LUBackSubst.
#pragma once

#include "solver/forms.h"

namespace zepm
{

extern "C" {

Status ownLUBackSubst_mv_32f_Packed(const SolveMv<float32, S>& x);
Status ownLUBackSubst_mv_32f_Strided(const SolveMv<float32, S>& x);
Status ownLUBackSubst_mv_32f_P(const SolveMv<float32, P>& x);
Status ownLUBackSubst_mv_64f_Packed(const SolveMv<float64, S>& x);
Status ownLUBackSubst_mv_64f_Strided(const SolveMv<float64, S>& x);
Status ownLUBackSubst_mv_64f_P(const SolveMv<float64, P>& x);

Status ownLUBackSubst_mva_32f_Packed(const SolveMva<float32, S>& x);
Status ownLUBackSubst_mva_32f_Strided(const SolveMva<float32, S>& x);
Status ownOMP_zepmLUBackSubst_mva_32f(const SolveMva<float32, S>& x);
Status ownLUBackSubst_mva_32f_L_Packed(const SolveMva<float32, L>& x);
Status ownLUBackSubst_mva_32f_L_Strided(const SolveMva<float32, L>& x);
Status ownOMP_zepmLUBackSubst_mva_32f_L(const SolveMva<float32, L>& x);
Status ownLUBackSubst_mva_32f_P(const SolveMva<float32, P>& x);
Status ownOMP_zepmLUBackSubst_mva_32f_P(const SolveMva<float32, P>& x);
Status ownLUBackSubst_mva_64f_Packed(const SolveMva<float64, S>& x);
Status ownLUBackSubst_mva_64f_Strided(const SolveMva<float64, S>& x);
Status ownOMP_zepmLUBackSubst_mva_64f(const SolveMva<float64, S>& x);
Status ownLUBackSubst_mva_64f_L_Packed(const SolveMva<float64, L>& x);
Status ownLUBackSubst_mva_64f_L_Strided(const SolveMva<float64, L>& x);
Status ownOMP_zepmLUBackSubst_mva_64f_L(const SolveMva<float64, L>& x);
Status ownLUBackSubst_mva_64f_P(const SolveMva<float64, P>& x);
Status ownOMP_zepmLUBackSubst_mva_64f_P(const SolveMva<float64, P>& x);

Status ownLUBackSubst_mava_32f_Packed(const SolveMava<float32, S>& x);
Status ownLUBackSubst_mava_32f_Strided(const SolveMava<float32, S>& x);
Status ownOMP_zepmLUBackSubst_mava_32f(const SolveMava<float32, S>& x);
Status ownLUBackSubst_mava_32f_L_Packed(const SolveMava<float32, L>& x);
Status ownLUBackSubst_mava_32f_L_Strided(const SolveMava<float32, L>& x);
Status ownOMP_zepmLUBackSubst_mava_32f_L(const SolveMava<float32, L>& x);
Status ownLUBackSubst_mava_32f_P(const SolveMava<float32, P>& x);
Status ownOMP_zepmLUBackSubst_mava_32f_P(const SolveMava<float32, P>& x);
Status ownLUBackSubst_mava_64f_Packed(const SolveMava<float64, S>& x);
Status ownLUBackSubst_mava_64f_Strided(const SolveMava<float64, S>& x);
Status ownOMP_zepmLUBackSubst_mava_64f(const SolveMava<float64, S>& x);
Status ownLUBackSubst_mava_64f_L_Packed(const SolveMava<float64, L>& x);
Status ownLUBackSubst_mava_64f_L_Strided(const SolveMava<float64, L>& x);
Status ownOMP_zepmLUBackSubst_mava_64f_L(const SolveMava<float64, L>& x);
Status ownLUBackSubst_mava_64f_P(const SolveMava<float64, P>& x);
Status ownOMP_zepmLUBackSubst_mava_64f_P(const SolveMava<float64, P>& x);
}

} // namespace zepm
