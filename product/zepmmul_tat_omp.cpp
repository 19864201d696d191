// Drivers of zepmMul_tat.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tat_32f(const MultiplyTat<float32, S>& x)
{
    return shareObjects(x, ownMul_tat_32f_Packed, ownMul_tat_32f_Strided);
}
Status ownOMP_zepmMul_tat_32f_L(const MultiplyTat<float32, L>& x)
{
    return shareObjects(x, ownMul_tat_32f_L_Packed, ownMul_tat_32f_L_Strided);
}
Status ownOMP_zepmMul_tat_32f_P(const MultiplyTat<float32, P>& x) { return shareObjects(x, ownMul_tat_32f_P); }
Status ownOMP_zepmMul_tat_64f(const MultiplyTat<float64, S>& x)
{
    return shareObjects(x, ownMul_tat_64f_Packed, ownMul_tat_64f_Strided);
}
Status ownOMP_zepmMul_tat_64f_L(const MultiplyTat<float64, L>& x)
{
    return shareObjects(x, ownMul_tat_64f_L_Packed, ownMul_tat_64f_L_Strided);
}
Status ownOMP_zepmMul_tat_64f_P(const MultiplyTat<float64, P>& x) { return shareObjects(x, ownMul_tat_64f_P); }

} // namespace zepm
