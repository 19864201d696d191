// Drivers of zepmSaxpy_vav.
#include "frame/parallel.h"
#include "vector/saxpy.h"

namespace zepm
{

Status ownOMP_zepmSaxpy_vav_32f(const SaxpyVav<float32, S>& x)
{
    return shareObjects(x, ownSaxpy_vav_32f_Packed, ownSaxpy_vav_32f_Strided);
}
Status ownOMP_zepmSaxpy_vav_32f_L(const SaxpyVav<float32, L>& x)
{
    return shareObjects(x, ownSaxpy_vav_32f_L_Packed, ownSaxpy_vav_32f_L_Strided);
}
Status ownOMP_zepmSaxpy_vav_32f_P(const SaxpyVav<float32, P>& x) { return shareObjects(x, ownSaxpy_vav_32f_P); }
Status ownOMP_zepmSaxpy_vav_64f(const SaxpyVav<float64, S>& x)
{
    return shareObjects(x, ownSaxpy_vav_64f_Packed, ownSaxpy_vav_64f_Strided);
}
Status ownOMP_zepmSaxpy_vav_64f_L(const SaxpyVav<float64, L>& x)
{
    return shareObjects(x, ownSaxpy_vav_64f_L_Packed, ownSaxpy_vav_64f_L_Strided);
}
Status ownOMP_zepmSaxpy_vav_64f_P(const SaxpyVav<float64, P>& x) { return shareObjects(x, ownSaxpy_vav_64f_P); }

} // namespace zepm
