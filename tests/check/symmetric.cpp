// Rows of the symmetric eigenproblems.
#include "tests/check/function.h"

namespace check
{

std::vector<Function> symmetricFunctions()
{
    return {};
}

} // namespace check
