// The kernels of LUDecomp: compiled for each instruction-set level from factor_level.cpp.
#pragma once

#include "frame/levels.h"
#include "solver/forms.h"

namespace zepm
{

#define ZEPM_DECLARE_LEVEL(level)                                                                                      \
    namespace level                                                                                                    \
    {                                                                                                                  \
    template <bool Contiguous, class X>                                                                                \
    Status factor(const X& x);                                                                                         \
    }
ZEPM_DECLARE_LEVEL(ssse3)
ZEPM_DECLARE_LEVEL(avx2)
ZEPM_DECLARE_LEVEL(avx512)
#undef ZEPM_DECLARE_LEVEL

// Contiguous elements.
template <class X>
ZEPM_INLINE Status factorPacked(const X& x)
{
    return atLevel(ssse3::factor<true, X>, avx2::factor<true, X>, avx512::factor<true, X>)(x);
}

// Elements at any distance, or behind tables.
template <class X>
ZEPM_INLINE Status factorGeneral(const X& x)
{
    return atLevel(ssse3::factor<false, X>, avx2::factor<false, X>, avx512::factor<false, X>)(x);
}

} // namespace zepm
