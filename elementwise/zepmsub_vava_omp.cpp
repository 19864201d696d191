// Drivers of zepmSub_vava.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_vava_32f(const CombineVava<float32, S>& x)
{
    return shareObjects(x, ownSub_vava_32f_Packed, ownSub_vava_32f_Strided);
}
Status ownOMP_zepmSub_vava_32f_L(const CombineVava<float32, L>& x)
{
    return shareObjects(x, ownSub_vava_32f_L_Packed, ownSub_vava_32f_L_Strided);
}
Status ownOMP_zepmSub_vava_32f_P(const CombineVava<float32, P>& x) { return shareObjects(x, ownSub_vava_32f_P); }
Status ownOMP_zepmSub_vava_64f(const CombineVava<float64, S>& x)
{
    return shareObjects(x, ownSub_vava_64f_Packed, ownSub_vava_64f_Strided);
}
Status ownOMP_zepmSub_vava_64f_L(const CombineVava<float64, L>& x)
{
    return shareObjects(x, ownSub_vava_64f_L_Packed, ownSub_vava_64f_L_Strided);
}
Status ownOMP_zepmSub_vava_64f_P(const CombineVava<float64, P>& x) { return shareObjects(x, ownSub_vava_64f_P); }

} // namespace zepm
