// Sizes that are written out: for the few that most calls have, code in which the size is known to the compiler.
#pragma once

#include "frame/lanes.h"

namespace zepm
{

// ---- One of a few sizes ---------------------------------------------------------------------------------------------

// The sizes for which a kernel has code of its own: in the lines of kernels, and for forSize.
template <int32... Size>
struct sizes
{
    ZEPM_INLINE static bool have(int32 n) { return (... || (n == Size)); }
};

// f.operator()<n>() if n is one of the sizes, else otherwise().
template <int32 First, int32... Rest, class F, class Otherwise>
ZEPM_INLINE auto forSize(int32 n, sizes<First, Rest...>, F f, Otherwise otherwise)
{
    if (n == First) return f.template operator()<First>();
    if constexpr (sizeof...(Rest) > 0)
        return forSize(n, sizes<Rest...>{}, f, otherwise);
    else
        return otherwise();
}
template <class F, class Otherwise>
ZEPM_INLINE auto forSize(int32, sizes<>, F, Otherwise otherwise)
{
    return otherwise();
}

// ---- Loops that may be written out ----------------------------------------------------------------------------------

// The order of a problem is an int32, or FixedOrder where loops over it are written out, so that all elements are in
// registers or at known places. For larger orders that would outgrow the processor's instruction cache.
template <int32 N>
using FixedOrder = std::integral_constant<int32, N>;
template <class N>
inline constexpr bool isWrittenOut = !std::is_same_v<N, int32>;

template <class N, class Body>
ZEPM_INLINE void ascend(N, int32 from, int32 to, Body body)
{
    if constexpr (isWrittenOut<N>) ZEPM_UNROLL
    for (int32 i = from; i < to; ++i) body(i);
    else for (int32 i = from; i < to; ++i) body(i);
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

} // namespace zepm
