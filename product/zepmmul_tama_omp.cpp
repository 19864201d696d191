// Drivers of zepmMul_tama.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tama_32f(const MultiplyTama<float32, S>& x)
{
    return shareObjects(x, ownMul_tama_32f_Packed, ownMul_tama_32f_Strided);
}
Status ownOMP_zepmMul_tama_32f_L(const MultiplyTama<float32, L>& x)
{
    return shareObjects(x, ownMul_tama_32f_L_Packed, ownMul_tama_32f_L_Strided);
}
Status ownOMP_zepmMul_tama_32f_P(const MultiplyTama<float32, P>& x) { return shareObjects(x, ownMul_tama_32f_P); }
Status ownOMP_zepmMul_tama_64f(const MultiplyTama<float64, S>& x)
{
    return shareObjects(x, ownMul_tama_64f_Packed, ownMul_tama_64f_Strided);
}
Status ownOMP_zepmMul_tama_64f_L(const MultiplyTama<float64, L>& x)
{
    return shareObjects(x, ownMul_tama_64f_L_Packed, ownMul_tama_64f_L_Strided);
}
Status ownOMP_zepmMul_tama_64f_P(const MultiplyTama<float64, P>& x) { return shareObjects(x, ownMul_tama_64f_P); }

} // namespace zepm
