// Drivers of zepmMul_mata.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mata_32f(const MultiplyMata<float32, S>& x)
{
    return shareObjects(x, ownMul_mata_32f_Packed, ownMul_mata_32f_Strided);
}
Status ownOMP_zepmMul_mata_32f_L(const MultiplyMata<float32, L>& x)
{
    return shareObjects(x, ownMul_mata_32f_L_Packed, ownMul_mata_32f_L_Strided);
}
Status ownOMP_zepmMul_mata_32f_P(const MultiplyMata<float32, P>& x) { return shareObjects(x, ownMul_mata_32f_P); }
Status ownOMP_zepmMul_mata_64f(const MultiplyMata<float64, S>& x)
{
    return shareObjects(x, ownMul_mata_64f_Packed, ownMul_mata_64f_Strided);
}
Status ownOMP_zepmMul_mata_64f_L(const MultiplyMata<float64, L>& x)
{
    return shareObjects(x, ownMul_mata_64f_L_Packed, ownMul_mata_64f_L_Strided);
}
Status ownOMP_zepmMul_mata_64f_P(const MultiplyMata<float64, P>& x) { return shareObjects(x, ownMul_mata_64f_P); }

} // namespace zepm
