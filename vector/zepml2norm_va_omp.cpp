// Drivers of zepmL2Norm_va.
#include "frame/parallel.h"
#include "vector/norms.h"

namespace zepm
{

Status ownOMP_zepmL2Norm_va_32f(const NormVa<float32, S>& x)
{
    return shareObjects(x, ownL2Norm_va_32f_Packed, ownL2Norm_va_32f_Strided);
}
Status ownOMP_zepmL2Norm_va_32f_L(const NormVa<float32, L>& x)
{
    return shareObjects(x, ownL2Norm_va_32f_L_Packed, ownL2Norm_va_32f_L_Strided);
}
Status ownOMP_zepmL2Norm_va_32f_P(const NormVa<float32, P>& x) { return shareObjects(x, ownL2Norm_va_32f_P); }
Status ownOMP_zepmL2Norm_va_64f(const NormVa<float64, S>& x)
{
    return shareObjects(x, ownL2Norm_va_64f_Packed, ownL2Norm_va_64f_Strided);
}
Status ownOMP_zepmL2Norm_va_64f_L(const NormVa<float64, L>& x)
{
    return shareObjects(x, ownL2Norm_va_64f_L_Packed, ownL2Norm_va_64f_L_Strided);
}
Status ownOMP_zepmL2Norm_va_64f_P(const NormVa<float64, P>& x) { return shareObjects(x, ownL2Norm_va_64f_P); }

} // namespace zepm
