// The kernels of Saxpy and LComb: the rows of the element-wise kernels, by an operation with values of its own.
#pragma once

#include "elementwise/combine.h"
#include "vector/forms.h"

namespace zepm
{

// Whether some of count results of contiguous elements may lie in a source otherwise than element for element, so that
// one may feed another; size is that of an object in bytes.
template <class Src, class Dst>
ZEPM_INLINE bool mayFeed(const Src& src, const Dst& dst, ptrdiff_t size, int32 count)
{
    if constexpr (isListBlock<Dst>)
    {
        for (int32 k = 0; k < count; ++k)
        {
            const auto from = src.object(k).p;
            const auto to = dst.object(k).p;
            if ((!Src::isArray || from != to) && !ZEPM_LEVEL::areApart(bytes(from), bytes(to), size)) return true;
        }
        return false;
    }
    else
    {
        if (Src::isArray && src.p == dst.p && src.stride0 == dst.stride0) return false;
        const auto reach = [&](ptrdiff_t step) ZEPM_INLINED { return (count - 1) * step + size; };
        const char *const s = bytes(src.p), *const d = bytes(dst.p);
        return s < d ? d - s < reach(src.stride0) : s - d < reach(dst.stride0);
    }
}

// Longer vectors than the written ones promise the results of ascending loops, whatever overlaps.
template <class X>
ZEPM_INLINE bool needsOrder(const X& x)
{
    const auto size = x.width * static_cast<ptrdiff_t>(sizeof(typename decltype(x.dst)::Element));
    return x.width > 6 && (mayFeed(x.src1, x.dst, size, x.count) || mayFeed(x.src2, x.dst, size, x.count));
}

template <class X>
ZEPM_INLINE Status linearPacked(const X& x)
{
    if constexpr (decltype(x.dst)::isArray)
    {
        if (needsOrder(x))
        {
            combineViews<1>(x.op, viewOf<true>(x.src1, x), viewOf<true>(x.src2, x), viewOf<true>(x.dst, x), x.width, 1,
                            x.count, sizes<>{});
            return stsOk;
        }
    }
    return combinePacked(x.op, x);
}
template <class X>
ZEPM_INLINE Status linearStrided(const X& x)
{
    return combineStrided(x.op, x, sizes<3, 4, 5, 6>{});
}
template <class X>
ZEPM_INLINE Status linearTable(const X& x)
{
    return combineTable(x.op, x);
}

// What enterQuick takes for single vectors of 3 to 6 elements without gaps.
inline constexpr auto smallLinear = [](const auto& x) ZEPM_INLINED { return combineIfSmall(x.op, x); };

// Arrays in S without gaps, as enterDense.
template <class X, class Order, class Limits>
ZEPM_INLINE Status enterLinear(const X& x, Order steps, Limits limits, KernelOf<X>* packed, KernelOf<X>* general,
                               KernelOf<X>* driver)
{
    const auto serve = [](const X& call) ZEPM_INLINED {
        using Sound = order<Pointers, Sizes, Count>;
        return isPacked(call) && Sound::check(call) == stsOk && !isHeavy<Limits::packed>(call) && !needsOrder(call) &&
               combineIfDense(call.op, call);
    };
    return enterQuick(x, serve, steps, limits, packed, general, driver);
}

} // namespace zepm
