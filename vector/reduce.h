// The kernels of sums: one number for each object, of the products of two operands or of the squares of one.
//
// A kernel's line names the sum of 3 to 6 terms and that of any other number, as in
//
//     reducePacked<FromFirst, Peeled>(x)
//
// Objects by themselves are summed through their views. Arrays go to the level source, which takes objects in lanes
// where their elements lie side by side in one way or the other; each lane has the operations of its object in the same
// order.
#pragma once

#include "frame/levels.h"
#include "frame/numbers.h"
#include "frame/sums.h"
#include "vector/forms.h"

namespace zepm
{

// ---- Sums by name, for the kernels' lines ---------------------------------------------------------------------------

// Of 3 to 6 terms.
struct FromFirst
{
    template <class N, class Term>
    ZEPM_INLINE static auto of(N n, Term term)
    {
        return sumFromFirst(n, 0, n, term);
    }
};
struct Neighbours
{
    template <class N, class Term>
    ZEPM_INLINE static auto of(N n, Term term)
    {
        return sumOfNeighbours(n, n, term);
    }
};
struct EvensAndOdds
{
    template <class N, class Term>
    ZEPM_INLINE static auto of(N n, Term term)
    {
        return sumOfEvensAndOdds(n, n, term);
    }
};
// Four terms have a sum of their own.
template <class Sum, class SumOfFour>
struct ButFour
{
    template <class N, class Term>
    ZEPM_INLINE static auto of(N n, Term term)
    {
        return std::conditional_t<N::value == 4, SumOfFour, Sum>::of(n, term);
    }
};

using FourAsNeighbours = ButFour<FromFirst, Neighbours>;
using FourAsEvensAndOdds = ButFour<FromFirst, EvensAndOdds>;

// Of any other number.
struct InPairs
{
    static constexpr bool isSameInLanes = true;
    template <class Terms>
    ZEPM_INLINE static auto of(int32 n, const Terms& terms)
    {
        return sumInPairs(0, n, terms);
    }
};
struct OneChain
{
    static constexpr bool isSameInLanes = true;
    template <class Terms>
    ZEPM_INLINE static auto of(int32 n, const Terms& terms)
    {
        return sumFromZero(n, 0, n, terms);
    }
};
// By the address of the second vector, or of the only one.
struct Peeled
{
    static constexpr bool isSameInLanes = false;
    template <class Terms>
    ZEPM_INLINE static auto of(int32 n, const Terms& terms)
    {
        using T = decltype(terms(0));
        return ZEPM_LEVEL::sumPeeled<T>(n, ZEPM_LEVEL::peelOf<T>(terms.aligned()), terms);
    }
};

// Of a matrix.
struct ColumnsOrEights // columns in square matrices below order 6
{
};
struct RowsInPairs
{
};
struct InFours // along a table of elements
{
};

// ---- The terms of one object ----------------------------------------------------------------------------------------

// M elements from j on.
template <int M, class T>
ZEPM_INLINE auto elementsOf(const StridedObject<T, true>& object, int32 i, int32 j)
{
    return ZEPM_LEVEL::loadVec<std::remove_const_t<T>, M>(object.at(i, j));
}
template <int M, class T>
ZEPM_INLINE auto elementsOf(const StridedObject<T, false>& object, int32 i, int32 j)
{
    return ZEPM_LEVEL::eachLane<std::remove_const_t<T>, M>([&](int n) ZEPM_INLINED { return object.get(i, j + n); });
}

template <class A, class B>
struct ProductTerms
{
    A a;
    B b;
    ZEPM_INLINE auto operator()(int32 j) const { return a.get(0, j) * b.get(0, j); }
    template <int M>
    ZEPM_INLINE auto get(int32 j) const
    {
        return elementsOf<M>(a, 0, j) * elementsOf<M>(b, 0, j);
    }
    ZEPM_INLINE const char* aligned() const { return b.at(0, 0); }
};

template <class A>
struct SquareTerms
{
    A a;
    int32 row = 0;
    ZEPM_INLINE auto operator()(int32 j) const
    {
        const auto x = a.get(row, j);
        return x * x;
    }
    template <int M>
    ZEPM_INLINE auto get(int32 j) const
    {
        const auto x = elementsOf<M>(a, row, j);
        return x * x;
    }
    ZEPM_INLINE const char* aligned() const { return a.at(row, 0); }
};

// ---- The terms of a call --------------------------------------------------------------------------------------------

template <class A, class B>
struct TermsOfProducts
{
    A a;
    B b;
    ZEPM_INLINE auto object(int32 k) const
    {
        return ProductTerms<decltype(a.object(k)), decltype(b.object(k))>{a.object(k), b.object(k)};
    }
};
template <class A>
struct TermsOfSquares
{
    A a;
    ZEPM_INLINE auto object(int32 k) const { return SquareTerms<decltype(a.object(k))>{a.object(k)}; }
};

template <bool Contiguous, class A, class B>
ZEPM_INLINE auto termsOf(const Dotting<A, B>& x)
{
    const auto a = x.src1.template view<Contiguous>(x.len);
    const auto b = x.src2.template view<Contiguous>(x.len);
    return TermsOfProducts<std::remove_const_t<decltype(a)>, std::remove_const_t<decltype(b)>>{a, b};
}
template <bool Contiguous, int Rank, class A>
ZEPM_INLINE auto termsOf(const Norming<Rank, A>& x)
{
    const auto a = x.src.template view<Contiguous>(x.width);
    return TermsOfSquares<std::remove_const_t<decltype(a)>>{a};
}
template <class A, class B>
ZEPM_INLINE int32 lengthOf(const Dotting<A, B>& x)
{
    return x.len;
}
template <class A>
ZEPM_INLINE int32 lengthOf(const Norming<1, A>& x)
{
    return x.width;
}

// What becomes of a sum.
template <class A, class B, class Number>
ZEPM_INLINE Number resultOf(const Dotting<A, B>&, Number sum)
{
    return sum;
}
template <int Rank, class A, class Number>
ZEPM_INLINE Number resultOf(const Norming<Rank, A>&, Number sum)
{
    return squareRoot(sum);
}

// ---- Kernels --------------------------------------------------------------------------------------------------------

inline constexpr sizes<3, 4, 5, 6> writtenLengths;

// Of vectors.
ZEPM_EACH_LEVEL(template <class Short, class Long, bool Contiguous, class X> Status reduceVectors(const X& x);)

template <class Short, class Long, bool Contiguous, class X>
ZEPM_INLINE Status reduce(const X& x)
{
    if constexpr (X::isArray)
        return ZEPM_AT_LEVEL(reduceVectors<Short, Long, Contiguous, X>)(x);
    else
    {
        const auto terms = termsOf<Contiguous>(x).object(0);
        const int32 n = lengthOf(x);
        const auto sum = forSize(
            n, writtenLengths, [&]<int32 N>() ZEPM_INLINED { return Short::of(FixedOrder<N>{}, terms); },
            [&]() ZEPM_INLINED { return Long::of(n, terms); });
        store(x.dst.p, resultOf(x, sum));
        return stsOk;
    }
}
template <class Short, class Long, class X>
ZEPM_INLINE Status reducePacked(const X& x)
{
    return reduce<Short, Long, true>(x);
}
template <class Short, class Long, class X>
ZEPM_INLINE Status reduceStrided(const X& x)
{
    return reduce<Short, Long, false>(x);
}
template <class Short, class Long, class X>
ZEPM_INLINE Status reduceTable(const X& x)
{
    return reduce<Short, Long, false>(x);
}

// What enterQuick takes for single vectors of 3 to 6 elements without gaps.
template <class Short>
ZEPM_INLINE auto shortSum()
{
    return [](const auto& x) ZEPM_INLINED {
        if (!isDense(x, 0)) return false;
        const auto terms = termsOf<true>(x).object(0);
        return forSize(
            lengthOf(x), writtenLengths,
            [&]<int32 N>() ZEPM_INLINED {
                store(x.dst.p, resultOf(x, Short::of(FixedOrder<N>{}, terms)));
                return true;
            },
            []() ZEPM_INLINED { return false; });
    };
}

// Whether the rows of a matrix make one run of elements at the distance stride2.
template <class View>
ZEPM_INLINE bool isRun(const View& view, int32 width)
{
    return view.stride1 == width * view.stride2;
}

// Of the squares of one matrix; n is its order where that is written out.
template <class Sum, class N, class Object>
ZEPM_INLINE auto sumOfSquares(N n, const Object& object, int32 width, int32 height)
{
    using T = decltype(object.get(0, 0));
    const auto row = [&](int32 i) ZEPM_INLINED { return SquareTerms<Object>{object, i}; };
    const auto square = [&](int32 i, int32 j) ZEPM_INLINED { return row(i)(j); };
    if constexpr (std::is_same_v<Sum, InFours>)
        return sumInFours(width * height, row(0)); // the entries follow one another
    else if constexpr (std::is_same_v<Sum, RowsInPairs>)
        return sumOfRowsInPairs(n, height, width, square);
    else if (width == height && width < 6)
        return sumOfColumns(n, height, width, square);
    else
    {
        const bool isOneRun = reinterpret_cast<uintptr_t>(object.p) % sizeof(T) == 0 && isRun(object, width);
        return isOneRun ? ZEPM_LEVEL::sumInEights<T>(1, width * height, true, row)
                        : ZEPM_LEVEL::sumInEights<T>(height, width, object.stride2 == sizeof(T), row);
    }
}

ZEPM_EACH_LEVEL(template <class Sum, bool Contiguous, class X> Status reduceMatrices(const X& x);)

template <class Sum, bool Contiguous, class X>
ZEPM_INLINE Status normOne(const X& x)
{
    const auto object = termsOf<Contiguous>(x).a.object(0);
    store(x.dst.p, squareRoot(sumOfSquares<Sum>(x.width, object, x.width, x.height)));
    return stsOk;
}
template <class Sum, class X>
ZEPM_INLINE Status normPacked(const X& x)
{
    return ZEPM_AT_LEVEL(reduceMatrices<Sum, true, X>)(x);
}
template <class Sum, class X>
ZEPM_INLINE Status normStrided(const X& x)
{
    return ZEPM_AT_LEVEL(reduceMatrices<Sum, false, X>)(x);
}
template <class Sum, class X>
ZEPM_INLINE Status normTable(const X& x)
{
    if constexpr (X::isArray)
        return normStrided<Sum>(x);
    else
        return normOne<Sum, false>(x);
}
// One matrix in S: the choice between contiguous and spaced elements is inside.
template <class Sum, class X>
ZEPM_INLINE Status normMatrix(const X& x)
{
    return x.src.contiguous() ? normOne<Sum, true>(x) : normOne<Sum, false>(x);
}

// What enterQuick takes for matrices of orders 3 to 6 without gaps.
template <class Sum>
ZEPM_INLINE auto smallNorm()
{
    return [](const auto& x) ZEPM_INLINED {
        if (x.width != x.height || !isDense(x, x.width)) return false;
        const auto object = termsOf<true>(x).a.object(0);
        return forSize(
            x.width, sizes<3, 4>{},
            [&]<int32 N>() ZEPM_INLINED {
                store(x.dst.p, squareRoot(sumOfSquares<Sum>(FixedOrder<N>{}, object, N, N)));
                return true;
            },
            []() ZEPM_INLINED { return false; });
    };
}

// ---- Traces ---------------------------------------------------------------------------------------------------------

// The sum of orders 3 to 6 is left to right; that of others stands in the result from its zero on, which may itself be
// on the diagonal.
template <class Object, class T>
ZEPM_INLINE void traceOf(const Object& object, T* result, int32 n)
{
    const bool isWritten = forSize(
        n, writtenLengths,
        [&]<int32 N>() ZEPM_INLINED {
            store(result, sumFromFirst(FixedOrder<N>{}, 0, N, [&](int32 i) ZEPM_INLINED { return object.get(i, i); }));
            return true;
        },
        []() ZEPM_INLINED { return false; });
    if (isWritten) return;
    store(result, T{});
    for (int32 i = 0; i < n; ++i) store(result, load<T>(result) + object.get(i, i));
}

template <bool Contiguous, class X>
ZEPM_INLINE Status trace(const X& x)
{
    const auto view = x.src.template view<Contiguous>(x.widthHeight);
    const auto each = [&](auto sum) ZEPM_INLINED {
        for (int32 k = 0; k < x.count; ++k) sum(view.object(k), x.dst.p + k);
    };
    const int32 n = x.widthHeight;
    forSize(
        n, writtenLengths,
        [&]<int32 N>() ZEPM_INLINED { each([](const auto& object, auto* p) ZEPM_INLINED { traceOf(object, p, N); }); },
        [&]() ZEPM_INLINED { each([n](const auto& object, auto* p) ZEPM_INLINED { traceOf(object, p, n); }); });
    return stsOk;
}
template <class X>
ZEPM_INLINE Status tracePacked(const X& x)
{
    return trace<true>(x);
}
template <class X>
ZEPM_INLINE Status traceStrided(const X& x)
{
    return trace<false>(x);
}
template <class X>
ZEPM_INLINE Status traceTable(const X& x)
{
    return trace<false>(x);
}

inline constexpr auto smallTrace = [](const auto& x) ZEPM_INLINED {
    if (!isDense(x, x.widthHeight) || !writtenLengths.have(x.widthHeight)) return false;
    traceOf(x.src.template view<true>(x.widthHeight).object(0), x.dst.p, x.widthHeight);
    return true;
};

} // namespace zepm
