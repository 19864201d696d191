// zepmSub_cva: d[k][j] = val - s[k][j]
// The limits stand for objects: the estimate leaves len out.
#include "elementwise/combine.h"
#include "elementwise/sub.h"
#include "zepm_elementwise.h"

namespace zepm
{

Status ownSub_cva_32f_Packed(const CombineCva<float32, S>& x) { return combinePacked(MinusFrom{}, x); }
Status ownSub_cva_32f_Strided(const CombineCva<float32, S>& x) { return combineStrided(MinusFrom{}, x); }
Status ownSub_cva_32f_L_Packed(const CombineCva<float32, L>& x) { return combinePacked(MinusFrom{}, x); }
Status ownSub_cva_32f_L_Strided(const CombineCva<float32, L>& x) { return combineStrided(MinusFrom{}, x); }
Status ownSub_cva_32f_P(const CombineCva<float32, P>& x) { return combineTable(MinusFrom{}, x); }
Status ownSub_cva_64f_Packed(const CombineCva<float64, S>& x) { return combinePacked(MinusFrom{}, x); }
Status ownSub_cva_64f_Strided(const CombineCva<float64, S>& x) { return combineStrided(MinusFrom{}, x); }
Status ownSub_cva_64f_L_Packed(const CombineCva<float64, L>& x) { return combinePacked(MinusFrom{}, x); }
Status ownSub_cva_64f_L_Strided(const CombineCva<float64, L>& x) { return combineStrided(MinusFrom{}, x); }
Status ownSub_cva_64f_P(const CombineCva<float64, P>& x) { return combineTable(MinusFrom{}, x); }

} // namespace zepm

using namespace zepm;

Status zepmSub_cva_32f(const float32* pSrc, int32 srcStride0, int32 srcStride2, float32 val, float32* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineCva<float32, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(MinusFrom{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<4800>{},
                      ownSub_cva_32f_Packed, ownSub_cva_32f_Strided, ownOMP_zepmSub_cva_32f);
}

Status zepmSub_cva_32f_L(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineCva<float32, L> x{
        {ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2500>{}, ownSub_cva_32f_L_Packed,
                 ownSub_cva_32f_L_Strided, ownOMP_zepmSub_cva_32f_L);
}

Status zepmSub_cva_32f_P(const float32* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float32 val,
                         float32* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineCva<float32, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1500>{}, ownSub_cva_32f_P,
                 ownOMP_zepmSub_cva_32f_P);
}

Status zepmSub_cva_64f(const float64* pSrc, int32 srcStride0, int32 srcStride2, float64 val, float64* pDst,
                       int32 dstStride0, int32 dstStride2, int32 len, int32 count)
{
    CombineCva<float64, S> x{{pSrc, srcStride0, srcStride2}, {val}, {pDst, dstStride0, dstStride2}, len, count};
    return enterDense(MinusFrom{}, x, order<Pointers, Count, Sizes, Strides>{}, parallelFrom<1400>{},
                      ownSub_cva_64f_Packed, ownSub_cva_64f_Strided, ownOMP_zepmSub_cva_64f);
}

Status zepmSub_cva_64f_L(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride2, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride2, int32 len, int32 count)
{
    const CombineCva<float64, L> x{
        {ppSrc, srcRoiShift, srcStride2}, {val}, {ppDst, dstRoiShift, dstStride2}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<2500>{}, ownSub_cva_64f_L_Packed,
                 ownSub_cva_64f_L_Strided, ownOMP_zepmSub_cva_64f_L);
}

Status zepmSub_cva_64f_P(const float64* const* ppSrc, int32 srcRoiShift, int32 srcStride0, float64 val,
                         float64* const* ppDst, int32 dstRoiShift, int32 dstStride0, int32 len, int32 count)
{
    const CombineCva<float64, P> x{
        {ppSrc, srcRoiShift, srcStride0}, {val}, {ppDst, dstRoiShift, dstStride0}, len, count};
    return enter(x, order<Pointers, Count, Sizes, Strides, RoiShifts>{}, parallelFrom<1500>{}, ownSub_cva_64f_P,
                 ownOMP_zepmSub_cva_64f_P);
}
