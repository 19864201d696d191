// The kernels of LUDecomp: compiled for each instruction-set level from factor_level.cpp.
#pragma once

#include "frame/levels.h"
#include "solver/forms.h"

namespace zepm
{

ZEPM_EACH_LEVEL(template <bool Contiguous, class X> Status factor(const X& x);)

// Contiguous elements.
template <class X>
ZEPM_INLINE Status factorPacked(const X& x)
{
    return ZEPM_AT_LEVEL(factor<true, X>)(x);
}

// Elements at any distance, or behind tables.
template <class X>
ZEPM_INLINE Status factorGeneral(const X& x)
{
    return ZEPM_AT_LEVEL(factor<false, X>)(x);
}

} // namespace zepm
