// Drivers of zepmMul_mama.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mama_32f(const MultiplyMama<float32, S>& x)
{
    return shareObjects(x, ownMul_mama_32f_Packed, ownMul_mama_32f_Strided);
}
Status ownOMP_zepmMul_mama_32f_L(const MultiplyMama<float32, L>& x)
{
    return shareObjects(x, ownMul_mama_32f_L_Packed, ownMul_mama_32f_L_Strided);
}
Status ownOMP_zepmMul_mama_32f_P(const MultiplyMama<float32, P>& x) { return shareObjects(x, ownMul_mama_32f_P); }
Status ownOMP_zepmMul_mama_64f(const MultiplyMama<float64, S>& x)
{
    return shareObjects(x, ownMul_mama_64f_Packed, ownMul_mama_64f_Strided);
}
Status ownOMP_zepmMul_mama_64f_L(const MultiplyMama<float64, L>& x)
{
    return shareObjects(x, ownMul_mama_64f_L_Packed, ownMul_mama_64f_L_Strided);
}
Status ownOMP_zepmMul_mama_64f_P(const MultiplyMama<float64, P>& x) { return shareObjects(x, ownMul_mama_64f_P); }

} // namespace zepm
