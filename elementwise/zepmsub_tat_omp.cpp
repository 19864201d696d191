// Drivers of zepmSub_tat.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tat_32f(const CombineTat<float32, S>& x)
{
    return shareObjects(x, ownSub_tat_32f_Packed, ownSub_tat_32f_Strided);
}
Status ownOMP_zepmSub_tat_32f_L(const CombineTat<float32, L>& x)
{
    return shareObjects(x, ownSub_tat_32f_L_Packed, ownSub_tat_32f_L_Strided);
}
Status ownOMP_zepmSub_tat_32f_P(const CombineTat<float32, P>& x) { return shareObjects(x, ownSub_tat_32f_P); }
Status ownOMP_zepmSub_tat_64f(const CombineTat<float64, S>& x)
{
    return shareObjects(x, ownSub_tat_64f_Packed, ownSub_tat_64f_Strided);
}
Status ownOMP_zepmSub_tat_64f_L(const CombineTat<float64, L>& x)
{
    return shareObjects(x, ownSub_tat_64f_L_Packed, ownSub_tat_64f_L_Strided);
}
Status ownOMP_zepmSub_tat_64f_P(const CombineTat<float64, P>& x) { return shareObjects(x, ownSub_tat_64f_P); }

} // namespace zepm
