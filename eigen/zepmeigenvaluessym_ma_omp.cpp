// Drivers of zepmEigenValuesSym_ma.
#include "eigen/eigenvaluessym.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmEigenValuesSym_ma_32f(const SymmetricValuesMa<float32, S>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_32f_Packed, ownEigenValuesSym_ma_32f_Strided);
}
Status ownOMP_zepmEigenValuesSym_ma_32f_L(const SymmetricValuesMa<float32, L>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_32f_L_Packed, ownEigenValuesSym_ma_32f_L_Strided);
}
Status ownOMP_zepmEigenValuesSym_ma_32f_P(const SymmetricValuesMa<float32, P>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_32f_P);
}
Status ownOMP_zepmEigenValuesSym_ma_64f(const SymmetricValuesMa<float64, S>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_64f_Packed, ownEigenValuesSym_ma_64f_Strided);
}
Status ownOMP_zepmEigenValuesSym_ma_64f_L(const SymmetricValuesMa<float64, L>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_64f_L_Packed, ownEigenValuesSym_ma_64f_L_Strided);
}
Status ownOMP_zepmEigenValuesSym_ma_64f_P(const SymmetricValuesMa<float64, P>& x)
{
    return shareObjects(x, ownEigenValuesSym_ma_64f_P);
}

} // namespace zepm
