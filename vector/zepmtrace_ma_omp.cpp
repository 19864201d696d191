// Drivers of zepmTrace_ma.
#include "frame/parallel.h"
#include "vector/trace.h"

namespace zepm
{

Status ownOMP_zepmTrace_ma_32f(const TraceMa<float32, S>& x)
{
    return shareObjects(x, ownTrace_ma_32f_Packed, ownTrace_ma_32f_Strided);
}
Status ownOMP_zepmTrace_ma_32f_L(const TraceMa<float32, L>& x)
{
    return shareObjects(x, ownTrace_ma_32f_L_Packed, ownTrace_ma_32f_L_Strided);
}
Status ownOMP_zepmTrace_ma_32f_P(const TraceMa<float32, P>& x) { return shareObjects(x, ownTrace_ma_32f_P); }
Status ownOMP_zepmTrace_ma_64f(const TraceMa<float64, S>& x)
{
    return shareObjects(x, ownTrace_ma_64f_Packed, ownTrace_ma_64f_Strided);
}
Status ownOMP_zepmTrace_ma_64f_L(const TraceMa<float64, L>& x)
{
    return shareObjects(x, ownTrace_ma_64f_L_Packed, ownTrace_ma_64f_L_Strided);
}
Status ownOMP_zepmTrace_ma_64f_P(const TraceMa<float64, P>& x) { return shareObjects(x, ownTrace_ma_64f_P); }

} // namespace zepm
