// Drivers of zepmLComb_vava.
#include "frame/parallel.h"
#include "vector/lcomb.h"

namespace zepm
{

Status ownOMP_zepmLComb_vava_32f(const LCombVava<float32, S>& x)
{
    return shareObjects(x, ownLComb_vava_32f_Packed, ownLComb_vava_32f_Strided);
}
Status ownOMP_zepmLComb_vava_32f_L(const LCombVava<float32, L>& x)
{
    return shareObjects(x, ownLComb_vava_32f_L_Packed, ownLComb_vava_32f_L_Strided);
}
Status ownOMP_zepmLComb_vava_32f_P(const LCombVava<float32, P>& x) { return shareObjects(x, ownLComb_vava_32f_P); }
Status ownOMP_zepmLComb_vava_64f(const LCombVava<float64, S>& x)
{
    return shareObjects(x, ownLComb_vava_64f_Packed, ownLComb_vava_64f_Strided);
}
Status ownOMP_zepmLComb_vava_64f_L(const LCombVava<float64, L>& x)
{
    return shareObjects(x, ownLComb_vava_64f_L_Packed, ownLComb_vava_64f_L_Strided);
}
Status ownOMP_zepmLComb_vava_64f_P(const LCombVava<float64, P>& x) { return shareObjects(x, ownLComb_vava_64f_P); }

} // namespace zepm
