// Drivers of zepmSub_cava.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_cava_32f(const CombineVaca<float32, S>& x)
{
    return shareObjects(x, ownSub_cava_32f_Packed, ownSub_cava_32f_Strided);
}
Status ownOMP_zepmSub_cava_32f_L(const CombineVaca<float32, L>& x)
{
    return shareObjects(x, ownSub_cava_32f_L_Packed, ownSub_cava_32f_L_Strided);
}
Status ownOMP_zepmSub_cava_32f_P(const CombineVaca<float32, P>& x) { return shareObjects(x, ownSub_cava_32f_P); }
Status ownOMP_zepmSub_cava_64f(const CombineVaca<float64, S>& x)
{
    return shareObjects(x, ownSub_cava_64f_Packed, ownSub_cava_64f_Strided);
}
Status ownOMP_zepmSub_cava_64f_L(const CombineVaca<float64, L>& x)
{
    return shareObjects(x, ownSub_cava_64f_L_Packed, ownSub_cava_64f_L_Strided);
}
Status ownOMP_zepmSub_cava_64f_P(const CombineVaca<float64, P>& x) { return shareObjects(x, ownSub_cava_64f_P); }

} // namespace zepm
