// Kernels and drivers of Add on matrices.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CombineMm<float32, S>> ownAdd_mm_32f_Packed, ownAdd_mm_32f_Strided;
KernelOf<CombineMm<float32, P>> ownAdd_mm_32f_P;
KernelOf<CombineMm<float64, S>> ownAdd_mm_64f_Packed, ownAdd_mm_64f_Strided;
KernelOf<CombineMm<float64, P>> ownAdd_mm_64f_P;

KernelOf<CombineTm<float32, S>> ownAdd_tm_32f_Packed, ownAdd_tm_32f_Strided;
KernelOf<CombineTm<float32, P>> ownAdd_tm_32f_P;
KernelOf<CombineTm<float64, S>> ownAdd_tm_64f_Packed, ownAdd_tm_64f_Strided;
KernelOf<CombineTm<float64, P>> ownAdd_tm_64f_P;

KernelOf<CombineTt<float32, S>> ownAdd_tt_32f_Packed, ownAdd_tt_32f_Strided;
KernelOf<CombineTt<float32, P>> ownAdd_tt_32f_P;
KernelOf<CombineTt<float64, S>> ownAdd_tt_64f_Packed, ownAdd_tt_64f_Strided;
KernelOf<CombineTt<float64, P>> ownAdd_tt_64f_P;

KernelOf<CombineMam<float32, S>> ownAdd_mam_32f_Packed, ownAdd_mam_32f_Strided, ownOMP_zepmAdd_mam_32f;
KernelOf<CombineMam<float32, L>> ownAdd_mam_32f_L_Packed, ownAdd_mam_32f_L_Strided, ownOMP_zepmAdd_mam_32f_L;
KernelOf<CombineMam<float32, P>> ownAdd_mam_32f_P, ownOMP_zepmAdd_mam_32f_P;
KernelOf<CombineMam<float64, S>> ownAdd_mam_64f_Packed, ownAdd_mam_64f_Strided, ownOMP_zepmAdd_mam_64f;
KernelOf<CombineMam<float64, L>> ownAdd_mam_64f_L_Packed, ownAdd_mam_64f_L_Strided, ownOMP_zepmAdd_mam_64f_L;
KernelOf<CombineMam<float64, P>> ownAdd_mam_64f_P, ownOMP_zepmAdd_mam_64f_P;

KernelOf<CombineMat<float32, S>> ownAdd_mat_32f_Packed, ownAdd_mat_32f_Strided, ownOMP_zepmAdd_mat_32f;
KernelOf<CombineMat<float32, L>> ownAdd_mat_32f_L_Packed, ownAdd_mat_32f_L_Strided, ownOMP_zepmAdd_mat_32f_L;
KernelOf<CombineMat<float32, P>> ownAdd_mat_32f_P, ownOMP_zepmAdd_mat_32f_P;
KernelOf<CombineMat<float64, S>> ownAdd_mat_64f_Packed, ownAdd_mat_64f_Strided, ownOMP_zepmAdd_mat_64f;
KernelOf<CombineMat<float64, L>> ownAdd_mat_64f_L_Packed, ownAdd_mat_64f_L_Strided, ownOMP_zepmAdd_mat_64f_L;
KernelOf<CombineMat<float64, P>> ownAdd_mat_64f_P, ownOMP_zepmAdd_mat_64f_P;

KernelOf<CombineTam<float32, S>> ownAdd_tam_32f_Packed, ownAdd_tam_32f_Strided, ownOMP_zepmAdd_tam_32f;
KernelOf<CombineTam<float32, L>> ownAdd_tam_32f_L_Packed, ownAdd_tam_32f_L_Strided, ownOMP_zepmAdd_tam_32f_L;
KernelOf<CombineTam<float32, P>> ownAdd_tam_32f_P, ownOMP_zepmAdd_tam_32f_P;
KernelOf<CombineTam<float64, S>> ownAdd_tam_64f_Packed, ownAdd_tam_64f_Strided, ownOMP_zepmAdd_tam_64f;
KernelOf<CombineTam<float64, L>> ownAdd_tam_64f_L_Packed, ownAdd_tam_64f_L_Strided, ownOMP_zepmAdd_tam_64f_L;
KernelOf<CombineTam<float64, P>> ownAdd_tam_64f_P, ownOMP_zepmAdd_tam_64f_P;

KernelOf<CombineTat<float32, S>> ownAdd_tat_32f_Packed, ownAdd_tat_32f_Strided, ownOMP_zepmAdd_tat_32f;
KernelOf<CombineTat<float32, L>> ownAdd_tat_32f_L_Packed, ownAdd_tat_32f_L_Strided, ownOMP_zepmAdd_tat_32f_L;
KernelOf<CombineTat<float32, P>> ownAdd_tat_32f_P, ownOMP_zepmAdd_tat_32f_P;
KernelOf<CombineTat<float64, S>> ownAdd_tat_64f_Packed, ownAdd_tat_64f_Strided, ownOMP_zepmAdd_tat_64f;
KernelOf<CombineTat<float64, L>> ownAdd_tat_64f_L_Packed, ownAdd_tat_64f_L_Strided, ownOMP_zepmAdd_tat_64f_L;
KernelOf<CombineTat<float64, P>> ownAdd_tat_64f_P, ownOMP_zepmAdd_tat_64f_P;

KernelOf<CombineMama<float32, S>> ownAdd_mama_32f_Packed, ownAdd_mama_32f_Strided, ownOMP_zepmAdd_mama_32f;
KernelOf<CombineMama<float32, L>> ownAdd_mama_32f_L_Packed, ownAdd_mama_32f_L_Strided, ownOMP_zepmAdd_mama_32f_L;
KernelOf<CombineMama<float32, P>> ownAdd_mama_32f_P, ownOMP_zepmAdd_mama_32f_P;
KernelOf<CombineMama<float64, S>> ownAdd_mama_64f_Packed, ownAdd_mama_64f_Strided, ownOMP_zepmAdd_mama_64f;
KernelOf<CombineMama<float64, L>> ownAdd_mama_64f_L_Packed, ownAdd_mama_64f_L_Strided, ownOMP_zepmAdd_mama_64f_L;
KernelOf<CombineMama<float64, P>> ownAdd_mama_64f_P, ownOMP_zepmAdd_mama_64f_P;

KernelOf<CombineTama<float32, S>> ownAdd_tama_32f_Packed, ownAdd_tama_32f_Strided, ownOMP_zepmAdd_tama_32f;
KernelOf<CombineTama<float32, L>> ownAdd_tama_32f_L_Packed, ownAdd_tama_32f_L_Strided, ownOMP_zepmAdd_tama_32f_L;
KernelOf<CombineTama<float32, P>> ownAdd_tama_32f_P, ownOMP_zepmAdd_tama_32f_P;
KernelOf<CombineTama<float64, S>> ownAdd_tama_64f_Packed, ownAdd_tama_64f_Strided, ownOMP_zepmAdd_tama_64f;
KernelOf<CombineTama<float64, L>> ownAdd_tama_64f_L_Packed, ownAdd_tama_64f_L_Strided, ownOMP_zepmAdd_tama_64f_L;
KernelOf<CombineTama<float64, P>> ownAdd_tama_64f_P, ownOMP_zepmAdd_tama_64f_P;

KernelOf<CombineTata<float32, S>> ownAdd_tata_32f_Packed, ownAdd_tata_32f_Strided, ownOMP_zepmAdd_tata_32f;
KernelOf<CombineTata<float32, L>> ownAdd_tata_32f_L_Packed, ownAdd_tata_32f_L_Strided, ownOMP_zepmAdd_tata_32f_L;
KernelOf<CombineTata<float32, P>> ownAdd_tata_32f_P, ownOMP_zepmAdd_tata_32f_P;
KernelOf<CombineTata<float64, S>> ownAdd_tata_64f_Packed, ownAdd_tata_64f_Strided, ownOMP_zepmAdd_tata_64f;
KernelOf<CombineTata<float64, L>> ownAdd_tata_64f_L_Packed, ownAdd_tata_64f_L_Strided, ownOMP_zepmAdd_tata_64f_L;
KernelOf<CombineTata<float64, P>> ownAdd_tata_64f_P, ownOMP_zepmAdd_tata_64f_P;
}

} // namespace zepm
