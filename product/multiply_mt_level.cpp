// The wide products of a matrix and a transposed one.
#include "product/tiles.h"

namespace zepm::ZEPM_LEVEL
{

template void multiplyMatrices<float32, false, true>(const ProductCall&);
template void multiplyMatrices<float64, false, true>(const ProductCall&);

} // namespace zepm::ZEPM_LEVEL
