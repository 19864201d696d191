// Drivers of zepmSub_cva.
#include "elementwise/sub.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_cva_32f(const CombineCva<float32, S>& x)
{
    return shareObjects(x, ownSub_cva_32f_Packed, ownSub_cva_32f_Strided);
}
Status ownOMP_zepmSub_cva_32f_L(const CombineCva<float32, L>& x)
{
    return shareObjects(x, ownSub_cva_32f_L_Packed, ownSub_cva_32f_L_Strided);
}
Status ownOMP_zepmSub_cva_32f_P(const CombineCva<float32, P>& x) { return shareObjects(x, ownSub_cva_32f_P); }
Status ownOMP_zepmSub_cva_64f(const CombineCva<float64, S>& x)
{
    return shareObjects(x, ownSub_cva_64f_Packed, ownSub_cva_64f_Strided);
}
Status ownOMP_zepmSub_cva_64f_L(const CombineCva<float64, L>& x)
{
    return shareObjects(x, ownSub_cva_64f_L_Packed, ownSub_cva_64f_L_Strided);
}
Status ownOMP_zepmSub_cva_64f_P(const CombineCva<float64, P>& x) { return shareObjects(x, ownSub_cva_64f_P); }

} // namespace zepm
