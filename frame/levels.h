// One kernel source, compiled once for each instruction-set level; the named kernel picks the level in force here.
#pragma once

#include "frame/settings.h"

namespace zepm
{

template <class Function>
ZEPM_INLINE Function* atLevel(Function* ssse3, Function* avx2, [[maybe_unused]] Function* avx512)
{
    const int32 level = cpuLevel();
#ifndef ZEPM_WITHOUT_AVX512
    if (level >= 2) return avx512;
#endif
    return level >= 1 ? avx2 : ssse3;
}

} // namespace zepm
