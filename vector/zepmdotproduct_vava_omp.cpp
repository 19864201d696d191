// Drivers of zepmDotProduct_vava.
#include "frame/parallel.h"
#include "vector/dotproduct.h"

namespace zepm
{

Status ownOMP_zepmDotProduct_vava_32f(const DotVava<float32, S>& x)
{
    return shareObjects(x, ownDotProduct_vava_32f_Packed, ownDotProduct_vava_32f_Strided);
}
Status ownOMP_zepmDotProduct_vava_32f_L(const DotVava<float32, L>& x)
{
    return shareObjects(x, ownDotProduct_vava_32f_L_Packed, ownDotProduct_vava_32f_L_Strided);
}
Status ownOMP_zepmDotProduct_vava_32f_P(const DotVava<float32, P>& x)
{
    return shareObjects(x, ownDotProduct_vava_32f_P);
}
Status ownOMP_zepmDotProduct_vava_64f(const DotVava<float64, S>& x)
{
    return shareObjects(x, ownDotProduct_vava_64f_Packed, ownDotProduct_vava_64f_Strided);
}
Status ownOMP_zepmDotProduct_vava_64f_L(const DotVava<float64, L>& x)
{
    return shareObjects(x, ownDotProduct_vava_64f_L_Packed, ownDotProduct_vava_64f_L_Strided);
}
Status ownOMP_zepmDotProduct_vava_64f_P(const DotVava<float64, P>& x)
{
    return shareObjects(x, ownDotProduct_vava_64f_P);
}

} // namespace zepm
