// One contiguous row: d[j] = op(a[j], b[j]), or op(a[j], b) with a constant. Each element is read before it is written,
// so a destination that is one of the sources is served; other overlaps are not.
#pragma once

#include "frame/lanes.h"

namespace zepm::ZEPM_LEVEL
{

template <class T>
inline constexpr ptrdiff_t sz = sizeof(T);

// N elements at once; a constant second operand is already broadcast.
template <class T, int N, class Op>
ZEPM_INLINE void piece(Op op, const char* a, const char* b, char* d)
{
    storeVec<T, N>(d, op(loadVec<T, N>(a), loadVec<T, N>(b)));
}

template <class T, int N, class Op>
ZEPM_INLINE void piece(Op op, const char* a, Vec<T, N> b, char* d)
{
    storeVec<T, N>(d, op(loadVec<T, N>(a), b));
}

// The second operand of a row at element j: further along, or the one constant.
template <class T, int N>
ZEPM_INLINE const char* second(const char* b, ptrdiff_t j)
{
    return b + j * sz<T>;
}
template <class T, int N>
ZEPM_INLINE Vec<T, N> second(T b, ptrdiff_t)
{
    return broadcast<T, N>(b);
}

// The last elements of a row, fewer than 2 * N: by halves.
template <class T, int N, class Op, class B>
ZEPM_INLINE void rowTail(Op op, const char* a, B b, char* d, ptrdiff_t j, ptrdiff_t n)
{
    if (n - j >= N)
    {
        piece<T, N>(op, a + j * sz<T>, second<T, N>(b, j), d + j * sz<T>);
        j += N;
    }
    if constexpr (N > 1) rowTail<T, N / 2>(op, a, b, d, j, n);
}

// A row of any length; B is a pointer to a row or a constant.
template <class T, class Op, class B>
ZEPM_INLINE void row(Op op, const char* a, B b, char* d, ptrdiff_t n)
{
    constexpr int W = lanes<T>;
    ptrdiff_t j = 0;
    for (; j + 4 * W <= n; j += 4 * W)
    {
        ZEPM_UNROLL
        for (int step = 0; step < 4 * W; step += W)
            piece<T, W>(op, a + (j + step) * sz<T>, second<T, W>(b, j + step), d + (j + step) * sz<T>);
    }
    for (; j + W <= n; j += W) piece<T, W>(op, a + j * sz<T>, second<T, W>(b, j), d + j * sz<T>);
    if constexpr (W > 1) rowTail<T, W / 2>(op, a, b, d, j, n);
}

// A row whose length is known: straight-line code.
template <class T, int Length, int N = lanes<T>, int J = 0, class Op, class B>
ZEPM_INLINE void rowOf(Op op, const char* a, B b, char* d)
{
    if constexpr (Length - J >= N)
    {
        piece<T, N>(op, a + J * sz<T>, second<T, N>(b, J), d + J * sz<T>);
        rowOf<T, Length, N, J + N>(op, a, b, d);
    }
    else if constexpr (Length > J)
    {
        rowOf<T, Length, N / 2, J>(op, a, b, d);
    }
}

} // namespace zepm::ZEPM_LEVEL
