// Kernels and drivers of Trace.
#pragma once

#include "vector/forms.h"

namespace zepm
{

extern "C" {

KernelOf<TraceM<float32, S>> ownTrace_m_32f_Packed, ownTrace_m_32f_Strided;
KernelOf<TraceM<float32, P>> ownTrace_m_32f_P;
KernelOf<TraceM<float64, S>> ownTrace_m_64f_Packed, ownTrace_m_64f_Strided;
KernelOf<TraceM<float64, P>> ownTrace_m_64f_P;

KernelOf<TraceMa<float32, S>> ownTrace_ma_32f_Packed, ownTrace_ma_32f_Strided, ownOMP_zepmTrace_ma_32f;
KernelOf<TraceMa<float32, L>> ownTrace_ma_32f_L_Packed, ownTrace_ma_32f_L_Strided, ownOMP_zepmTrace_ma_32f_L;
KernelOf<TraceMa<float32, P>> ownTrace_ma_32f_P, ownOMP_zepmTrace_ma_32f_P;
KernelOf<TraceMa<float64, S>> ownTrace_ma_64f_Packed, ownTrace_ma_64f_Strided, ownOMP_zepmTrace_ma_64f;
KernelOf<TraceMa<float64, L>> ownTrace_ma_64f_L_Packed, ownTrace_ma_64f_L_Strided, ownOMP_zepmTrace_ma_64f_L;
KernelOf<TraceMa<float64, P>> ownTrace_ma_64f_P, ownOMP_zepmTrace_ma_64f_P;
}

} // namespace zepm
