// Drivers of zepmMul_mma.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mma_32f(const MultiplyMma<float32, S>& x)
{
    return shareObjects(x, ownMul_mma_32f_Packed, ownMul_mma_32f_Strided);
}
Status ownOMP_zepmMul_mma_32f_L(const MultiplyMma<float32, L>& x)
{
    return shareObjects(x, ownMul_mma_32f_L_Packed, ownMul_mma_32f_L_Strided);
}
Status ownOMP_zepmMul_mma_32f_P(const MultiplyMma<float32, P>& x) { return shareObjects(x, ownMul_mma_32f_P); }
Status ownOMP_zepmMul_mma_64f(const MultiplyMma<float64, S>& x)
{
    return shareObjects(x, ownMul_mma_64f_Packed, ownMul_mma_64f_Strided);
}
Status ownOMP_zepmMul_mma_64f_L(const MultiplyMma<float64, L>& x)
{
    return shareObjects(x, ownMul_mma_64f_L_Packed, ownMul_mma_64f_L_Strided);
}
Status ownOMP_zepmMul_mma_64f_P(const MultiplyMma<float64, P>& x) { return shareObjects(x, ownMul_mma_64f_P); }

} // namespace zepm
