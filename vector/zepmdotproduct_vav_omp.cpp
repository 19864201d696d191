// Drivers of zepmDotProduct_vav.
#include "frame/parallel.h"
#include "vector/dotproduct.h"

namespace zepm
{

Status ownOMP_zepmDotProduct_vav_32f(const DotVav<float32, S>& x)
{
    return shareObjects(x, ownDotProduct_vav_32f_Packed, ownDotProduct_vav_32f_Strided);
}
Status ownOMP_zepmDotProduct_vav_32f_L(const DotVav<float32, L>& x)
{
    return shareObjects(x, ownDotProduct_vav_32f_L_Packed, ownDotProduct_vav_32f_L_Strided);
}
Status ownOMP_zepmDotProduct_vav_32f_P(const DotVav<float32, P>& x) { return shareObjects(x, ownDotProduct_vav_32f_P); }
Status ownOMP_zepmDotProduct_vav_64f(const DotVav<float64, S>& x)
{
    return shareObjects(x, ownDotProduct_vav_64f_Packed, ownDotProduct_vav_64f_Strided);
}
Status ownOMP_zepmDotProduct_vav_64f_L(const DotVav<float64, L>& x)
{
    return shareObjects(x, ownDotProduct_vav_64f_L_Packed, ownDotProduct_vav_64f_L_Strided);
}
Status ownOMP_zepmDotProduct_vav_64f_P(const DotVav<float64, P>& x) { return shareObjects(x, ownDotProduct_vav_64f_P); }

} // namespace zepm
