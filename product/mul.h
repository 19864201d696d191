// Kernels and drivers of Mul on matrices.
#pragma once

#include "product/forms.h"

namespace zepm
{

extern "C" {

KernelOf<MultiplyMm<float32, S>> ownMul_mm_32f_Packed, ownMul_mm_32f_Strided;
KernelOf<MultiplyMm<float32, P>> ownMul_mm_32f_P;
KernelOf<MultiplyMm<float64, S>> ownMul_mm_64f_Packed, ownMul_mm_64f_Strided;
KernelOf<MultiplyMm<float64, P>> ownMul_mm_64f_P;

KernelOf<MultiplyMt<float32, S>> ownMul_mt_32f_Packed, ownMul_mt_32f_Strided;
KernelOf<MultiplyMt<float32, P>> ownMul_mt_32f_P;
KernelOf<MultiplyMt<float64, S>> ownMul_mt_64f_Packed, ownMul_mt_64f_Strided;
KernelOf<MultiplyMt<float64, P>> ownMul_mt_64f_P;

KernelOf<MultiplyTm<float32, S>> ownMul_tm_32f_Packed, ownMul_tm_32f_Strided;
KernelOf<MultiplyTm<float32, P>> ownMul_tm_32f_P;
KernelOf<MultiplyTm<float64, S>> ownMul_tm_64f_Packed, ownMul_tm_64f_Strided;
KernelOf<MultiplyTm<float64, P>> ownMul_tm_64f_P;

KernelOf<MultiplyTt<float32, S>> ownMul_tt_32f_Packed, ownMul_tt_32f_Strided;
KernelOf<MultiplyTt<float32, P>> ownMul_tt_32f_P;
KernelOf<MultiplyTt<float64, S>> ownMul_tt_64f_Packed, ownMul_tt_64f_Strided;
KernelOf<MultiplyTt<float64, P>> ownMul_tt_64f_P;

KernelOf<MultiplyMam<float32, S>> ownMul_mam_32f_Packed, ownMul_mam_32f_Strided, ownOMP_zepmMul_mam_32f;
KernelOf<MultiplyMam<float32, L>> ownMul_mam_32f_L_Packed, ownMul_mam_32f_L_Strided, ownOMP_zepmMul_mam_32f_L;
KernelOf<MultiplyMam<float32, P>> ownMul_mam_32f_P, ownOMP_zepmMul_mam_32f_P;
KernelOf<MultiplyMam<float64, S>> ownMul_mam_64f_Packed, ownMul_mam_64f_Strided, ownOMP_zepmMul_mam_64f;
KernelOf<MultiplyMam<float64, L>> ownMul_mam_64f_L_Packed, ownMul_mam_64f_L_Strided, ownOMP_zepmMul_mam_64f_L;
KernelOf<MultiplyMam<float64, P>> ownMul_mam_64f_P, ownOMP_zepmMul_mam_64f_P;

KernelOf<MultiplyMat<float32, S>> ownMul_mat_32f_Packed, ownMul_mat_32f_Strided, ownOMP_zepmMul_mat_32f;
KernelOf<MultiplyMat<float32, L>> ownMul_mat_32f_L_Packed, ownMul_mat_32f_L_Strided, ownOMP_zepmMul_mat_32f_L;
KernelOf<MultiplyMat<float32, P>> ownMul_mat_32f_P, ownOMP_zepmMul_mat_32f_P;
KernelOf<MultiplyMat<float64, S>> ownMul_mat_64f_Packed, ownMul_mat_64f_Strided, ownOMP_zepmMul_mat_64f;
KernelOf<MultiplyMat<float64, L>> ownMul_mat_64f_L_Packed, ownMul_mat_64f_L_Strided, ownOMP_zepmMul_mat_64f_L;
KernelOf<MultiplyMat<float64, P>> ownMul_mat_64f_P, ownOMP_zepmMul_mat_64f_P;

KernelOf<MultiplyTam<float32, S>> ownMul_tam_32f_Packed, ownMul_tam_32f_Strided, ownOMP_zepmMul_tam_32f;
KernelOf<MultiplyTam<float32, L>> ownMul_tam_32f_L_Packed, ownMul_tam_32f_L_Strided, ownOMP_zepmMul_tam_32f_L;
KernelOf<MultiplyTam<float32, P>> ownMul_tam_32f_P, ownOMP_zepmMul_tam_32f_P;
KernelOf<MultiplyTam<float64, S>> ownMul_tam_64f_Packed, ownMul_tam_64f_Strided, ownOMP_zepmMul_tam_64f;
KernelOf<MultiplyTam<float64, L>> ownMul_tam_64f_L_Packed, ownMul_tam_64f_L_Strided, ownOMP_zepmMul_tam_64f_L;
KernelOf<MultiplyTam<float64, P>> ownMul_tam_64f_P, ownOMP_zepmMul_tam_64f_P;

KernelOf<MultiplyTat<float32, S>> ownMul_tat_32f_Packed, ownMul_tat_32f_Strided, ownOMP_zepmMul_tat_32f;
KernelOf<MultiplyTat<float32, L>> ownMul_tat_32f_L_Packed, ownMul_tat_32f_L_Strided, ownOMP_zepmMul_tat_32f_L;
KernelOf<MultiplyTat<float32, P>> ownMul_tat_32f_P, ownOMP_zepmMul_tat_32f_P;
KernelOf<MultiplyTat<float64, S>> ownMul_tat_64f_Packed, ownMul_tat_64f_Strided, ownOMP_zepmMul_tat_64f;
KernelOf<MultiplyTat<float64, L>> ownMul_tat_64f_L_Packed, ownMul_tat_64f_L_Strided, ownOMP_zepmMul_tat_64f_L;
KernelOf<MultiplyTat<float64, P>> ownMul_tat_64f_P, ownOMP_zepmMul_tat_64f_P;

KernelOf<MultiplyMma<float32, S>> ownMul_mma_32f_Packed, ownMul_mma_32f_Strided, ownOMP_zepmMul_mma_32f;
KernelOf<MultiplyMma<float32, L>> ownMul_mma_32f_L_Packed, ownMul_mma_32f_L_Strided, ownOMP_zepmMul_mma_32f_L;
KernelOf<MultiplyMma<float32, P>> ownMul_mma_32f_P, ownOMP_zepmMul_mma_32f_P;
KernelOf<MultiplyMma<float64, S>> ownMul_mma_64f_Packed, ownMul_mma_64f_Strided, ownOMP_zepmMul_mma_64f;
KernelOf<MultiplyMma<float64, L>> ownMul_mma_64f_L_Packed, ownMul_mma_64f_L_Strided, ownOMP_zepmMul_mma_64f_L;
KernelOf<MultiplyMma<float64, P>> ownMul_mma_64f_P, ownOMP_zepmMul_mma_64f_P;

KernelOf<MultiplyMta<float32, S>> ownMul_mta_32f_Packed, ownMul_mta_32f_Strided, ownOMP_zepmMul_mta_32f;
KernelOf<MultiplyMta<float32, L>> ownMul_mta_32f_L_Packed, ownMul_mta_32f_L_Strided, ownOMP_zepmMul_mta_32f_L;
KernelOf<MultiplyMta<float32, P>> ownMul_mta_32f_P, ownOMP_zepmMul_mta_32f_P;
KernelOf<MultiplyMta<float64, S>> ownMul_mta_64f_Packed, ownMul_mta_64f_Strided, ownOMP_zepmMul_mta_64f;
KernelOf<MultiplyMta<float64, L>> ownMul_mta_64f_L_Packed, ownMul_mta_64f_L_Strided, ownOMP_zepmMul_mta_64f_L;
KernelOf<MultiplyMta<float64, P>> ownMul_mta_64f_P, ownOMP_zepmMul_mta_64f_P;

KernelOf<MultiplyTma<float32, S>> ownMul_tma_32f_Packed, ownMul_tma_32f_Strided, ownOMP_zepmMul_tma_32f;
KernelOf<MultiplyTma<float32, L>> ownMul_tma_32f_L_Packed, ownMul_tma_32f_L_Strided, ownOMP_zepmMul_tma_32f_L;
KernelOf<MultiplyTma<float32, P>> ownMul_tma_32f_P, ownOMP_zepmMul_tma_32f_P;
KernelOf<MultiplyTma<float64, S>> ownMul_tma_64f_Packed, ownMul_tma_64f_Strided, ownOMP_zepmMul_tma_64f;
KernelOf<MultiplyTma<float64, L>> ownMul_tma_64f_L_Packed, ownMul_tma_64f_L_Strided, ownOMP_zepmMul_tma_64f_L;
KernelOf<MultiplyTma<float64, P>> ownMul_tma_64f_P, ownOMP_zepmMul_tma_64f_P;

KernelOf<MultiplyTta<float32, S>> ownMul_tta_32f_Packed, ownMul_tta_32f_Strided, ownOMP_zepmMul_tta_32f;
KernelOf<MultiplyTta<float32, L>> ownMul_tta_32f_L_Packed, ownMul_tta_32f_L_Strided, ownOMP_zepmMul_tta_32f_L;
KernelOf<MultiplyTta<float32, P>> ownMul_tta_32f_P, ownOMP_zepmMul_tta_32f_P;
KernelOf<MultiplyTta<float64, S>> ownMul_tta_64f_Packed, ownMul_tta_64f_Strided, ownOMP_zepmMul_tta_64f;
KernelOf<MultiplyTta<float64, L>> ownMul_tta_64f_L_Packed, ownMul_tta_64f_L_Strided, ownOMP_zepmMul_tta_64f_L;
KernelOf<MultiplyTta<float64, P>> ownMul_tta_64f_P, ownOMP_zepmMul_tta_64f_P;

KernelOf<MultiplyMama<float32, S>> ownMul_mama_32f_Packed, ownMul_mama_32f_Strided, ownOMP_zepmMul_mama_32f;
KernelOf<MultiplyMama<float32, L>> ownMul_mama_32f_L_Packed, ownMul_mama_32f_L_Strided, ownOMP_zepmMul_mama_32f_L;
KernelOf<MultiplyMama<float32, P>> ownMul_mama_32f_P, ownOMP_zepmMul_mama_32f_P;
KernelOf<MultiplyMama<float64, S>> ownMul_mama_64f_Packed, ownMul_mama_64f_Strided, ownOMP_zepmMul_mama_64f;
KernelOf<MultiplyMama<float64, L>> ownMul_mama_64f_L_Packed, ownMul_mama_64f_L_Strided, ownOMP_zepmMul_mama_64f_L;
KernelOf<MultiplyMama<float64, P>> ownMul_mama_64f_P, ownOMP_zepmMul_mama_64f_P;

KernelOf<MultiplyMata<float32, S>> ownMul_mata_32f_Packed, ownMul_mata_32f_Strided, ownOMP_zepmMul_mata_32f;
KernelOf<MultiplyMata<float32, L>> ownMul_mata_32f_L_Packed, ownMul_mata_32f_L_Strided, ownOMP_zepmMul_mata_32f_L;
KernelOf<MultiplyMata<float32, P>> ownMul_mata_32f_P, ownOMP_zepmMul_mata_32f_P;
KernelOf<MultiplyMata<float64, S>> ownMul_mata_64f_Packed, ownMul_mata_64f_Strided, ownOMP_zepmMul_mata_64f;
KernelOf<MultiplyMata<float64, L>> ownMul_mata_64f_L_Packed, ownMul_mata_64f_L_Strided, ownOMP_zepmMul_mata_64f_L;
KernelOf<MultiplyMata<float64, P>> ownMul_mata_64f_P, ownOMP_zepmMul_mata_64f_P;

KernelOf<MultiplyTama<float32, S>> ownMul_tama_32f_Packed, ownMul_tama_32f_Strided, ownOMP_zepmMul_tama_32f;
KernelOf<MultiplyTama<float32, L>> ownMul_tama_32f_L_Packed, ownMul_tama_32f_L_Strided, ownOMP_zepmMul_tama_32f_L;
KernelOf<MultiplyTama<float32, P>> ownMul_tama_32f_P, ownOMP_zepmMul_tama_32f_P;
KernelOf<MultiplyTama<float64, S>> ownMul_tama_64f_Packed, ownMul_tama_64f_Strided, ownOMP_zepmMul_tama_64f;
KernelOf<MultiplyTama<float64, L>> ownMul_tama_64f_L_Packed, ownMul_tama_64f_L_Strided, ownOMP_zepmMul_tama_64f_L;
KernelOf<MultiplyTama<float64, P>> ownMul_tama_64f_P, ownOMP_zepmMul_tama_64f_P;

KernelOf<MultiplyTata<float32, S>> ownMul_tata_32f_Packed, ownMul_tata_32f_Strided, ownOMP_zepmMul_tata_32f;
KernelOf<MultiplyTata<float32, L>> ownMul_tata_32f_L_Packed, ownMul_tata_32f_L_Strided, ownOMP_zepmMul_tata_32f_L;
KernelOf<MultiplyTata<float32, P>> ownMul_tata_32f_P, ownOMP_zepmMul_tata_32f_P;
KernelOf<MultiplyTata<float64, S>> ownMul_tata_64f_Packed, ownMul_tata_64f_Strided, ownOMP_zepmMul_tata_64f;
KernelOf<MultiplyTata<float64, L>> ownMul_tata_64f_L_Packed, ownMul_tata_64f_L_Strided, ownOMP_zepmMul_tata_64f_L;
KernelOf<MultiplyTata<float64, P>> ownMul_tata_64f_P, ownOMP_zepmMul_tata_64f_P;
}

} // namespace zepm
