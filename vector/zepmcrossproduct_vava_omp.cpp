// Drivers of zepmCrossProduct_vava.
#include "frame/parallel.h"
#include "vector/crossproduct.h"

namespace zepm
{

Status ownOMP_zepmCrossProduct_vava_32f(const CrossVava<float32, S>& x)
{
    return shareObjects(x, ownCrossProduct_vava_32f_Packed, ownCrossProduct_vava_32f_Strided);
}
Status ownOMP_zepmCrossProduct_vava_32f_L(const CrossVava<float32, L>& x)
{
    return shareObjects(x, ownCrossProduct_vava_32f_L_Packed, ownCrossProduct_vava_32f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vava_32f_P(const CrossVava<float32, P>& x)
{
    return shareObjects(x, ownCrossProduct_vava_32f_P);
}
Status ownOMP_zepmCrossProduct_vava_64f(const CrossVava<float64, S>& x)
{
    return shareObjects(x, ownCrossProduct_vava_64f_Packed, ownCrossProduct_vava_64f_Strided);
}
Status ownOMP_zepmCrossProduct_vava_64f_L(const CrossVava<float64, L>& x)
{
    return shareObjects(x, ownCrossProduct_vava_64f_L_Packed, ownCrossProduct_vava_64f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vava_64f_P(const CrossVava<float64, P>& x)
{
    return shareObjects(x, ownCrossProduct_vava_64f_P);
}

} // namespace zepm
