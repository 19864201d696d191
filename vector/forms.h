// The argument structs of the vector algebra, in the order of the exported functions.
#pragma once

#include "elementwise/forms.h"
#include "elementwise/operations.h"

namespace zepm
{

// ---- One sum for each object, dense in every layout -----------------------------------------------------------------

// The inner products of two operands.
template <class Src1, class Src2>
struct Dotting
{
    using T = std::remove_const_t<typename Src1::Element>;
    static constexpr bool isArray = Src1::isArray || Src2::isArray;
    Src1 src1;
    Src2 src2;
    DenseBlock<T> dst;
    int32 len;
    int32 count;

    ZEPM_INLINE Dotting(const Src1& a, const Src2& b, T* pDst, int32 length, int32 n = 1)
        : src1(a), src2(b), dst(pDst), len(length), count(n)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return len >= 1; }
    ZEPM_INLINE int32 estimate() const
    {
        return (Work(len) * (Work(Src1::isArray ? count : 1) + Work(Src2::isArray ? count : 1))).estimate();
    }
    ZEPM_INLINE static int32 weight() { return 1; }
    ZEPM_INLINE Dotting share(int32 first, int32 n) const
    {
        return {src1.from(first), src2.from(first), dst.from(first, 1).p, len, n};
    }
};

// The norms of vectors (Rank 1) or matrices.
template <int Rank, class Src>
struct Norming : ObjectSize<Rank>
{
    using T = std::remove_const_t<typename Src::Element>;
    static constexpr bool isArray = Src::isArray;
    Src src;
    DenseBlock<T> dst;
    using ObjectSize<Rank>::width, ObjectSize<Rank>::height;
    int32 count;

    ZEPM_INLINE Norming(const Src& from, T* pDst, int32 len, int32 n = 1) requires(Rank == 1)
        : ObjectSize<Rank>{len}, src(from), dst(pDst), count(n)
    {
    }
    ZEPM_INLINE Norming(const Src& from, int32 columns, int32 rows, T* pDst, int32 n = 1) requires(Rank == 2)
        : ObjectSize<Rank>{columns, rows}, src(from), dst(pDst), count(n)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return width >= 1 && height >= 1; }
    ZEPM_INLINE int32 estimate() const { return (Work(width) * height * count).estimate(); }
    ZEPM_INLINE static int32 weight() { return 1; }
    ZEPM_INLINE Norming share(int32 first, int32 n) const
    {
        Norming part = *this;
        part.src = src.from(first);
        part.dst = dst.from(first, 1);
        part.count = n;
        return part;
    }
};

// The traces of square matrices.
template <class Src>
struct Tracing
{
    using T = std::remove_const_t<typename Src::Element>;
    static constexpr bool isArray = Src::isArray;
    Src src;
    DenseBlock<T> dst;
    int32 widthHeight;
    int32 count;

    ZEPM_INLINE Tracing(const Src& from, int32 order, T* pDst, int32 n = 1)
        : src(from), dst(pDst), widthHeight(order), count(n)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return widthHeight >= 1; }
    ZEPM_INLINE int32 estimate() const { return (Work(widthHeight) * count).estimate(); }
    ZEPM_INLINE static int32 weight() { return 1; }
    ZEPM_INLINE Tracing share(int32 first, int32 n) const
    {
        return {src.from(first), widthHeight, dst.from(first, 1).p, n};
    }
};

template <class T, class Y>
using DotVv = Dotting<v<const T, Y>, v<const T, Y>>;
template <class T, class Y>
using DotVav = Dotting<va<const T, Y>, v<const T, Y>>;
template <class T, class Y>
using DotVava = Dotting<va<const T, Y>, va<const T, Y>>;
template <class T, class Y>
using NormV = Norming<1, v<const T, Y>>;
template <class T, class Y>
using NormVa = Norming<1, va<const T, Y>>;
template <class T, class Y>
using NormM = Norming<2, m<const T, Y>>;
template <class T, class Y>
using NormMa = Norming<2, ma<const T, Y>>;
template <class T, class Y>
using TraceM = Tracing<m<const T, Y>>;
template <class T, class Y>
using TraceMa = Tracing<ma<const T, Y>>;

// ---- Vectors of three elements --------------------------------------------------------------------------------------

template <class Src1, class Src2, class Dst>
struct Crossing
{
    static constexpr int32 len = 3;
    Src1 src1;
    Src2 src2;
    Dst dst;
    int32 count;

    ZEPM_INLINE Crossing(const Src1& a, const Src2& b, const Dst& d, int32 n = 1) : src1(a), src2(b), dst(d), count(n)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    // The array operands of each object.
    ZEPM_INLINE int32 estimate() const
    {
        return (Work(Src1::isArray + Src2::isArray + Dst::isArray) * Work(count)).estimate();
    }
    ZEPM_INLINE static int32 weight() { return 3; }
    ZEPM_INLINE Crossing share(int32 first, int32 n) const
    {
        return {src1.from(first), src2.from(first), dst.from(first), n};
    }
};

template <class T, class Y>
using CrossVv = Crossing<v<const T, Y>, v<const T, Y>, v<T, Y>>;
template <class T, class Y>
using CrossVav = Crossing<va<const T, Y>, v<const T, Y>, va<T, Y>>;
template <class T, class Y>
using CrossVva = Crossing<v<const T, Y>, va<const T, Y>, va<T, Y>>;
template <class T, class Y>
using CrossVava = Crossing<va<const T, Y>, va<const T, Y>, va<T, Y>>;

// ---- Linear combinations: element-wise, by an operation with values of its own --------------------------------------

// Form is an element-wise form of vectors, Op what becomes of two of their elements.
template <class Form, class Op>
struct Combining : Form
{
    Op op;

    ZEPM_INLINE Combining(const Form& form, Op operation) : Form(form), op(operation) {}
    ZEPM_INLINE Combining share(int32 first, int32 n) const { return {Form::share(first, n), op}; }
};

template <class T, class Y>
using SaxpyVv = Combining<CombineVv<T, Y>, ScaledPlus<T>>;
template <class T, class Y>
using SaxpyVav = Combining<CombineVav<T, Y>, ScaledPlus<T>>;
template <class T, class Y>
using SaxpyVva = Combining<CombineVva<T, Y>, ScaledPlus<T>>;
template <class T, class Y>
using SaxpyVava = Combining<CombineVava<T, Y>, ScaledPlus<T>>;

template <class T, class Y>
using LCombVv = Combining<CombineVv<T, Y>, WeightedSum<T>>;
template <class T, class Y>
using LCombVav = Combining<CombineVav<T, Y>, WeightedSum<T>>;
template <class T, class Y>
using LCombVava = Combining<CombineVava<T, Y>, WeightedSum<T>>;

} // namespace zepm
