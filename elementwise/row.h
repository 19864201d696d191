// One contiguous row: d[j] = op(a[j], b[j]), or op(a[j], b) with a constant. Each element is read before it is written,
// so a destination that is one of the sources is served; other overlaps are not.
#pragma once

#include "frame/machine.h"

namespace zepm::ZEPM_LEVEL
{

// Whether two operands of so many bytes have none in common.
ZEPM_INLINE bool areApart(const char* a, const char* b, ptrdiff_t size)
{
    const auto from = reinterpret_cast<uintptr_t>(a), to = reinterpret_cast<uintptr_t>(b);
    return (from < to ? to - from : from - to) >= static_cast<uintptr_t>(size);
}

// The second operand of a row at element j: the elements there, or the one constant.
template <class T, int N>
ZEPM_INLINE Vec<T, N> second(const char* b, ptrdiff_t j)
{
    return loadVec<T, N>(b + j * sz<T>);
}
template <class T, int N>
ZEPM_INLINE Vec<T, N> second(T b, ptrdiff_t)
{
    return broadcast<T, N>(b);
}

// N results at element j.
template <class T, int N, class Op, class B>
ZEPM_INLINE Vec<T, N> results(Op op, const char* a, B b, ptrdiff_t j)
{
    return op(loadVec<T, N>(a + j * sz<T>), second<T, N>(b, j));
}

template <class T, int N, class Op, class B>
ZEPM_INLINE void piece(Op op, const char* a, B b, char* d, ptrdiff_t j)
{
    storeVec<T, N>(d + j * sz<T>, results<T, N>(op, a, b, j));
}

// Fewer than 2 * N elements: two vectors that may overlap, both computed before either is stored.
template <class T, int N, class Op, class B>
ZEPM_INLINE void shortRow(Op op, const char* a, B b, char* d, ptrdiff_t n)
{
    if (n >= N)
    {
        const Vec<T, N> first = results<T, N>(op, a, b, 0), last = results<T, N>(op, a, b, n - N);
        storeVec<T, N>(d, first);
        storeVec<T, N>(d + (n - N) * sz<T>, last);
    }
    else if constexpr (N > 1)
    {
        shortRow<T, N / 2>(op, a, b, d, n);
    }
}

// A row that repays aligning its stores: one that crosses a cache line costs two.
template <class T>
inline constexpr ptrdiff_t longRow = 1024 / sizeof(T);

// A row of any length. Streams writes past the caches; the destination is then a multiple of the element size.
template <class T, bool Streams = false, class Op, class B>
ZEPM_INLINE void row(Op op, const char* a, B b, char* d, ptrdiff_t n)
{
    constexpr int W = lanes<T>;
    if (n < W) return shortRow<T, W / 2>(op, a, b, d, n);
    // The last register's worth overlaps what is stored before it, so in place it is computed first.
    const Vec<T, W> last = results<T, W>(op, a, b, n - W);
    ptrdiff_t j = 0;
    if (Streams || n >= longRow<T>)
    {
        j = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(d) % registerBytes) / sz<T>;
        shortRow<T, W / 2>(op, a, b, d, j);
    }
    for (; j + 4 * W <= n; j += 4 * W)
    {
        ZEPM_UNROLL
        for (int step = 0; step < 4 * W; step += W)
        {
            if constexpr (Streams)
                streamVec<T>(d + (j + step) * sz<T>, results<T, W>(op, a, b, j + step));
            else
                piece<T, W>(op, a, b, d, j + step);
        }
    }
    if constexpr (Streams) fenceStreams();
    for (; j + W <= n; j += W) piece<T, W>(op, a, b, d, j);
    if (j < n) storeVec<T, W>(d + (n - W) * sz<T>, last);
}

// The pieces of a row whose length is known, widest first: visit.operator()<N, J>() for N elements from element J.
template <class T, int Length, int N = lanes<T>, int J = 0, class Visit>
ZEPM_INLINE void pieces(Visit visit)
{
    if constexpr (Length - J >= N)
    {
        visit.template operator()<N, J>();
        pieces<T, Length, N, J + N>(visit);
    }
    else if constexpr (Length > J)
    {
        pieces<T, Length, N / 2, J>(visit);
    }
}

// A row whose length is known: straight-line code.
template <class T, int Length, class Op, class B>
ZEPM_INLINE void rowOf(Op op, const char* a, B b, char* d)
{
    pieces<T, Length>([&]<int N, int J>() ZEPM_INLINED { piece<T, N>(op, a, b, d, J); });
}

} // namespace zepm::ZEPM_LEVEL
