// LU factors with partial pivoting. Rows are never moved in memory: the pivots tell which row stands where.
//
// Orders 3 to 6 are straight-line code on a local matrix, in arrays one matrix in each lane: rows without gaps move by
// pieces, all other layouts element by element. All other orders are eliminated in the destination.
#include "solver/factor.h"
#include "solver/pivots.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Orders 3 to 6 --------------------------------------------------------------------------------------------------

// A pivot below this is singular at orders 3 to 6: twice the smallest normal number.
template <class T>
inline constexpr T tiny = sizeof(T) == 4 ? static_cast<T>(0x1p-125) : static_cast<T>(0x1p-1021);

// One matrix, or one in each lane: its rows in the order of the pivots, row[p] telling where row p of a stands.
template <class T, int N, int W>
struct Local
{
    Vec<T, W> a[N][N];
    Vec<IntOf<T>, W> row[N];
};

// Brings the largest element of column p at or below the diagonal to the diagonal; of equal ones the first.
template <class T, int N, int W>
ZEPM_INLINE void choosePivot(Local<T, N, W>& m, int p)
{
    MaskOf<T, W> isPivot[N];
    Vec<T, W> best = magnitude(m.a[p][p]);
    ZEPM_UNROLL
    for (int i = p + 1; i < N; ++i)
    {
        const Vec<T, W> candidate = magnitude(m.a[i][p]);
        const MaskOf<T, W> isBetter = candidate > best;
        ZEPM_UNROLL
        for (int e = p + 1; e < i; ++e) isPivot[e] = butNot(isPivot[e], isBetter);
        isPivot[i] = isBetter;
        best = select(isBetter, candidate, best);
    }
    ZEPM_UNROLL
    for (int i = p + 1; i < N; ++i)
    {
        ZEPM_UNROLL
        for (int j = 0; j < N; ++j) exchange(isPivot[i], m.a[p][j], m.a[i][j]);
        exchange(isPivot[i], m.row[p], m.row[i]);
    }
}

// Multipliers of column p by one reciprocal, but the last one by a division; the rows below less their multiple of the
// pivot row.
template <class T, int N, int W>
ZEPM_INLINE void clearColumn(Local<T, N, W>& m, int p)
{
    if (p == N - 2)
        m.a[N - 1][p] = m.a[N - 1][p] / m.a[p][p];
    else
    {
        const Vec<T, W> reciprocal = broadcast<T, W>(1) / m.a[p][p];
        ZEPM_UNROLL
        for (int i = p + 1; i < N; ++i) m.a[i][p] = m.a[i][p] * reciprocal;
    }
    ZEPM_UNROLL
    for (int i = p + 1; i < N; ++i)
    {
        ZEPM_UNROLL
        for (int j = p + 1; j < N; ++j) m.a[i][j] = m.a[i][j] - m.a[i][p] * m.a[p][j];
    }
}

// The number of pivots that are not singular in any lane: N, or the step at which it ends. The rows of result come to
// stand in the order of the pivots.
template <class T, int N, int W>
[[gnu::noinline]] int eliminate(Local<T, N, W>& result)
{
    Local<T, N, W> m = result;
    ZEPM_UNROLL
    for (int i = 0; i < N; ++i) m.row[i] = broadcast<IntOf<T>, W>(i);
    int p = 0;
    ZEPM_UNROLL
    for (; p < N; ++p)
    {
        if (p < N - 1) choosePivot(m, p);
        if (any(magnitude(m.a[p][p]) < broadcast<T, W>(tiny<T>))) break;
        if (p < N - 1) clearColumn(m, p);
    }
    result = m;
    return p;
}

template <class T, int N, int W>
ZEPM_INLINE LaneRows<W> rowsOf(const Local<T, N, W>& m, int p)
{
    LaneRows<W> rows;
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n) rows.row[n] = static_cast<int32>(laneOf<W>(m.row[p], n));
    return rows;
}

// A group, if none of its matrices is singular; otherwise nothing is written. pivots are those of one lane after the
// other.
template <class T, int N, int W>
[[gnu::noinline]] bool factorRows(const RowGroup<const T, W>& source, char* pivots, const RowGroup<T, W>& destination)
{
    Local<T, N, W> m;
    readMatrix(source, m.a);
    if (eliminate(m) < N) return false;
    writePivotLanes<IntOf<T>, N, W>(pivots, m.row);
    if constexpr (permutesRows<N>)
    {
        Vec<T, W> d[N][N];
        putRows(m.a, m.row, d);
        writeMatrix(destination, d);
    }
    else
    {
        ZEPM_UNROLL
        for (int p = 0; p < N; ++p) destination.template writeRow<N>(rowsOf(m, p), m.a[p]);
    }
    return true;
}

// ---- The same, element by element: single matrices, and groups of any layout ----------------------------------------

// All pivots, and the rows of the accepted ones.
template <class T, int N, int W, class Destination>
ZEPM_INLINE void writeLane(const Local<T, N, W>& m, int lane, int accepted, const DenseObject<int32>& pivots,
                           const Destination& destination)
{
    for (int p = 0; p < N; ++p)
    {
        const auto row = static_cast<int32>(getLane<IntOf<T>>(m.row[p], lane));
        pivots.set(p, row);
        if (p >= accepted) continue;
        ZEPM_UNROLL
        for (int j = 0; j < N; ++j) destination.set(row, j, getLane<T>(m.a[p][j], lane));
    }
}

template <class T, int N, class Source, class Destination>
[[gnu::noinline]] Status factorOne(const Source& source, const DenseObject<int32>& pivots,
                                   const Destination& destination)
{
    Local<T, N, 1> m;
    for (int i = 0; i < N; ++i)
    {
        ZEPM_UNROLL
        for (int j = 0; j < N; ++j) m.a[i][j] = source.get(i, j);
    }
    const int accepted = eliminate(m);
    writeLane(m, 0, accepted, pivots, destination);
    return accepted == N ? stsOk : stsSingularErr;
}

// As factorRows.
template <class T, int N, int W, class Source, class Destination>
[[gnu::noinline]] bool factorElements(const Source& source, const DenseBlock<int32>& pivots,
                                      const Destination& destination, int32 k, int32 size)
{
    Local<T, N, W> m;
    gatherElements<T, W>(source, k, size, m.a);
    if (eliminate(m) < N) return false;
    for (int lane = 0; lane < size; ++lane)
        writeLane(m, lane, N, pivots.object(k + lane, N), destination.object(k + lane));
    return true;
}

// ---- Arrays of matrices ---------------------------------------------------------------------------------------------

// The first singular matrix ends the call: a group with one is done again matrix by matrix.
template <class T, class X, class Source, class Destination>
ZEPM_INLINE Status factorWrittenOut(const X& x, const Source& source, const Destination& destination)
{
    const int32 order = x.widthHeight;
    const auto one = forWrittenOrder(
        order, []<int N>() { return &factorOne<T, N, decltype(source.object(0)), decltype(destination.object(0))>; });
    if constexpr (!decltype(x.dst)::isArray)
        return one(source.object(0), x.pivots.object(0, order), destination.object(0));
    else
    {
        constexpr int W = lanes<T>;
        constexpr int leastGroup = 2; // fewer matrices are not worth a group
        const auto group = forWrittenOrder(order, []<int N>() {
            if constexpr (hasContiguousRows<Source>)
                return &factorRows<T, N, W>;
            else
                return &factorElements<T, N, W, Source, Destination>;
        });
        auto factorGroup = [&](int32 k, int32 size) ZEPM_INLINED {
            if constexpr (hasContiguousRows<Source>)
            {
                const GroupPivots<int32, W> pivots(x.pivots, k, size, order);
                if (!group(RowGroup<const T, W>(source, k, size), pivots.p, RowGroup<T, W>(destination, k, size)))
                    return false;
                pivots.finish(x.pivots, k, size, order);
                return true;
            }
            else
                return group(source, x.pivots, destination, k, size);
        };
        return forGroups(x.count, W, leastGroup, factorGroup, [&](int32 n) ZEPM_INLINED {
            return one(source.object(n), x.pivots.object(n, order), destination.object(n));
        });
    }
}

// ---- All other orders -----------------------------------------------------------------------------------------------

// A pivot at or below this is singular at all other orders.
template <class T>
inline constexpr T eps = sizeof(T) == 4 ? static_cast<T>(0x1p-23) : static_cast<T>(0x1p-52);

// Columns first to n - 1 of row i less multiplier times those of row p.
template <class T>
ZEPM_INLINE void subtractRow(const StridedObject<T, true>& d, int32 i, T multiplier, int32 p, int32 first, int32 n)
{
    char* const row = d.at(i, 0);
    const char* const pivotRow = d.at(p, 0);
    ptrdiff_t j = first;
    auto step = [&]<int M>() ZEPM_INLINED {
        const ptrdiff_t at = j * static_cast<ptrdiff_t>(sizeof(T));
        storeVec<T, M>(row + at, loadVec<T, M>(row + at) - broadcast<T, M>(multiplier) * loadVec<T, M>(pivotRow + at));
        j += M;
    };
    while (n - j >= lanes<T>) step.template operator()<lanes<T>>();
    if constexpr (8 < lanes<T>)
    {
        if (n - j >= 8) step.template operator()<8>();
    }
    if constexpr (4 < lanes<T>)
    {
        if (n - j >= 4) step.template operator()<4>();
    }
    while (n - j >= 1) step.template operator()<1>();
}
template <class T, class Destination>
ZEPM_INLINE void subtractRow(const Destination& d, int32 i, T multiplier, int32 p, int32 first, int32 n)
{
    for (int32 j = first; j < n; ++j) d.set(i, j, d.get(i, j) - multiplier * d.get(p, j));
}

template <class T, class Source, class Destination>
[[gnu::noinline]] Status ownLUDecompGeneral(const Source& source, const DenseObject<int32>& pivots,
                                            const Destination& d, int32 n)
{
    for (int32 i = 0; i < n; ++i)
    {
        for (int32 j = 0; j < n; ++j) d.set(i, j, source.get(i, j));
        pivots.set(i, i);
    }
    for (int32 p = 0; p < n - 1; ++p)
    {
        T best = magnitude(d.get(pivots.get(p), p));
        int32 q = p;
        for (int32 i = p + 1; i < n; ++i)
        {
            const T candidate = magnitude(d.get(pivots.get(i), p));
            if (candidate > best)
            {
                best = candidate;
                q = i;
            }
        }
        if (best <= eps<T>) return stsSingularErr;
        const int32 pivotRow = pivots.get(q);
        if (q != p)
        {
            pivots.set(q, pivots.get(p));
            pivots.set(p, pivotRow);
        }
        const T reciprocal = 1 / d.get(pivotRow, p);
        for (int32 i = p + 1; i < n; ++i)
        {
            const int32 row = pivots.get(i);
            const T multiplier = d.get(row, p) * reciprocal;
            d.set(row, p, multiplier);
            subtractRow<T>(d, row, multiplier, pivotRow, p + 1, n);
        }
    }
    return magnitude(d.get(pivots.get(n - 1), n - 1)) <= eps<T> ? stsSingularErr : stsOk;
}

} // namespace

// The test on the order comes once a call, outside the loop over matrices.
template <bool Contiguous, class X>
Status factor(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const int32 n = x.widthHeight;
    const auto source = x.src.template view<Contiguous>(n);
    const auto destination = x.dst.template view<Contiguous>(n);
    if (writtenOrders.have(n)) return factorWrittenOut<T>(x, source, destination);
    for (int32 k = 0; k < x.count; ++k)
        if (const Status status =
                ownLUDecompGeneral<T>(source.object(k), x.pivots.object(k, n), destination.object(k), n))
            return status;
    return stsOk;
}

template Status factor<true, FactorM<float32, S>>(const FactorM<float32, S>&);
template Status factor<false, FactorM<float32, S>>(const FactorM<float32, S>&);
template Status factor<false, FactorM<float32, P>>(const FactorM<float32, P>&);
template Status factor<true, FactorMa<float32, S>>(const FactorMa<float32, S>&);
template Status factor<false, FactorMa<float32, S>>(const FactorMa<float32, S>&);
template Status factor<true, FactorMa<float32, L>>(const FactorMa<float32, L>&);
template Status factor<false, FactorMa<float32, L>>(const FactorMa<float32, L>&);
template Status factor<false, FactorMa<float32, P>>(const FactorMa<float32, P>&);
template Status factor<true, FactorM<float64, S>>(const FactorM<float64, S>&);
template Status factor<false, FactorM<float64, S>>(const FactorM<float64, S>&);
template Status factor<false, FactorM<float64, P>>(const FactorM<float64, P>&);
template Status factor<true, FactorMa<float64, S>>(const FactorMa<float64, S>&);
template Status factor<false, FactorMa<float64, S>>(const FactorMa<float64, S>&);
template Status factor<true, FactorMa<float64, L>>(const FactorMa<float64, L>&);
template Status factor<false, FactorMa<float64, L>>(const FactorMa<float64, L>&);
template Status factor<false, FactorMa<float64, P>>(const FactorMa<float64, P>&);

} // namespace zepm::ZEPM_LEVEL
