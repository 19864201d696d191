// Sums by name. The order in which a kernel adds is part of its result, so each order stands here once; term(k) gives
// term k, a scalar or one in each lane. The order of a problem is an int32 or FixedOrder, as written.h has it.
#pragma once

#include "frame/written.h"

namespace zepm
{

// From left to right, beginning with the first term itself: -0 stays -0.
template <class N, class Term>
ZEPM_INLINE auto sumFromFirst(N n, int32 from, int32 to, Term term)
{
    auto sum = term(from);
    ascend(n, from + 1, to, [&](int32 k) ZEPM_INLINED { sum = sum + term(k); });
    return sum;
}

// From left to right, beginning with +0.
template <class N, class Term>
ZEPM_INLINE auto sumFromZero(N n, int32 from, int32 to, Term term)
{
    decltype(term(from)) sum{};
    ascend(n, from, to, [&](int32 k) ZEPM_INLINED { sum = sum + term(k); });
    return sum;
}

// The first, third, fifth term and the second, fourth, sixth apart, both from +0; a last one without a partner is added
// to the sum of both.
template <class Term>
ZEPM_INLINE auto sumInPairs(int32 from, int32 to, Term term)
{
    decltype(term(from)) even{}, odd{};
    int32 k = from;
    for (; to - k >= 2; k += 2)
    {
        even = even + term(k);
        odd = odd + term(k + 1);
    }
    const auto sum = even + odd;
    return k < to ? sum + term(k) : sum;
}

} // namespace zepm
