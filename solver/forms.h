// The argument structs of the direct solvers, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// A matrix, or an array of them, into its factors and pivots.
template <class Src, class Dst>
struct Factoring
{
    static constexpr bool canFail = true;
    Src src;
    DenseBlock<int32> pivots; // row numbers, as many as the order
    Dst dst;
    int32 widthHeight;
    int32 count;

    ZEPM_INLINE Factoring(const Src& from, int32* pDstIndex, const Dst& to, int32 order, int32 objects = 1)
        : src(from), pivots(pDstIndex), dst(to), widthHeight(order), count(objects)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(pivots) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return widthHeight >= 1; }
    ZEPM_INLINE int32 estimate() const { return (Work(widthHeight) * widthHeight * count).estimate(); }
    ZEPM_INLINE static int32 weight() { return 12; }
    ZEPM_INLINE Factoring share(int32 first, int32 n) const
    {
        return {src.from(first), pivots.from(first, widthHeight).p, dst.from(first), widthHeight, n};
    }
};

// Systems of equations: factors and pivots, a right-hand side, a solution. One matrix may serve all right-hand sides.
template <class Matrix, class Rhs, class Dst>
struct Solving
{
    static constexpr bool sharesMatrix = Dst::isArray && !Matrix::isArray;
    Matrix matrix;
    DenseBlock<const int32> pivots;
    Rhs rhs;
    Dst dst;
    int32 widthHeight;
    int32 count;

    ZEPM_INLINE Solving(const Matrix& factors, const int32* pSrcIndex, const Rhs& b, const Dst& x, int32 order,
                        int32 systems = 1)
        : matrix(factors), pivots(pSrcIndex), rhs(b), dst(x), widthHeight(order), count(systems)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(matrix) && f(pivots) && f(rhs) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return widthHeight >= 1; }
    ZEPM_INLINE int32 estimate() const
    {
        const Work n(widthHeight);
        return (sharesMatrix ? (n + Work(2) * count) * n : (n + 2) * n * count).estimate();
    }
    ZEPM_INLINE static int32 weight() { return 5; }
    ZEPM_INLINE Solving share(int32 first, int32 n) const
    {
        return {matrix.from(first), sharesMatrix ? pivots.p : pivots.from(first, widthHeight).p,
                rhs.from(first),    dst.from(first),
                widthHeight,        n};
    }
    ZEPM_INLINE DenseObject<const int32> pivotsOf(int32 k) const
    {
        return pivots.object(sharesMatrix ? 0 : k, widthHeight);
    }
};

template <class T, class Y>
using FactorM = Factoring<m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using FactorMa = Factoring<ma<const T, Y>, ma<T, Y>>;

template <class T, class Y>
using SolveMv = Solving<m<const T, Y>, v<const T, Y>, v<T, Y>>;
template <class T, class Y>
using SolveMva = Solving<m<const T, Y>, va<const T, Y>, va<T, Y>>;
template <class T, class Y>
using SolveMava = Solving<ma<const T, Y>, va<const T, Y>, va<T, Y>>;

} // namespace zepm
