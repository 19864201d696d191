// Sums over arrays of vectors and matrices, objects in lanes where that is faster than one by one: always where their
// elements lie side by side in registers or across, never where each element would have to be gathered.
#include "frame/groups.h"
#include "vector/reduce.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- One operand of contiguous rows, in lanes -----------------------------------------------------------------------
//
// A piece is Length elements from element First on of every lane whose number in its piece is R.

template <class T, bool Contiguous>
ZEPM_INLINE const char* laneAt(const StridedView<const T, Contiguous, false>& view, int32 k, int lane)
{
    return view.p + k * view.stride0 + lane * view.stride0;
}
template <class T, bool Contiguous>
ZEPM_INLINE const char* laneAt(const ListView<const T, Contiguous>& view, int32 k, int lane)
{
    return view.object(k + lane).p;
}

// An object for each lane, or the same one for all; N of its elements, or parts of any length where N is 0.
template <class T, int W, int N, class View>
struct LanePieces
{
    static constexpr int C = pieceLength<T>;
    View view;
    ZEPM_INLINE explicit LanePieces(const View& v) : view(v) {}

    template <int R, int First, int Length>
    ZEPM_INLINE Vec<T, W> piece(int32 k, ptrdiff_t offset = 0) const
    {
        if constexpr (View::fixed)
            return repeat<T, C, W / C>(loadFirst<T, C, Length>(view.p + First * sz<T> + offset));
        else
            return joinParts<T, C, W / C>([&]<int G>() ZEPM_INLINED {
                return loadFirst<T, C, Length>(laneAt(view, k, G * C + R) + First * sz<T> + offset);
            });
    }
    // Piece I of each three, vectors of three elements lying without gaps.
    template <int I>
    ZEPM_INLINE Vec<T, W> dense(int32 k) const
    {
        return joinParts<T, C, W / C>(
            [&]<int G>() ZEPM_INLINED { return loadVec<T, C>(laneAt(view, k, 0) + (G * 3 + I) * 16); });
    }
    ZEPM_INLINE bool liesDense() const { return distanceOf(view) == N * sz<T>; }
};

// The same object for every lane, in registers.
template <class T, int W, int N, class View>
requires(View::fixed&& N > 0) struct LanePieces<T, W, N, View>
{
    static constexpr int C = pieceLength<T>;
    View view;
    Vec<T, W> held[(N + C - 1) / C], heldDense[3];
    ZEPM_INLINE explicit LanePieces(const View& v) : view(v)
    {
        const char* const p = v.p;
        each<(N + C - 1) / C>([&]<int I>() ZEPM_INLINED {
            constexpr int length = N - I * C < C ? N - I * C : C;
            held[I] = repeat<T, C, W / C>(loadFirst<T, C, length>(p + I * 16));
        });
        if constexpr (N == 3)
            each<3>([&]<int I>() ZEPM_INLINED {
                heldDense[I] =
                    eachLane<T, W>([&](int n) ZEPM_INLINED { return load<T>(p + (I * C + n % C) % 3 * sz<T>); });
            });
    }
    template <int, int First, int Length>
    ZEPM_INLINE Vec<T, W> piece(int32, ptrdiff_t = 0) const
    {
        return held[First / C];
    }
    template <int I>
    ZEPM_INLINE Vec<T, W> dense(int32) const
    {
        return heldDense[I];
    }
    ZEPM_INLINE bool liesDense() const { return true; }
};

// ---- The terms of a group -------------------------------------------------------------------------------------------

template <class T, int W, int N, class Terms>
struct LaneTerms;
template <class T, int W, int N, class A, class B>
struct LaneTerms<T, W, N, TermsOfProducts<A, B>>
{
    LanePieces<T, W, N, A> a;
    LanePieces<T, W, N, B> b;
    ZEPM_INLINE explicit LaneTerms(const TermsOfProducts<A, B>& of) : a(of.a), b(of.b) {}
    template <int R, int First, int Length>
    ZEPM_INLINE Vec<T, W> piece(int32 k, ptrdiff_t offset = 0) const
    {
        return a.template piece<R, First, Length>(k, offset) * b.template piece<R, First, Length>(k, offset);
    }
    template <int I>
    ZEPM_INLINE Vec<T, W> dense(int32 k) const
    {
        return a.template dense<I>(k) * b.template dense<I>(k);
    }
    ZEPM_INLINE bool liesDense() const { return a.liesDense() && b.liesDense(); }
};
template <class T, int W, int N, class A>
struct LaneTerms<T, W, N, TermsOfSquares<A>>
{
    LanePieces<T, W, N, A> a;
    ZEPM_INLINE explicit LaneTerms(const TermsOfSquares<A>& of) : a(of.a) {}
    template <int R, int First, int Length>
    ZEPM_INLINE Vec<T, W> piece(int32 k, ptrdiff_t offset = 0) const
    {
        const auto x = a.template piece<R, First, Length>(k, offset);
        return x * x;
    }
    template <int I>
    ZEPM_INLINE Vec<T, W> dense(int32 k) const
    {
        const auto x = a.template dense<I>(k);
        return x * x;
    }
    ZEPM_INLINE bool liesDense() const { return a.liesDense(); }
};

// ---- Elements of successive objects side by side --------------------------------------------------------------------

template <class T, bool Contiguous, bool Fixed>
ZEPM_INLINE bool liesAcross(const StridedView<const T, Contiguous, Fixed>& view)
{
    return Fixed || view.stride0 == sz<T>;
}
template <class T, bool Fixed>
ZEPM_INLINE bool liesAcross(const TableView<const T, Fixed>& view)
{
    return Fixed || view.stride0 == sz<T>;
}
template <class T, bool Contiguous>
ZEPM_INLINE bool liesAcross(const ListView<const T, Contiguous>&)
{
    return false;
}
template <class A, class B>
ZEPM_INLINE bool liesAcross(const TermsOfProducts<A, B>& terms)
{
    return liesAcross(terms.a) && liesAcross(terms.b);
}
template <class A>
ZEPM_INLINE bool liesAcross(const TermsOfSquares<A>& terms)
{
    return liesAcross(terms.a);
}

// Element (i, j) of W objects from k on.
template <int W, class View>
ZEPM_INLINE auto across(const View& view, int32 k, int32 i, int32 j)
{
    const auto object = view.object(k);
    using T = decltype(object.get(i, j));
    if constexpr (View::fixed)
        return broadcast<T, W>(object.get(i, j));
    else
        return loadVec<T, W>(object.at(i, j));
}
template <int W, class A, class B>
ZEPM_INLINE auto termAcross(const TermsOfProducts<A, B>& terms, int32 k, int32 i, int32 j)
{
    return across<W>(terms.a, k, i, j) * across<W>(terms.b, k, i, j);
}
template <int W, class A>
ZEPM_INLINE auto termAcross(const TermsOfSquares<A>& terms, int32 k, int32 i, int32 j)
{
    const auto x = across<W>(terms.a, k, i, j);
    return x * x;
}

// ---- Loops over groups ----------------------------------------------------------------------------------------------

// group.operator()<W>(k) for W objects from k on, in the widest registers that are full: the last group begins so that
// it ends with the last object, and does some of them twice. Fewer objects than a piece has lanes go one by one.
template <class T, int W, class Group, class One>
ZEPM_INLINE void forFullGroups(int32 count, Group group, One one)
{
    if (count >= W)
    {
        int32 k = 0;
        for (; k <= count - W; k += W) group.template operator()<W>(k);
        if (k < count) group.template operator()<W>(count - W);
    }
    else if constexpr (W > pieceLength<T>)
        forFullGroups<T, pieceLength<T>>(count, group, one);
    else
        for (int32 k = 0; k < count; ++k) one(k);
}

template <class X>
using ElementOf = std::remove_pointer_t<decltype(X::dst.p)>;

// Contiguous vectors of N elements. The loop stands once for each width and each way to lie.
template <class Short, int32 N, int W, bool IsDense, class X, class Terms>
[[gnu::noinline]] void groupsOf(const X& x, const Terms& terms)
{
    using T = ElementOf<X>;
    const LaneTerms<T, W, N, Terms> pieces(terms);
    const auto group = [&](int32 k) ZEPM_INLINED {
        Vec<T, W> term[N];
        if constexpr (IsDense)
        {
            const Vec<T, W> r[3] = {pieces.template dense<0>(k), pieces.template dense<1>(k),
                                    pieces.template dense<2>(k)};
            separateDense<T, W>(r, term);
        }
        else
            transposeFrom<T, W, N>([&]<int R, int First, int Length>()
                                       ZEPM_INLINED { return pieces.template piece<R, First, Length>(k); },
                                   term);
        const Vec<T, W> sum = Short::of(FixedOrder<N>{}, [&](int32 j) ZEPM_INLINED { return term[j]; });
        storeVec<T, W>(bytes(x.dst.p + k), resultOf(x, sum));
    };
    int32 k = 0;
    for (; k <= x.count - W; k += W) group(k);
    if (k < x.count) group(x.count - W);
}

template <class Short, int32 N, class X, class Terms>
ZEPM_INLINE void shortVectors(const X& x, const Terms& terms)
{
    using T = ElementOf<X>;
    constexpr int C = pieceLength<T>, W = lanes<T>;
    const auto one = [&](int32 k)
                         ZEPM_INLINED { store(x.dst.p + k, resultOf(x, Short::of(FixedOrder<N>{}, terms.object(k)))); };
    if constexpr (hasContiguousRows<decltype(terms.a)>)
    {
        if (x.count >= W)
        {
            if constexpr (N == 3)
            {
                if (LaneTerms<T, W, N, Terms>(terms).liesDense()) return groupsOf<Short, N, W, true>(x, terms);
            }
            return groupsOf<Short, N, W, false>(x, terms);
        }
        if constexpr (W > C)
        {
            if (x.count >= C) return groupsOf<Short, N, C, false>(x, terms);
        }
    }
    else if (liesAcross(terms))
        return forFullGroups<T, W>(
            x.count,
            [&]<int M>(int32 k) ZEPM_INLINED {
                const Vec<T, M> sum =
                    Short::of(FixedOrder<N>{}, [&](int32 j) ZEPM_INLINED { return termAcross<M>(terms, k, 0, j); });
                storeVec<T, M>(bytes(x.dst.p + k), resultOf(x, sum));
            },
            one);
    for (int32 k = 0; k < x.count; ++k) one(k);
}

// The terms of W objects of any length, four or two at a time.
template <class T, int W, class Terms>
struct Transposed
{
    static constexpr int block = pieceLength<T>;
    struct Taken
    {
        Vec<T, W> term[block];
    };
    const Terms& terms;
    LaneTerms<T, W, 0, Terms> pieces;
    int32 k;

    ZEPM_INLINE Vec<T, W> operator()(int32 j) const
    {
        return eachLane<T, W>([&](int lane) ZEPM_INLINED { return terms.object(k + lane)(j); });
    }
    ZEPM_INLINE Taken take(int32 j) const
    {
        Taken taken;
        transposeFrom<T, W, block>([&]<int R, int First, int Length>()
                                       ZEPM_INLINED { return pieces.template piece<R, First, Length>(k, j * sz<T>); },
                                   taken.term);
        return taken;
    }
};

// Shorter vectors are not worth a transposition.
inline constexpr int32 leastInLanes = 7;

template <class Long, class X, class Terms>
ZEPM_INLINE void longVectors(const X& x, const Terms& terms)
{
    using T = ElementOf<X>;
    const int32 n = lengthOf(x);
    const auto one = [&](int32 k) ZEPM_INLINED { store(x.dst.p + k, resultOf(x, Long::of(n, terms.object(k)))); };
    if constexpr (Long::isSameInLanes && hasContiguousRows<decltype(terms.a)>)
    {
        if (n >= leastInLanes)
            return forFullGroups<T, lanes<T>>(
                x.count,
                [&]<int W>(int32 k) ZEPM_INLINED {
                    const Transposed<T, W, Terms> transposed{terms, LaneTerms<T, W, 0, Terms>(terms), k};
                    storeVec<T, W>(bytes(x.dst.p + k), resultOf(x, Long::of(n, transposed)));
                },
                one);
    }
    else if constexpr (Long::isSameInLanes)
    {
        if (liesAcross(terms))
            return forFullGroups<T, lanes<T>>(
                x.count,
                [&]<int W>(int32 k) ZEPM_INLINED {
                    const Vec<T, W> sum =
                        Long::of(n, [&](int32 j) ZEPM_INLINED { return termAcross<W>(terms, k, 0, j); });
                    storeVec<T, W>(bytes(x.dst.p + k), resultOf(x, sum));
                },
                one);
    }
    for (int32 k = 0; k < x.count; ++k) one(k);
}

// ---- Square matrices of contiguous rows -----------------------------------------------------------------------------

template <class Sum, int32 N, int W, bool IsRun, class X, class Terms>
[[gnu::noinline]] void matrixGroups(const X& x, const Terms& terms)
{
    using T = ElementOf<X>;
    const LaneTerms<T, W, 0, Terms> pieces(terms);
    const FixedOrder<N> n;
    const auto group = [&](int32 k) ZEPM_INLINED {
        Vec<T, W> square[N * N];
        const auto read = [&]<int M>(Vec<T, W>* to, ptrdiff_t offset) ZEPM_INLINED {
            transposeFrom<T, W, M>([&]<int R, int First, int Length>()
                                       ZEPM_INLINED { return pieces.template piece<R, First, Length>(k, offset); },
                                   to);
        };
        if constexpr (IsRun)
            read.template operator()<N * N>(square, 0);
        else
        {
            ZEPM_UNROLL
            for (int i = 0; i < N; ++i) read.template operator()<N>(square + i * N, i * terms.a.stride1);
        }
        const auto at = [&](int32 i, int32 j) ZEPM_INLINED { return square[i * N + j]; };
        Vec<T, W> sum;
        if constexpr (std::is_same_v<Sum, RowsInPairs>)
            sum = sumOfRowsInPairs(n, N, N, at);
        else
            sum = sumOfColumns(n, N, N, at);
        storeVec<T, W>(bytes(x.dst.p + k), squareRoot(sum));
    };
    int32 k = 0;
    for (; k <= x.count - W; k += W) group(k);
    if (k < x.count) group(x.count - W);
}

template <class Sum, int32 N, class X, class Terms, class One>
ZEPM_INLINE void smallMatrices(const X& x, const Terms& terms, One one)
{
    using T = ElementOf<X>;
    constexpr int W = lanes<T>;
    if (x.count >= W)
        return terms.a.stride1 == N * sz<T> ? matrixGroups<Sum, N, W, true>(x, terms)
                                            : matrixGroups<Sum, N, W, false>(x, terms);
    for (int32 k = 0; k < x.count; ++k) one(k);
}

} // namespace

template <class Short, class Long, bool Contiguous, class X>
Status reduceVectors(const X& x)
{
    const auto terms = termsOf<Contiguous>(x);
    forSize(
        lengthOf(x), writtenLengths, [&]<int32 N>() ZEPM_INLINED { shortVectors<Short, N>(x, terms); },
        [&]() ZEPM_INLINED { longVectors<Long>(x, terms); });
    return stsOk;
}

template <class Sum, bool Contiguous, class X>
Status reduceMatrices(const X& x)
{
    const auto terms = termsOf<Contiguous>(x);
    const auto one = [&](int32 k) ZEPM_INLINED {
        store(x.dst.p + k, squareRoot(sumOfSquares<Sum>(x.width, terms.a.object(k), x.width, x.height)));
    };
    if constexpr (hasContiguousRows<decltype(terms.a)>)
    {
        constexpr sizes<3, 4, 5> orders;
        if (x.width == x.height && orders.have(x.width))
        {
            forSize(
                x.width, orders, [&]<int32 N>() ZEPM_INLINED { smallMatrices<Sum, N>(x, terms, one); }, []() {});
            return stsOk;
        }
    }
    for (int32 k = 0; k < x.count; ++k) one(k);
    return stsOk;
}

template Status reduceVectors<FourAsNeighbours, InPairs, true, DotVav<float32, S>>(const DotVav<float32, S>&);
template Status reduceVectors<FourAsNeighbours, InPairs, true, DotVav<float32, L>>(const DotVav<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float32, S>>(const DotVav<float32, S>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float32, L>>(const DotVav<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float32, P>>(const DotVav<float32, P>&);
template Status reduceVectors<FourAsEvensAndOdds, InPairs, true, DotVav<float64, S>>(const DotVav<float64, S>&);
template Status reduceVectors<FourAsEvensAndOdds, InPairs, true, DotVav<float64, L>>(const DotVav<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float64, S>>(const DotVav<float64, S>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float64, L>>(const DotVav<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVav<float64, P>>(const DotVav<float64, P>&);
template Status reduceVectors<FromFirst, Peeled, true, DotVava<float32, S>>(const DotVava<float32, S>&);
template Status reduceVectors<FromFirst, InPairs, true, DotVava<float32, L>>(const DotVava<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float32, S>>(const DotVava<float32, S>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float32, L>>(const DotVava<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float32, P>>(const DotVava<float32, P>&);
template Status reduceVectors<FourAsEvensAndOdds, InPairs, true, DotVava<float64, S>>(const DotVava<float64, S>&);
template Status reduceVectors<FourAsEvensAndOdds, InPairs, true, DotVava<float64, L>>(const DotVava<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float64, S>>(const DotVava<float64, S>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float64, L>>(const DotVava<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, DotVava<float64, P>>(const DotVava<float64, P>&);
template Status reduceVectors<Neighbours, OneChain, true, NormVa<float32, S>>(const NormVa<float32, S>&);
template Status reduceVectors<Neighbours, OneChain, true, NormVa<float32, L>>(const NormVa<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float32, S>>(const NormVa<float32, S>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float32, L>>(const NormVa<float32, L>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float32, P>>(const NormVa<float32, P>&);
template Status reduceVectors<EvensAndOdds, OneChain, true, NormVa<float64, S>>(const NormVa<float64, S>&);
template Status reduceVectors<EvensAndOdds, OneChain, true, NormVa<float64, L>>(const NormVa<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float64, S>>(const NormVa<float64, S>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float64, L>>(const NormVa<float64, L>&);
template Status reduceVectors<FromFirst, InPairs, false, NormVa<float64, P>>(const NormVa<float64, P>&);
template Status reduceMatrices<ColumnsOrEights, true, NormMa<float32, S>>(const NormMa<float32, S>&);
template Status reduceMatrices<ColumnsOrEights, false, NormMa<float32, S>>(const NormMa<float32, S>&);
template Status reduceMatrices<ColumnsOrEights, true, NormMa<float32, L>>(const NormMa<float32, L>&);
template Status reduceMatrices<ColumnsOrEights, false, NormMa<float32, L>>(const NormMa<float32, L>&);
template Status reduceMatrices<InFours, false, NormMa<float32, P>>(const NormMa<float32, P>&);
template Status reduceMatrices<RowsInPairs, true, NormMa<float64, S>>(const NormMa<float64, S>&);
template Status reduceMatrices<RowsInPairs, false, NormMa<float64, S>>(const NormMa<float64, S>&);
template Status reduceMatrices<RowsInPairs, true, NormMa<float64, L>>(const NormMa<float64, L>&);
template Status reduceMatrices<RowsInPairs, false, NormMa<float64, L>>(const NormMa<float64, L>&);
template Status reduceMatrices<InFours, false, NormMa<float64, P>>(const NormMa<float64, P>&);

} // namespace zepm::ZEPM_LEVEL
