// Drivers of zepmMul_tam.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_tam_32f(const Tam<float32, S>& x)
{
    return shareObjects(x, ownMul_tam_32f_Packed, ownMul_tam_32f_Strided);
}
Status ownOMP_zepmMul_tam_32f_L(const Tam<float32, L>& x)
{
    return shareObjects(x, ownMul_tam_32f_L_Packed, ownMul_tam_32f_L_Strided);
}
Status ownOMP_zepmMul_tam_32f_P(const Tam<float32, P>& x) { return shareObjects(x, ownMul_tam_32f_P); }
Status ownOMP_zepmMul_tam_64f(const Tam<float64, S>& x)
{
    return shareObjects(x, ownMul_tam_64f_Packed, ownMul_tam_64f_Strided);
}
Status ownOMP_zepmMul_tam_64f_L(const Tam<float64, L>& x)
{
    return shareObjects(x, ownMul_tam_64f_L_Packed, ownMul_tam_64f_L_Strided);
}
Status ownOMP_zepmMul_tam_64f_P(const Tam<float64, P>& x) { return shareObjects(x, ownMul_tam_64f_P); }

} // namespace zepm
