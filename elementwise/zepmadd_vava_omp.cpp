// Drivers of zepmAdd_vava.
#include "elementwise/add.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_vava_32f(const CombineVava<float32, S>& x)
{
    return shareObjects(x, ownAdd_vava_32f_Packed, ownAdd_vava_32f_Strided);
}
Status ownOMP_zepmAdd_vava_32f_L(const CombineVava<float32, L>& x)
{
    return shareObjects(x, ownAdd_vava_32f_L_Packed, ownAdd_vava_32f_L_Strided);
}
Status ownOMP_zepmAdd_vava_32f_P(const CombineVava<float32, P>& x) { return shareObjects(x, ownAdd_vava_32f_P); }
Status ownOMP_zepmAdd_vava_64f(const CombineVava<float64, S>& x)
{
    return shareObjects(x, ownAdd_vava_64f_Packed, ownAdd_vava_64f_Strided);
}
Status ownOMP_zepmAdd_vava_64f_L(const CombineVava<float64, L>& x)
{
    return shareObjects(x, ownAdd_vava_64f_L_Packed, ownAdd_vava_64f_L_Strided);
}
Status ownOMP_zepmAdd_vava_64f_P(const CombineVava<float64, P>& x) { return shareObjects(x, ownAdd_vava_64f_P); }

} // namespace zepm
