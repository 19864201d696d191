// Drivers of zepmSaxpy_vva.
#include "frame/parallel.h"
#include "vector/saxpy.h"

namespace zepm
{

Status ownOMP_zepmSaxpy_vva_32f(const SaxpyVva<float32, S>& x)
{
    return shareObjects(x, ownSaxpy_vva_32f_Packed, ownSaxpy_vva_32f_Strided);
}
Status ownOMP_zepmSaxpy_vva_32f_L(const SaxpyVva<float32, L>& x)
{
    return shareObjects(x, ownSaxpy_vva_32f_L_Packed, ownSaxpy_vva_32f_L_Strided);
}
Status ownOMP_zepmSaxpy_vva_32f_P(const SaxpyVva<float32, P>& x) { return shareObjects(x, ownSaxpy_vva_32f_P); }
Status ownOMP_zepmSaxpy_vva_64f(const SaxpyVva<float64, S>& x)
{
    return shareObjects(x, ownSaxpy_vva_64f_Packed, ownSaxpy_vva_64f_Strided);
}
Status ownOMP_zepmSaxpy_vva_64f_L(const SaxpyVva<float64, L>& x)
{
    return shareObjects(x, ownSaxpy_vva_64f_L_Packed, ownSaxpy_vva_64f_L_Strided);
}
Status ownOMP_zepmSaxpy_vva_64f_P(const SaxpyVva<float64, P>& x) { return shareObjects(x, ownSaxpy_vva_64f_P); }

} // namespace zepm
