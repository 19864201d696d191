// Drivers of zepmCrossProduct_vva.
#include "frame/parallel.h"
#include "vector/crossproduct.h"

namespace zepm
{

Status ownOMP_zepmCrossProduct_vva_32f(const CrossVva<float32, S>& x)
{
    return shareObjects(x, ownCrossProduct_vva_32f_Packed, ownCrossProduct_vva_32f_Strided);
}
Status ownOMP_zepmCrossProduct_vva_32f_L(const CrossVva<float32, L>& x)
{
    return shareObjects(x, ownCrossProduct_vva_32f_L_Packed, ownCrossProduct_vva_32f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vva_32f_P(const CrossVva<float32, P>& x)
{
    return shareObjects(x, ownCrossProduct_vva_32f_P);
}
Status ownOMP_zepmCrossProduct_vva_64f(const CrossVva<float64, S>& x)
{
    return shareObjects(x, ownCrossProduct_vva_64f_Packed, ownCrossProduct_vva_64f_Strided);
}
Status ownOMP_zepmCrossProduct_vva_64f_L(const CrossVva<float64, L>& x)
{
    return shareObjects(x, ownCrossProduct_vva_64f_L_Packed, ownCrossProduct_vva_64f_L_Strided);
}
Status ownOMP_zepmCrossProduct_vva_64f_P(const CrossVva<float64, P>& x)
{
    return shareObjects(x, ownCrossProduct_vva_64f_P);
}

} // namespace zepm
