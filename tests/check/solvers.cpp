// Rows of the direct solvers.
#include "tests/check/function.h"

namespace check
{

std::vector<Function> solverFunctions()
{
    return {};
}

} // namespace check
