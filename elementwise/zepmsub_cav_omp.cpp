// Drivers of zepmSub_cav.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_cav_32f(const CombineVca<float32, S>& x)
{
    return shareObjects(x, ownSub_cav_32f_Packed, ownSub_cav_32f_Strided);
}
Status ownOMP_zepmSub_cav_32f_L(const CombineVca<float32, L>& x)
{
    return shareObjects(x, ownSub_cav_32f_L_Packed, ownSub_cav_32f_L_Strided);
}
Status ownOMP_zepmSub_cav_32f_P(const CombineVca<float32, P>& x) { return shareObjects(x, ownSub_cav_32f_P); }
Status ownOMP_zepmSub_cav_64f(const CombineVca<float64, S>& x)
{
    return shareObjects(x, ownSub_cav_64f_Packed, ownSub_cav_64f_Strided);
}
Status ownOMP_zepmSub_cav_64f_L(const CombineVca<float64, L>& x)
{
    return shareObjects(x, ownSub_cav_64f_L_Packed, ownSub_cav_64f_L_Strided);
}
Status ownOMP_zepmSub_cav_64f_P(const CombineVca<float64, P>& x) { return shareObjects(x, ownSub_cav_64f_P); }

} // namespace zepm
