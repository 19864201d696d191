// Solutions from LU factors: L y = b with the rows of b in pivot order, then U x = y. Nothing is tested.
//
// Orders 3 to 6 are straight-line code on local values, in arrays one system in each lane: rows without gaps move by
// pieces, all other layouts element by element. All other orders work in the destination, several systems in turn.
#include "solver/pivots.h"
#include "solver/substitute.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Orders 3 to 6 --------------------------------------------------------------------------------------------------

// One system, or one in each lane: f(i, j) the factors with their rows in pivot order, y the right-hand side in that
// order, then the solution. finish(x, i) is the last operation on solution i.
template <class V, int N, class Factors, class Finish>
ZEPM_INLINE void solve(const Factors& f, V (&y)[N], Finish finish)
{
    ZEPM_UNROLL
    for (int i = 1; i < N; ++i)
    {
        ZEPM_UNROLL
        for (int j = 1; j < i; ++j) y[i] = y[i] - f(i, j) * y[j];
        y[i] = y[i] - f(i, 0) * y[0];
    }
    ZEPM_UNROLL
    for (int i = N - 1; i >= 0; --i)
    {
        ZEPM_UNROLL
        for (int j = N - 1; j > i; --j) y[i] = y[i] - f(i, j) * y[j];
        y[i] = finish(y[i], i);
    }
}
template <class V, int N, class Factors>
ZEPM_INLINE void solveDividing(const Factors& f, V (&y)[N])
{
    solve(f, y, [&](V x, int i) ZEPM_INLINED { return x / f(i, i); });
}

// Whether right-hand sides are brought to the order of the pivots in registers, an object's in a piece.
template <class T, int N, int W>
inline constexpr bool permutesPieces = registerBytes > 16 && sizeof(T) == 4 && N == 4 && W > 1;

// Systems with a matrix each; pivots are those of one lane after the other. False, with nothing written, if rows are to
// be permuted in registers and a pivot is none of the N rows: what it then addresses is not there.
template <class T, int N, int W>
[[gnu::noinline]] bool solveRows(const RowGroup<const T, W>& matrix, const char* pivots,
                                 const RowGroup<const T, W>& rhs, const RowGroup<T, W>& destination)
{
    Vec<T, W> f[N][N], y[N];
    if constexpr (permutesRows<N> && W > 1)
    {
        Vec<IntOf<T>, W> row[N];
        readPivotLanes<IntOf<T>, N, W>(pivots, row);
        MaskOf<T, W> isOutside{};
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) isOutside = isOutside | (row[i] < 0) | (row[i] >= N);
        if (any(isOutside)) return false;
        Vec<T, W> stored[N][N], b[N];
        readMatrix(matrix, stored);
        rhs.template readVectors<N>(b);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i)
        {
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j) f[i][j] = picked<N>(row[i], [&](int r) ZEPM_INLINED { return stored[r][j]; });
            y[i] = picked<N>(row[i], [&](int r) ZEPM_INLINED { return b[r]; });
        }
    }
    else
    {
        if constexpr (permutesPieces<T, N, W>)
        {
            Vec<int32, W> row[N], isOutside{};
            loadPieces<int32, W>(Addresses<const char, W>(pivots, N * 4).p, row);
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i) isOutside |= row[i];
            if (any((isOutside & ~(N - 1)) != 0)) return false;
            loadPieces<T, W>(rhs.p, y);
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i) y[i] = permutePieces(y[i], row[i]);
            transposePieces<T, W>(y);
        }
        LaneRows<W> rows[N];
        readPivots(pivots, rows);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i)
        {
            matrix.template readRow<N>(rows[i], f[i]);
            if constexpr (!permutesPieces<T, N, W>) y[i] = rhs.getAcross(rows[i]);
        }
    }
    solveDividing([&](int i, int j) ZEPM_INLINED { return f[i][j]; }, y);
    destination.template writeVectors<N>(y);
    return true;
}

// One system of any layout.
template <class T, int N, class Matrix, class Rhs, class Destination>
[[gnu::noinline]] void solveOne(const Matrix& matrix, const DenseObject<const int32>& pivots, const Rhs& rhs,
                                const Destination& x)
{
    int32 row[N];
    T y[N];
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i)
    {
        row[i] = pivots.get(i);
        y[i] = rhs.get(0, row[i]);
    }
    solveDividing([&](int i, int j) ZEPM_INLINED { return matrix.get(row[i], j); }, y);
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) x.set(0, i, y[i]);
}

// ---- Groups of elements at any distance, or behind tables -----------------------------------------------------------

// The right-hand sides of systems k to k + size - 1 in the order of their pivots. Lanes behind them repeat the last.
template <class T, int N, int W, class X, class Rhs>
ZEPM_INLINE void gatherRhs(const X& x, const Rhs& rhs, int32 k, int32 size, Vec<T, W> (&y)[N])
{
    for (int lane = 0; lane < W; ++lane)
    {
        const int32 system = k + (lane < size ? lane : size - 1);
        const auto object = rhs.object(system);
        const auto pivots = x.pivotsOf(system);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) setLane<T>(y[i], lane, object.get(0, pivots.get(i)));
    }
}

template <class T, int N, int W, class Destination>
ZEPM_INLINE void scatterSolutions(const Vec<T, W> (&y)[N], int32 k, int32 size, const Destination& destination)
{
    for (int lane = 0; lane < size; ++lane)
    {
        const auto object = destination.object(k + lane);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) object.set(0, i, getLane<T>(y[i], lane));
    }
}

template <class T, int N, int W>
[[gnu::noinline]] void solveCopies(const Vec<T, W> (&f)[N][N], Vec<T, W> (&inOut)[N])
{
    Vec<T, W> y[N];
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) y[i] = inOut[i];
    solveDividing([&](int i, int j) ZEPM_INLINED { return f[i][j]; }, y);
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) inOut[i] = y[i];
}

template <class T, int N, int W, class X, class Matrix, class Rhs, class Destination>
[[gnu::noinline]] bool solveElements(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination,
                                     int32 k, int32 size)
{
    Vec<T, W> f[N][N], y[N];
    for (int lane = 0; lane < W; ++lane)
    {
        const int32 system = k + (lane < size ? lane : size - 1);
        const auto object = matrix.object(system);
        const auto pivots = x.pivotsOf(system);
        for (int i = 0; i < N; ++i)
        {
            const int32 row = pivots.get(i);
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j) setLane<T>(f[i][j], lane, object.get(row, j));
        }
    }
    gatherRhs<T, N, W>(x, rhs, k, size, y);
    solveCopies<T, N, W>(f, y);
    scatterSolutions<T, N, W>(y, k, size, destination);
    return true;
}

// ---- Systems with one matrix between them: its diagonal is inverted once --------------------------------------------

template <class T, int W>
struct SharedFactors
{
    Vec<T, W> f[largestWrittenOut * largestWrittenOut], reciprocal[largestWrittenOut];
    int32 row[largestWrittenOut];
    bool rowsInside = true; // of the right-hand side too

    template <int N, class Matrix>
    [[gnu::noinline]] void read(const Matrix& matrix, const DenseObject<const int32>& pivots)
    {
        for (int i = 0; i < N; ++i)
        {
            row[i] = pivots.get(i);
            rowsInside = rowsInside && row[i] >= 0 && row[i] < N;
            ZEPM_UNROLL
            for (int j = 0; j < N; ++j) f[i * N + j] = broadcast<T, W>(matrix.get(row[i], j));
            reciprocal[i] = broadcast<T, W>(1 / matrix.get(row[i], i));
        }
    }
    template <int N>
    ZEPM_INLINE void solve(Vec<T, W> (&y)[N]) const
    {
        ZEPM_LEVEL::solve([&](int i, int j) ZEPM_INLINED { return f[i * N + j]; }, y,
                          [&](Vec<T, W> x, int i) ZEPM_INLINED { return x * reciprocal[i]; });
    }
};

template <class T, int N, int W>
[[gnu::noinline]] void solveSharedRows(const SharedFactors<T, W>& shared, const RowGroup<const T, W>& rhs,
                                       const RowGroup<T, W>& destination)
{
    Vec<T, W> b[N], y[N];
    if (shared.rowsInside)
    {
        rhs.template readVectors<N>(b);
        ZEPM_UNROLL
        for (int i = 0; i < N; ++i) y[i] = b[shared.row[i]];
    }
    else
    {
        for (int i = 0; i < N; ++i) y[i] = rhs.getAcross(sameRow<W>(shared.row[i]));
    }
    shared.solve(y);
    destination.template writeVectors<N>(y);
}

template <class T, int N, int W, class X, class Rhs, class Destination>
[[gnu::noinline]] void solveSharedElements(const SharedFactors<T, W>& shared, const X& x, const Rhs& rhs,
                                           const Destination& destination, int32 k, int32 size)
{
    Vec<T, W> y[N];
    gatherRhs<T, N, W>(x, rhs, k, size, y);
    shared.solve(y);
    scatterSolutions<T, N, W>(y, k, size, destination);
}

// ---- Groups of systems ----------------------------------------------------------------------------------------------

template <class T, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveSeparate(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    const int32 order = x.widthHeight;
    const auto one = forWrittenOrder(order, []<int N>() {
        return &solveOne<T, N, decltype(matrix.object(0)), decltype(rhs.object(0)), decltype(destination.object(0))>;
    });
    if constexpr (decltype(x.dst)::isArray)
    {
        constexpr int W = lanes<T>;
        constexpr int leastGroup = 2; // fewer systems are not worth a group
        const auto group = forWrittenOrder(order, []<int N>() {
            if constexpr (hasContiguousRows<Matrix>)
                return &solveRows<T, N, W>;
            else
                return &solveElements<T, N, W, X, Matrix, Rhs, Destination>;
        });
        auto solveGroup = [&](int32 k, int32 size) ZEPM_INLINED {
            if constexpr (hasContiguousRows<Matrix>)
            {
                const GroupPivots<const int32, W> pivots(x.pivots, k, size, order);
                return group(RowGroup<const T, W>(matrix, k, size), pivots.p, RowGroup<const T, W>(rhs, k, size),
                             RowGroup<T, W>(destination, k, size));
            }
            else
                return group(x, matrix, rhs, destination, k, size);
        };
        static_cast<void>(forGroups(x.count, W, leastGroup, solveGroup, [&](int32 n) ZEPM_INLINED {
            one(matrix.object(n), x.pivotsOf(n), rhs.object(n), destination.object(n));
            return stsOk;
        }));
    }
    else
    {
        one(matrix.object(0), x.pivotsOf(0), rhs.object(0), destination.object(0));
    }
}

template <class T, int W, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveShared(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    const int32 order = x.widthHeight;
    SharedFactors<T, W> shared;
    forWrittenOrder(order, [&]<int N>() { shared.template read<N>(matrix.object(0), x.pivots.object(0, N)); });
    const auto group = forWrittenOrder(order, []<int N>() {
        if constexpr (hasContiguousRows<Rhs>)
            return &solveSharedRows<T, N, W>;
        else
            return &solveSharedElements<T, N, W, X, Rhs, Destination>;
    });
    for (int32 left = x.count; left > 0; left -= W)
    {
        const int32 k = x.count - left;
        const int32 size = left < W ? left : W;
        if constexpr (hasContiguousRows<Rhs>)
            group(shared, RowGroup<const T, W>(rhs, k, size), RowGroup<T, W>(destination, k, size));
        else
            group(shared, x, rhs, destination, k, size);
    }
}

// ---- All other orders -----------------------------------------------------------------------------------------------

// K systems together: one by itself would wait for each of its sums.
template <class T, int K, class Matrix, class Rhs, class Destination>
struct Systems
{
    Matrix f[K];
    DenseObject<const int32> pivots[K];
    Rhs b[K];
    Destination x[K];
    int32 row[K];

    ZEPM_INLINE void toRow(int32 i)
    {
        ZEPM_UNROLL
        for (int s = 0; s < K; ++s) row[s] = pivots[s].get(i);
    }

    // The sums of f(row, j) * x(j) for j from first to last - 1, each in two accumulators: a term to each by turns, an
    // odd last term to their sum.
    ZEPM_INLINE void dotProducts(int32 first, int32 last, T (&sum)[K]) const
    {
        T odd[K];
        ZEPM_UNROLL
        for (int s = 0; s < K; ++s) sum[s] = odd[s] = 0;
        int32 j = first;
        for (; last - j >= 2; j += 2)
        {
            ZEPM_UNROLL
            for (int s = 0; s < K; ++s)
            {
                sum[s] = sum[s] + f[s].get(row[s], j) * x[s].get(0, j);
                odd[s] = odd[s] + f[s].get(row[s], j + 1) * x[s].get(0, j + 1);
            }
        }
        ZEPM_UNROLL
        for (int s = 0; s < K; ++s)
        {
            sum[s] = sum[s] + odd[s];
            if (j < last) sum[s] = sum[s] + f[s].get(row[s], j) * x[s].get(0, j);
        }
    }
};

template <class T, int K, class Matrix, class Rhs, class Destination>
[[gnu::noinline]] void ownLUBackSubstGeneral(Systems<T, K, Matrix, Rhs, Destination> systems, int32 n)
{
    auto& [f, pivots, b, x, row] = systems;
    T sum[K];
    for (int32 i = 0; i < n; ++i)
    {
        systems.toRow(i);
        if (i > 0) systems.dotProducts(0, i, sum);
        ZEPM_UNROLL
        for (int s = 0; s < K; ++s)
        {
            const T y = b[s].get(0, row[s]);
            x[s].set(0, i, i > 0 ? y - sum[s] : y);
        }
    }
    for (int32 i = n - 1; i >= 0; --i)
    {
        systems.toRow(i);
        if (i < n - 1) systems.dotProducts(i + 1, n, sum);
        ZEPM_UNROLL
        for (int s = 0; s < K; ++s)
        {
            const T y = x[s].get(0, i);
            x[s].set(0, i, (i < n - 1 ? y - sum[s] : y) / f[s].get(row[s], i));
        }
    }
}

template <class T, int K, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveTogether(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination,
                               int32 k)
{
    Systems<T, K, decltype(matrix.object(0)), decltype(rhs.object(0)), decltype(destination.object(0))> systems;
    ZEPM_UNROLL
    for (int s = 0; s < K; ++s)
    {
        systems.f[s] = matrix.object(k + s);
        systems.pivots[s] = x.pivotsOf(k + s);
        systems.b[s] = rhs.object(k + s);
        systems.x[s] = destination.object(k + s);
    }
    ownLUBackSubstGeneral(systems, x.widthHeight);
}

template <class T, class X, class Matrix, class Rhs, class Destination>
ZEPM_INLINE void solveLooping(const X& x, const Matrix& matrix, const Rhs& rhs, const Destination& destination)
{
    constexpr int K = 4;
    int32 k = 0;
    if constexpr (hasContiguousRows<Matrix> && decltype(x.dst)::isArray)
        for (; x.count - k >= K; k += K) solveTogether<T, K>(x, matrix, rhs, destination, k);
    for (; k < x.count; ++k) solveTogether<T, 1>(x, matrix, rhs, destination, k);
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
    if (!writtenOrders.have(n))
        solveLooping<T>(x, matrix, rhs, destination);
    else if constexpr (!X::sharesMatrix)
        solveSeparate<T>(x, matrix, rhs, destination);
    else if (x.count == 1)
        solveShared<T, 1>(x, matrix, rhs, destination);
    else
        solveShared<T, lanes<T>>(x, matrix, rhs, destination);
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
