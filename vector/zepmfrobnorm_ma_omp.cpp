// Drivers of zepmFrobNorm_ma.
#include "frame/parallel.h"
#include "vector/norms.h"

namespace zepm
{

Status ownOMP_zepmFrobNorm_ma_32f(const NormMa<float32, S>& x)
{
    return shareObjects(x, ownFrobNorm_ma_32f_Packed, ownFrobNorm_ma_32f_Strided);
}
Status ownOMP_zepmFrobNorm_ma_32f_L(const NormMa<float32, L>& x)
{
    return shareObjects(x, ownFrobNorm_ma_32f_L_Packed, ownFrobNorm_ma_32f_L_Strided);
}
Status ownOMP_zepmFrobNorm_ma_32f_P(const NormMa<float32, P>& x) { return shareObjects(x, ownFrobNorm_ma_32f_P); }
Status ownOMP_zepmFrobNorm_ma_64f(const NormMa<float64, S>& x)
{
    return shareObjects(x, ownFrobNorm_ma_64f_Packed, ownFrobNorm_ma_64f_Strided);
}
Status ownOMP_zepmFrobNorm_ma_64f_L(const NormMa<float64, L>& x)
{
    return shareObjects(x, ownFrobNorm_ma_64f_L_Packed, ownFrobNorm_ma_64f_L_Strided);
}
Status ownOMP_zepmFrobNorm_ma_64f_P(const NormMa<float64, P>& x) { return shareObjects(x, ownFrobNorm_ma_64f_P); }

} // namespace zepm
