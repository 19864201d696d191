// Drivers of zepmLComb_vav.
#include "frame/parallel.h"
#include "vector/lcomb.h"

namespace zepm
{

Status ownOMP_zepmLComb_vav_32f(const LCombVav<float32, S>& x)
{
    return shareObjects(x, ownLComb_vav_32f_Packed, ownLComb_vav_32f_Strided);
}
Status ownOMP_zepmLComb_vav_32f_L(const LCombVav<float32, L>& x)
{
    return shareObjects(x, ownLComb_vav_32f_L_Packed, ownLComb_vav_32f_L_Strided);
}
Status ownOMP_zepmLComb_vav_32f_P(const LCombVav<float32, P>& x) { return shareObjects(x, ownLComb_vav_32f_P); }
Status ownOMP_zepmLComb_vav_64f(const LCombVav<float64, S>& x)
{
    return shareObjects(x, ownLComb_vav_64f_Packed, ownLComb_vav_64f_Strided);
}
Status ownOMP_zepmLComb_vav_64f_L(const LCombVav<float64, L>& x)
{
    return shareObjects(x, ownLComb_vav_64f_L_Packed, ownLComb_vav_64f_L_Strided);
}
Status ownOMP_zepmLComb_vav_64f_P(const LCombVav<float64, P>& x) { return shareObjects(x, ownLComb_vav_64f_P); }

} // namespace zepm
