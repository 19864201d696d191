// Drivers of zepmMul_mac.
#include "elementwise/mul.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmMul_mac_32f(const CombineMac<float32, S>& x)
{
    return shareObjects(x, ownMul_mac_32f_Packed, ownMul_mac_32f_Strided);
}
Status ownOMP_zepmMul_mac_32f_L(const CombineMac<float32, L>& x)
{
    return shareObjects(x, ownMul_mac_32f_L_Packed, ownMul_mac_32f_L_Strided);
}
Status ownOMP_zepmMul_mac_32f_P(const CombineMac<float32, P>& x) { return shareObjects(x, ownMul_mac_32f_P); }
Status ownOMP_zepmMul_mac_64f(const CombineMac<float64, S>& x)
{
    return shareObjects(x, ownMul_mac_64f_Packed, ownMul_mac_64f_Strided);
}
Status ownOMP_zepmMul_mac_64f_L(const CombineMac<float64, L>& x)
{
    return shareObjects(x, ownMul_mac_64f_L_Packed, ownMul_mac_64f_L_Strided);
}
Status ownOMP_zepmMul_mac_64f_P(const CombineMac<float64, P>& x) { return shareObjects(x, ownMul_mac_64f_P); }

} // namespace zepm
