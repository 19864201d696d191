// Products of any sizes of matrices with contiguous rows: tiles of a few rows by a register of columns, sums from zero.
#pragma once

#include "frame/streams.h"
#include "frame/sums.h"
#include "product/wide.h"

namespace zepm::ZEPM_LEVEL
{

// ---- The second factor ----------------------------------------------------------------------------------------------

// Vectors of N columns of the second factor, by the inner index; of the last vector Count columns.
template <class T, int N, int Count>
struct ColumnsAsStored
{
    const char* p;
    ptrdiff_t stride1;
    template <int V>
    ZEPM_INLINE Vec<T, N> get(ptrdiff_t k) const
    {
        return loadFirst<T, N, Count>(p + k * stride1 + V * N * sz<T>);
    }
};

// The same of a transposed factor, whose columns are rows as stored: element by element.
template <class T, int N, int Count>
struct ColumnsApart
{
    const char* p;
    ptrdiff_t stride1;
    template <int V>
    ZEPM_INLINE Vec<T, N> get(ptrdiff_t k) const
    {
        T x[N] = {};
        for (int j = 0; j < Count; ++j) x[j] = load<T>(p + (V * N + j) * stride1 + k * sz<T>);
        return loadVec<T, N>(reinterpret_cast<const char*>(x));
    }
};

// The same again, gathered before use.
inline constexpr int32 mostGathered = 64;
template <class T, int N, int Count, int Vectors>
struct ColumnsGathered
{
    alignas(registerBytes) T x[Vectors][mostGathered][N];

    ZEPM_INLINE ColumnsGathered(const char* p, ptrdiff_t stride1, int32 inner)
    {
        each<Vectors>([&]<int V>() ZEPM_INLINED { gather(x[V], p + V * N * stride1, stride1, inner); });
    }
    template <int V>
    ZEPM_INLINE Vec<T, N> get(ptrdiff_t k) const
    {
        return loadVec<T, N>(reinterpret_cast<const char*>(x[V][k]));
    }

private:
    ZEPM_INLINE static void gather(T (&to)[mostGathered][N], const char* p, ptrdiff_t stride1, int32 inner)
    {
        int32 k = 0;
        if constexpr (N % pieceLength<T> == 0 && Count == N)
        {
            constexpr int E = pieceLength<T>;
            for (; k + E <= inner; k += E)
            {
                Vec<T, N> rows[E];
                each<E>([&]<int S>() ZEPM_INLINED {
                    rows[S] = joinParts<T, E, N / E>(
                        [&]<int G>() ZEPM_INLINED { return loadVec<T, E>(p + (G * E + S) * stride1 + k * sz<T>); });
                });
                transposePieces<T, N>(rows);
                each<E>([&]<int S>() ZEPM_INLINED { storeVec<T, N>(reinterpret_cast<char*>(to[k + S]), rows[S]); });
            }
        }
        for (; k < inner; ++k)
            for (int j = 0; j < N; ++j) to[k][j] = j < Count ? load<T>(p + j * stride1 + k * sz<T>) : T(0);
    }
};

// ---- ProductTiles
// ----------------------------------------------------------------------------------------------------------

// Some columns of one object's result, and the first factor.
struct ProductTiles
{
    const char* a;
    ptrdiff_t stride1A;
    char* d;
    ptrdiff_t stride1D;
    ptrdiff_t rows, firstInPairs;
    int32 inner;
};

// Height rows of the result from row i on.
template <class T, bool Transposes1, int N, int Count, int Vectors, int Height, class B>
ZEPM_INLINE void tile(const ProductTiles x, const B& b, ptrdiff_t i)
{
    const char* a[Height];
    each<Height>([&]<int I>()
                     ZEPM_INLINED { a[I] = Transposes1 ? x.a + (i + I) * sz<T> : x.a + (i + I) * x.stride1A; });
    const ptrdiff_t step = Transposes1 ? x.stride1A : sz<T>;
    Vec<T, N> sums[Height][Vectors] = {};
    for (ptrdiff_t k = 0; k < x.inner; ++k)
    {
        Vec<T, N> row[Vectors];
        each<Vectors>([&]<int V>() ZEPM_INLINED { row[V] = b.template get<V>(k); });
        each<Height>([&]<int I>() ZEPM_INLINED {
            const Vec<T, N> factor = broadcast<T, N>(load<T>(a[I] + k * step));
            each<Vectors>([&]<int V>() ZEPM_INLINED { sums[I][V] += factor * row[V]; });
        });
    }
    each<Height>([&]<int I>() ZEPM_INLINED {
        each<Vectors>([&]<int V>() ZEPM_INLINED {
            storeFirst<T, N, Count>(x.d + (i + I) * x.stride1D + V * N * sz<T>, sums[I][V]);
        });
    });
}

// One row that sums even and odd products apart.
template <class T, bool Transposes1, int N, int Count, int V, class B>
ZEPM_INLINE void rowInPairs(const ProductTiles x, const B& b, ptrdiff_t i)
{
    const auto product = [&](int32 k) ZEPM_INLINED {
        const char* const a = Transposes1 ? x.a + k * x.stride1A + i * sz<T> : x.a + i * x.stride1A + k * sz<T>;
        return Vec<T, N>(broadcast<T, N>(load<T>(a)) * b.template get<V>(k));
    };
    storeFirst<T, N, Count>(x.d + i * x.stride1D + V * N * sz<T>, sumInPairs(0, x.inner, product));
}

template <class T, bool Transposes1, int N, int Count, int Vectors, class B>
ZEPM_INLINE void tiles(const ProductTiles x, const B& b)
{
    ptrdiff_t i = 0;
    for (; i + 4 <= x.firstInPairs; i += 4) tile<T, Transposes1, N, Count, Vectors, 4>(x, b, i);
    for (; i < x.firstInPairs; ++i) tile<T, Transposes1, N, Count, Vectors, 1>(x, b, i);
    for (; i < x.rows; ++i)
        each<Vectors>([&]<int V>() ZEPM_INLINED { rowInPairs<T, Transposes1, N, Count, V>(x, b, i); });
}

template <class T, bool Transposes1, bool Transposes2, int N, int Count, int Vectors = 1>
[[gnu::noinline]] void columnsFrom(const ProductTiles& x, const char* b, ptrdiff_t stride1)
{
    if constexpr (!Transposes2)
        tiles<T, Transposes1, N, Count, Vectors>(x, ColumnsAsStored<T, N, Count>{b, stride1});
    else if (x.inner <= mostGathered)
        tiles<T, Transposes1, N, Count, Vectors>(x, ColumnsGathered<T, N, Count, Vectors>(b, stride1, x.inner));
    else
        tiles<T, Transposes1, N, Count, Vectors>(x, ColumnsApart<T, N, Count>{b, stride1});
}

// All columns: two registers at a time, one, then by halves down to 16 bytes, of which the last may not be full.
template <class T, bool Transposes1, bool Transposes2>
ZEPM_INLINE void multiplyObject(ProductTiles x, const char* b, ptrdiff_t stride1, ptrdiff_t cols)
{
    constexpr int W = lanes<T>, E = pieceLength<T>;
    auto take = [&]<int N, int Count, int Vectors>() ZEPM_INLINED {
        constexpr ptrdiff_t taken = Count * Vectors;
        columnsFrom<T, Transposes1, Transposes2, N, Count, Vectors>(x, b, stride1);
        x.d += taken * sz<T>;
        b += Transposes2 ? taken * stride1 : taken * sz<T>;
        cols -= taken;
    };
    while (cols >= 2 * W) take.template operator()<W, W, 2>();
    if (cols >= W) take.template operator()<W, W, 1>();
    if constexpr (W / 2 > E)
        if (cols >= W / 2) take.template operator()<W / 2, W / 2, 1>();
    if constexpr (W > E)
        if (cols >= E) take.template operator()<E, E, 1>();
    if (cols == 1) take.template operator()<(E == 2 ? 1 : E), 1, 1>();
    if constexpr (E > 2)
    {
        if (cols == 2) take.template operator()<E, 2, 1>();
        if (cols == 3) take.template operator()<E, 3, 1>();
    }
}

template <class T, bool Transposes1, bool Transposes2>
ZEPM_INLINE void multiplyTiles(const ProductCall& call)
{
    Walk<true> a(call.a, call.isList), b(call.b, call.isList), d(call.d, call.isList);
    for (ptrdiff_t k = 0; k < call.count; ++k)
    {
        multiplyObject<T, Transposes1, Transposes2>({a.at(), call.a.stride1, const_cast<char*>(d.at()), call.d.stride1,
                                                     call.rows, call.firstInPairs, call.inner},
                                                    b.at(), call.b.stride1, call.cols);
        a.advance(), b.advance(), d.advance();
    }
}

// ---- The call -------------------------------------------------------------------------------------------------------

template <class T, bool Transposes1, bool Transposes2>
[[gnu::noinline]] void multiplyObjects(const ProductCall& call)
{
    switch (call.order)
    {
    case 3: return multiplyOrder<T, 3, Transposes1, Transposes2>(call);
    case 4: return multiplyOrder<T, 4, Transposes1, Transposes2>(call);
    case 5: return multiplyOrder<T, 5, Transposes1, Transposes2>(call);
    case 6: return multiplyOrder<T, 6, Transposes1, Transposes2>(call);
    default: break;
    }
    if (call.rows == 8 && call.inner == 8 && call.cols == 8 && isSolid<T>(call, 8))
        multiplyOrder<T, 8, Transposes1, Transposes2, true, FixedFactor::None, false>(call);
    else
        multiplyTiles<T, Transposes1, Transposes2>(call);
}

// Whether results are to be stored past the caches; in place they are read anyway.
template <class T>
ZEPM_INLINE bool isProductStreamed(const ProductCall& call)
{
    const ptrdiff_t rowSize = call.cols * sz<T>, size = call.rows * rowSize;
    const int sources = !call.a.isFixed() + !call.b.isFixed();
    return !call.isList && call.d.stride1 == rowSize && call.d.step == size && size <= streamedMatrix &&
           isBeyondCaches(call.count * size, sources) && call.a.p != call.d.p && call.b.p != call.d.p;
}

template <class T, bool Transposes1, bool Transposes2>
void multiplyMatrices(const ProductCall& call)
{
    if (!isProductStreamed<T>(call)) return multiplyObjects<T, Transposes1, Transposes2>(call);
    if (call.order == 3 && streamOrder<T, 3, Transposes1, Transposes2>(call)) return;
    if (call.order == 4 && streamOrder<T, 4, Transposes1, Transposes2>(call)) return;
    streamCall(call, call.d.step, [](const ProductCall& part) { multiplyObjects<T, Transposes1, Transposes2>(part); });
}

} // namespace zepm::ZEPM_LEVEL
