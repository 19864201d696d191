// The kernels of CrossProduct. All elements of an object are read before the first is written, so that its result may
// replace one of its sources.
#pragma once

#include "frame/levels.h"
#include "vector/forms.h"

namespace zepm
{

template <class Number>
ZEPM_INLINE void cross(const Number (&a)[3], const Number (&b)[3], Number (&c)[3])
{
    c[0] = a[1] * b[2] - a[2] * b[1];
    c[1] = a[2] * b[0] - a[0] * b[2];
    c[2] = a[0] * b[1] - a[1] * b[0];
}

template <class A, class B, class D>
ZEPM_INLINE void crossOne(const A& a, const B& b, const D& d)
{
    using T = decltype(a.get(0, 0));
    const T x[3] = {a.get(0, 0), a.get(0, 1), a.get(0, 2)}, y[3] = {b.get(0, 0), b.get(0, 1), b.get(0, 2)};
    T z[3];
    cross(x, y, z);
    d.set(0, 0, z[0]), d.set(0, 1, z[1]), d.set(0, 2, z[2]);
}

ZEPM_EACH_LEVEL(template <bool Contiguous, class X> Status crossArrays(const X& x);)

template <bool Contiguous, class X>
ZEPM_INLINE Status crossProducts(const X& x)
{
    if constexpr (decltype(x.dst)::isArray)
        return ZEPM_AT_LEVEL(crossArrays<Contiguous, X>)(x);
    else
    {
        crossOne(x.src1.template view<Contiguous>(3).object(0), x.src2.template view<Contiguous>(3).object(0),
                 x.dst.template view<Contiguous>(3).object(0));
        return stsOk;
    }
}
template <class X>
ZEPM_INLINE Status crossPacked(const X& x)
{
    return crossProducts<true>(x);
}
template <class X>
ZEPM_INLINE Status crossStrided(const X& x)
{
    return crossProducts<false>(x);
}
template <class X>
ZEPM_INLINE Status crossTable(const X& x)
{
    return crossProducts<false>(x);
}

// What enterQuick takes for single vectors without gaps.
inline constexpr auto oneCross = [](const auto& x) ZEPM_INLINED {
    if (!isDense(x, 3)) return false;
    crossProducts<true>(x);
    return true;
};

} // namespace zepm
