// Drivers of zepmLUBackSubst_mva.
#include "frame/parallel.h"
#include "solver/lubacksubst.h"

namespace zepm
{

Status ownOMP_zepmLUBackSubst_mva_32f(const SolveMva<float32, S>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_32f_Packed, ownLUBackSubst_mva_32f_Strided);
}
Status ownOMP_zepmLUBackSubst_mva_32f_L(const SolveMva<float32, L>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_32f_L_Packed, ownLUBackSubst_mva_32f_L_Strided);
}
Status ownOMP_zepmLUBackSubst_mva_32f_P(const SolveMva<float32, P>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_32f_P);
}
Status ownOMP_zepmLUBackSubst_mva_64f(const SolveMva<float64, S>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_64f_Packed, ownLUBackSubst_mva_64f_Strided);
}
Status ownOMP_zepmLUBackSubst_mva_64f_L(const SolveMva<float64, L>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_64f_L_Packed, ownLUBackSubst_mva_64f_L_Strided);
}
Status ownOMP_zepmLUBackSubst_mva_64f_P(const SolveMva<float64, P>& x)
{
    return shareObjects(x, ownLUBackSubst_mva_64f_P);
}

} // namespace zepm
