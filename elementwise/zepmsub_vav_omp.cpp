// Drivers of zepmSub_vav.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_vav_32f(const CombineVav<float32, S>& x)
{
    return shareObjects(x, ownSub_vav_32f_Packed, ownSub_vav_32f_Strided);
}
Status ownOMP_zepmSub_vav_32f_L(const CombineVav<float32, L>& x)
{
    return shareObjects(x, ownSub_vav_32f_L_Packed, ownSub_vav_32f_L_Strided);
}
Status ownOMP_zepmSub_vav_32f_P(const CombineVav<float32, P>& x) { return shareObjects(x, ownSub_vav_32f_P); }
Status ownOMP_zepmSub_vav_64f(const CombineVav<float64, S>& x)
{
    return shareObjects(x, ownSub_vav_64f_Packed, ownSub_vav_64f_Strided);
}
Status ownOMP_zepmSub_vav_64f_L(const CombineVav<float64, L>& x)
{
    return shareObjects(x, ownSub_vav_64f_L_Packed, ownSub_vav_64f_L_Strided);
}
Status ownOMP_zepmSub_vav_64f_P(const CombineVav<float64, P>& x) { return shareObjects(x, ownSub_vav_64f_P); }

} // namespace zepm
