// Drivers of zepmSub_tta.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tta_32f(const CombineTta<float32, S>& x)
{
    return shareObjects(x, ownSub_tta_32f_Packed, ownSub_tta_32f_Strided);
}
Status ownOMP_zepmSub_tta_32f_L(const CombineTta<float32, L>& x)
{
    return shareObjects(x, ownSub_tta_32f_L_Packed, ownSub_tta_32f_L_Strided);
}
Status ownOMP_zepmSub_tta_32f_P(const CombineTta<float32, P>& x) { return shareObjects(x, ownSub_tta_32f_P); }
Status ownOMP_zepmSub_tta_64f(const CombineTta<float64, S>& x)
{
    return shareObjects(x, ownSub_tta_64f_Packed, ownSub_tta_64f_Strided);
}
Status ownOMP_zepmSub_tta_64f_L(const CombineTta<float64, L>& x)
{
    return shareObjects(x, ownSub_tta_64f_L_Packed, ownSub_tta_64f_L_Strided);
}
Status ownOMP_zepmSub_tta_64f_P(const CombineTta<float64, P>& x) { return shareObjects(x, ownSub_tta_64f_P); }

} // namespace zepm
