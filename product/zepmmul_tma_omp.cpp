// Drivers of zepmMul_tma.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tma_32f(const MultiplyTma<float32, S>& x)
{
    return shareObjects(x, ownMul_tma_32f_Packed, ownMul_tma_32f_Strided);
}
Status ownOMP_zepmMul_tma_32f_L(const MultiplyTma<float32, L>& x)
{
    return shareObjects(x, ownMul_tma_32f_L_Packed, ownMul_tma_32f_L_Strided);
}
Status ownOMP_zepmMul_tma_32f_P(const MultiplyTma<float32, P>& x) { return shareObjects(x, ownMul_tma_32f_P); }
Status ownOMP_zepmMul_tma_64f(const MultiplyTma<float64, S>& x)
{
    return shareObjects(x, ownMul_tma_64f_Packed, ownMul_tma_64f_Strided);
}
Status ownOMP_zepmMul_tma_64f_L(const MultiplyTma<float64, L>& x)
{
    return shareObjects(x, ownMul_tma_64f_L_Packed, ownMul_tma_64f_L_Strided);
}
Status ownOMP_zepmMul_tma_64f_P(const MultiplyTma<float64, P>& x) { return shareObjects(x, ownMul_tma_64f_P); }

} // namespace zepm
