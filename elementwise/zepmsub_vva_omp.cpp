// Drivers of zepmSub_vva.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_vva_32f(const CombineVva<float32, S>& x)
{
    return shareObjects(x, ownSub_vva_32f_Packed, ownSub_vva_32f_Strided);
}
Status ownOMP_zepmSub_vva_32f_L(const CombineVva<float32, L>& x)
{
    return shareObjects(x, ownSub_vva_32f_L_Packed, ownSub_vva_32f_L_Strided);
}
Status ownOMP_zepmSub_vva_32f_P(const CombineVva<float32, P>& x) { return shareObjects(x, ownSub_vva_32f_P); }
Status ownOMP_zepmSub_vva_64f(const CombineVva<float64, S>& x)
{
    return shareObjects(x, ownSub_vva_64f_Packed, ownSub_vva_64f_Strided);
}
Status ownOMP_zepmSub_vva_64f_L(const CombineVva<float64, L>& x)
{
    return shareObjects(x, ownSub_vva_64f_L_Packed, ownSub_vva_64f_L_Strided);
}
Status ownOMP_zepmSub_vva_64f_P(const CombineVva<float64, P>& x) { return shareObjects(x, ownSub_vva_64f_P); }

} // namespace zepm
