// Drivers of zepmMul_tta.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tta_32f(const Tta<float32, S>& x)
{
    return shareObjects(x, ownMul_tta_32f_Packed, ownMul_tta_32f_Strided);
}
Status ownOMP_zepmMul_tta_32f_L(const Tta<float32, L>& x)
{
    return shareObjects(x, ownMul_tta_32f_L_Packed, ownMul_tta_32f_L_Strided);
}
Status ownOMP_zepmMul_tta_32f_P(const Tta<float32, P>& x) { return shareObjects(x, ownMul_tta_32f_P); }
Status ownOMP_zepmMul_tta_64f(const Tta<float64, S>& x)
{
    return shareObjects(x, ownMul_tta_64f_Packed, ownMul_tta_64f_Strided);
}
Status ownOMP_zepmMul_tta_64f_L(const Tta<float64, L>& x)
{
    return shareObjects(x, ownMul_tta_64f_L_Packed, ownMul_tta_64f_L_Strided);
}
Status ownOMP_zepmMul_tta_64f_P(const Tta<float64, P>& x) { return shareObjects(x, ownMul_tta_64f_P); }

} // namespace zepm
