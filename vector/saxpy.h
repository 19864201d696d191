// Kernels and drivers of Saxpy.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<SaxpyVv<float32, S>> ownSaxpy_vv_32f_Packed, ownSaxpy_vv_32f_Strided;
KernelOf<SaxpyVv<float32, P>> ownSaxpy_vv_32f_P;
KernelOf<SaxpyVv<float64, S>> ownSaxpy_vv_64f_Packed, ownSaxpy_vv_64f_Strided;
KernelOf<SaxpyVv<float64, P>> ownSaxpy_vv_64f_P;

KernelOf<SaxpyVav<float32, S>> ownSaxpy_vav_32f_Packed, ownSaxpy_vav_32f_Strided, ownOMP_zepmSaxpy_vav_32f;
KernelOf<SaxpyVav<float32, L>> ownSaxpy_vav_32f_L_Packed, ownSaxpy_vav_32f_L_Strided, ownOMP_zepmSaxpy_vav_32f_L;
KernelOf<SaxpyVav<float32, P>> ownSaxpy_vav_32f_P, ownOMP_zepmSaxpy_vav_32f_P;
KernelOf<SaxpyVav<float64, S>> ownSaxpy_vav_64f_Packed, ownSaxpy_vav_64f_Strided, ownOMP_zepmSaxpy_vav_64f;
KernelOf<SaxpyVav<float64, L>> ownSaxpy_vav_64f_L_Packed, ownSaxpy_vav_64f_L_Strided, ownOMP_zepmSaxpy_vav_64f_L;
KernelOf<SaxpyVav<float64, P>> ownSaxpy_vav_64f_P, ownOMP_zepmSaxpy_vav_64f_P;

KernelOf<SaxpyVva<float32, S>> ownSaxpy_vva_32f_Packed, ownSaxpy_vva_32f_Strided, ownOMP_zepmSaxpy_vva_32f;
KernelOf<SaxpyVva<float32, L>> ownSaxpy_vva_32f_L_Packed, ownSaxpy_vva_32f_L_Strided, ownOMP_zepmSaxpy_vva_32f_L;
KernelOf<SaxpyVva<float32, P>> ownSaxpy_vva_32f_P, ownOMP_zepmSaxpy_vva_32f_P;
KernelOf<SaxpyVva<float64, S>> ownSaxpy_vva_64f_Packed, ownSaxpy_vva_64f_Strided, ownOMP_zepmSaxpy_vva_64f;
KernelOf<SaxpyVva<float64, L>> ownSaxpy_vva_64f_L_Packed, ownSaxpy_vva_64f_L_Strided, ownOMP_zepmSaxpy_vva_64f_L;
KernelOf<SaxpyVva<float64, P>> ownSaxpy_vva_64f_P, ownOMP_zepmSaxpy_vva_64f_P;

KernelOf<SaxpyVava<float32, S>> ownSaxpy_vava_32f_Packed, ownSaxpy_vava_32f_Strided, ownOMP_zepmSaxpy_vava_32f;
KernelOf<SaxpyVava<float32, L>> ownSaxpy_vava_32f_L_Packed, ownSaxpy_vava_32f_L_Strided, ownOMP_zepmSaxpy_vava_32f_L;
KernelOf<SaxpyVava<float32, P>> ownSaxpy_vava_32f_P, ownOMP_zepmSaxpy_vava_32f_P;
KernelOf<SaxpyVava<float64, S>> ownSaxpy_vava_64f_Packed, ownSaxpy_vava_64f_Strided, ownOMP_zepmSaxpy_vava_64f;
KernelOf<SaxpyVava<float64, L>> ownSaxpy_vava_64f_L_Packed, ownSaxpy_vava_64f_L_Strided, ownOMP_zepmSaxpy_vava_64f_L;
KernelOf<SaxpyVava<float64, P>> ownSaxpy_vava_64f_P, ownOMP_zepmSaxpy_vava_64f_P;
}

} // namespace zepm
