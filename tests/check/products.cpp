// Rows of the products of matrices.
#include "tests/check/function.h"

namespace check
{

std::vector<Function> productFunctions()
{
    return {};
}

} // namespace check
