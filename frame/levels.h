// One kernel source, compiled once for each instruction-set level; the named kernel picks the level in force here.
#pragma once

#include "frame/operands.h"
#include "zepcore.h"

namespace zepm
{

template <class Function>
ZEPM_INLINE Function* atLevel(int32 level, Function* ssse3, Function* avx2, [[maybe_unused]] Function* avx512)
{
#ifndef ZEPM_WITHOUT_AVX512
    if (level >= 2) return avx512;
#endif
    return level >= 1 ? avx2 : ssse3;
}
template <class Function>
ZEPM_INLINE Function* atLevel(Function* ssse3, Function* avx2, Function* avx512)
{
    return atLevel(ownGetCpuLevel(), ssse3, avx2, avx512);
}

} // namespace zepm
