// The argument structs of the products of matrices, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// A source with its sizes, which are those of the matrix as it is stored.
template <class Matrix>
struct Factor : Matrix
{
    int32 width;
    int32 height;
};

// Matrices or arrays of them.
template <class Src1, class Src2, class Dst>
struct Products
{
    static constexpr bool transposes1 = isTransposedBlock<Src1>, transposes2 = isTransposedBlock<Src2>;
    Factor<Src1> src1;
    Factor<Src2> src2;
    Dst dst;
    int32 count = 1;

    // The result has rows() rows of cols() elements, each the sum of inner() products.
    ZEPM_INLINE int32 rows() const { return transposes1 ? src1.width : src1.height; }
    ZEPM_INLINE int32 inner() const { return transposes1 ? src1.height : src1.width; }
    ZEPM_INLINE int32 cols() const { return transposes2 ? src2.height : src2.width; }

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const
    {
        return src1.width >= 1 && src1.height >= 1 && src2.width >= 1 && src2.height >= 1;
    }
    ZEPM_INLINE bool sizesMatch() const { return inner() == (transposes2 ? src2.width : src2.height); }
    // The elements of all operands.
    ZEPM_INLINE int32 estimate() const
    {
        const Work of1 = Work(src1.width) * src1.height * (Src1::isArray ? count : 1);
        const Work of2 = Work(src2.width) * src2.height * (Src2::isArray ? count : 1);
        return (of1 + of2 + Work(rows()) * cols() * count).estimate();
    }
    ZEPM_INLINE int32 weight() const { return 2 + inner() / 4; }
    // Object k alone.
    template <class One>
    ZEPM_INLINE One object(int32 k) const
    {
        return {{src1.object(k), src1.width, src1.height}, {src2.object(k), src2.width, src2.height}, dst.object(k)};
    }
    ZEPM_INLINE Products share(int32 first, int32 n) const
    {
        return {{src1.from(first), src1.width, src1.height},
                {src2.from(first), src2.width, src2.height},
                dst.from(first),
                n};
    }
};

template <class T, class Y>
using MultiplyMm = Products<m<const T, Y>, m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using MultiplyMt = Products<m<const T, Y>, t<const T, Y>, m<T, Y>>;
template <class T, class Y>
using MultiplyTm = Products<t<const T, Y>, m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using MultiplyTt = Products<t<const T, Y>, t<const T, Y>, m<T, Y>>;

template <class T, class Y>
using MultiplyMam = Products<ma<const T, Y>, m<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyMat = Products<ma<const T, Y>, t<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTam = Products<ta<const T, Y>, m<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTat = Products<ta<const T, Y>, t<const T, Y>, ma<T, Y>>;

template <class T, class Y>
using MultiplyMma = Products<m<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyMta = Products<m<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTma = Products<t<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTta = Products<t<const T, Y>, ta<const T, Y>, ma<T, Y>>;

template <class T, class Y>
using MultiplyMama = Products<ma<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyMata = Products<ma<const T, Y>, ta<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTama = Products<ta<const T, Y>, ma<const T, Y>, ma<T, Y>>;
template <class T, class Y>
using MultiplyTata = Products<ta<const T, Y>, ta<const T, Y>, ma<T, Y>>;

} // namespace zepm
