// Rows of the drivers among the fixed-size functions.
#include "tests/check/function.h"

namespace check
{

std::vector<Function> geometryFunctions()
{
    return {};
}

} // namespace check
