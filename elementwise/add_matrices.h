// Kernels and drivers of Add on matrices.
#pragma once

#include "elementwise/forms.h"

namespace zepm
{

extern "C" {

Status ownAdd_mm_32f_Packed(const Mm<float32, S>& x);
Status ownAdd_mm_32f_Strided(const Mm<float32, S>& x);
Status ownAdd_mm_32f_P(const Mm<float32, P>& x);
Status ownAdd_mm_64f_Packed(const Mm<float64, S>& x);
Status ownAdd_mm_64f_Strided(const Mm<float64, S>& x);
Status ownAdd_mm_64f_P(const Mm<float64, P>& x);

Status ownAdd_tm_32f_Packed(const Tm<float32, S>& x);
Status ownAdd_tm_32f_Strided(const Tm<float32, S>& x);
Status ownAdd_tm_32f_P(const Tm<float32, P>& x);
Status ownAdd_tm_64f_Packed(const Tm<float64, S>& x);
Status ownAdd_tm_64f_Strided(const Tm<float64, S>& x);
Status ownAdd_tm_64f_P(const Tm<float64, P>& x);

Status ownAdd_tt_32f_Packed(const Tt<float32, S>& x);
Status ownAdd_tt_32f_Strided(const Tt<float32, S>& x);
Status ownAdd_tt_32f_P(const Tt<float32, P>& x);
Status ownAdd_tt_64f_Packed(const Tt<float64, S>& x);
Status ownAdd_tt_64f_Strided(const Tt<float64, S>& x);
Status ownAdd_tt_64f_P(const Tt<float64, P>& x);

Status ownAdd_mam_32f_Packed(const Mam<float32, S>& x);
Status ownAdd_mam_32f_Strided(const Mam<float32, S>& x);
Status ownOMP_zepmAdd_mam_32f(const Mam<float32, S>& x);
Status ownAdd_mam_32f_L_Packed(const Mam<float32, L>& x);
Status ownAdd_mam_32f_L_Strided(const Mam<float32, L>& x);
Status ownOMP_zepmAdd_mam_32f_L(const Mam<float32, L>& x);
Status ownAdd_mam_32f_P(const Mam<float32, P>& x);
Status ownOMP_zepmAdd_mam_32f_P(const Mam<float32, P>& x);
Status ownAdd_mam_64f_Packed(const Mam<float64, S>& x);
Status ownAdd_mam_64f_Strided(const Mam<float64, S>& x);
Status ownOMP_zepmAdd_mam_64f(const Mam<float64, S>& x);
Status ownAdd_mam_64f_L_Packed(const Mam<float64, L>& x);
Status ownAdd_mam_64f_L_Strided(const Mam<float64, L>& x);
Status ownOMP_zepmAdd_mam_64f_L(const Mam<float64, L>& x);
Status ownAdd_mam_64f_P(const Mam<float64, P>& x);
Status ownOMP_zepmAdd_mam_64f_P(const Mam<float64, P>& x);

Status ownAdd_mat_32f_Packed(const Mat<float32, S>& x);
Status ownAdd_mat_32f_Strided(const Mat<float32, S>& x);
Status ownOMP_zepmAdd_mat_32f(const Mat<float32, S>& x);
Status ownAdd_mat_32f_L_Packed(const Mat<float32, L>& x);
Status ownAdd_mat_32f_L_Strided(const Mat<float32, L>& x);
Status ownOMP_zepmAdd_mat_32f_L(const Mat<float32, L>& x);
Status ownAdd_mat_32f_P(const Mat<float32, P>& x);
Status ownOMP_zepmAdd_mat_32f_P(const Mat<float32, P>& x);
Status ownAdd_mat_64f_Packed(const Mat<float64, S>& x);
Status ownAdd_mat_64f_Strided(const Mat<float64, S>& x);
Status ownOMP_zepmAdd_mat_64f(const Mat<float64, S>& x);
Status ownAdd_mat_64f_L_Packed(const Mat<float64, L>& x);
Status ownAdd_mat_64f_L_Strided(const Mat<float64, L>& x);
Status ownOMP_zepmAdd_mat_64f_L(const Mat<float64, L>& x);
Status ownAdd_mat_64f_P(const Mat<float64, P>& x);
Status ownOMP_zepmAdd_mat_64f_P(const Mat<float64, P>& x);

Status ownAdd_tam_32f_Packed(const Tam<float32, S>& x);
Status ownAdd_tam_32f_Strided(const Tam<float32, S>& x);
Status ownOMP_zepmAdd_tam_32f(const Tam<float32, S>& x);
Status ownAdd_tam_32f_L_Packed(const Tam<float32, L>& x);
Status ownAdd_tam_32f_L_Strided(const Tam<float32, L>& x);
Status ownOMP_zepmAdd_tam_32f_L(const Tam<float32, L>& x);
Status ownAdd_tam_32f_P(const Tam<float32, P>& x);
Status ownOMP_zepmAdd_tam_32f_P(const Tam<float32, P>& x);
Status ownAdd_tam_64f_Packed(const Tam<float64, S>& x);
Status ownAdd_tam_64f_Strided(const Tam<float64, S>& x);
Status ownOMP_zepmAdd_tam_64f(const Tam<float64, S>& x);
Status ownAdd_tam_64f_L_Packed(const Tam<float64, L>& x);
Status ownAdd_tam_64f_L_Strided(const Tam<float64, L>& x);
Status ownOMP_zepmAdd_tam_64f_L(const Tam<float64, L>& x);
Status ownAdd_tam_64f_P(const Tam<float64, P>& x);
Status ownOMP_zepmAdd_tam_64f_P(const Tam<float64, P>& x);

Status ownAdd_tat_32f_Packed(const Tat<float32, S>& x);
Status ownAdd_tat_32f_Strided(const Tat<float32, S>& x);
Status ownOMP_zepmAdd_tat_32f(const Tat<float32, S>& x);
Status ownAdd_tat_32f_L_Packed(const Tat<float32, L>& x);
Status ownAdd_tat_32f_L_Strided(const Tat<float32, L>& x);
Status ownOMP_zepmAdd_tat_32f_L(const Tat<float32, L>& x);
Status ownAdd_tat_32f_P(const Tat<float32, P>& x);
Status ownOMP_zepmAdd_tat_32f_P(const Tat<float32, P>& x);
Status ownAdd_tat_64f_Packed(const Tat<float64, S>& x);
Status ownAdd_tat_64f_Strided(const Tat<float64, S>& x);
Status ownOMP_zepmAdd_tat_64f(const Tat<float64, S>& x);
Status ownAdd_tat_64f_L_Packed(const Tat<float64, L>& x);
Status ownAdd_tat_64f_L_Strided(const Tat<float64, L>& x);
Status ownOMP_zepmAdd_tat_64f_L(const Tat<float64, L>& x);
Status ownAdd_tat_64f_P(const Tat<float64, P>& x);
Status ownOMP_zepmAdd_tat_64f_P(const Tat<float64, P>& x);

Status ownAdd_mama_32f_Packed(const Mama<float32, S>& x);
Status ownAdd_mama_32f_Strided(const Mama<float32, S>& x);
Status ownOMP_zepmAdd_mama_32f(const Mama<float32, S>& x);
Status ownAdd_mama_32f_L_Packed(const Mama<float32, L>& x);
Status ownAdd_mama_32f_L_Strided(const Mama<float32, L>& x);
Status ownOMP_zepmAdd_mama_32f_L(const Mama<float32, L>& x);
Status ownAdd_mama_32f_P(const Mama<float32, P>& x);
Status ownOMP_zepmAdd_mama_32f_P(const Mama<float32, P>& x);
Status ownAdd_mama_64f_Packed(const Mama<float64, S>& x);
Status ownAdd_mama_64f_Strided(const Mama<float64, S>& x);
Status ownOMP_zepmAdd_mama_64f(const Mama<float64, S>& x);
Status ownAdd_mama_64f_L_Packed(const Mama<float64, L>& x);
Status ownAdd_mama_64f_L_Strided(const Mama<float64, L>& x);
Status ownOMP_zepmAdd_mama_64f_L(const Mama<float64, L>& x);
Status ownAdd_mama_64f_P(const Mama<float64, P>& x);
Status ownOMP_zepmAdd_mama_64f_P(const Mama<float64, P>& x);

Status ownAdd_tama_32f_Packed(const Tama<float32, S>& x);
Status ownAdd_tama_32f_Strided(const Tama<float32, S>& x);
Status ownOMP_zepmAdd_tama_32f(const Tama<float32, S>& x);
Status ownAdd_tama_32f_L_Packed(const Tama<float32, L>& x);
Status ownAdd_tama_32f_L_Strided(const Tama<float32, L>& x);
Status ownOMP_zepmAdd_tama_32f_L(const Tama<float32, L>& x);
Status ownAdd_tama_32f_P(const Tama<float32, P>& x);
Status ownOMP_zepmAdd_tama_32f_P(const Tama<float32, P>& x);
Status ownAdd_tama_64f_Packed(const Tama<float64, S>& x);
Status ownAdd_tama_64f_Strided(const Tama<float64, S>& x);
Status ownOMP_zepmAdd_tama_64f(const Tama<float64, S>& x);
Status ownAdd_tama_64f_L_Packed(const Tama<float64, L>& x);
Status ownAdd_tama_64f_L_Strided(const Tama<float64, L>& x);
Status ownOMP_zepmAdd_tama_64f_L(const Tama<float64, L>& x);
Status ownAdd_tama_64f_P(const Tama<float64, P>& x);
Status ownOMP_zepmAdd_tama_64f_P(const Tama<float64, P>& x);

Status ownAdd_tata_32f_Packed(const Tata<float32, S>& x);
Status ownAdd_tata_32f_Strided(const Tata<float32, S>& x);
Status ownOMP_zepmAdd_tata_32f(const Tata<float32, S>& x);
Status ownAdd_tata_32f_L_Packed(const Tata<float32, L>& x);
Status ownAdd_tata_32f_L_Strided(const Tata<float32, L>& x);
Status ownOMP_zepmAdd_tata_32f_L(const Tata<float32, L>& x);
Status ownAdd_tata_32f_P(const Tata<float32, P>& x);
Status ownOMP_zepmAdd_tata_32f_P(const Tata<float32, P>& x);
Status ownAdd_tata_64f_Packed(const Tata<float64, S>& x);
Status ownAdd_tata_64f_Strided(const Tata<float64, S>& x);
Status ownOMP_zepmAdd_tata_64f(const Tata<float64, S>& x);
Status ownAdd_tata_64f_L_Packed(const Tata<float64, L>& x);
Status ownAdd_tata_64f_L_Strided(const Tata<float64, L>& x);
Status ownOMP_zepmAdd_tata_64f_L(const Tata<float64, L>& x);
Status ownAdd_tata_64f_P(const Tata<float64, P>& x);
Status ownOMP_zepmAdd_tata_64f_P(const Tata<float64, P>& x);
}

} // namespace zepm
