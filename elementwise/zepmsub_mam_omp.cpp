// Drivers of zepmSub_mam.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_mam_32f(const CombineMam<float32, S>& x)
{
    return shareObjects(x, ownSub_mam_32f_Packed, ownSub_mam_32f_Strided);
}
Status ownOMP_zepmSub_mam_32f_L(const CombineMam<float32, L>& x)
{
    return shareObjects(x, ownSub_mam_32f_L_Packed, ownSub_mam_32f_L_Strided);
}
Status ownOMP_zepmSub_mam_32f_P(const CombineMam<float32, P>& x) { return shareObjects(x, ownSub_mam_32f_P); }
Status ownOMP_zepmSub_mam_64f(const CombineMam<float64, S>& x)
{
    return shareObjects(x, ownSub_mam_64f_Packed, ownSub_mam_64f_Strided);
}
Status ownOMP_zepmSub_mam_64f_L(const CombineMam<float64, L>& x)
{
    return shareObjects(x, ownSub_mam_64f_L_Packed, ownSub_mam_64f_L_Strided);
}
Status ownOMP_zepmSub_mam_64f_P(const CombineMam<float64, P>& x) { return shareObjects(x, ownSub_mam_64f_P); }

} // namespace zepm
