// Drivers of zepmSub_mta.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_mta_32f(const CombineMta<float32, S>& x)
{
    return shareObjects(x, ownSub_mta_32f_Packed, ownSub_mta_32f_Strided);
}
Status ownOMP_zepmSub_mta_32f_L(const CombineMta<float32, L>& x)
{
    return shareObjects(x, ownSub_mta_32f_L_Packed, ownSub_mta_32f_L_Strided);
}
Status ownOMP_zepmSub_mta_32f_P(const CombineMta<float32, P>& x) { return shareObjects(x, ownSub_mta_32f_P); }
Status ownOMP_zepmSub_mta_64f(const CombineMta<float64, S>& x)
{
    return shareObjects(x, ownSub_mta_64f_Packed, ownSub_mta_64f_Strided);
}
Status ownOMP_zepmSub_mta_64f_L(const CombineMta<float64, L>& x)
{
    return shareObjects(x, ownSub_mta_64f_L_Packed, ownSub_mta_64f_L_Strided);
}
Status ownOMP_zepmSub_mta_64f_P(const CombineMta<float64, P>& x) { return shareObjects(x, ownSub_mta_64f_P); }

} // namespace zepm
