// Drivers of zepmMul_tata.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tata_32f(const MultiplyTata<float32, S>& x)
{
    return shareObjects(x, ownMul_tata_32f_Packed, ownMul_tata_32f_Strided);
}
Status ownOMP_zepmMul_tata_32f_L(const MultiplyTata<float32, L>& x)
{
    return shareObjects(x, ownMul_tata_32f_L_Packed, ownMul_tata_32f_L_Strided);
}
Status ownOMP_zepmMul_tata_32f_P(const MultiplyTata<float32, P>& x) { return shareObjects(x, ownMul_tata_32f_P); }
Status ownOMP_zepmMul_tata_64f(const MultiplyTata<float64, S>& x)
{
    return shareObjects(x, ownMul_tata_64f_Packed, ownMul_tata_64f_Strided);
}
Status ownOMP_zepmMul_tata_64f_L(const MultiplyTata<float64, L>& x)
{
    return shareObjects(x, ownMul_tata_64f_L_Packed, ownMul_tata_64f_L_Strided);
}
Status ownOMP_zepmMul_tata_64f_P(const MultiplyTata<float64, P>& x) { return shareObjects(x, ownMul_tata_64f_P); }

} // namespace zepm
