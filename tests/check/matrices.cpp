// Rows of the element-wise families on matrices.
#include "tests/check/function.h"

namespace check
{

std::vector<Function> matrixFunctions()
{
    return {};
}

} // namespace check
