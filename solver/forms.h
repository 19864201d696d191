// The argument structs of the direct solvers, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// The pivot row numbers of one matrix.
template <class I>
struct PivotObject
{
    I* p;
    ZEPM_INLINE int32 get(int32 i) const { return load<I>(p + i); }
    ZEPM_INLINE void set(int32 i, int32 row) const { store<int32>(p + i, row); }
};

// Pivot row numbers: order of them for each matrix, dense in every layout. I is int32 or const int32.
template <class I>
struct PivotBlock : Block<I>
{
    I* p;

    ZEPM_INLINE PivotBlock(I* base) : p(base) {}
    ZEPM_INLINE bool isNull() const { return !p; }
    ZEPM_INLINE PivotBlock from(int32 first, int32 order) const { return object(first, order).p; }
    ZEPM_INLINE PivotObject<I> object(int32 k, int32 order) const { return {p + static_cast<ptrdiff_t>(k) * order}; }
};

// What all these forms answer to the questions of the frame; widthHeight is the order of the matrices.
template <class X>
struct SquareForm
{
    ZEPM_INLINE bool sizesValid() const { return self().widthHeight >= 1; }
    ZEPM_INLINE bool isPacked() const
    {
        return self().operands([](const auto& block) { return block.contiguous(); });
    }

private:
    ZEPM_INLINE const X& self() const { return static_cast<const X&>(*this); }
};

// A matrix, or an array of them, into its factors and pivots.
template <class Src, class Dst>
struct Factoring : SquareForm<Factoring<Src, Dst>>
{
    static constexpr bool canFail = true;
    Src src;
    PivotBlock<int32> pivots;
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
    ZEPM_INLINE int32 estimate() const { return (Work(widthHeight) * widthHeight * count).estimate(); }
    ZEPM_INLINE Factoring share(int32 first, int32 n) const
    {
        return {src.from(first), pivots.from(first, widthHeight).p, dst.from(first), widthHeight, n};
    }
};

// Systems of equations: factors and pivots, a right-hand side, a solution. One matrix may serve all right-hand sides.
template <class Matrix, class Rhs, class Dst>
struct Solving : SquareForm<Solving<Matrix, Rhs, Dst>>
{
    static constexpr bool sharesMatrix = Dst::isArray && !Matrix::isArray;
    Matrix matrix;
    PivotBlock<const int32> pivots;
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
    ZEPM_INLINE int32 estimate() const
    {
        const Work n(widthHeight);
        return (sharesMatrix ? (n + Work(2) * count) * n : (n + 2) * n * count).estimate();
    }
    ZEPM_INLINE Solving share(int32 first, int32 n) const
    {
        return {matrix.from(first), sharesMatrix ? pivots.p : pivots.from(first, widthHeight).p,
                rhs.from(first),    dst.from(first),
                widthHeight,        n};
    }
    ZEPM_INLINE PivotObject<const int32> pivotsOf(int32 k) const
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
