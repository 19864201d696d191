// Drivers of zepmSub_tma.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tma_32f(const CombineTma<float32, S>& x)
{
    return shareObjects(x, ownSub_tma_32f_Packed, ownSub_tma_32f_Strided);
}
Status ownOMP_zepmSub_tma_32f_L(const CombineTma<float32, L>& x)
{
    return shareObjects(x, ownSub_tma_32f_L_Packed, ownSub_tma_32f_L_Strided);
}
Status ownOMP_zepmSub_tma_32f_P(const CombineTma<float32, P>& x) { return shareObjects(x, ownSub_tma_32f_P); }
Status ownOMP_zepmSub_tma_64f(const CombineTma<float64, S>& x)
{
    return shareObjects(x, ownSub_tma_64f_Packed, ownSub_tma_64f_Strided);
}
Status ownOMP_zepmSub_tma_64f_L(const CombineTma<float64, L>& x)
{
    return shareObjects(x, ownSub_tma_64f_L_Packed, ownSub_tma_64f_L_Strided);
}
Status ownOMP_zepmSub_tma_64f_P(const CombineTma<float64, P>& x) { return shareObjects(x, ownSub_tma_64f_P); }

} // namespace zepm
