// Drivers of zepmSub_mat.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_mat_32f(const CombineMat<float32, S>& x)
{
    return shareObjects(x, ownSub_mat_32f_Packed, ownSub_mat_32f_Strided);
}
Status ownOMP_zepmSub_mat_32f_L(const CombineMat<float32, L>& x)
{
    return shareObjects(x, ownSub_mat_32f_L_Packed, ownSub_mat_32f_L_Strided);
}
Status ownOMP_zepmSub_mat_32f_P(const CombineMat<float32, P>& x) { return shareObjects(x, ownSub_mat_32f_P); }
Status ownOMP_zepmSub_mat_64f(const CombineMat<float64, S>& x)
{
    return shareObjects(x, ownSub_mat_64f_Packed, ownSub_mat_64f_Strided);
}
Status ownOMP_zepmSub_mat_64f_L(const CombineMat<float64, L>& x)
{
    return shareObjects(x, ownSub_mat_64f_L_Packed, ownSub_mat_64f_L_Strided);
}
Status ownOMP_zepmSub_mat_64f_P(const CombineMat<float64, P>& x) { return shareObjects(x, ownSub_mat_64f_P); }

} // namespace zepm
