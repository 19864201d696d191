// Drivers of zepmMul_tac.
#include "elementwise/mul.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmMul_tac_32f(const CombineTac<float32, S>& x)
{
    return shareObjects(x, ownMul_tac_32f_Packed, ownMul_tac_32f_Strided);
}
Status ownOMP_zepmMul_tac_32f_L(const CombineTac<float32, L>& x)
{
    return shareObjects(x, ownMul_tac_32f_L_Packed, ownMul_tac_32f_L_Strided);
}
Status ownOMP_zepmMul_tac_32f_P(const CombineTac<float32, P>& x) { return shareObjects(x, ownMul_tac_32f_P); }
Status ownOMP_zepmMul_tac_64f(const CombineTac<float64, S>& x)
{
    return shareObjects(x, ownMul_tac_64f_Packed, ownMul_tac_64f_Strided);
}
Status ownOMP_zepmMul_tac_64f_L(const CombineTac<float64, L>& x)
{
    return shareObjects(x, ownMul_tac_64f_L_Packed, ownMul_tac_64f_L_Strided);
}
Status ownOMP_zepmMul_tac_64f_P(const CombineTac<float64, P>& x) { return shareObjects(x, ownMul_tac_64f_P); }

} // namespace zepm
