// Drivers of zepmAdd_tata.
#include "elementwise/add_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmAdd_tata_32f(const CombineTata<float32, S>& x)
{
    return shareObjects(x, ownAdd_tata_32f_Packed, ownAdd_tata_32f_Strided);
}
Status ownOMP_zepmAdd_tata_32f_L(const CombineTata<float32, L>& x)
{
    return shareObjects(x, ownAdd_tata_32f_L_Packed, ownAdd_tata_32f_L_Strided);
}
Status ownOMP_zepmAdd_tata_32f_P(const CombineTata<float32, P>& x) { return shareObjects(x, ownAdd_tata_32f_P); }
Status ownOMP_zepmAdd_tata_64f(const CombineTata<float64, S>& x)
{
    return shareObjects(x, ownAdd_tata_64f_Packed, ownAdd_tata_64f_Strided);
}
Status ownOMP_zepmAdd_tata_64f_L(const CombineTata<float64, L>& x)
{
    return shareObjects(x, ownAdd_tata_64f_L_Packed, ownAdd_tata_64f_L_Strided);
}
Status ownOMP_zepmAdd_tata_64f_P(const CombineTata<float64, P>& x) { return shareObjects(x, ownAdd_tata_64f_P); }

} // namespace zepm
