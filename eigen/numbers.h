// The arithmetic in which an algorithm is written once for one object and for a group of objects, one in each lane.
//
// A number is float32, float64 or, in the sources of an instruction-set level, Lanes (lanes.h); comparing two gives a
// Mask, bool or a mask for each lane. A branch is then a choice by select or a write under a mask, and a loop goes on
// while any lane needs it.
#pragma once

#include "frame/lanes.h"

// Written behind the parameters of a lambda: one that is not inlined would be shared by the instruction-set levels.
#define ZEPM_INLINED __attribute__((always_inline))

namespace zepm
{

// The order of a problem is an int32, or FixedOrder where loops over it are written out, so that all elements are in
// registers or at known places. For larger orders that would outgrow the processor's instruction cache.
template <int32 N>
using FixedOrder = std::integral_constant<int32, N>;
template <class N>
inline constexpr bool isWrittenOut = !std::is_same_v<N, int32>;

template <class N, class Body>
ZEPM_INLINE void ascend(N, int32 from, int32 to, Body body)
{
    if constexpr (isWrittenOut<N>)
        ZEPM_UNROLL
        for (int32 i = from; i < to; ++i) body(i);
    else
        for (int32 i = from; i < to; ++i) body(i);
}

// The body says whether to go on.
template <class N, class Body>
ZEPM_INLINE void descendWhile(N, int32 from, int32 to, Body body)
{
    if constexpr (isWrittenOut<N>)
    {
        ZEPM_UNROLL
        for (int32 i = from; i >= to; --i)
            if (!body(i)) return;
    }
    else
    {
        for (int32 i = from; i >= to; --i)
            if (!body(i)) return;
    }
}

template <class N, class Term>
ZEPM_INLINE auto sum(N n, int32 from, int32 to, Term term)
{
    auto total = term(from);
    ascend(n, from + 1, to, [&](int32 i) ZEPM_INLINED { total = total + term(i); });
    return total;
}

// ---- One object -----------------------------------------------------------------------------------------------------

template <class Number>
struct NumberTraits
{
    using Mask = bool;
    using Index = int32; // an element's number, for each object its own
};

ZEPM_INLINE float32 squareRoot(float32 x) { return __builtin_sqrtf(x); }
ZEPM_INLINE float64 squareRoot(float64 x) { return __builtin_sqrt(x); }
ZEPM_INLINE float32 magnitude(float32 x) { return __builtin_fabsf(x); }
ZEPM_INLINE float64 magnitude(float64 x) { return __builtin_fabs(x); }
ZEPM_INLINE bool any(bool mask) { return mask; }
// Calls the body where an index of from, from + 1 ... to - 1 has a value, with that value; not at all outside the range.
ZEPM_INLINE void atIndex(int32, int32 from, int32 to, int32 index, auto body)
{
    if (index >= from && index < to) body(true, index);
}
template <class Number>
ZEPM_INLINE Number select(bool mask, Number yes, Number no)
{
    return mask ? yes : no;
}

} // namespace zepm
