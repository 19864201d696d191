// The argument structs of the element-wise forms: two sources, one destination, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// What a call over arrays counts as its work. A block counts the elements of an object, a constant array one, for each
// of its objects.
struct ElementsTouched
{
    template <class T>
    ZEPM_INLINE static Work of(const ConstantArrayBlock<T>&, Work, int32 count)
    {
        return count;
    }
    template <class T>
    ZEPM_INLINE static Work of(const ConstantListBlock<T>&, Work, int32 count)
    {
        return count;
    }
    template <class T>
    ZEPM_INLINE static Work of(const ConstantBlock<T>&, Work, int32)
    {
        return 0;
    }
    template <class Block>
    ZEPM_INLINE static Work of(const Block&, Work elements, int32 count)
    {
        return elements * Work(Block::isArray ? count : 1);
    }
    template <class X>
    ZEPM_INLINE static Work of(const X& x)
    {
        const Work elements = Work(x.width) * Work(x.height);
        return of(x.src1, elements, x.count) + of(x.src2, elements, x.count) + of(x.dst, elements, x.count);
    }
};

// Add and Sub count a constant as if it were a vector.
struct ConstantAsVector
{
    template <class X>
    ZEPM_INLINE static Work of(const X& x)
    {
        return ElementsTouched::of(x) + x.width;
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

// The size of each object. A vector of len elements is a matrix of one row.
template <int Rank>
struct ObjectSize
{
    int32 width, height;
};
template <>
struct ObjectSize<1>
{
    int32 width;
    static constexpr int32 height = 1;
};

// Objects or arrays of them, with objects or constants.
template <int Rank, class Src1, class Src2, class Dst, class Estimate = ElementsTouched>
struct Elementwise : ObjectSize<Rank>
{
    static constexpr int rank = Rank;
    Src1 src1;
    Src2 src2;
    Dst dst;
    using ObjectSize<Rank>::width, ObjectSize<Rank>::height;
    int32 count;

    ZEPM_INLINE Elementwise(Src1 a, Src2 b, Dst d, int32 len, int32 n = 1) requires(Rank == 1)
        : ObjectSize<Rank>{len}, src1(a), src2(b), dst(d), count(n)
    {
    }
    ZEPM_INLINE Elementwise(Src1 a, Src2 b, Dst d, int32 columns, int32 rows, int32 n = 1) requires(Rank == 2)
        : ObjectSize<Rank>{columns, rows}, src1(a), src2(b), dst(d), count(n)
    {
    }

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return width >= 1 && height >= 1; }
    ZEPM_INLINE int32 estimate() const { return Estimate::of(*this).estimate(); }
    ZEPM_INLINE static int32 weight() { return 1; }
    // Object k alone.
    template <class One>
    ZEPM_INLINE One object(int32 k) const
    {
        if constexpr (Rank == 1)
            return {src1.object(k), src2.object(k), dst.object(k), width};
        else
            return {src1.object(k), src2.object(k), dst.object(k), width, height};
    }
    ZEPM_INLINE Elementwise share(int32 first, int32 n) const
    {
        Elementwise part = *this;
        part.src1 = src1.from(first);
        part.src2 = src2.from(first);
        part.dst = dst.from(first);
        part.count = n;
        return part;
    }
};

template <class T, class Y>
using CombineVv = Elementwise<1, v<const T, Y>, v<const T, Y>, v<T, Y>>;
template <class T, class Y>
using CombineVc = Elementwise<1, v<const T, Y>, c<T>, v<T, Y>>;

template <class T, class Y>
using CombineVac = Elementwise<1, va<const T, Y>, c<T>, va<T, Y>, ConstantAsVector>; // Add, Sub
template <class T, class Y>
using ScaleVac = Elementwise<1, va<const T, Y>, c<T>, va<T, Y>>;
template <class T, class Y>
using CombineCva = Elementwise<1, va<const T, Y>, c<T>, va<T, Y>, TwoPerObject>;
template <class T, class Y>
using CombineVca = Elementwise<1, v<const T, Y>, ca<T, Y>, va<T, Y>>;
template <class T, class Y>
using CombineVaca = Elementwise<1, va<const T, Y>, ca<T, Y>, va<T, Y>>;
template <class T, class Y>
using CombineVav = Elementwise<1, va<const T, Y>, v<const T, Y>, va<T, Y>>;
template <class T, class Y>
using CombineVva = Elementwise<1, v<const T, Y>, va<const T, Y>, va<T, Y>>;
template <class T, class Y>
using CombineVava = Elementwise<1, va<const T, Y>, va<const T, Y>, va<T, Y>>;

template <class T, class Y>
using CombineMm = Elementwise<2, m<const T, Y>, m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using CombineMt = Elementwise<2, m<const T, Y>, t<const T, Y>, m<T, Y>>;
template <class T, class Y>
using CombineTm = Elementwise<2, t<const T, Y>, m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using CombineTt = Elementwise<2, t<const T, Y>, t<const T, Y>, m<T, Y>>;
template <class T, class Y>
using CombineMc = Elementwise<2, m<const T, Y>, c<T>, m<T, Y>>;
template <class T, class Y>
using CombineTc = Elementwise<2, t<const T, Y>, c<T>, m<T, Y>>;

template <class T, class Y>
using CombineMam = Elementwise<2, ma<const T, Y>, m<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMat = Elementwise<2, ma<const T, Y>, t<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTam = Elementwise<2, ta<const T, Y>, m<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTat = Elementwise<2, ta<const T, Y>, t<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMma = Elementwise<2, m<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMta = Elementwise<2, m<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTma = Elementwise<2, t<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTta = Elementwise<2, t<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMama = Elementwise<2, ma<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMata = Elementwise<2, ma<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTama = Elementwise<2, ta<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineTata = Elementwise<2, ta<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using CombineMac = Elementwise<2, ma<const T, Y>, c<T>, ma<T, Y>>;
template <class T, class Y>
using CombineTac = Elementwise<2, ta<const T, Y>, c<T>, ma<T, Y>>;

} // namespace zepm
