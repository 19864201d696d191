// Drivers of zepmSub_mata.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_mata_32f(const CombineMata<float32, S>& x)
{
    return shareObjects(x, ownSub_mata_32f_Packed, ownSub_mata_32f_Strided);
}
Status ownOMP_zepmSub_mata_32f_L(const CombineMata<float32, L>& x)
{
    return shareObjects(x, ownSub_mata_32f_L_Packed, ownSub_mata_32f_L_Strided);
}
Status ownOMP_zepmSub_mata_32f_P(const CombineMata<float32, P>& x) { return shareObjects(x, ownSub_mata_32f_P); }
Status ownOMP_zepmSub_mata_64f(const CombineMata<float64, S>& x)
{
    return shareObjects(x, ownSub_mata_64f_Packed, ownSub_mata_64f_Strided);
}
Status ownOMP_zepmSub_mata_64f_L(const CombineMata<float64, L>& x)
{
    return shareObjects(x, ownSub_mata_64f_L_Packed, ownSub_mata_64f_L_Strided);
}
Status ownOMP_zepmSub_mata_64f_P(const CombineMata<float64, P>& x) { return shareObjects(x, ownSub_mata_64f_P); }

} // namespace zepm
