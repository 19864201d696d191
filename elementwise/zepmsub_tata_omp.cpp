// Drivers of zepmSub_tata.
#include "elementwise/sub_matrices.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmSub_tata_32f(const Tata<float32, S>& x)
{
    return shareObjects(x, ownSub_tata_32f_Packed, ownSub_tata_32f_Strided);
}
Status ownOMP_zepmSub_tata_32f_L(const Tata<float32, L>& x)
{
    return shareObjects(x, ownSub_tata_32f_L_Packed, ownSub_tata_32f_L_Strided);
}
Status ownOMP_zepmSub_tata_32f_P(const Tata<float32, P>& x) { return shareObjects(x, ownSub_tata_32f_P); }
Status ownOMP_zepmSub_tata_64f(const Tata<float64, S>& x)
{
    return shareObjects(x, ownSub_tata_64f_Packed, ownSub_tata_64f_Strided);
}
Status ownOMP_zepmSub_tata_64f_L(const Tata<float64, L>& x)
{
    return shareObjects(x, ownSub_tata_64f_L_Packed, ownSub_tata_64f_L_Strided);
}
Status ownOMP_zepmSub_tata_64f_P(const Tata<float64, P>& x) { return shareObjects(x, ownSub_tata_64f_P); }

} // namespace zepm
