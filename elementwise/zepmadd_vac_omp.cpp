// Drivers of zepmAdd_vac.
#include "elementwise/add.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_vac_32f(const Vac<float32, S>& x)
{
    return shareObjects(x, ownAdd_vac_32f_Packed, ownAdd_vac_32f_Strided);
}
Status ownOMP_zepmAdd_vac_32f_L(const Vac<float32, L>& x)
{
    return shareObjects(x, ownAdd_vac_32f_L_Packed, ownAdd_vac_32f_L_Strided);
}
Status ownOMP_zepmAdd_vac_32f_P(const Vac<float32, P>& x) { return shareObjects(x, ownAdd_vac_32f_P); }
Status ownOMP_zepmAdd_vac_64f(const Vac<float64, S>& x)
{
    return shareObjects(x, ownAdd_vac_64f_Packed, ownAdd_vac_64f_Strided);
}
Status ownOMP_zepmAdd_vac_64f_L(const Vac<float64, L>& x)
{
    return shareObjects(x, ownAdd_vac_64f_L_Packed, ownAdd_vac_64f_L_Strided);
}
Status ownOMP_zepmAdd_vac_64f_P(const Vac<float64, P>& x) { return shareObjects(x, ownAdd_vac_64f_P); }

} // namespace zepm
