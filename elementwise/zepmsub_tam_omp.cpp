// Drivers of zepmSub_tam.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tam_32f(const CombineTam<float32, S>& x)
{
    return shareObjects(x, ownSub_tam_32f_Packed, ownSub_tam_32f_Strided);
}
Status ownOMP_zepmSub_tam_32f_L(const CombineTam<float32, L>& x)
{
    return shareObjects(x, ownSub_tam_32f_L_Packed, ownSub_tam_32f_L_Strided);
}
Status ownOMP_zepmSub_tam_32f_P(const CombineTam<float32, P>& x) { return shareObjects(x, ownSub_tam_32f_P); }
Status ownOMP_zepmSub_tam_64f(const CombineTam<float64, S>& x)
{
    return shareObjects(x, ownSub_tam_64f_Packed, ownSub_tam_64f_Strided);
}
Status ownOMP_zepmSub_tam_64f_L(const CombineTam<float64, L>& x)
{
    return shareObjects(x, ownSub_tam_64f_L_Packed, ownSub_tam_64f_L_Strided);
}
Status ownOMP_zepmSub_tam_64f_P(const CombineTam<float64, P>& x) { return shareObjects(x, ownSub_tam_64f_P); }

} // namespace zepm
