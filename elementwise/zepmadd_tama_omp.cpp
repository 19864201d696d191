// Drivers of zepmAdd_tama.
#include "elementwise/add_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_tama_32f(const CombineTama<float32, S>& x)
{
    return shareObjects(x, ownAdd_tama_32f_Packed, ownAdd_tama_32f_Strided);
}
Status ownOMP_zepmAdd_tama_32f_L(const CombineTama<float32, L>& x)
{
    return shareObjects(x, ownAdd_tama_32f_L_Packed, ownAdd_tama_32f_L_Strided);
}
Status ownOMP_zepmAdd_tama_32f_P(const CombineTama<float32, P>& x) { return shareObjects(x, ownAdd_tama_32f_P); }
Status ownOMP_zepmAdd_tama_64f(const CombineTama<float64, S>& x)
{
    return shareObjects(x, ownAdd_tama_64f_Packed, ownAdd_tama_64f_Strided);
}
Status ownOMP_zepmAdd_tama_64f_L(const CombineTama<float64, L>& x)
{
    return shareObjects(x, ownAdd_tama_64f_L_Packed, ownAdd_tama_64f_L_Strided);
}
Status ownOMP_zepmAdd_tama_64f_P(const CombineTama<float64, P>& x) { return shareObjects(x, ownAdd_tama_64f_P); }

} // namespace zepm
