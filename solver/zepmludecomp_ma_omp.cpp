// Drivers of zepmLUDecomp_ma.
#include "frame/parallel.h"
#include "solver/ludecomp.h"

namespace zepm
{

Status ownOMP_zepmLUDecomp_ma_32f(const FactorMa<float32, S>& x)
{
    return shareObjects(x, ownLUDecomp_ma_32f_Packed, ownLUDecomp_ma_32f_Strided);
}
Status ownOMP_zepmLUDecomp_ma_32f_L(const FactorMa<float32, L>& x)
{
    return shareObjects(x, ownLUDecomp_ma_32f_L_Packed, ownLUDecomp_ma_32f_L_Strided);
}
Status ownOMP_zepmLUDecomp_ma_32f_P(const FactorMa<float32, P>& x) { return shareObjects(x, ownLUDecomp_ma_32f_P); }
Status ownOMP_zepmLUDecomp_ma_64f(const FactorMa<float64, S>& x)
{
    return shareObjects(x, ownLUDecomp_ma_64f_Packed, ownLUDecomp_ma_64f_Strided);
}
Status ownOMP_zepmLUDecomp_ma_64f_L(const FactorMa<float64, L>& x)
{
    return shareObjects(x, ownLUDecomp_ma_64f_L_Packed, ownLUDecomp_ma_64f_L_Strided);
}
Status ownOMP_zepmLUDecomp_ma_64f_P(const FactorMa<float64, P>& x) { return shareObjects(x, ownLUDecomp_ma_64f_P); }

} // namespace zepm
