// Kernels and drivers of Mul on matrices.
#pragma once

#include "product/forms.h"

namespace zepm
{

extern "C" {

Status ownMul_mm_32f_Packed(const Mm<float32, S>& x);
Status ownMul_mm_32f_Strided(const Mm<float32, S>& x);
Status ownMul_mm_32f_P(const Mm<float32, P>& x);
Status ownMul_mm_64f_Packed(const Mm<float64, S>& x);
Status ownMul_mm_64f_Strided(const Mm<float64, S>& x);
Status ownMul_mm_64f_P(const Mm<float64, P>& x);

Status ownMul_mt_32f_Packed(const Mt<float32, S>& x);
Status ownMul_mt_32f_Strided(const Mt<float32, S>& x);
Status ownMul_mt_32f_P(const Mt<float32, P>& x);
Status ownMul_mt_64f_Packed(const Mt<float64, S>& x);
Status ownMul_mt_64f_Strided(const Mt<float64, S>& x);
Status ownMul_mt_64f_P(const Mt<float64, P>& x);

Status ownMul_tm_32f_Packed(const Tm<float32, S>& x);
Status ownMul_tm_32f_Strided(const Tm<float32, S>& x);
Status ownMul_tm_32f_P(const Tm<float32, P>& x);
Status ownMul_tm_64f_Packed(const Tm<float64, S>& x);
Status ownMul_tm_64f_Strided(const Tm<float64, S>& x);
Status ownMul_tm_64f_P(const Tm<float64, P>& x);

Status ownMul_tt_32f_Packed(const Tt<float32, S>& x);
Status ownMul_tt_32f_Strided(const Tt<float32, S>& x);
Status ownMul_tt_32f_P(const Tt<float32, P>& x);
Status ownMul_tt_64f_Packed(const Tt<float64, S>& x);
Status ownMul_tt_64f_Strided(const Tt<float64, S>& x);
Status ownMul_tt_64f_P(const Tt<float64, P>& x);

Status ownMul_mam_32f_Packed(const Mam<float32, S>& x);
Status ownMul_mam_32f_Strided(const Mam<float32, S>& x);
Status ownOMP_zepmMul_mam_32f(const Mam<float32, S>& x);
Status ownMul_mam_32f_L_Packed(const Mam<float32, L>& x);
Status ownMul_mam_32f_L_Strided(const Mam<float32, L>& x);
Status ownOMP_zepmMul_mam_32f_L(const Mam<float32, L>& x);
Status ownMul_mam_32f_P(const Mam<float32, P>& x);
Status ownOMP_zepmMul_mam_32f_P(const Mam<float32, P>& x);
Status ownMul_mam_64f_Packed(const Mam<float64, S>& x);
Status ownMul_mam_64f_Strided(const Mam<float64, S>& x);
Status ownOMP_zepmMul_mam_64f(const Mam<float64, S>& x);
Status ownMul_mam_64f_L_Packed(const Mam<float64, L>& x);
Status ownMul_mam_64f_L_Strided(const Mam<float64, L>& x);
Status ownOMP_zepmMul_mam_64f_L(const Mam<float64, L>& x);
Status ownMul_mam_64f_P(const Mam<float64, P>& x);
Status ownOMP_zepmMul_mam_64f_P(const Mam<float64, P>& x);

Status ownMul_mat_32f_Packed(const Mat<float32, S>& x);
Status ownMul_mat_32f_Strided(const Mat<float32, S>& x);
Status ownOMP_zepmMul_mat_32f(const Mat<float32, S>& x);
Status ownMul_mat_32f_L_Packed(const Mat<float32, L>& x);
Status ownMul_mat_32f_L_Strided(const Mat<float32, L>& x);
Status ownOMP_zepmMul_mat_32f_L(const Mat<float32, L>& x);
Status ownMul_mat_32f_P(const Mat<float32, P>& x);
Status ownOMP_zepmMul_mat_32f_P(const Mat<float32, P>& x);
Status ownMul_mat_64f_Packed(const Mat<float64, S>& x);
Status ownMul_mat_64f_Strided(const Mat<float64, S>& x);
Status ownOMP_zepmMul_mat_64f(const Mat<float64, S>& x);
Status ownMul_mat_64f_L_Packed(const Mat<float64, L>& x);
Status ownMul_mat_64f_L_Strided(const Mat<float64, L>& x);
Status ownOMP_zepmMul_mat_64f_L(const Mat<float64, L>& x);
Status ownMul_mat_64f_P(const Mat<float64, P>& x);
Status ownOMP_zepmMul_mat_64f_P(const Mat<float64, P>& x);

Status ownMul_tam_32f_Packed(const Tam<float32, S>& x);
Status ownMul_tam_32f_Strided(const Tam<float32, S>& x);
Status ownOMP_zepmMul_tam_32f(const Tam<float32, S>& x);
Status ownMul_tam_32f_L_Packed(const Tam<float32, L>& x);
Status ownMul_tam_32f_L_Strided(const Tam<float32, L>& x);
Status ownOMP_zepmMul_tam_32f_L(const Tam<float32, L>& x);
Status ownMul_tam_32f_P(const Tam<float32, P>& x);
Status ownOMP_zepmMul_tam_32f_P(const Tam<float32, P>& x);
Status ownMul_tam_64f_Packed(const Tam<float64, S>& x);
Status ownMul_tam_64f_Strided(const Tam<float64, S>& x);
Status ownOMP_zepmMul_tam_64f(const Tam<float64, S>& x);
Status ownMul_tam_64f_L_Packed(const Tam<float64, L>& x);
Status ownMul_tam_64f_L_Strided(const Tam<float64, L>& x);
Status ownOMP_zepmMul_tam_64f_L(const Tam<float64, L>& x);
Status ownMul_tam_64f_P(const Tam<float64, P>& x);
Status ownOMP_zepmMul_tam_64f_P(const Tam<float64, P>& x);

Status ownMul_tat_32f_Packed(const Tat<float32, S>& x);
Status ownMul_tat_32f_Strided(const Tat<float32, S>& x);
Status ownOMP_zepmMul_tat_32f(const Tat<float32, S>& x);
Status ownMul_tat_32f_L_Packed(const Tat<float32, L>& x);
Status ownMul_tat_32f_L_Strided(const Tat<float32, L>& x);
Status ownOMP_zepmMul_tat_32f_L(const Tat<float32, L>& x);
Status ownMul_tat_32f_P(const Tat<float32, P>& x);
Status ownOMP_zepmMul_tat_32f_P(const Tat<float32, P>& x);
Status ownMul_tat_64f_Packed(const Tat<float64, S>& x);
Status ownMul_tat_64f_Strided(const Tat<float64, S>& x);
Status ownOMP_zepmMul_tat_64f(const Tat<float64, S>& x);
Status ownMul_tat_64f_L_Packed(const Tat<float64, L>& x);
Status ownMul_tat_64f_L_Strided(const Tat<float64, L>& x);
Status ownOMP_zepmMul_tat_64f_L(const Tat<float64, L>& x);
Status ownMul_tat_64f_P(const Tat<float64, P>& x);
Status ownOMP_zepmMul_tat_64f_P(const Tat<float64, P>& x);

Status ownMul_mma_32f_Packed(const Mma<float32, S>& x);
Status ownMul_mma_32f_Strided(const Mma<float32, S>& x);
Status ownOMP_zepmMul_mma_32f(const Mma<float32, S>& x);
Status ownMul_mma_32f_L_Packed(const Mma<float32, L>& x);
Status ownMul_mma_32f_L_Strided(const Mma<float32, L>& x);
Status ownOMP_zepmMul_mma_32f_L(const Mma<float32, L>& x);
Status ownMul_mma_32f_P(const Mma<float32, P>& x);
Status ownOMP_zepmMul_mma_32f_P(const Mma<float32, P>& x);
Status ownMul_mma_64f_Packed(const Mma<float64, S>& x);
Status ownMul_mma_64f_Strided(const Mma<float64, S>& x);
Status ownOMP_zepmMul_mma_64f(const Mma<float64, S>& x);
Status ownMul_mma_64f_L_Packed(const Mma<float64, L>& x);
Status ownMul_mma_64f_L_Strided(const Mma<float64, L>& x);
Status ownOMP_zepmMul_mma_64f_L(const Mma<float64, L>& x);
Status ownMul_mma_64f_P(const Mma<float64, P>& x);
Status ownOMP_zepmMul_mma_64f_P(const Mma<float64, P>& x);

Status ownMul_mta_32f_Packed(const Mta<float32, S>& x);
Status ownMul_mta_32f_Strided(const Mta<float32, S>& x);
Status ownOMP_zepmMul_mta_32f(const Mta<float32, S>& x);
Status ownMul_mta_32f_L_Packed(const Mta<float32, L>& x);
Status ownMul_mta_32f_L_Strided(const Mta<float32, L>& x);
Status ownOMP_zepmMul_mta_32f_L(const Mta<float32, L>& x);
Status ownMul_mta_32f_P(const Mta<float32, P>& x);
Status ownOMP_zepmMul_mta_32f_P(const Mta<float32, P>& x);
Status ownMul_mta_64f_Packed(const Mta<float64, S>& x);
Status ownMul_mta_64f_Strided(const Mta<float64, S>& x);
Status ownOMP_zepmMul_mta_64f(const Mta<float64, S>& x);
Status ownMul_mta_64f_L_Packed(const Mta<float64, L>& x);
Status ownMul_mta_64f_L_Strided(const Mta<float64, L>& x);
Status ownOMP_zepmMul_mta_64f_L(const Mta<float64, L>& x);
Status ownMul_mta_64f_P(const Mta<float64, P>& x);
Status ownOMP_zepmMul_mta_64f_P(const Mta<float64, P>& x);

Status ownMul_tma_32f_Packed(const Tma<float32, S>& x);
Status ownMul_tma_32f_Strided(const Tma<float32, S>& x);
Status ownOMP_zepmMul_tma_32f(const Tma<float32, S>& x);
Status ownMul_tma_32f_L_Packed(const Tma<float32, L>& x);
Status ownMul_tma_32f_L_Strided(const Tma<float32, L>& x);
Status ownOMP_zepmMul_tma_32f_L(const Tma<float32, L>& x);
Status ownMul_tma_32f_P(const Tma<float32, P>& x);
Status ownOMP_zepmMul_tma_32f_P(const Tma<float32, P>& x);
Status ownMul_tma_64f_Packed(const Tma<float64, S>& x);
Status ownMul_tma_64f_Strided(const Tma<float64, S>& x);
Status ownOMP_zepmMul_tma_64f(const Tma<float64, S>& x);
Status ownMul_tma_64f_L_Packed(const Tma<float64, L>& x);
Status ownMul_tma_64f_L_Strided(const Tma<float64, L>& x);
Status ownOMP_zepmMul_tma_64f_L(const Tma<float64, L>& x);
Status ownMul_tma_64f_P(const Tma<float64, P>& x);
Status ownOMP_zepmMul_tma_64f_P(const Tma<float64, P>& x);

Status ownMul_tta_32f_Packed(const Tta<float32, S>& x);
Status ownMul_tta_32f_Strided(const Tta<float32, S>& x);
Status ownOMP_zepmMul_tta_32f(const Tta<float32, S>& x);
Status ownMul_tta_32f_L_Packed(const Tta<float32, L>& x);
Status ownMul_tta_32f_L_Strided(const Tta<float32, L>& x);
Status ownOMP_zepmMul_tta_32f_L(const Tta<float32, L>& x);
Status ownMul_tta_32f_P(const Tta<float32, P>& x);
Status ownOMP_zepmMul_tta_32f_P(const Tta<float32, P>& x);
Status ownMul_tta_64f_Packed(const Tta<float64, S>& x);
Status ownMul_tta_64f_Strided(const Tta<float64, S>& x);
Status ownOMP_zepmMul_tta_64f(const Tta<float64, S>& x);
Status ownMul_tta_64f_L_Packed(const Tta<float64, L>& x);
Status ownMul_tta_64f_L_Strided(const Tta<float64, L>& x);
Status ownOMP_zepmMul_tta_64f_L(const Tta<float64, L>& x);
Status ownMul_tta_64f_P(const Tta<float64, P>& x);
Status ownOMP_zepmMul_tta_64f_P(const Tta<float64, P>& x);

Status ownMul_mama_32f_Packed(const Mama<float32, S>& x);
Status ownMul_mama_32f_Strided(const Mama<float32, S>& x);
Status ownOMP_zepmMul_mama_32f(const Mama<float32, S>& x);
Status ownMul_mama_32f_L_Packed(const Mama<float32, L>& x);
Status ownMul_mama_32f_L_Strided(const Mama<float32, L>& x);
Status ownOMP_zepmMul_mama_32f_L(const Mama<float32, L>& x);
Status ownMul_mama_32f_P(const Mama<float32, P>& x);
Status ownOMP_zepmMul_mama_32f_P(const Mama<float32, P>& x);
Status ownMul_mama_64f_Packed(const Mama<float64, S>& x);
Status ownMul_mama_64f_Strided(const Mama<float64, S>& x);
Status ownOMP_zepmMul_mama_64f(const Mama<float64, S>& x);
Status ownMul_mama_64f_L_Packed(const Mama<float64, L>& x);
Status ownMul_mama_64f_L_Strided(const Mama<float64, L>& x);
Status ownOMP_zepmMul_mama_64f_L(const Mama<float64, L>& x);
Status ownMul_mama_64f_P(const Mama<float64, P>& x);
Status ownOMP_zepmMul_mama_64f_P(const Mama<float64, P>& x);

Status ownMul_mata_32f_Packed(const Mata<float32, S>& x);
Status ownMul_mata_32f_Strided(const Mata<float32, S>& x);
Status ownOMP_zepmMul_mata_32f(const Mata<float32, S>& x);
Status ownMul_mata_32f_L_Packed(const Mata<float32, L>& x);
Status ownMul_mata_32f_L_Strided(const Mata<float32, L>& x);
Status ownOMP_zepmMul_mata_32f_L(const Mata<float32, L>& x);
Status ownMul_mata_32f_P(const Mata<float32, P>& x);
Status ownOMP_zepmMul_mata_32f_P(const Mata<float32, P>& x);
Status ownMul_mata_64f_Packed(const Mata<float64, S>& x);
Status ownMul_mata_64f_Strided(const Mata<float64, S>& x);
Status ownOMP_zepmMul_mata_64f(const Mata<float64, S>& x);
Status ownMul_mata_64f_L_Packed(const Mata<float64, L>& x);
Status ownMul_mata_64f_L_Strided(const Mata<float64, L>& x);
Status ownOMP_zepmMul_mata_64f_L(const Mata<float64, L>& x);
Status ownMul_mata_64f_P(const Mata<float64, P>& x);
Status ownOMP_zepmMul_mata_64f_P(const Mata<float64, P>& x);

Status ownMul_tama_32f_Packed(const Tama<float32, S>& x);
Status ownMul_tama_32f_Strided(const Tama<float32, S>& x);
Status ownOMP_zepmMul_tama_32f(const Tama<float32, S>& x);
Status ownMul_tama_32f_L_Packed(const Tama<float32, L>& x);
Status ownMul_tama_32f_L_Strided(const Tama<float32, L>& x);
Status ownOMP_zepmMul_tama_32f_L(const Tama<float32, L>& x);
Status ownMul_tama_32f_P(const Tama<float32, P>& x);
Status ownOMP_zepmMul_tama_32f_P(const Tama<float32, P>& x);
Status ownMul_tama_64f_Packed(const Tama<float64, S>& x);
Status ownMul_tama_64f_Strided(const Tama<float64, S>& x);
Status ownOMP_zepmMul_tama_64f(const Tama<float64, S>& x);
Status ownMul_tama_64f_L_Packed(const Tama<float64, L>& x);
Status ownMul_tama_64f_L_Strided(const Tama<float64, L>& x);
Status ownOMP_zepmMul_tama_64f_L(const Tama<float64, L>& x);
Status ownMul_tama_64f_P(const Tama<float64, P>& x);
Status ownOMP_zepmMul_tama_64f_P(const Tama<float64, P>& x);

Status ownMul_tata_32f_Packed(const Tata<float32, S>& x);
Status ownMul_tata_32f_Strided(const Tata<float32, S>& x);
Status ownOMP_zepmMul_tata_32f(const Tata<float32, S>& x);
Status ownMul_tata_32f_L_Packed(const Tata<float32, L>& x);
Status ownMul_tata_32f_L_Strided(const Tata<float32, L>& x);
Status ownOMP_zepmMul_tata_32f_L(const Tata<float32, L>& x);
Status ownMul_tata_32f_P(const Tata<float32, P>& x);
Status ownOMP_zepmMul_tata_32f_P(const Tata<float32, P>& x);
Status ownMul_tata_64f_Packed(const Tata<float64, S>& x);
Status ownMul_tata_64f_Strided(const Tata<float64, S>& x);
Status ownOMP_zepmMul_tata_64f(const Tata<float64, S>& x);
Status ownMul_tata_64f_L_Packed(const Tata<float64, L>& x);
Status ownMul_tata_64f_L_Strided(const Tata<float64, L>& x);
Status ownOMP_zepmMul_tata_64f_L(const Tata<float64, L>& x);
Status ownMul_tata_64f_P(const Tata<float64, P>& x);
Status ownOMP_zepmMul_tata_64f_P(const Tata<float64, P>& x);
}

} // namespace zepm
