// The kernels of the products: d(i, j) = sum over k of a(i, k) * b(k, j) for each object, whatever the operands are.
#pragma once

#include "frame/sums.h"
#include "product/forms.h"
#include "product/products.h"
#include "product/wide.h"

namespace zepm
{

// ---- Orders ---------------------------------------------------------------------------------------------------------

// A kernel has bodies of its own for the orders in its line, in which sums start from the first product. Which of them
// all sizes are, or 0.
template <int32... Order, class X>
ZEPM_INLINE int32 orderOf(const X& x, sizes<Order...> written)
{
    const int32 n = x.inner();
    return x.rows() == n && x.cols() == n && written.have(n) ? n : 0;
}

// Orders 3 and 4 are told by the bitwise or of all sizes, so that sizes of 1, 2 and 3 whose or is 3 count as order 3.
struct OrdersByOr
{
};
template <class X>
ZEPM_INLINE int32 orderOf(const X& x, OrdersByOr)
{
    const int32 bits = x.src1.width | x.src1.height | x.src2.width | x.src2.height;
    return bits == 3 || bits == 4 ? bits : orderOf(x, sizes<5, 6>{});
}

// ---- Objects --------------------------------------------------------------------------------------------------------

template <int32 Order, class A, class B, class D>
ZEPM_INLINE void multiplyOrder(const A& a, const B& b, const D& d)
{
    for (int32 i = 0; i < Order; ++i)
        for (int32 j = 0; j < Order; ++j)
            d.set(i, j, sumFromFirst(FixedOrder<Order>{}, 0, Order, [&](int32 k) ZEPM_INLINED {
                      return a.get(i, k) * b.get(k, j);
                  }));
}

// The rows from firstInPairs on sum in pairs.
template <class A, class B, class D>
ZEPM_INLINE void multiplyObject(const A& a, const B& b, const D& d, int32 rows, int32 cols, int32 inner,
                                int32 firstInPairs)
{
    for (int32 i = 0; i < rows; ++i)
        for (int32 j = 0; j < cols; ++j)
        {
            const auto term = [&](int32 k) ZEPM_INLINED { return a.get(i, k) * b.get(k, j); };
            d.set(i, j, i < firstInPairs ? sumFromZero(inner, 0, inner, term) : sumInPairs(0, inner, term));
        }
}

// The test on the order comes once a call, outside the loop over objects.
template <bool Contiguous, class X>
ZEPM_INLINE void multiplyViews(const X& x, int32 order, int32 firstInPairs)
{
    const auto a = x.src1.template view<Contiguous>(order ? order : x.src1.width);
    const auto b = x.src2.template view<Contiguous>(order ? order : x.src2.width);
    const auto d = x.dst.template view<Contiguous>(order ? order : x.cols());
    auto forEach = [&](auto multiply) ZEPM_INLINED {
        for (int32 k = 0; k < x.count; ++k) multiply(a.object(k), b.object(k), d.object(k));
    };
    forSize(
        order, sizes<3, 4, 5, 6>{},
        [&]<int32 Order>() ZEPM_INLINED {
            forEach([](const auto& objectA, const auto& objectB, const auto& objectD)
                        ZEPM_INLINED { multiplyOrder<Order>(objectA, objectB, objectD); });
        },
        [&]() ZEPM_INLINED {
            forEach([&](const auto& objectA, const auto& objectB, const auto& objectD) {
                multiplyObject(objectA, objectB, objectD, x.rows(), x.cols(), x.inner(), firstInPairs);
            });
        });
}

// ---- Kernels --------------------------------------------------------------------------------------------------------

// The first of the rows behind the last whole block of four, if these sum in pairs; else the number of rows. How many
// rows may be left for that differs by form.
template <class X>
ZEPM_INLINE int32 firstRowInPairs(const X& x)
{
    constexpr int32 most = X::transposes1 == X::transposes2 ? 2 : X::transposes1 ? 1 : 0;
    const int32 left = x.rows() % 4;
    return left <= most ? x.rows() - left : x.rows();
}

template <class Block>
ZEPM_INLINE MatrixSequence matricesOf(const Block& block)
{
    return {sequenceOf(block), block.stride1};
}

template <class X>
[[gnu::noinline]] Status multiplyWide(const X& x, int32 order)
{
    using Dst = decltype(x.dst);
    ZEPM_AT_LEVEL(multiplyMatrices<typename Dst::Element, X::transposes1, X::transposes2>)
    ({matricesOf(x.src1), matricesOf(x.src2), matricesOf(x.dst), isListBlock<Dst>, x.count, order, x.rows(), x.inner(),
      x.cols(), firstRowInPairs(x)});
    return stsOk;
}

// One pair of an order goes without the choice of a level, which would cost as much as the product. Orders 3 and 4 are
// held in registers, so that the destination may be a source.
template <int Order, bool Solid, class X>
ZEPM_INLINE void multiplyOnePair(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const auto a = matricesOf(x.src1), b = matricesOf(x.src2), d = matricesOf(x.dst);
    if constexpr (Order <= 4)
        ZEPM_LEVEL::multiplyHeldPair<T, Order, X::transposes1, X::transposes2, Solid>(a, b, d);
    else
        ZEPM_LEVEL::multiplyPair<T, Order, X::transposes1, X::transposes2, Solid>(a, b, d);
}

// Serves pairs of the orders written out, without gaps; false where x is another call.
template <class X, class Orders>
ZEPM_INLINE bool multiplyIfSmall(const X& x, Orders written)
{
    const int32 n = x.src1.width;
    if (differences(n, x.src1.height, x.src2.width, x.src2.height) != 0 || !isDense(x, n)) return false;
    return forSize(
        n, written,
        [&]<int32 Order>() ZEPM_INLINED {
            multiplyOnePair<Order, true>(x);
            return true;
        },
        []() ZEPM_INLINED { return false; });
}

// What enterQuick takes for single pairs.
template <class Orders>
ZEPM_INLINE auto smallPair(Orders written)
{
    return [written](const auto& x) ZEPM_INLINED { return multiplyIfSmall(x, written); };
}

// Contiguous elements.
template <class X, class Orders>
ZEPM_INLINE Status multiplyPacked(const X& x, Orders written)
{
    const int32 order = orderOf(x, written);
    if constexpr (!decltype(x.dst)::isArray)
    {
        return forSize(
            order, sizes<3, 4, 5, 6>{},
            [&]<int32 Order>() ZEPM_INLINED {
                isDense(x, Order) ? multiplyOnePair<Order, true>(x) : multiplyOnePair<Order, false>(x);
                return Status{stsOk};
            },
            [&]() ZEPM_INLINED { return multiplyWide(x, order); });
    }
    else
        return multiplyWide(x, order);
}

// Elements at any distance, or behind tables.
template <class X, class Orders>
ZEPM_INLINE Status multiplyStrided(const X& x, Orders written)
{
    multiplyViews<false>(x, orderOf(x, written), x.rows());
    return stsOk;
}

template <class X, class Orders>
ZEPM_INLINE Status multiplyTable(const X& x, Orders written)
{
    return multiplyStrided(x, written);
}

} // namespace zepm
