// Drivers of zepmEigenValuesVectorsSym_ma.
#include "eigen/eigenvaluesvectorssym.h"
#include "frame/parallel.h"

namespace zepm
{

Status ownOMP_zepmEigenValuesVectorsSym_ma_32f(const SymmetricVectorsMa<float32, S>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_32f_Packed, ownEigenValuesVectorsSym_ma_32f_Strided);
}
Status ownOMP_zepmEigenValuesVectorsSym_ma_32f_L(const SymmetricVectorsMa<float32, L>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_32f_L_Packed, ownEigenValuesVectorsSym_ma_32f_L_Strided);
}
Status ownOMP_zepmEigenValuesVectorsSym_ma_32f_P(const SymmetricVectorsMa<float32, P>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_32f_P);
}
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f(const SymmetricVectorsMa<float64, S>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_64f_Packed, ownEigenValuesVectorsSym_ma_64f_Strided);
}
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f_L(const SymmetricVectorsMa<float64, L>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_64f_L_Packed, ownEigenValuesVectorsSym_ma_64f_L_Strided);
}
Status ownOMP_zepmEigenValuesVectorsSym_ma_64f_P(const SymmetricVectorsMa<float64, P>& x)
{
    return shareObjects(x, ownEigenValuesVectorsSym_ma_64f_P);
}

} // namespace zepm
