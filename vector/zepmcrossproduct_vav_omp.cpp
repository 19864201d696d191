// Drivers of zepmCrossProduct_vav.
#include "frame/parallel.h"
#include "vector/crossproduct.h"

namespace zepm
{

Status ownOMP_zepmCrossProduct_vav_32f(const CrossVav<float32, S>& x)
{
    return shareObjects(x, ownCrossProduct_vav_32f_Packed, ownCrossProduct_vav_32f_Strided);
}
Status ownOMP_zepmCrossProduct_vav_32f_L(const CrossVav<float32, L>& x)
{
    return shareObjects(x, ownCrossProduct_vav_32f_L_Packed, ownCrossProduct_vav_32f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vav_32f_P(const CrossVav<float32, P>& x)
{
    return shareObjects(x, ownCrossProduct_vav_32f_P);
}
Status ownOMP_zepmCrossProduct_vav_64f(const CrossVav<float64, S>& x)
{
    return shareObjects(x, ownCrossProduct_vav_64f_Packed, ownCrossProduct_vav_64f_Strided);
}
Status ownOMP_zepmCrossProduct_vav_64f_L(const CrossVav<float64, L>& x)
{
    return shareObjects(x, ownCrossProduct_vav_64f_L_Packed, ownCrossProduct_vav_64f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vav_64f_P(const CrossVav<float64, P>& x)
{
    return shareObjects(x, ownCrossProduct_vav_64f_P);
}

} // namespace zepm
