// Drivers of zepmLUBackSubst_mava.
#include "frame/parallel.h"
#include "solver/lubacksubst.h"

namespace zepm
{

Status ownOMP_zepmLUBackSubst_mava_32f(const SolveMava<float32, S>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_32f_Packed, ownLUBackSubst_mava_32f_Strided);
}
Status ownOMP_zepmLUBackSubst_mava_32f_L(const SolveMava<float32, L>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_32f_L_Packed, ownLUBackSubst_mava_32f_L_Strided);
}
Status ownOMP_zepmLUBackSubst_mava_32f_P(const SolveMava<float32, P>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_32f_P);
}
Status ownOMP_zepmLUBackSubst_mava_64f(const SolveMava<float64, S>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_64f_Packed, ownLUBackSubst_mava_64f_Strided);
}
Status ownOMP_zepmLUBackSubst_mava_64f_L(const SolveMava<float64, L>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_64f_L_Packed, ownLUBackSubst_mava_64f_L_Strided);
}
Status ownOMP_zepmLUBackSubst_mava_64f_P(const SolveMava<float64, P>& x)
{
    return shareObjects(x, ownLUBackSubst_mava_64f_P);
}

} // namespace zepm
