// Drivers of zepmMul_tta.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tta_32f(const MultiplyTta<float32, S>& x)
{
    return shareObjects(x, ownMul_tta_32f_Packed, ownMul_tta_32f_Strided);
}
Status ownOMP_zepmMul_tta_32f_L(const MultiplyTta<float32, L>& x)
{
    return shareObjects(x, ownMul_tta_32f_L_Packed, ownMul_tta_32f_L_Strided);
}
Status ownOMP_zepmMul_tta_32f_P(const MultiplyTta<float32, P>& x) { return shareObjects(x, ownMul_tta_32f_P); }
Status ownOMP_zepmMul_tta_64f(const MultiplyTta<float64, S>& x)
{
    return shareObjects(x, ownMul_tta_64f_Packed, ownMul_tta_64f_Strided);
}
Status ownOMP_zepmMul_tta_64f_L(const MultiplyTta<float64, L>& x)
{
    return shareObjects(x, ownMul_tta_64f_L_Packed, ownMul_tta_64f_L_Strided);
}
Status ownOMP_zepmMul_tta_64f_P(const MultiplyTta<float64, P>& x) { return shareObjects(x, ownMul_tta_64f_P); }

} // namespace zepm
