// Solutions from LU factors: L y = b with the rows of b in pivot order, then U x = y. Nothing is tested.
//
// Orders 3 to 6 are straight-line code on local values, in arrays one system in each lane. All other orders work in the
// destination.
#include "solver/groups.h"
#include "solver/substitute.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Orders 3 to 6 --------------------------------------------------------------------------------------------------

// One system, or one in each lane: f the factors with their rows in pivot order, y the right-hand side in that order,
// then the solution. finish(x, i) is the last operation on solution i.
template <class V, int N, class Finish>
ZEPM_INLINE void solve(const V (&f)[N][N], V (&y)[N], Finish finish)
{
    ZEPM_UNROLL
    for (int i = 1; i < N; ++i)
    {
        ZEPM_UNROLL
        for (int j = 1; j < i; ++j) y[i] = y[i] - f[i][j] * y[j];
        y[i] = y[i] - f[i][0] * y[0];
    }
    ZEPM_UNROLL
    for (int i = N - 1; i >= 0; --i)
    {
        ZEPM_UNROLL
        for (int j = N - 1; j > i; --j) y[i] = y[i] - f[i][j] * y[j];
        y[i] = finish(y[i], i);
    }
}

// Systems with a matrix each. False, with nothing written, if rows are to be permuted in registers and a pivot is none
// of the N rows: what it then addresses is not there.
template <class T, int N, int W>
[[gnu::noinline]] bool solveRows(const Group<const T, W>& matrix, const GroupPivots<const int32, N, W>& pivots,
                                 const Group<const T, W>& rhs, const Group<T, W>& destination)
{
    Vec<T, W> f[N][N], y[N];
    if constexpr (permutesRows<N> && W > 1)
    {
        Vec<IntOf<T>, W> row[N];
        pivots.template readLanes<IntOf<T>>(row);
        Mask<T, W> isOutside{};
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) isOutside = isOutside | (row[i] < 0) | (row[i] >= N);
        if (any(isOutside)) return false;
        Vec<T, W> stored[N][N], b[N];
        readMatrix(matrix, stored);
        rhs.template readRow<N>(sameRow<W>(0), b);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i)
        {
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j)
                f[i][j] = picked<N>(
                    row[i], [&](int r) __attribute__((always_inline)) { return stored[r][j]; });
            y[i] = picked<N>(
                row[i], [&](int r) __attribute__((always_inline)) { return b[r]; });
        }
    }
    else
    {
        LaneRows<W> rows[N];
        pivots.read(rows);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i)
        {
            matrix.template readRow<N>(rows[i], f[i]);
            y[i] = rhs.getAcross(rows[i]);
        }
    }
    solve(
        f, y, [&](Vec<T, W> x, int i) __attribute__((always_inline)) { return x / f[i][i]; });
    destination.template writeRow<N>(sameRow<W>(0), y);
    return true;
}

// ---- The same of elements at any distance, or behind tables ---------------------------------------------------------

// The matrices of systems k to k + size - 1, of order n, into the lanes of f, their rows in pivot order. Lanes behind
// them repeat the last.
template <class T, class Matrix>
[[gnu::noinline]] void gatherMatrices(const Matrix& matrix, const PivotBlock<const int32>& pivots, int32 k, int32 size,
                                      int32 n, const LaneCopies<T>& f)
{
    for (int32 lane = 0; lane < f.width; ++lane)
    {
        const int32 system = k + (lane < size ? lane : size - 1);
        const auto object = matrix.object(system);
        for (int32 i = 0; i < n; ++i)
        {
            const int32 row = pivots.object(system, n).get(i);
            for (int32 j = 0; j < n; ++j) f.set(i * n + j, lane, object.get(row, j));
        }
    }
}

// Their right-hand sides in that order.
template <class T, class X, class Rhs>
[[gnu::noinline]] void gatherRhs(const X& x, const Rhs& rhs, int32 k, int32 size, int32 n, const LaneCopies<T>& y)
{
    for (int32 lane = 0; lane < y.width; ++lane)
    {
        const int32 system = k + (lane < size ? lane : size - 1);
        const auto object = rhs.object(system);
        for (int32 i = 0; i < n; ++i) y.set(i, lane, object.get(0, x.pivotsOf(system).get(i)));
    }
}

template <class T, class Destination>
[[gnu::noinline]] void scatterSolutions(const LaneCopies<T>& y, int32 k, int32 size, int32 n,
                                        const Destination& destination)
{
    for (int32 lane = 0; lane < size; ++lane)
    {
        const auto object = destination.object(k + lane);
        for (int32 i = 0; i < n; ++i) object.set(0, i, y.get(i, lane));
    }
}

template <class V, int N>
[[gnu::noinline]] void solveCopies(const V (&f)[N][N], V (&inOut)[N])
{
    V y[N];
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) y[i] = inOut[i];
    solve(
        f, y, [&](V x, int i) __attribute__((always_inline)) { return x / f[i][i]; });
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) inOut[i] = y[i];
}

// ---- Systems with one matrix between them: its diagonal is inverted once --------------------------------------------

template <class T, int N, int W>
struct SharedFactors
{
    Vec<T, W> f[N][N], reciprocal[N];
    int32 row[N];
    bool rowsInside = true; // of the right-hand side too

    // From its copy with the rows in pivot order.
    ZEPM_INLINE SharedFactors(const T (&copy)[N][N], const PivotObject<const int32>& pivots)
    {
        for (int i = 0; i < N; ++i)
        {
            row[i] = pivots.get(i);
            rowsInside = rowsInside && row[i] >= 0 && row[i] < N;
            for (int j = 0; j < N; ++j) f[i][j] = broadcast<T, W>(copy[i][j]);
            reciprocal[i] = broadcast<T, W>(1 / copy[i][i]);
        }
    }
    ZEPM_INLINE void solve(Vec<T, W> (&y)[N]) const
    {
        ZEPM_LEVEL::solve(
            f, y, [&](Vec<T, W> x, int i) __attribute__((always_inline)) { return x * reciprocal[i]; });
    }
};

template <class T, int N, int W>
[[gnu::noinline]] void solveRows(const SharedFactors<T, N, W>& shared, const Group<const T, W>& rhs,
                                 const Group<T, W>& destination)
{
    Vec<T, W> b[N], y[N];
    if (shared.rowsInside)
    {
        rhs.template readRow<N>(sameRow<W>(0), b);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) y[i] = b[shared.row[i]];
    }
    else
    {
        for (int i = 0; i < N; ++i) y[i] = rhs.getAcross(sameRow<W>(shared.row[i]));
    }
    shared.solve(y);
    destination.template writeRow<N>(sameRow<W>(0), y);
}

template <class T, int N, int W>
[[gnu::noinline]] void solveCopies(const SharedFactors<T, N, W>& shared, Vec<T, W> (&inOut)[N])
{
    Vec<T, W> y[N];
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) y[i] = inOut[i];
    shared.solve(y);
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) inOut[i] = y[i];
}

// ---- Groups of systems ----------------------------------------------------------------------------------------------

template <class T, int N, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveUnrolled(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    auto solveFrom = [&]<int W>(int32 k, int32 size) __attribute__((always_inline))
    {
        if constexpr (isContiguous<Matrix>)
            return solveRows<T, N, W>(Group<const T, W>(matrix, k, size),
                                      GroupPivots<const int32, N, W>(x.pivots, k, size), Group<const T, W>(rhs, k, size),
                                      Group<T, W>(destination, k, size));
        else
        {
            Vec<T, W> f[N][N], y[N];
            gatherMatrices(matrix, x.pivots, k, size, N, LaneCopies<T>(f, W));
            gatherRhs(x, rhs, k, size, N, LaneCopies<T>(y, W));
            solveCopies(f, y);
            scatterSolutions(LaneCopies<T>(y, W), k, size, N, destination);
            return true;
        }
    };
    if constexpr (decltype(x.dst)::isArray)
    {
        constexpr int W = lanes<T>;
        constexpr int leastGroup = 2; // fewer systems are not worth a group
        for (int32 left = x.count; left > 0; left -= W)
        {
            const int32 k = x.count - left;
            const int32 size = left < W ? left : W;
            if (size >= leastGroup && solveFrom.template operator()<W>(k, size)) continue;
            for (int32 n = k; n < k + size; ++n) solveFrom.template operator()<1>(n, 1);
        }
    }
    else
    {
        solveFrom.template operator()<1>(0, 1);
    }
}

template <class T, int N, int W, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveShared(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    T copy[N][N];
    gatherMatrices(matrix, x.pivots, 0, 1, N, LaneCopies<T>(copy, 1));
    const SharedFactors<T, N, W> shared(copy, x.pivots.object(0, N));
    for (int32 left = x.count; left > 0; left -= W)
    {
        const int32 k = x.count - left;
        const int32 size = left < W ? left : W;
        if constexpr (isContiguous<Rhs>)
            solveRows(shared, Group<const T, W>(rhs, k, size), Group<T, W>(destination, k, size));
        else
        {
            Vec<T, W> y[N];
            gatherRhs(x, rhs, k, size, N, LaneCopies<T>(y, W));
            solveCopies(shared, y);
            scatterSolutions(LaneCopies<T>(y, W), k, size, N, destination);
        }
    }
}

// ---- All other orders -----------------------------------------------------------------------------------------------

// The sum of f(row, j) * x(j) for j from first to last - 1, in two accumulators: a term to each by turns, an odd last
// term to their sum.
template <class T, class Matrix, class Destination>
ZEPM_INLINE T dotProduct(const Matrix& f, int32 row, const Destination& x, int32 first, int32 last)
{
    T even = 0, odd = 0;
    int32 j = first;
    for (; last - j >= 2; j += 2)
    {
        even = even + f.get(row, j) * x.get(0, j);
        odd = odd + f.get(row, j + 1) * x.get(0, j + 1);
    }
    even = even + odd;
    return j < last ? even + f.get(row, j) * x.get(0, j) : even;
}

template <class T, class Matrix, class Rhs, class Destination>
[[gnu::noinline]] void ownLUBackSubstGeneral(const Matrix& f, const PivotObject<const int32>& pivots, const Rhs& b,
                                             const Destination& x, int32 n)
{
    x.set(0, 0, b.get(0, pivots.get(0)));
    for (int32 i = 1; i < n; ++i)
    {
        const int32 row = pivots.get(i);
        x.set(0, i, b.get(0, row) - dotProduct<T>(f, row, x, 0, i));
    }
    for (int32 i = n - 1; i >= 0; --i)
    {
        const int32 row = pivots.get(i);
        const T y = x.get(0, i);
        x.set(0, i, (i == n - 1 ? y : y - dotProduct<T>(f, row, x, i + 1, n)) / f.get(row, i));
    }
}

template <class T, int N, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveOrder(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    if constexpr (!X::sharesMatrix)
        solveUnrolled<T, N>(x, matrix, rhs, destination);
    else if (x.count == 1)
        solveShared<T, N, 1>(x, matrix, rhs, destination);
    else
        solveShared<T, N, lanes<T>>(x, matrix, rhs, destination);
}

} // namespace

// The test on the order comes once a call, outside the loop over systems.
template <bool Contiguous, class X>
Status substitute(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const int32 n = x.widthHeight;
    const auto matrix = x.matrix.template view<Contiguous>(n);
    const auto rhs = x.rhs.template view<Contiguous>(n);
    const auto destination = x.dst.template view<Contiguous>(n);
    if (x.count == 0) return stsOk; // a thread's empty share: its matrix may lie anywhere
    switch (n)
    {
    case 3: solveOrder<T, 3>(x, matrix, rhs, destination); break;
    case 4: solveOrder<T, 4>(x, matrix, rhs, destination); break;
    case 5: solveOrder<T, 5>(x, matrix, rhs, destination); break;
    case 6: solveOrder<T, 6>(x, matrix, rhs, destination); break;
    default:
        for (int32 k = 0; k < x.count; ++k)
            ownLUBackSubstGeneral<T>(matrix.object(k), x.pivotsOf(k), rhs.object(k), destination.object(k), n);
    }
    return stsOk;
}

template Status substitute<true, SolveMv<float32, S>>(const SolveMv<float32, S>&);
template Status substitute<false, SolveMv<float32, S>>(const SolveMv<float32, S>&);
template Status substitute<false, SolveMv<float32, P>>(const SolveMv<float32, P>&);
template Status substitute<true, SolveMva<float32, S>>(const SolveMva<float32, S>&);
template Status substitute<false, SolveMva<float32, S>>(const SolveMva<float32, S>&);
template Status substitute<true, SolveMva<float32, L>>(const SolveMva<float32, L>&);
template Status substitute<false, SolveMva<float32, L>>(const SolveMva<float32, L>&);
template Status substitute<false, SolveMva<float32, P>>(const SolveMva<float32, P>&);
template Status substitute<true, SolveMava<float32, S>>(const SolveMava<float32, S>&);
template Status substitute<false, SolveMava<float32, S>>(const SolveMava<float32, S>&);
template Status substitute<true, SolveMava<float32, L>>(const SolveMava<float32, L>&);
template Status substitute<false, SolveMava<float32, L>>(const SolveMava<float32, L>&);
template Status substitute<false, SolveMava<float32, P>>(const SolveMava<float32, P>&);
template Status substitute<true, SolveMv<float64, S>>(const SolveMv<float64, S>&);
template Status substitute<false, SolveMv<float64, S>>(const SolveMv<float64, S>&);
template Status substitute<false, SolveMv<float64, P>>(const SolveMv<float64, P>&);
template Status substitute<true, SolveMva<float64, S>>(const SolveMva<float64, S>&);
template Status substitute<false, SolveMva<float64, S>>(const SolveMva<float64, S>&);
template Status substitute<true, SolveMva<float64, L>>(const SolveMva<float64, L>&);
template Status substitute<false, SolveMva<float64, L>>(const SolveMva<float64, L>&);
template Status substitute<false, SolveMva<float64, P>>(const SolveMva<float64, P>&);
template Status substitute<true, SolveMava<float64, S>>(const SolveMava<float64, S>&);
template Status substitute<false, SolveMava<float64, S>>(const SolveMava<float64, S>&);
template Status substitute<true, SolveMava<float64, L>>(const SolveMava<float64, L>&);
template Status substitute<false, SolveMava<float64, L>>(const SolveMava<float64, L>&);
template Status substitute<false, SolveMava<float64, P>>(const SolveMava<float64, P>&);

} // namespace zepm::ZEPM_LEVEL
