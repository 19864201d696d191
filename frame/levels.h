// One kernel source, compiled once for each instruction-set level; the named kernel picks the level in force here.
//
//     ZEPM_EACH_LEVEL(template <class X> Status factor(const X& x);)      declares the kernel of every level
//     return ZEPM_AT_LEVEL(factor<X>)(x);                                 calls that of the level in force
//
// A level that the library is built without is not named, so that nothing refers to it.
#pragma once

#include "frame/settings.h"

#if defined(ZEPM_WITHOUT_AVX512)
#define ZEPM_EACH_LEVEL(...)                                                                                           \
    namespace baseline                                                                                                 \
    {                                                                                                                  \
    __VA_ARGS__                                                                                                        \
    }                                                                                                                  \
    namespace avx2                                                                                                     \
    {                                                                                                                  \
    __VA_ARGS__                                                                                                        \
    }
#define ZEPM_AT_LEVEL(...) ::zepm::atLevel(baseline::__VA_ARGS__, avx2::__VA_ARGS__)
#else
#define ZEPM_EACH_LEVEL(...)                                                                                           \
    namespace baseline                                                                                                 \
    {                                                                                                                  \
    __VA_ARGS__                                                                                                        \
    }                                                                                                                  \
    namespace avx2                                                                                                     \
    {                                                                                                                  \
    __VA_ARGS__                                                                                                        \
    }                                                                                                                  \
    namespace avx512                                                                                                   \
    {                                                                                                                  \
    __VA_ARGS__                                                                                                        \
    }
#define ZEPM_AT_LEVEL(...) ::zepm::atLevel(baseline::__VA_ARGS__, avx2::__VA_ARGS__, avx512::__VA_ARGS__)
#endif

namespace zepm
{

template <class Function>
ZEPM_INLINE Function* atLevel(Function* baseline, Function* avx2)
{
    return cpuLevel() >= 1 ? avx2 : baseline;
}
template <class Function>
ZEPM_INLINE Function* atLevel(Function* baseline, Function* avx2, Function* avx512)
{
    const int32 level = cpuLevel();
    return level >= 2 ? avx512 : level >= 1 ? avx2 : baseline;
}

} // namespace zepm
