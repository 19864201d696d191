// The kernels of LUBackSubst: compiled for each instruction-set level from substitute_level.cpp.
#pragma once

#include "frame/levels.h"
#include "solver/forms.h"

namespace zepm
{

#define ZEPM_DECLARE_LEVEL(level)                                                                                      \
    namespace level                                                                                                    \
    {                                                                                                                  \
    template <bool Contiguous, class X>                                                                                \
    Status substitute(const X& x);                                                                                     \
    }
ZEPM_DECLARE_LEVEL(ssse3)
ZEPM_DECLARE_LEVEL(avx2)
ZEPM_DECLARE_LEVEL(avx512)
#undef ZEPM_DECLARE_LEVEL

// Contiguous elements.
template <class X>
ZEPM_INLINE Status substitutePacked(const X& x)
{
    return atLevel(ssse3::substitute<true, X>, avx2::substitute<true, X>, avx512::substitute<true, X>)(x);
}

// Elements at any distance, or behind tables.
template <class X>
ZEPM_INLINE Status substituteGeneral(const X& x)
{
    return atLevel(ssse3::substitute<false, X>, avx2::substitute<false, X>, avx512::substitute<false, X>)(x);
}

} // namespace zepm
