// Drivers of zepmAdd_vac.
#include "elementwise/add.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_vac_32f(const CombineVac<float32, S>& x)
{
    return shareObjects(x, ownAdd_vac_32f_Packed, ownAdd_vac_32f_Strided);
}
Status ownOMP_zepmAdd_vac_32f_L(const CombineVac<float32, L>& x)
{
    return shareObjects(x, ownAdd_vac_32f_L_Packed, ownAdd_vac_32f_L_Strided);
}
Status ownOMP_zepmAdd_vac_32f_P(const CombineVac<float32, P>& x) { return shareObjects(x, ownAdd_vac_32f_P); }
Status ownOMP_zepmAdd_vac_64f(const CombineVac<float64, S>& x)
{
    return shareObjects(x, ownAdd_vac_64f_Packed, ownAdd_vac_64f_Strided);
}
Status ownOMP_zepmAdd_vac_64f_L(const CombineVac<float64, L>& x)
{
    return shareObjects(x, ownAdd_vac_64f_L_Packed, ownAdd_vac_64f_L_Strided);
}
Status ownOMP_zepmAdd_vac_64f_P(const CombineVac<float64, P>& x) { return shareObjects(x, ownAdd_vac_64f_P); }

} // namespace zepm
