// Drivers of zepmMul_mta.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mta_32f(const MultiplyMta<float32, S>& x)
{
    return shareObjects(x, ownMul_mta_32f_Packed, ownMul_mta_32f_Strided);
}
Status ownOMP_zepmMul_mta_32f_L(const MultiplyMta<float32, L>& x)
{
    return shareObjects(x, ownMul_mta_32f_L_Packed, ownMul_mta_32f_L_Strided);
}
Status ownOMP_zepmMul_mta_32f_P(const MultiplyMta<float32, P>& x) { return shareObjects(x, ownMul_mta_32f_P); }
Status ownOMP_zepmMul_mta_64f(const MultiplyMta<float64, S>& x)
{
    return shareObjects(x, ownMul_mta_64f_Packed, ownMul_mta_64f_Strided);
}
Status ownOMP_zepmMul_mta_64f_L(const MultiplyMta<float64, L>& x)
{
    return shareObjects(x, ownMul_mta_64f_L_Packed, ownMul_mta_64f_L_Strided);
}
Status ownOMP_zepmMul_mta_64f_P(const MultiplyMta<float64, P>& x) { return shareObjects(x, ownMul_mta_64f_P); }

} // namespace zepm
