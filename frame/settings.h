// The settings in force, read in place: a call would cost a short function more than its arithmetic does, and make it
// save all its arguments meanwhile.
#pragma once

#include "frame/operands.h"
#include "zepcore.h"

namespace zepm
{

extern const OwnSettings* settings;

ZEPM_INLINE int32 cpuLevel() { return __atomic_load_n(&settings->cpuLevel, __ATOMIC_RELAXED); }
ZEPM_INLINE int32 minParallelWork() { return __atomic_load_n(&settings->minParallelWork, __ATOMIC_RELAXED); }

} // namespace zepm
