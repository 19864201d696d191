// The kernels of the products: d(i, j) = sum over k of a(i, k) * b(k, j) for each object, whatever the operands are.
#pragma once

#include "product/forms.h"
#include "product/products.h"
#include "product/wide.h"

namespace zepm
{

// ---- Orders ---------------------------------------------------------------------------------------------------------

// The orders for which a kernel has a body of its own, in which sums start from the first product.
template <int32... Order>
struct orders
{
    // The order of which all sizes are, or 0.
    template <class X>
    ZEPM_INLINE static int32 of(const X& x)
    {
        const int32 n = x.inner();
        return x.rows() == n && x.cols() == n && (... || (n == Order)) ? n : 0;
    }
};

// Orders 3 and 4 are told by the bitwise or of all sizes, so that sizes of 1, 2 and 3 whose or is 3 count as order 3.
struct OrdersByOr
{
    template <class X>
    ZEPM_INLINE static int32 of(const X& x)
    {
        const int32 sizes = x.src1.width | x.src1.height | x.src2.width | x.src2.height;
        return sizes == 3 || sizes == 4 ? sizes : orders<5, 6>::of(x);
    }
};

// ---- Sums -----------------------------------------------------------------------------------------------------------

template <int32 Order, class A, class B>
ZEPM_INLINE auto sumFromFirst(const A& a, const B& b, int32 i, int32 j)
{
    auto sum = a.get(i, 0) * b.get(0, j);
    ZEPM_UNROLL
    for (int32 k = 1; k < Order; ++k) sum += a.get(i, k) * b.get(k, j);
    return sum;
}

template <class A, class B>
ZEPM_INLINE auto sumFromZero(const A& a, const B& b, int32 i, int32 j, int32 inner)
{
    decltype(a.get(i, 0)) sum = 0;
    for (int32 k = 0; k < inner; ++k) sum += a.get(i, k) * b.get(k, j);
    return sum;
}

// The products of even and of odd k apart; a last one without a partner comes after both.
template <class A, class B>
ZEPM_INLINE auto sumInPairs(const A& a, const B& b, int32 i, int32 j, int32 inner)
{
    decltype(a.get(i, 0)) even = 0, odd = 0;
    int32 k = 0;
    for (; k + 2 <= inner; k += 2)
    {
        even += a.get(i, k) * b.get(k, j);
        odd += a.get(i, k + 1) * b.get(k + 1, j);
    }
    const auto sum = even + odd;
    return k < inner ? sum + a.get(i, k) * b.get(k, j) : sum;
}

// ---- Objects --------------------------------------------------------------------------------------------------------

template <int32 Order, class A, class B, class D>
ZEPM_INLINE void multiplyOrder(const A& a, const B& b, const D& d)
{
    for (int32 i = 0; i < Order; ++i)
        for (int32 j = 0; j < Order; ++j) d.set(i, j, sumFromFirst<Order>(a, b, i, j));
}

// The rows from firstInPairs on sum in pairs.
template <class A, class B, class D>
ZEPM_INLINE void multiplyObject(const A& a, const B& b, const D& d, int32 rows, int32 cols, int32 inner,
                                int32 firstInPairs)
{
    for (int32 i = 0; i < rows; ++i)
        for (int32 j = 0; j < cols; ++j)
            d.set(i, j, i < firstInPairs ? sumFromZero(a, b, i, j, inner) : sumInPairs(a, b, i, j, inner));
}

// The test on the order comes once a call, outside the loop over objects.
template <bool Contiguous, class X>
ZEPM_INLINE void multiplyViews(const X& x, int32 order, int32 firstInPairs)
{
    const auto a = x.src1.template view<Contiguous>(order ? order : x.src1.width);
    const auto b = x.src2.template view<Contiguous>(order ? order : x.src2.width);
    const auto d = x.dst.template view<Contiguous>(order ? order : x.cols());
    auto forEach = [&](auto multiply) __attribute__((always_inline))
    {
        for (int32 k = 0; k < x.count; ++k) multiply(a.object(k), b.object(k), d.object(k));
    };
    auto ofOrder = [&]<int32 Order>() __attribute__((always_inline))
    {
        forEach([](const auto& objectA, const auto& objectB, const auto& objectD)
                    __attribute__((always_inline)) { multiplyOrder<Order>(objectA, objectB, objectD); });
    };
    switch (order)
    {
    case 3: return ofOrder.template operator()<3>();
    case 4: return ofOrder.template operator()<4>();
    case 5: return ofOrder.template operator()<5>();
    case 6: return ofOrder.template operator()<6>();
    default:
        return forEach([&](const auto& objectA, const auto& objectB, const auto& objectD) {
            multiplyObject(objectA, objectB, objectD, x.rows(), x.cols(), x.inner(), firstInPairs);
        });
    }
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

template <class T, bool IsArray>
ZEPM_INLINE MatrixOperand matrixOf(const StridedBlock<T, IsArray, 2>& block)
{
    return {bytes(block.p), block.stride0, block.stride1, !IsArray};
}
template <class T>
ZEPM_INLINE MatrixOperand matrixOf(const ListBlock<T, 2>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift, block.stride1, false};
}

template <class>
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<ListBlock<T, 2>> = true;

template <class X>
[[gnu::noinline]] void multiplyWide(const X& x, int32 order)
{
    using Dst = decltype(x.dst);
    ZEPM_AT_LEVEL(multiplyMatrices<typename Dst::Element, X::transposes1, X::transposes2>)
    ({matrixOf(x.src1), matrixOf(x.src2), matrixOf(x.dst), isList<Dst>, x.count, order, x.rows(), x.inner(), x.cols(),
      firstRowInPairs(x)});
}

template <int Order, class X>
ZEPM_INLINE Status multiplyPair(const X& x)
{
    baseline::multiplyPair<typename decltype(x.dst)::Element, Order, X::transposes1, X::transposes2>(
        matrixOf(x.src1), matrixOf(x.src2), matrixOf(x.dst));
    return stsOk;
}

// Contiguous elements. One pair of an order goes without the choice of a level, which would cost as much as the
// product.
template <class X, class Orders>
ZEPM_INLINE Status multiplyPacked(const X& x, Orders)
{
    const int32 order = Orders::of(x);
    if constexpr (!decltype(x.dst)::isArray)
    {
        switch (order)
        {
        case 3: return multiplyPair<3>(x);
        case 4: return multiplyPair<4>(x);
        case 5: return multiplyPair<5>(x);
        case 6: return multiplyPair<6>(x);
        default: break;
        }
    }
    multiplyWide(x, order);
    return stsOk;
}

// Elements at any distance, or behind tables.
template <class X, class Orders>
ZEPM_INLINE Status multiplyStrided(const X& x, Orders)
{
    multiplyViews<false>(x, Orders::of(x), x.rows());
    return stsOk;
}

template <class X, class Orders>
ZEPM_INLINE Status multiplyTable(const X& x, Orders written)
{
    return multiplyStrided(x, written);
}

// The arrays of L whose kernel is a loop over the kernel of one pair.
template <class X, class One>
ZEPM_INLINE Status forEachObject(const X& x, Status (*kernel)(const One&))
{
    for (int32 k = 0; k < x.count; ++k)
        kernel({{x.src1.object(k), x.src1.width, x.src1.height},
                {x.src2.object(k), x.src2.width, x.src2.height},
                x.dst.object(k)});
    return stsOk;
}

} // namespace zepm
