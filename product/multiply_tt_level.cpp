// The wide products of two transposed matrices.
#include "product/tiles.h"

namespace zepm::ZEPM_LEVEL
{

template void multiplyMatrices<float32, true, true>(const ProductCall&);
template void multiplyMatrices<float64, true, true>(const ProductCall&);

} // namespace zepm::ZEPM_LEVEL
