// Kernels and drivers of DotProduct.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<DotVv<float32, S>> ownDotProduct_vv_32f_Packed, ownDotProduct_vv_32f_Strided;
KernelOf<DotVv<float32, P>> ownDotProduct_vv_32f_P;
KernelOf<DotVv<float64, S>> ownDotProduct_vv_64f_Packed, ownDotProduct_vv_64f_Strided;
KernelOf<DotVv<float64, P>> ownDotProduct_vv_64f_P;

KernelOf<DotVav<float32, S>> ownDotProduct_vav_32f_Packed, ownDotProduct_vav_32f_Strided, ownOMP_zepmDotProduct_vav_32f;
KernelOf<DotVav<float32, L>> ownDotProduct_vav_32f_L_Packed, ownDotProduct_vav_32f_L_Strided,
    ownOMP_zepmDotProduct_vav_32f_L;
KernelOf<DotVav<float32, P>> ownDotProduct_vav_32f_P, ownOMP_zepmDotProduct_vav_32f_P;
KernelOf<DotVav<float64, S>> ownDotProduct_vav_64f_Packed, ownDotProduct_vav_64f_Strided, ownOMP_zepmDotProduct_vav_64f;
KernelOf<DotVav<float64, L>> ownDotProduct_vav_64f_L_Packed, ownDotProduct_vav_64f_L_Strided,
    ownOMP_zepmDotProduct_vav_64f_L;
KernelOf<DotVav<float64, P>> ownDotProduct_vav_64f_P, ownOMP_zepmDotProduct_vav_64f_P;

KernelOf<DotVava<float32, S>> ownDotProduct_vava_32f_Packed, ownDotProduct_vava_32f_Strided,
    ownOMP_zepmDotProduct_vava_32f;
KernelOf<DotVava<float32, L>> ownDotProduct_vava_32f_L_Packed, ownDotProduct_vava_32f_L_Strided,
    ownOMP_zepmDotProduct_vava_32f_L;
KernelOf<DotVava<float32, P>> ownDotProduct_vava_32f_P, ownOMP_zepmDotProduct_vava_32f_P;
KernelOf<DotVava<float64, S>> ownDotProduct_vava_64f_Packed, ownDotProduct_vava_64f_Strided,
    ownOMP_zepmDotProduct_vava_64f;
KernelOf<DotVava<float64, L>> ownDotProduct_vava_64f_L_Packed, ownDotProduct_vava_64f_L_Strided,
    ownOMP_zepmDotProduct_vava_64f_L;
KernelOf<DotVava<float64, P>> ownDotProduct_vava_64f_P, ownOMP_zepmDotProduct_vava_64f_P;
}

} // namespace zepm
