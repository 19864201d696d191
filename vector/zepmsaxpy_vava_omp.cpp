// Drivers of zepmSaxpy_vava.
#include "frame/parallel.h"
#include "vector/saxpy.h"

namespace zepm
{

Status ownOMP_zepmSaxpy_vava_32f(const SaxpyVava<float32, S>& x)
{
    return shareObjects(x, ownSaxpy_vava_32f_Packed, ownSaxpy_vava_32f_Strided);
}
Status ownOMP_zepmSaxpy_vava_32f_L(const SaxpyVava<float32, L>& x)
{
    return shareObjects(x, ownSaxpy_vava_32f_L_Packed, ownSaxpy_vava_32f_L_Strided);
}
Status ownOMP_zepmSaxpy_vava_32f_P(const SaxpyVava<float32, P>& x) { return shareObjects(x, ownSaxpy_vava_32f_P); }
Status ownOMP_zepmSaxpy_vava_64f(const SaxpyVava<float64, S>& x)
{
    return shareObjects(x, ownSaxpy_vava_64f_Packed, ownSaxpy_vava_64f_Strided);
}
Status ownOMP_zepmSaxpy_vava_64f_L(const SaxpyVava<float64, L>& x)
{
    return shareObjects(x, ownSaxpy_vava_64f_L_Packed, ownSaxpy_vava_64f_L_Strided);
}
Status ownOMP_zepmSaxpy_vava_64f_P(const SaxpyVava<float64, P>& x) { return shareObjects(x, ownSaxpy_vava_64f_P); }

} // namespace zepm
