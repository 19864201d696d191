// The wide products of two matrices.
#include "product/tiles.h"

namespace zepm::ZEPM_LEVEL
{

template void multiplyMatrices<float32, false, false>(const ProductCall&);
template void multiplyMatrices<float64, false, false>(const ProductCall&);

} // namespace zepm::ZEPM_LEVEL
