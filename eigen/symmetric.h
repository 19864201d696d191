// The symmetric eigenproblem of order 3 and above: Householder reduction to tridiagonal form, implicit QL with a shift,
// descending order. One text for a single object and for a group of them, one in each lane.
//
// A problem has, over the type Number of the calculation and the type Element of the operands:
//
//   n         the order, an int32 or FixedOrder
//   a         the matrix, destroyed
//   v         the eigenvectors in its columns, at first the identity; NoVectors where there are none
//   values    the eigenvalues in its row; before they are known, elements k + 1 to n - 1 are the reflector u
//
// a, v and values have get(i, j) and set(mask, i, j, x); set rounds to Element. Statuses are those of the whole group.
#pragma once

#include "frame/numbers.h"
#include "frame/sums.h"

namespace zepm
{

// ---- What differs between the kernels -------------------------------------------------------------------------------

struct Rules
{
    // The scalars of a float32 problem are float64, quotients by the rotation's length are products with its
    // reciprocal, and a column of length zero is a reason of its own to pass over a reflector.
    bool wideScalars = false;
    // The root in the shift of a float32 problem is taken in float64, by direction.
    bool wideRootTopDown = false;
    bool wideRootBottomUp = false;
    // A singular object is sorted before it is reported.
    bool sortsSingular = false;
    // The order 2 determinant is compared with the tolerance of float64 in float32 too.
    bool lowOrder2Threshold = false;
};

template <class Element>
inline constexpr Element tolerance = static_cast<Element>(sizeof(Element) == 4 ? 0x1p-23 : 0x1p-52);

// The sweeps allowed for each eigenvalue.
inline constexpr int32 maxSweeps = 30;

struct NoVectors
{
};

template <class Problem>
inline constexpr bool hasVectors = !std::is_same_v<decltype(Problem::v), NoVectors>;

// ---- Reduction ------------------------------------------------------------------------------------------------------

// Reflector k into v, whose row and column 0 stay those of the identity.
template <class Problem, class Mask, class Number>
ZEPM_INLINE void accumulate(Problem& problem, int32 k, const Mask& reflects, const Number& beta)
{
    const auto n = problem.n;
    auto& v = problem.v;
    const auto u = [&](int32 i) ZEPM_INLINED { return problem.values.get(0, i); };
    if (k == 0)
    {
        ascend(n, 1, n, [&](int32 i) ZEPM_INLINED {
            v.set(reflects, i, i, Number(1) - beta * (u(i) * u(i)));
            ascend(n, i + 1, n, [&](int32 j) ZEPM_INLINED {
                const Number x = -beta * u(i) * u(j);
                v.set(reflects, i, j, x);
                v.set(reflects, j, i, x);
            });
        });
        return;
    }
    ascend(n, 1, n, [&](int32 r) ZEPM_INLINED {
        const Number t = beta * sumFromFirst(n, k + 1, n, [&](int32 j) ZEPM_INLINED { return v.get(r, j) * u(j); });
        ascend(n, k + 1, n, [&](int32 j) ZEPM_INLINED { v.set(reflects, r, j, v.get(r, j) - t * u(j)); });
    });
}

// Afterwards the diagonal and the subdiagonal of a are the tridiagonal matrix; the rest of a is of no more use.
template <Rules rules, class Problem>
ZEPM_INLINE void tridiagonalise(Problem& problem)
{
    using Number = typename Problem::Number;
    using Mask = typename NumberTraits<Number>::Mask;
    const auto n = problem.n;
    auto& a = problem.a;
    const Number eps(tolerance<typename Problem::Element>), two(2);
    const auto u = [&](int32 i) ZEPM_INLINED { return problem.values.get(0, i); };
    const auto setU = [&](int32 i, const Number& x) ZEPM_INLINED { problem.values.set(true, 0, i, x); };

    ascend(n, 0, n - 2, [&](int32 k) ZEPM_INLINED {
        const Number ss = sumFromFirst(n, k + 1, n, [&](int32 i) ZEPM_INLINED { return a.get(i, k) * a.get(i, k); });
        const Number s = squareRoot(ss);
        const Number x = a.get(k + 1, k);
        ascend(n, k + 2, n, [&](int32 i) ZEPM_INLINED { setU(i, a.get(i, k)); });

        const Mask isPositive = x > eps, isSmall = eps >= magnitude(x);
        setU(k + 1, select(isPositive, x + s, select(isSmall, s, x - s)));
        const Number h = select(isPositive, (ss + x * s) * two, select(isSmall, ss + ss, (ss - x * s) * two));
        Mask reflects = !(eps >= h);
        if constexpr (hasVectors<Problem>) reflects = reflects & !(eps >= magnitude(x - s));
        if constexpr (hasVectors<Problem> && rules.wideScalars) reflects = reflects & !(eps >= ss);
        if (!any(reflects)) return;
        const Number beta = two / h;

        ascend(n, k, n, [&](int32 j) ZEPM_INLINED {
            const Number t = beta * sumFromFirst(n, k + 1, n, [&](int32 i) ZEPM_INLINED { return a.get(i, j) * u(i); });
            ascend(n, k + 1, n, [&](int32 i) ZEPM_INLINED { a.set(reflects, i, j, a.get(i, j) - t * u(i)); });
        });
        ascend(n, k, n, [&](int32 i) ZEPM_INLINED {
            const Number t = beta * sumFromFirst(n, k + 1, n, [&](int32 j) ZEPM_INLINED { return a.get(i, j) * u(j); });
            ascend(n, k + 1, n, [&](int32 j) ZEPM_INLINED { a.set(reflects, i, j, a.get(i, j) - t * u(j)); });
        });
        if constexpr (hasVectors<Problem>) accumulate(problem, k, reflects, beta);
    });
}

// ---- Sweeps ---------------------------------------------------------------------------------------------------------
//
// The two directions are mirror images. A walk numbers the diagonal d, the subdiagonal e and the columns of v from the
// end at which it begins, so that the text is that of the top-down direction; where the directions differ beyond that,
// walk.bottomUp tells which one it is.

// The square root in the shift.
template <Rules rules, class Walk, class Number>
ZEPM_INLINE Number shiftRoot(const Number& p)
{
    if constexpr (std::is_same_v<Number, float32>)
    {
        if constexpr (Walk::bottomUp ? rules.wideRootBottomUp : rules.wideRootTopDown)
            return static_cast<float32>(squareRoot(static_cast<float64>(p * p) + 1.0));
    }
    return squareRoot(p * p + Number(1));
}

// The test of e is made in float64 where Element is float32; halving is exact but for numbers far below eps, so that no
// result depends on it.
template <class Element, class Number>
ZEPM_INLINE auto countsAsZero(const Number& e)
{
    return Number(tolerance<Element>) >= magnitude(e * Number(0.5f));
}

// The first element from l on that counts as zero, n - 1 if none does.
template <class Walk>
ZEPM_INLINE auto firstZero(const Walk& walk, int32 l)
{
    using Index = typename NumberTraits<typename Walk::Number>::Index;
    const auto n = walk.n;
    if constexpr (std::is_same_v<Index, int32>)
    {
        int32 m = l;
        while (m < n - 1 && !countsAsZero<typename Walk::Element>(walk.e(m))) ++m;
        return m;
    }
    else
    {
        Index m(n - 1);
        descendWhile(n, n - 2, l, [&](int32 i) ZEPM_INLINED {
            m = select(countsAsZero<typename Walk::Element>(walk.e(i)), Index(i), m);
            return true;
        });
        return m;
    }
}

// One sweep over the blocks l to m of the lanes in open.
template <Rules rules, class Walk, class Mask, class Index>
ZEPM_INLINE void sweep(Walk& walk, int32 l, const Index& m, const Mask& open)
{
    using Number = typename Walk::Number;
    const auto n = walk.n;
    const Number eps(tolerance<typename Walk::Element>), one(1), two(2);

    Number dm(0);
    atIndex(n, l + 1, n, m, [&](const Mask& isM, int32 i) ZEPM_INLINED { dm = select(isM, walk.d(i), dm); });
    Number g = walk.e(l);
    const Number p = (walk.d(l + 1) - walk.d(l)) / (two * g);
    const Number root = shiftRoot<rules, Walk>(p);
    g = (dm - walk.d(l)) + g / select(p > eps, p + root, p - root);

    Number s = one, c = one, pp(0), t(0);
    Mask going = open;
    descendWhile(n, walk.lastRotation(m), l, [&](int32 i) ZEPM_INLINED {
        Mask on = going & walk.isInside(i, m);
        const Number f = s * walk.e(i), b = c * walk.e(i);
        const Number r = squareRoot(f * f + g * g);
        if (i + 1 < n - 1) walk.setE(on & (m > Index(i + 1)), i + 1, r);
        const Mask ends = on & (eps >= magnitude(r));
        if (any(ends))
        {
            // No closing update, and an element set to zero that may lie elsewhere: a sweep that ends here may not
            // bring its eigenvalue nearer.
            walk.setD(ends, i + 1, walk.d(i + 1) - pp);
            atIndex(n, l + 1, n, m,
                    [&](const Mask& isM, int32 j) ZEPM_INLINED { walk.setE(ends & isM, j - 1, Number(0)); });
            going = going & !ends;
            on = on & !ends;
            if (!any(going)) return false;
        }
        if constexpr (rules.wideScalars)
        {
            const Number reciprocal = one / r;
            c = select(on, g * reciprocal, c);
            s = select(on, f * reciprocal, s);
        }
        else
        {
            c = select(on, g / r, c);
            s = select(on, f / r, s);
        }
        if constexpr (Walk::hasVectors)
            ascend(n, 0, n, [&](int32 row) ZEPM_INLINED {
                const Number v0 = walk.v(row, i), v1 = walk.v(row, i + 1);
                walk.setV(on, row, i, c * v0 - s * v1);
                walk.setV(on, row, i + 1, s * v0 + c * v1);
            });
        const Number g2 = walk.d(i + 1) - pp;
        t = select(on, (walk.d(i) - g2) * s + two * c * b, t);
        pp = select(on, t * s, pp);
        walk.setD(on, i + 1, g2 + pp);
        g = select(on, t * c - b, g);
        return true;
    });

    Mask closes = magnitude(t) > eps;
    if (l == 0) closes = closes | !walk.bottomUp;
    closes = closes & going;
    walk.setD(closes, l, walk.d(l) - pp);
    walk.setE(closes, l, g);
}

// Whether all eigenvalues were found; prod is then their product as the singularity test sees it.
template <Rules rules, class Walk>
ZEPM_INLINE bool diagonalise(Walk& walk, typename Walk::Number& prod)
{
    using Number = typename Walk::Number;
    using Mask = typename NumberTraits<Number>::Mask;
    using Index = typename NumberTraits<Number>::Index;
    const auto n = walk.n;
    const Mask everywhere = Number(1) > Number(0);
    bool isDone = true;
    prod = Number(1);
    ascend(n, 0, n - 1, [&](int32 l) ZEPM_INLINED {
        Mask open = everywhere;
        for (int32 sweeps = 0; isDone; ++sweeps)
        {
            const Index m = firstZero(walk, l);
            // The bottom-up direction takes in a factor at every split that it finds, also at those that further
            // sweeps will move: its product need not be that of the eigenvalues.
            atIndex(n, l, n - 1, m, [&](const Mask& isM, int32 i) ZEPM_INLINED {
                prod = select(open & isM & walk.bottomUp, walk.rounded(prod * walk.d(i)), prod);
            });
            open = open & (m > Index(l));
            if (!any(open)) break;
            if (sweeps == maxSweeps)
                isDone = false;
            else
                sweep<rules>(walk, l, m, open);
        }
    });
    ascend(n, 0, n - 1,
           [&](int32 i) ZEPM_INLINED { prod = select(walk.bottomUp, prod, walk.rounded(prod * walk.d(i))); });
    prod = walk.rounded(prod * walk.d(n - 1));
    return isDone;
}

// ---- Order ----------------------------------------------------------------------------------------------------------

template <class Problem>
ZEPM_INLINE void sortDescending(Problem& problem)
{
    using Number = typename Problem::Number;
    using Mask = typename NumberTraits<Number>::Mask;
    using Index = typename NumberTraits<Number>::Index;
    const auto n = problem.n;
    const auto exchange = [](auto& rows, const Mask& mask, int32 row, int32 i, int32 j) ZEPM_INLINED {
        const Number x = rows.get(row, i), y = rows.get(row, j);
        rows.set(mask, row, i, y);
        rows.set(mask, row, j, x);
    };
    ascend(n, 0, n - 1, [&](int32 i) ZEPM_INLINED {
        Number largest = problem.values.get(0, i);
        Index j(i);
        ascend(n, i + 1, n, [&](int32 next) ZEPM_INLINED {
            const Number x = problem.values.get(0, next);
            const Mask isLarger = x > largest;
            largest = select(isLarger, x, largest);
            j = select(isLarger, Index(next), j);
        });
        atIndex(n, i + 1, n, j, [&](const Mask& isJ, int32 at) ZEPM_INLINED {
            exchange(problem.values, isJ, 0, i, at);
            if constexpr (hasVectors<Problem>)
                ascend(n, 0, n, [&](int32 row) ZEPM_INLINED { exchange(problem.v, isJ, row, i, at); });
        });
    });
}

// ---- The whole ------------------------------------------------------------------------------------------------------

template <Rules rules, class Problem>
ZEPM_INLINE Status diagonaliseAndSort(Problem& problem)
{
    using Number = typename Problem::Number;
    tridiagonalise<rules>(problem);
    Number prod;
    if (!problem.walk([&](auto& walk) ZEPM_INLINED { return diagonalise<rules>(walk, prod); })) return stsEigenFailErr;
    const bool isSingular = any(Number(tolerance<typename Problem::Element>) >= magnitude(prod));
    if (rules.sortsSingular || !isSingular) sortDescending(problem);
    return isSingular ? stsSingularErr : stsOk;
}

} // namespace zepm
