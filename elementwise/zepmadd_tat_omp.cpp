// Drivers of zepmAdd_tat.
#include "elementwise/add_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_tat_32f(const CombineTat<float32, S>& x)
{
    return shareObjects(x, ownAdd_tat_32f_Packed, ownAdd_tat_32f_Strided);
}
Status ownOMP_zepmAdd_tat_32f_L(const CombineTat<float32, L>& x)
{
    return shareObjects(x, ownAdd_tat_32f_L_Packed, ownAdd_tat_32f_L_Strided);
}
Status ownOMP_zepmAdd_tat_32f_P(const CombineTat<float32, P>& x) { return shareObjects(x, ownAdd_tat_32f_P); }
Status ownOMP_zepmAdd_tat_64f(const CombineTat<float64, S>& x)
{
    return shareObjects(x, ownAdd_tat_64f_Packed, ownAdd_tat_64f_Strided);
}
Status ownOMP_zepmAdd_tat_64f_L(const CombineTat<float64, L>& x)
{
    return shareObjects(x, ownAdd_tat_64f_L_Packed, ownAdd_tat_64f_L_Strided);
}
Status ownOMP_zepmAdd_tat_64f_P(const CombineTat<float64, P>& x) { return shareObjects(x, ownAdd_tat_64f_P); }

} // namespace zepm
