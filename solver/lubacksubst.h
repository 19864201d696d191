// Kernels and drivers of LUBackSubst.
#pragma once

#include "solver/forms.h"

namespace zepm
{

extern "C" {

KernelOf<SolveMv<float32, S>> ownLUBackSubst_mv_32f_Packed, ownLUBackSubst_mv_32f_Strided;
KernelOf<SolveMv<float32, P>> ownLUBackSubst_mv_32f_P;
KernelOf<SolveMv<float64, S>> ownLUBackSubst_mv_64f_Packed, ownLUBackSubst_mv_64f_Strided;
KernelOf<SolveMv<float64, P>> ownLUBackSubst_mv_64f_P;

KernelOf<SolveMva<float32, S>> ownLUBackSubst_mva_32f_Packed, ownLUBackSubst_mva_32f_Strided,
    ownOMP_zepmLUBackSubst_mva_32f;
KernelOf<SolveMva<float32, L>> ownLUBackSubst_mva_32f_L_Packed, ownLUBackSubst_mva_32f_L_Strided,
    ownOMP_zepmLUBackSubst_mva_32f_L;
KernelOf<SolveMva<float32, P>> ownLUBackSubst_mva_32f_P, ownOMP_zepmLUBackSubst_mva_32f_P;
KernelOf<SolveMva<float64, S>> ownLUBackSubst_mva_64f_Packed, ownLUBackSubst_mva_64f_Strided,
    ownOMP_zepmLUBackSubst_mva_64f;
KernelOf<SolveMva<float64, L>> ownLUBackSubst_mva_64f_L_Packed, ownLUBackSubst_mva_64f_L_Strided,
    ownOMP_zepmLUBackSubst_mva_64f_L;
KernelOf<SolveMva<float64, P>> ownLUBackSubst_mva_64f_P, ownOMP_zepmLUBackSubst_mva_64f_P;

KernelOf<SolveMava<float32, S>> ownLUBackSubst_mava_32f_Packed, ownLUBackSubst_mava_32f_Strided,
    ownOMP_zepmLUBackSubst_mava_32f;
KernelOf<SolveMava<float32, L>> ownLUBackSubst_mava_32f_L_Packed, ownLUBackSubst_mava_32f_L_Strided,
    ownOMP_zepmLUBackSubst_mava_32f_L;
KernelOf<SolveMava<float32, P>> ownLUBackSubst_mava_32f_P, ownOMP_zepmLUBackSubst_mava_32f_P;
KernelOf<SolveMava<float64, S>> ownLUBackSubst_mava_64f_Packed, ownLUBackSubst_mava_64f_Strided,
    ownOMP_zepmLUBackSubst_mava_64f;
KernelOf<SolveMava<float64, L>> ownLUBackSubst_mava_64f_L_Packed, ownLUBackSubst_mava_64f_L_Strided,
    ownOMP_zepmLUBackSubst_mava_64f_L;
KernelOf<SolveMava<float64, P>> ownLUBackSubst_mava_64f_P, ownOMP_zepmLUBackSubst_mava_64f_P;
}

} // namespace zepm
