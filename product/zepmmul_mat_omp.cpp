// Drivers of zepmMul_mat.
#include "frame/parallel.h"
#include "product/mul.h"

namespace zepm
{

Status ownOMP_zepmMul_mat_32f(const MultiplyMat<float32, S>& x)
{
    return shareObjects(x, ownMul_mat_32f_Packed, ownMul_mat_32f_Strided);
}
Status ownOMP_zepmMul_mat_32f_L(const MultiplyMat<float32, L>& x)
{
    return shareObjects(x, ownMul_mat_32f_L_Packed, ownMul_mat_32f_L_Strided);
}
Status ownOMP_zepmMul_mat_32f_P(const MultiplyMat<float32, P>& x) { return shareObjects(x, ownMul_mat_32f_P); }
Status ownOMP_zepmMul_mat_64f(const MultiplyMat<float64, S>& x)
{
    return shareObjects(x, ownMul_mat_64f_Packed, ownMul_mat_64f_Strided);
}
Status ownOMP_zepmMul_mat_64f_L(const MultiplyMat<float64, L>& x)
{
    return shareObjects(x, ownMul_mat_64f_L_Packed, ownMul_mat_64f_L_Strided);
}
Status ownOMP_zepmMul_mat_64f_P(const MultiplyMat<float64, P>& x) { return shareObjects(x, ownMul_mat_64f_P); }

} // namespace zepm
