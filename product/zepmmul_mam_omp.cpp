// Drivers of zepmMul_mam.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mam_32f(const MultiplyMam<float32, S>& x)
{
    return shareObjects(x, ownMul_mam_32f_Packed, ownMul_mam_32f_Strided);
}
Status ownOMP_zepmMul_mam_32f_L(const MultiplyMam<float32, L>& x)
{
    return shareObjects(x, ownMul_mam_32f_L_Packed, ownMul_mam_32f_L_Strided);
}
Status ownOMP_zepmMul_mam_32f_P(const MultiplyMam<float32, P>& x) { return shareObjects(x, ownMul_mam_32f_P); }
Status ownOMP_zepmMul_mam_64f(const MultiplyMam<float64, S>& x)
{
    return shareObjects(x, ownMul_mam_64f_Packed, ownMul_mam_64f_Strided);
}
Status ownOMP_zepmMul_mam_64f_L(const MultiplyMam<float64, L>& x)
{
    return shareObjects(x, ownMul_mam_64f_L_Packed, ownMul_mam_64f_L_Strided);
}
Status ownOMP_zepmMul_mam_64f_P(const MultiplyMam<float64, P>& x) { return shareObjects(x, ownMul_mam_64f_P); }

} // namespace zepm
