// The kernels of LUBackSubst: compiled for each instruction-set level from substitute_level.cpp.
#pragma once

#include "frame/levels.h"
#include "solver/forms.h"

namespace zepm
{

ZEPM_EACH_LEVEL(template <bool Contiguous, class X> Status substitute(const X& x);)

// Contiguous elements.
template <class X>
ZEPM_INLINE Status substitutePacked(const X& x)
{
    return ZEPM_AT_LEVEL(substitute<true, X>)(x);
}

// Elements at any distance, or behind tables.
template <class X>
ZEPM_INLINE Status substituteGeneral(const X& x)
{
    return ZEPM_AT_LEVEL(substitute<false, X>)(x);
}

} // namespace zepm
