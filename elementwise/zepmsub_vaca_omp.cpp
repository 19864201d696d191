// Drivers of zepmSub_vaca.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_vaca_32f(const CombineVaca<float32, S>& x)
{
    return shareObjects(x, ownSub_vaca_32f_Packed, ownSub_vaca_32f_Strided);
}
Status ownOMP_zepmSub_vaca_32f_L(const CombineVaca<float32, L>& x)
{
    return shareObjects(x, ownSub_vaca_32f_L_Packed, ownSub_vaca_32f_L_Strided);
}
Status ownOMP_zepmSub_vaca_32f_P(const CombineVaca<float32, P>& x) { return shareObjects(x, ownSub_vaca_32f_P); }
Status ownOMP_zepmSub_vaca_64f(const CombineVaca<float64, S>& x)
{
    return shareObjects(x, ownSub_vaca_64f_Packed, ownSub_vaca_64f_Strided);
}
Status ownOMP_zepmSub_vaca_64f_L(const CombineVaca<float64, L>& x)
{
    return shareObjects(x, ownSub_vaca_64f_L_Packed, ownSub_vaca_64f_L_Strided);
}
Status ownOMP_zepmSub_vaca_64f_P(const CombineVaca<float64, P>& x) { return shareObjects(x, ownSub_vaca_64f_P); }

} // namespace zepm
