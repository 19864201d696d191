// Sums by name. The order in which a kernel adds is part of its result, so each order stands here once; term(k) gives
// term k, a scalar or one in each lane. The order of a problem is an int32 or FixedOrder, as written.h has it.
#pragma once

#include "frame/pieces.h"
#include "frame/written.h"

namespace zepm
{

// From left to right, beginning with the first term itself: -0 stays -0.
template <class N, class Term>
ZEPM_INLINE auto sumFromFirst(N n, int32 from, int32 to, Term term)
{
    auto sum = term(from);
    ascend(n, from + 1, to, [&](int32 k) ZEPM_INLINED { sum = sum + term(k); });
    return sum;
}

// From left to right, beginning with +0.
template <class N, class Term>
ZEPM_INLINE auto sumFromZero(N n, int32 from, int32 to, Term term)
{
    decltype(term(from)) sum{};
    ascend(n, from, to, [&](int32 k) ZEPM_INLINED { sum = sum + term(k); });
    return sum;
}

// The sums of neighbours, from left to right: ((0 + 1) + (2 + 3)) + (4 + 5); a last term without a neighbour stands for
// itself.
template <class N, class Term>
ZEPM_INLINE auto sumOfNeighbours(N n, int32 to, Term term)
{
    const auto pair = [&](int32 p)
                          ZEPM_INLINED { return 2 * p + 1 < to ? term(2 * p) + term(2 * p + 1) : term(2 * p); };
    auto sum = pair(0);
    ascend(n, 1, (to + 1) / 2, [&](int32 p) ZEPM_INLINED { sum = sum + pair(p); });
    return sum;
}

// The even terms from left to right, the odd ones likewise, then both: ((0 + 2) + 4) + (1 + 3). At least two terms.
template <class N, class Term>
ZEPM_INLINE auto sumOfEvensAndOdds(N n, int32 to, Term term)
{
    auto even = term(0), odd = term(1);
    ascend(n, 1, (to + 1) / 2, [&](int32 p) ZEPM_INLINED { even = even + term(2 * p); });
    ascend(n, 1, to / 2, [&](int32 p) ZEPM_INLINED { odd = odd + term(2 * p + 1); });
    return even + odd;
}

// Terms that are had several at once: take(k) gives Terms::block of them from k on, in an array.
template <class Terms>
concept ComesInBlocks = requires
{
    Terms::block + 0;
};

// The first, third, fifth term added to a total, the second, fourth, sixth apart from +0; a last one without a partner
// is added to the sum of both.
template <class N, class Sum, class Term>
ZEPM_INLINE auto continueInPairs(N, Sum total, int32 from, int32 to, Term term)
{
    Sum even = total, odd{};
    int32 k = from;
    if constexpr (ComesInBlocks<Term>)
    {
        for (; to - k >= Term::block; k += Term::block)
        {
            const auto terms = term.take(k);
            ZEPM_UNROLL
            for (int n = 0; n < Term::block; n += 2)
            {
                even = even + terms.term[n];
                odd = odd + terms.term[n + 1];
            }
        }
    }
    if constexpr (isWrittenOut<N>)
    {
        ZEPM_UNROLL
        for (; k < to - 1; k += 2)
        {
            even = even + term(k);
            odd = odd + term(k + 1);
        }
    }
    else
    {
        for (; to - k >= 2; k += 2)
        {
            even = even + term(k);
            odd = odd + term(k + 1);
        }
    }
    const Sum sum = even + odd;
    return k < to ? sum + term(k) : sum;
}
template <class Term>
ZEPM_INLINE auto sumInPairs(int32 from, int32 to, Term term)
{
    return continueInPairs(int32{}, decltype(term(from)){}, from, to, term);
}

// Row by row, each in pairs of which the first partial sum continues the total of the rows before; term(i, j).
template <class N, class Term>
ZEPM_INLINE auto sumOfRowsInPairs(N n, int32 height, int32 width, Term term)
{
    decltype(term(0, 0)) sum{};
    ascend(n, 0, height, [&](int32 i) ZEPM_INLINED {
        sum = continueInPairs(n, sum, 0, width, [&](int32 j) ZEPM_INLINED { return term(i, j); });
    });
    return sum;
}

// Columns from top to bottom, then their sums from left to right; term(i, j).
template <class N, class Term>
ZEPM_INLINE auto sumOfColumns(N n, int32 height, int32 width, Term term)
{
    return sumFromFirst(n, 0, width, [&](int32 j) ZEPM_INLINED {
        return sumFromFirst(n, 0, height, [&](int32 i) ZEPM_INLINED { return term(i, j); });
    });
}

// As pairs, as long as there are four terms for a step; the others one by one to the sum of both.
template <class Term>
ZEPM_INLINE auto sumInFours(int32 to, Term term)
{
    decltype(term(0)) even{}, odd{};
    int32 k = 0;
    for (; to - k >= 4; k += 4)
    {
        even = even + term(k), odd = odd + term(k + 1);
        even = even + term(k + 2), odd = odd + term(k + 3);
    }
    auto sum = even + odd;
    for (; k < to; ++k) sum = sum + term(k);
    return sum;
}

// One chain from +0 over terms that come in blocks.
template <ComesInBlocks Terms>
ZEPM_INLINE auto sumFromZero(int32, int32 from, int32 to, Terms term)
{
    decltype(term(from)) sum{};
    int32 k = from;
    for (; to - k >= Terms::block; k += Terms::block)
    {
        const auto terms = term.take(k);
        ZEPM_UNROLL
        for (int n = 0; n < Terms::block; ++n) sum = sum + terms.term[n];
    }
    for (; k < to; ++k) sum = sum + term(k);
    return sum;
}

} // namespace zepm

namespace zepm::ZEPM_LEVEL
{

// 32 bytes of partial sums, of eight floats or four doubles: term k is added to sum k modulo their number. Eight terms
// are added at a time; terms.template get<M>(k) gives M of them from k on.
template <class T>
struct PartialSums
{
    static constexpr int length = 32 / static_cast<int>(sizeof(T));
    static constexpr int M = lanes<T> < length ? lanes<T> : length;
    Vec<T, M> part[length / M] = {};

    // The sums so far, to the first of them.
    ZEPM_INLINE void addToFirst(T x) { part[0] = part[0] + Vec<T, M>{x}; }
    template <class Terms>
    ZEPM_INLINE void addEight(const Terms& terms, int32 k)
    {
        ZEPM_UNROLL
        for (int n = 0; n < 8; n += M)
            part[n / M % (length / M)] = part[n / M % (length / M)] + terms.template get<M>(k + n);
    }
    // The upper half added to the lower one, then neighbours, then their sums.
    ZEPM_INLINE T total() const
    {
        constexpr int C = pieceLength<T>;
        Vec<T, C> x;
        if constexpr (M == length)
            x = half<T, M, 0>(part[0]) + half<T, M, 1>(part[0]);
        else
            x = part[0] + part[1];
        return sumOfNeighbours(FixedOrder<C>{}, C, [&](int32 n) ZEPM_INLINED { return x[n]; });
    }
};

// The elements before the first one at a multiple of 16; -1 if there is none.
template <class T>
ZEPM_INLINE int32 peelOf(const char* p)
{
    const auto past = static_cast<int32>(reinterpret_cast<uintptr_t>(p) % 16);
    if (past % static_cast<int32>(sizeof(T)) != 0) return -1;
    return (16 - past) % 16 / static_cast<int32>(sizeof(T));
}

// The terms before an aligned address one by one from +0, as many eights as there are to partial sums, of which the
// first continues those before, the rest one by one to their total. Without an eight all of them one by one.
template <class T, class Terms>
ZEPM_INLINE T sumPeeled(int32 to, int32 peel, const Terms& terms)
{
    if (peel < 0 || to - peel < 8) return sumFromZero(to, 0, to, terms);
    PartialSums<T> partial;
    partial.addToFirst(sumFromZero(to, 0, peel, terms));
    int32 k = peel;
    for (; to - k >= 8; k += 8) partial.addEight(terms, k);
    T sum = partial.total();
    for (; k < to; ++k) sum = sum + terms(k);
    return sum;
}

// Row by row to the same partial sums: eights, as far as the rows have them where takesEights, then one by one to the
// first sum. row(i) gives the terms of a row.
template <class T, class Rows>
ZEPM_INLINE T sumInEights(int32 height, int32 width, bool takesEights, Rows row)
{
    PartialSums<T> partial;
    for (int32 i = 0; i < height; ++i)
    {
        const auto terms = row(i);
        int32 j = 0;
        if (takesEights)
            for (; width - j >= 8; j += 8) partial.addEight(terms, j);
        for (; j < width; ++j) partial.addToFirst(terms(j));
    }
    return partial.total();
}

} // namespace zepm::ZEPM_LEVEL
