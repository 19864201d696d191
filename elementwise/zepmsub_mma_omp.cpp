// Drivers of zepmSub_mma.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_mma_32f(const CombineMma<float32, S>& x)
{
    return shareObjects(x, ownSub_mma_32f_Packed, ownSub_mma_32f_Strided);
}
Status ownOMP_zepmSub_mma_32f_L(const CombineMma<float32, L>& x)
{
    return shareObjects(x, ownSub_mma_32f_L_Packed, ownSub_mma_32f_L_Strided);
}
Status ownOMP_zepmSub_mma_32f_P(const CombineMma<float32, P>& x) { return shareObjects(x, ownSub_mma_32f_P); }
Status ownOMP_zepmSub_mma_64f(const CombineMma<float64, S>& x)
{
    return shareObjects(x, ownSub_mma_64f_Packed, ownSub_mma_64f_Strided);
}
Status ownOMP_zepmSub_mma_64f_L(const CombineMma<float64, L>& x)
{
    return shareObjects(x, ownSub_mma_64f_L_Packed, ownSub_mma_64f_L_Strided);
}
Status ownOMP_zepmSub_mma_64f_P(const CombineMma<float64, P>& x) { return shareObjects(x, ownSub_mma_64f_P); }

} // namespace zepm
