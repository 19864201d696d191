// Kernels and drivers of Sub on matrices.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

KernelOf<CombineMm<float32, S>> ownSub_mm_32f_Packed, ownSub_mm_32f_Strided;
KernelOf<CombineMm<float32, P>> ownSub_mm_32f_P;
KernelOf<CombineMm<float64, S>> ownSub_mm_64f_Packed, ownSub_mm_64f_Strided;
KernelOf<CombineMm<float64, P>> ownSub_mm_64f_P;

KernelOf<CombineMt<float32, S>> ownSub_mt_32f_Packed, ownSub_mt_32f_Strided;
KernelOf<CombineMt<float32, P>> ownSub_mt_32f_P;
KernelOf<CombineMt<float64, S>> ownSub_mt_64f_Packed, ownSub_mt_64f_Strided;
KernelOf<CombineMt<float64, P>> ownSub_mt_64f_P;

KernelOf<CombineTm<float32, S>> ownSub_tm_32f_Packed, ownSub_tm_32f_Strided;
KernelOf<CombineTm<float32, P>> ownSub_tm_32f_P;
KernelOf<CombineTm<float64, S>> ownSub_tm_64f_Packed, ownSub_tm_64f_Strided;
KernelOf<CombineTm<float64, P>> ownSub_tm_64f_P;

KernelOf<CombineTt<float32, S>> ownSub_tt_32f_Packed, ownSub_tt_32f_Strided;
KernelOf<CombineTt<float32, P>> ownSub_tt_32f_P;
KernelOf<CombineTt<float64, S>> ownSub_tt_64f_Packed, ownSub_tt_64f_Strided;
KernelOf<CombineTt<float64, P>> ownSub_tt_64f_P;

KernelOf<CombineMam<float32, S>> ownSub_mam_32f_Packed, ownSub_mam_32f_Strided, ownOMP_zepmSub_mam_32f;
KernelOf<CombineMam<float32, L>> ownSub_mam_32f_L_Packed, ownSub_mam_32f_L_Strided, ownOMP_zepmSub_mam_32f_L;
KernelOf<CombineMam<float32, P>> ownSub_mam_32f_P, ownOMP_zepmSub_mam_32f_P;
KernelOf<CombineMam<float64, S>> ownSub_mam_64f_Packed, ownSub_mam_64f_Strided, ownOMP_zepmSub_mam_64f;
KernelOf<CombineMam<float64, L>> ownSub_mam_64f_L_Packed, ownSub_mam_64f_L_Strided, ownOMP_zepmSub_mam_64f_L;
KernelOf<CombineMam<float64, P>> ownSub_mam_64f_P, ownOMP_zepmSub_mam_64f_P;

KernelOf<CombineMat<float32, S>> ownSub_mat_32f_Packed, ownSub_mat_32f_Strided, ownOMP_zepmSub_mat_32f;
KernelOf<CombineMat<float32, L>> ownSub_mat_32f_L_Packed, ownSub_mat_32f_L_Strided, ownOMP_zepmSub_mat_32f_L;
KernelOf<CombineMat<float32, P>> ownSub_mat_32f_P, ownOMP_zepmSub_mat_32f_P;
KernelOf<CombineMat<float64, S>> ownSub_mat_64f_Packed, ownSub_mat_64f_Strided, ownOMP_zepmSub_mat_64f;
KernelOf<CombineMat<float64, L>> ownSub_mat_64f_L_Packed, ownSub_mat_64f_L_Strided, ownOMP_zepmSub_mat_64f_L;
KernelOf<CombineMat<float64, P>> ownSub_mat_64f_P, ownOMP_zepmSub_mat_64f_P;

KernelOf<CombineTam<float32, S>> ownSub_tam_32f_Packed, ownSub_tam_32f_Strided, ownOMP_zepmSub_tam_32f;
KernelOf<CombineTam<float32, L>> ownSub_tam_32f_L_Packed, ownSub_tam_32f_L_Strided, ownOMP_zepmSub_tam_32f_L;
KernelOf<CombineTam<float32, P>> ownSub_tam_32f_P, ownOMP_zepmSub_tam_32f_P;
KernelOf<CombineTam<float64, S>> ownSub_tam_64f_Packed, ownSub_tam_64f_Strided, ownOMP_zepmSub_tam_64f;
KernelOf<CombineTam<float64, L>> ownSub_tam_64f_L_Packed, ownSub_tam_64f_L_Strided, ownOMP_zepmSub_tam_64f_L;
KernelOf<CombineTam<float64, P>> ownSub_tam_64f_P, ownOMP_zepmSub_tam_64f_P;

KernelOf<CombineTat<float32, S>> ownSub_tat_32f_Packed, ownSub_tat_32f_Strided, ownOMP_zepmSub_tat_32f;
KernelOf<CombineTat<float32, L>> ownSub_tat_32f_L_Packed, ownSub_tat_32f_L_Strided, ownOMP_zepmSub_tat_32f_L;
KernelOf<CombineTat<float32, P>> ownSub_tat_32f_P, ownOMP_zepmSub_tat_32f_P;
KernelOf<CombineTat<float64, S>> ownSub_tat_64f_Packed, ownSub_tat_64f_Strided, ownOMP_zepmSub_tat_64f;
KernelOf<CombineTat<float64, L>> ownSub_tat_64f_L_Packed, ownSub_tat_64f_L_Strided, ownOMP_zepmSub_tat_64f_L;
KernelOf<CombineTat<float64, P>> ownSub_tat_64f_P, ownOMP_zepmSub_tat_64f_P;

KernelOf<CombineMma<float32, S>> ownSub_mma_32f_Packed, ownSub_mma_32f_Strided, ownOMP_zepmSub_mma_32f;
KernelOf<CombineMma<float32, L>> ownSub_mma_32f_L_Packed, ownSub_mma_32f_L_Strided, ownOMP_zepmSub_mma_32f_L;
KernelOf<CombineMma<float32, P>> ownSub_mma_32f_P, ownOMP_zepmSub_mma_32f_P;
KernelOf<CombineMma<float64, S>> ownSub_mma_64f_Packed, ownSub_mma_64f_Strided, ownOMP_zepmSub_mma_64f;
KernelOf<CombineMma<float64, L>> ownSub_mma_64f_L_Packed, ownSub_mma_64f_L_Strided, ownOMP_zepmSub_mma_64f_L;
KernelOf<CombineMma<float64, P>> ownSub_mma_64f_P, ownOMP_zepmSub_mma_64f_P;

KernelOf<CombineMta<float32, S>> ownSub_mta_32f_Packed, ownSub_mta_32f_Strided, ownOMP_zepmSub_mta_32f;
KernelOf<CombineMta<float32, L>> ownSub_mta_32f_L_Packed, ownSub_mta_32f_L_Strided, ownOMP_zepmSub_mta_32f_L;
KernelOf<CombineMta<float32, P>> ownSub_mta_32f_P, ownOMP_zepmSub_mta_32f_P;
KernelOf<CombineMta<float64, S>> ownSub_mta_64f_Packed, ownSub_mta_64f_Strided, ownOMP_zepmSub_mta_64f;
KernelOf<CombineMta<float64, L>> ownSub_mta_64f_L_Packed, ownSub_mta_64f_L_Strided, ownOMP_zepmSub_mta_64f_L;
KernelOf<CombineMta<float64, P>> ownSub_mta_64f_P, ownOMP_zepmSub_mta_64f_P;

KernelOf<CombineTma<float32, S>> ownSub_tma_32f_Packed, ownSub_tma_32f_Strided, ownOMP_zepmSub_tma_32f;
KernelOf<CombineTma<float32, L>> ownSub_tma_32f_L_Packed, ownSub_tma_32f_L_Strided, ownOMP_zepmSub_tma_32f_L;
KernelOf<CombineTma<float32, P>> ownSub_tma_32f_P, ownOMP_zepmSub_tma_32f_P;
KernelOf<CombineTma<float64, S>> ownSub_tma_64f_Packed, ownSub_tma_64f_Strided, ownOMP_zepmSub_tma_64f;
KernelOf<CombineTma<float64, L>> ownSub_tma_64f_L_Packed, ownSub_tma_64f_L_Strided, ownOMP_zepmSub_tma_64f_L;
KernelOf<CombineTma<float64, P>> ownSub_tma_64f_P, ownOMP_zepmSub_tma_64f_P;

KernelOf<CombineTta<float32, S>> ownSub_tta_32f_Packed, ownSub_tta_32f_Strided, ownOMP_zepmSub_tta_32f;
KernelOf<CombineTta<float32, L>> ownSub_tta_32f_L_Packed, ownSub_tta_32f_L_Strided, ownOMP_zepmSub_tta_32f_L;
KernelOf<CombineTta<float32, P>> ownSub_tta_32f_P, ownOMP_zepmSub_tta_32f_P;
KernelOf<CombineTta<float64, S>> ownSub_tta_64f_Packed, ownSub_tta_64f_Strided, ownOMP_zepmSub_tta_64f;
KernelOf<CombineTta<float64, L>> ownSub_tta_64f_L_Packed, ownSub_tta_64f_L_Strided, ownOMP_zepmSub_tta_64f_L;
KernelOf<CombineTta<float64, P>> ownSub_tta_64f_P, ownOMP_zepmSub_tta_64f_P;

KernelOf<CombineMama<float32, S>> ownSub_mama_32f_Packed, ownSub_mama_32f_Strided, ownOMP_zepmSub_mama_32f;
KernelOf<CombineMama<float32, L>> ownSub_mama_32f_L_Packed, ownSub_mama_32f_L_Strided, ownOMP_zepmSub_mama_32f_L;
KernelOf<CombineMama<float32, P>> ownSub_mama_32f_P, ownOMP_zepmSub_mama_32f_P;
KernelOf<CombineMama<float64, S>> ownSub_mama_64f_Packed, ownSub_mama_64f_Strided, ownOMP_zepmSub_mama_64f;
KernelOf<CombineMama<float64, L>> ownSub_mama_64f_L_Packed, ownSub_mama_64f_L_Strided, ownOMP_zepmSub_mama_64f_L;
KernelOf<CombineMama<float64, P>> ownSub_mama_64f_P, ownOMP_zepmSub_mama_64f_P;

KernelOf<CombineMata<float32, S>> ownSub_mata_32f_Packed, ownSub_mata_32f_Strided, ownOMP_zepmSub_mata_32f;
KernelOf<CombineMata<float32, L>> ownSub_mata_32f_L_Packed, ownSub_mata_32f_L_Strided, ownOMP_zepmSub_mata_32f_L;
KernelOf<CombineMata<float32, P>> ownSub_mata_32f_P, ownOMP_zepmSub_mata_32f_P;
KernelOf<CombineMata<float64, S>> ownSub_mata_64f_Packed, ownSub_mata_64f_Strided, ownOMP_zepmSub_mata_64f;
KernelOf<CombineMata<float64, L>> ownSub_mata_64f_L_Packed, ownSub_mata_64f_L_Strided, ownOMP_zepmSub_mata_64f_L;
KernelOf<CombineMata<float64, P>> ownSub_mata_64f_P, ownOMP_zepmSub_mata_64f_P;

KernelOf<CombineTama<float32, S>> ownSub_tama_32f_Packed, ownSub_tama_32f_Strided, ownOMP_zepmSub_tama_32f;
KernelOf<CombineTama<float32, L>> ownSub_tama_32f_L_Packed, ownSub_tama_32f_L_Strided, ownOMP_zepmSub_tama_32f_L;
KernelOf<CombineTama<float32, P>> ownSub_tama_32f_P, ownOMP_zepmSub_tama_32f_P;
KernelOf<CombineTama<float64, S>> ownSub_tama_64f_Packed, ownSub_tama_64f_Strided, ownOMP_zepmSub_tama_64f;
KernelOf<CombineTama<float64, L>> ownSub_tama_64f_L_Packed, ownSub_tama_64f_L_Strided, ownOMP_zepmSub_tama_64f_L;
KernelOf<CombineTama<float64, P>> ownSub_tama_64f_P, ownOMP_zepmSub_tama_64f_P;

KernelOf<CombineTata<float32, S>> ownSub_tata_32f_Packed, ownSub_tata_32f_Strided, ownOMP_zepmSub_tata_32f;
KernelOf<CombineTata<float32, L>> ownSub_tata_32f_L_Packed, ownSub_tata_32f_L_Strided, ownOMP_zepmSub_tata_32f_L;
KernelOf<CombineTata<float32, P>> ownSub_tata_32f_P, ownOMP_zepmSub_tata_32f_P;
KernelOf<CombineTata<float64, S>> ownSub_tata_64f_Packed, ownSub_tata_64f_Strided, ownOMP_zepmSub_tata_64f;
KernelOf<CombineTata<float64, L>> ownSub_tata_64f_L_Packed, ownSub_tata_64f_L_Strided, ownOMP_zepmSub_tata_64f_L;
KernelOf<CombineTata<float64, P>> ownSub_tata_64f_P, ownOMP_zepmSub_tata_64f_P;
}

} // namespace zepm
