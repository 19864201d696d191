// Drivers of zepmMul_vac.
#include "elementwise/mul.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmMul_vac_32f(const ScaleVac<float32, S>& x)
{
    return shareObjects(x, ownMul_vac_32f_Packed, ownMul_vac_32f_Strided);
}
Status ownOMP_zepmMul_vac_32f_L(const ScaleVac<float32, L>& x)
{
    return shareObjects(x, ownMul_vac_32f_L_Packed, ownMul_vac_32f_L_Strided);
}
Status ownOMP_zepmMul_vac_32f_P(const ScaleVac<float32, P>& x) { return shareObjects(x, ownMul_vac_32f_P); }
Status ownOMP_zepmMul_vac_64f(const ScaleVac<float64, S>& x)
{
    return shareObjects(x, ownMul_vac_64f_Packed, ownMul_vac_64f_Strided);
}
Status ownOMP_zepmMul_vac_64f_L(const ScaleVac<float64, L>& x)
{
    return shareObjects(x, ownMul_vac_64f_L_Packed, ownMul_vac_64f_L_Strided);
}
Status ownOMP_zepmMul_vac_64f_P(const ScaleVac<float64, P>& x) { return shareObjects(x, ownMul_vac_64f_P); }

} // namespace zepm
