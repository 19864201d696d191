// Drivers of zepmAdd_mama.
#include "elementwise/add_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_mama_32f(const CombineMama<float32, S>& x)
{
    return shareObjects(x, ownAdd_mama_32f_Packed, ownAdd_mama_32f_Strided);
}
Status ownOMP_zepmAdd_mama_32f_L(const CombineMama<float32, L>& x)
{
    return shareObjects(x, ownAdd_mama_32f_L_Packed, ownAdd_mama_32f_L_Strided);
}
Status ownOMP_zepmAdd_mama_32f_P(const CombineMama<float32, P>& x) { return shareObjects(x, ownAdd_mama_32f_P); }
Status ownOMP_zepmAdd_mama_64f(const CombineMama<float64, S>& x)
{
    return shareObjects(x, ownAdd_mama_64f_Packed, ownAdd_mama_64f_Strided);
}
Status ownOMP_zepmAdd_mama_64f_L(const CombineMama<float64, L>& x)
{
    return shareObjects(x, ownAdd_mama_64f_L_Packed, ownAdd_mama_64f_L_Strided);
}
Status ownOMP_zepmAdd_mama_64f_P(const CombineMama<float64, P>& x) { return shareObjects(x, ownAdd_mama_64f_P); }

} // namespace zepm
