// Kernels and drivers of CrossProduct.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CrossVv<float32, S>> ownCrossProduct_vv_32f_Packed, ownCrossProduct_vv_32f_Strided;
KernelOf<CrossVv<float32, P>> ownCrossProduct_vv_32f_P;
KernelOf<CrossVv<float64, S>> ownCrossProduct_vv_64f_Packed, ownCrossProduct_vv_64f_Strided;
KernelOf<CrossVv<float64, P>> ownCrossProduct_vv_64f_P;

KernelOf<CrossVav<float32, S>> ownCrossProduct_vav_32f_Packed, ownCrossProduct_vav_32f_Strided,
    ownOMP_zepmCrossProduct_vav_32f;
KernelOf<CrossVav<float32, L>> ownCrossProduct_vav_32f_L_Packed, ownCrossProduct_vav_32f_L_Strided,
    ownOMP_zepmCrossProduct_vav_32f_L;
KernelOf<CrossVav<float32, P>> ownCrossProduct_vav_32f_P, ownOMP_zepmCrossProduct_vav_32f_P;
KernelOf<CrossVav<float64, S>> ownCrossProduct_vav_64f_Packed, ownCrossProduct_vav_64f_Strided,
    ownOMP_zepmCrossProduct_vav_64f;
KernelOf<CrossVav<float64, L>> ownCrossProduct_vav_64f_L_Packed, ownCrossProduct_vav_64f_L_Strided,
    ownOMP_zepmCrossProduct_vav_64f_L;
KernelOf<CrossVav<float64, P>> ownCrossProduct_vav_64f_P, ownOMP_zepmCrossProduct_vav_64f_P;

KernelOf<CrossVva<float32, S>> ownCrossProduct_vva_32f_Packed, ownCrossProduct_vva_32f_Strided,
    ownOMP_zepmCrossProduct_vva_32f;
KernelOf<CrossVva<float32, L>> ownCrossProduct_vva_32f_L_Packed, ownCrossProduct_vva_32f_L_Strided,
    ownOMP_zepmCrossProduct_vva_32f_L;
KernelOf<CrossVva<float32, P>> ownCrossProduct_vva_32f_P, ownOMP_zepmCrossProduct_vva_32f_P;
KernelOf<CrossVva<float64, S>> ownCrossProduct_vva_64f_Packed, ownCrossProduct_vva_64f_Strided,
    ownOMP_zepmCrossProduct_vva_64f;
KernelOf<CrossVva<float64, L>> ownCrossProduct_vva_64f_L_Packed, ownCrossProduct_vva_64f_L_Strided,
    ownOMP_zepmCrossProduct_vva_64f_L;
KernelOf<CrossVva<float64, P>> ownCrossProduct_vva_64f_P, ownOMP_zepmCrossProduct_vva_64f_P;

KernelOf<CrossVava<float32, S>> ownCrossProduct_vava_32f_Packed, ownCrossProduct_vava_32f_Strided,
    ownOMP_zepmCrossProduct_vava_32f;
KernelOf<CrossVava<float32, L>> ownCrossProduct_vava_32f_L_Packed, ownCrossProduct_vava_32f_L_Strided,
    ownOMP_zepmCrossProduct_vava_32f_L;
KernelOf<CrossVava<float32, P>> ownCrossProduct_vava_32f_P, ownOMP_zepmCrossProduct_vava_32f_P;
KernelOf<CrossVava<float64, S>> ownCrossProduct_vava_64f_Packed, ownCrossProduct_vava_64f_Strided,
    ownOMP_zepmCrossProduct_vava_64f;
KernelOf<CrossVava<float64, L>> ownCrossProduct_vava_64f_L_Packed, ownCrossProduct_vava_64f_L_Strided,
    ownOMP_zepmCrossProduct_vava_64f_L;
KernelOf<CrossVava<float64, P>> ownCrossProduct_vava_64f_P, ownOMP_zepmCrossProduct_vava_64f_P;
}

} // namespace zepm
