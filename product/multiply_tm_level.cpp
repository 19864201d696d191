// The wide products of a transposed matrix and another.
#include "product/tiles.h"

namespace zepm::ZEPM_LEVEL
{

template void multiplyMatrices<float32, true, false>(const ProductCall&);
template void multiplyMatrices<float64, true, false>(const ProductCall&);

} // namespace zepm::ZEPM_LEVEL
