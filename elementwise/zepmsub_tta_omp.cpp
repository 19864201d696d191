// Drivers of zepmSub_tta.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tta_32f(const Tta<float32, S>& x)
{
    return shareObjects(x, ownSub_tta_32f_Packed, ownSub_tta_32f_Strided);
}
Status ownOMP_zepmSub_tta_32f_L(const Tta<float32, L>& x)
{
    return shareObjects(x, ownSub_tta_32f_L_Packed, ownSub_tta_32f_L_Strided);
}
Status ownOMP_zepmSub_tta_32f_P(const Tta<float32, P>& x) { return shareObjects(x, ownSub_tta_32f_P); }
Status ownOMP_zepmSub_tta_64f(const Tta<float64, S>& x)
{
    return shareObjects(x, ownSub_tta_64f_Packed, ownSub_tta_64f_Strided);
}
Status ownOMP_zepmSub_tta_64f_L(const Tta<float64, L>& x)
{
    return shareObjects(x, ownSub_tta_64f_L_Packed, ownSub_tta_64f_L_Strided);
}
Status ownOMP_zepmSub_tta_64f_P(const Tta<float64, P>& x) { return shareObjects(x, ownSub_tta_64f_P); }

} // namespace zepm
