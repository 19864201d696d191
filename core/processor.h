// What the processor offers.
#pragma once

#include "zepm_types.h"

namespace zepcore
{

// The highest instruction-set level that the processor and the operating system support.
int32 highestCpuLevel();

} // namespace zepcore
