// The argument structs of the element-wise forms: two sources, one destination, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// What a call over arrays counts as its work. A block counts len elements, a constant array one, for each of its
// objects.
struct ElementsTouched
{
    template <class T>
    ZEPM_INLINE static Work of(const ConstantArrayBlock<T>&, int32, int32 count)
    {
        return count;
    }
    template <class T>
    ZEPM_INLINE static Work of(const ConstantListBlock<T>&, int32, int32 count)
    {
        return count;
    }
    template <class T>
    ZEPM_INLINE static Work of(const ConstantBlock<T>&, int32, int32)
    {
        return 0;
    }
    template <class Vector>
    ZEPM_INLINE static Work of(const Vector&, int32 len, int32 count)
    {
        return Work(len) * Work(Vector::isArray ? count : 1);
    }
    template <class X>
    ZEPM_INLINE static Work of(const X& x)
    {
        return of(x.src1, x.len, x.count) + of(x.src2, x.len, x.count) + of(x.dst, x.len, x.count);
    }
};

// Add and Sub count a constant as if it were a vector.
struct ConstantAsVector
{
    template <class X>
    ZEPM_INLINE static Work of(const X& x)
    {
        return ElementsTouched::of(x) + x.len;
    }
};

// The constant-first difference counts objects alone; len plays no part.
struct TwoPerObject
{
    template <class X>
    ZEPM_INLINE static Work of(const X& x)
    {
        return Work(2) * x.count;
    }
};

// Vectors or arrays of them, with vectors or constants.
template <class Src1, class Src2, class Dst, class Estimate = ElementsTouched>
struct Vectors
{
    static constexpr bool lightWork = true;
    Src1 src1;
    Src2 src2;
    Dst dst;
    int32 len;
    int32 count = 1;

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return len >= 1; }
    ZEPM_INLINE bool isPacked() const
    {
        return operands([](const auto& block) { return block.contiguous(); });
    }
    ZEPM_INLINE int32 estimate() const { return Estimate::of(*this).estimate(); }
    ZEPM_INLINE Vectors share(int32 first, int32 n) const
    {
        return {src1.from(first), src2.from(first), dst.from(first), len, n};
    }
};

template <class T, class Y>
using Vv = Vectors<v<const T, Y>, v<const T, Y>, v<T, Y>>;
template <class T, class Y>
using Vc = Vectors<v<const T, Y>, c<T>, v<T, Y>>;

template <class T, class Y>
using Vac = Vectors<va<const T, Y>, c<T>, va<T, Y>, ConstantAsVector>;
template <class T, class Y>
using Cva = Vectors<va<const T, Y>, c<T>, va<T, Y>, TwoPerObject>;
template <class T, class Y>
using Vca = Vectors<v<const T, Y>, ca<T, Y>, va<T, Y>>;
template <class T, class Y>
using Vaca = Vectors<va<const T, Y>, ca<T, Y>, va<T, Y>>;
template <class T, class Y>
using Vav = Vectors<va<const T, Y>, v<const T, Y>, va<T, Y>>;
template <class T, class Y>
using Vva = Vectors<v<const T, Y>, va<const T, Y>, va<T, Y>>;
template <class T, class Y>
using Vava = Vectors<va<const T, Y>, va<const T, Y>, va<T, Y>>;

} // namespace zepm
