// zepmCrossProduct_vva: d[k] = s1 x s2[k]
#include "vector/cross.h"
#include "vector/crossproduct.h"
#include "zepm_vector.h"

namespace zepm
{

Status ownCrossProduct_vva_32f_Packed(const CrossVva<float32, S>& x) { return crossPacked(x); }
Status ownCrossProduct_vva_32f_Strided(const CrossVva<float32, S>& x) { return crossStrided(x); }
Status ownCrossProduct_vva_32f_L_Packed(const CrossVva<float32, L>& x) { return crossPacked(x); }
Status ownCrossProduct_vva_32f_L_Strided(const CrossVva<float32, L>& x) { return crossStrided(x); }
Status ownCrossProduct_vva_32f_P(const CrossVva<float32, P>& x) { return crossTable(x); }
Status ownCrossProduct_vva_64f_Packed(const CrossVva<float64, S>& x) { return crossPacked(x); }
Status ownCrossProduct_vva_64f_Strided(const CrossVva<float64, S>& x) { return crossStrided(x); }
Status ownCrossProduct_vva_64f_L_Packed(const CrossVva<float64, L>& x) { return crossPacked(x); }
Status ownCrossProduct_vva_64f_L_Strided(const CrossVva<float64, L>& x) { return crossStrided(x); }
Status ownCrossProduct_vva_64f_P(const CrossVva<float64, P>& x) { return crossTable(x); }

} // namespace zepm

using namespace zepm;

Status zepmCrossProduct_vva_32f(const float32* pSrc1, int32 src1Stride2, const float32* pSrc2, int32 src2Stride0,
                                int32 src2Stride2, float32* pDst, int32 dstStride0, int32 dstStride2, int32 count)
{
    const CrossVva<float32, S> x{
        {pSrc1, src1Stride2}, {pSrc2, src2Stride0, src2Stride2}, {pDst, dstStride0, dstStride2}, count};
    return enter(x, order<Pointers, Count, Strides>{}, parallelFrom<3000>{}, ownCrossProduct_vva_32f_Packed,
                 ownCrossProduct_vva_32f_Strided, ownOMP_zepmCrossProduct_vva_32f);
}

Status zepmCrossProduct_vva_32f_L(const float32* pSrc1, int32 src1Stride2, const float32* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride2, float32* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count)
{
    const CrossVva<float32, L> x{
        {pSrc1, src1Stride2}, {ppSrc2, src2RoiShift, src2Stride2}, {ppDst, dstRoiShift, dstStride2}, count};
    return enter(x, order<Pointers, Count, Strides, RoiShifts>{}, parallelFrom<3000>{},
                 ownCrossProduct_vva_32f_L_Packed, ownCrossProduct_vva_32f_L_Strided,
                 ownOMP_zepmCrossProduct_vva_32f_L);
}

Status zepmCrossProduct_vva_32f_P(const float32* const* ppSrc1, int32 src1RoiShift, const float32* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride0, float32* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride0, int32 count)
{
    const CrossVva<float32, P> x{
        {ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift, src2Stride0}, {ppDst, dstRoiShift, dstStride0}, count};
    return enter(x, order<Pointers, Count, Strides, RoiShifts>{}, parallelFrom<3000>{}, ownCrossProduct_vva_32f_P,
                 ownOMP_zepmCrossProduct_vva_32f_P);
}

Status zepmCrossProduct_vva_64f(const float64* pSrc1, int32 src1Stride2, const float64* pSrc2, int32 src2Stride0,
                                int32 src2Stride2, float64* pDst, int32 dstStride0, int32 dstStride2, int32 count)
{
    const CrossVva<float64, S> x{
        {pSrc1, src1Stride2}, {pSrc2, src2Stride0, src2Stride2}, {pDst, dstStride0, dstStride2}, count};
    return enter(x, order<Pointers, Count, Strides>{}, parallelFrom<3000>{}, ownCrossProduct_vva_64f_Packed,
                 ownCrossProduct_vva_64f_Strided, ownOMP_zepmCrossProduct_vva_64f);
}

Status zepmCrossProduct_vva_64f_L(const float64* pSrc1, int32 src1Stride2, const float64* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride2, float64* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride2, int32 count)
{
    const CrossVva<float64, L> x{
        {pSrc1, src1Stride2}, {ppSrc2, src2RoiShift, src2Stride2}, {ppDst, dstRoiShift, dstStride2}, count};
    return enter(x, order<Pointers, Count, Strides, RoiShifts>{}, parallelFrom<3000>{},
                 ownCrossProduct_vva_64f_L_Packed, ownCrossProduct_vva_64f_L_Strided,
                 ownOMP_zepmCrossProduct_vva_64f_L);
}

Status zepmCrossProduct_vva_64f_P(const float64* const* ppSrc1, int32 src1RoiShift, const float64* const* ppSrc2,
                                  int32 src2RoiShift, int32 src2Stride0, float64* const* ppDst, int32 dstRoiShift,
                                  int32 dstStride0, int32 count)
{
    const CrossVva<float64, P> x{
        {ppSrc1, src1RoiShift}, {ppSrc2, src2RoiShift, src2Stride0}, {ppDst, dstRoiShift, dstStride0}, count};
    return enter(x, order<Pointers, Count, Strides, RoiShifts>{}, parallelFrom<3000>{}, ownCrossProduct_vva_64f_P,
                 ownOMP_zepmCrossProduct_vva_64f_P);
}
