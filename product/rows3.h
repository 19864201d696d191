// Matrices of order 3 without gaps times a fixed one: their rows are vectors side by side, as many of which as a
// register has lanes go together, one element in each of three registers.
#pragma once

#include "frame/streams.h"
#include "product/products.h"

namespace zepm::ZEPM_LEVEL
{

// d = a * e, of one row or of one row in each lane.
template <class V>
ZEPM_INLINE void multiplyRow(const V (&a)[3], const V (&e)[3][3], V (&d)[3])
{
    ZEPM_UNROLL
    for (int j = 0; j < 3; ++j) d[j] = a[0] * e[0][j] + a[1] * e[1][j] + a[2] * e[2][j];
}

// N rows at a time, as many as fit.
template <int N, bool Streams = false>
ZEPM_INLINE void multiplyRows(const float32 (&e)[3][3], const char*& a, char*& d, ptrdiff_t& rows)
{
    if (rows < N) return;
    Vec<float32, N> repeated[3][3];
    ZEPM_UNROLL
    for (int k = 0; k < 3; ++k)
        for (int j = 0; j < 3; ++j) repeated[k][j] = broadcast<float32, N>(e[k][j]);
    const FetchedAhead ahead(a, 12 * rows);
    for (; rows >= N; rows -= N)
    {
        if (Streams) ahead.from(a);
        Vec<float32, N> x[3], y[3];
        loadDense<float32, N, 3>(a, x);
        multiplyRow(x, repeated, y);
        storeDense<float32, N, 3, Streams>(d, y);
        a += 12 * N, d += 12 * N;
    }
}

// Streams stores past the caches, to a multiple of 4; the caller orders that before what comes after.
template <bool Transposes2, bool Streams = false>
[[gnu::noinline]] void multiplyRowsOf3(const ProductCall& call)
{
    float32 e[3][3];
    for (int k = 0; k < 3; ++k)
        for (int j = 0; j < 3; ++j) e[k][j] = load<float32>(call.b.p + (Transposes2 ? 3 * j + k : 3 * k + j) * 4);
    const char* a = call.a.p;
    char* d = const_cast<char*>(call.d.p);
    ptrdiff_t rows = 3 * call.count;
    auto one = [&] {
        float32 x[3], y[3];
        for (int j = 0; j < 3; ++j) x[j] = load<float32>(a + 4 * j);
        multiplyRow(x, e, y);
        for (int j = 0; j < 3; ++j) store<float32>(d + 4 * j, y[j]);
        --rows, a += 12, d += 12;
    };
    if constexpr (Streams)
        while (rows > 0 && reinterpret_cast<uintptr_t>(d) % 16 != 0) one();
    multiplyRows<lanes<float32>, Streams>(e, a, d, rows);
    if constexpr (lanes < float32 >> 4) multiplyRows<4>(e, a, d, rows);
    while (rows > 0) one();
}

} // namespace zepm::ZEPM_LEVEL
