// Element-wise calls on contiguous rows. The order of the operations is free here: each result element is one operation
// on its own two elements, which are read before it is written.
#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "frame/streams.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Where the rows lie, from row k on ------------------------------------------------------------------------------

struct Stepping
{
    const char* p;
    ptrdiff_t stride;
    ZEPM_INLINE Stepping(const Sequence& operand, ptrdiff_t k) : p(operand.p), stride(operand.toNext())
    {
        p += k * stride;
    }
    ZEPM_INLINE const char* at() const { return p; }
    ZEPM_INLINE void next() { p += stride; }
};

// Rows at a stride; the step from the first to the second may be shorter (a first group that the second overlaps).
struct SteppingFrom
{
    const char* p;
    ptrdiff_t first, stride;
    ZEPM_INLINE const char* at() const { return p; }
    ZEPM_INLINE void next()
    {
        p += first;
        first = stride;
    }
};

struct Listed
{
    const char* entry;
    ptrdiff_t shift;
    ZEPM_INLINE Listed(const Sequence& operand, ptrdiff_t k)
        : entry(operand.p + k * static_cast<ptrdiff_t>(sizeof(char*))), shift(operand.step)
    {
    }
    ZEPM_INLINE const char* at() const { return load<const char*>(entry) + shift; }
    ZEPM_INLINE void next() { entry += sizeof(char*); }
};

// ---- What the operation takes from them -----------------------------------------------------------------------------
//
// A source gives its row as a whole, for rows of any length, or N elements from element J of it, for rows of a known
// one.

// A row of elements for each object.
template <class T, class Rows>
struct RowElements
{
    Rows rows;
    const char* p = nullptr;
    ZEPM_INLINE void enter() { p = rows.at(); }
    ZEPM_INLINE void next() { rows.next(); }
    ZEPM_INLINE const char* whole() const { return p; }
    template <int N, int J>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return loadVec<T, N>(p + J * sz<T>);
    }
};

// A constant for each row, or one for all.
template <class T, class Rows>
struct Constants
{
    Rows rows;
    T value{};
    ZEPM_INLINE void enter() { value = load<T>(rows.at()); }
    ZEPM_INLINE void next() { rows.next(); }
    ZEPM_INLINE T whole() const { return value; }
    template <int N, int>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return broadcast<T, N>(value);
    }
};
template <class T>
struct OneConstant
{
    T value;
    ZEPM_INLINE void enter() {}
    ZEPM_INLINE void next() {}
    ZEPM_INLINE T whole() const { return value; }
    template <int N, int>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return broadcast<T, N>(value);
    }
};

// N elements of a fixed row that is repeated, from element J of the repetition on. Gathered in registers: what is
// stored in small pieces cannot be loaded at once without a stall.
template <class T, int Length, int N, int J>
ZEPM_INLINE Vec<T, N> repeated(const char* p)
{
    if constexpr (J + N <= Length)
        return loadVec<T, N>(p + J * sz<T>);
    else
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
        {
            return Vec<T, N>{load<T>(p + (J + Lane) % Length * sz<T>)...};
        }
    (std::make_integer_sequence<int, N>{});
}

// The pieces of such a row, each in a register of its own.
template <class T, int Length, int Total, int N = lanes<T>, int J = 0>
struct HeldPieces
{
    static constexpr bool fits = Total - J >= N;
    Vec<T, fits ? N : 1> own{};
    HeldPieces<T, Length, Total, fits ? N : N / 2, fits ? J + N : J> rest;

    ZEPM_INLINE explicit HeldPieces(const char* p) : rest(p)
    {
        if constexpr (fits) own = repeated<T, Length, N, J>(p);
    }
    template <int Wanted, int At>
    ZEPM_INLINE Vec<T, Wanted> get() const
    {
        if constexpr (fits && At == J)
            return own;
        else
            return rest.template get<Wanted, At>();
    }
};
template <class T, int Length, int Total, int N>
struct HeldPieces<T, Length, Total, N, Total>
{
    ZEPM_INLINE explicit HeldPieces(const char*) {}
};

// The elements of a fixed row of a known length, over and over.
template <class T, int Length, int Repeated = 1>
struct Held
{
    HeldPieces<T, Length, Length * Repeated> pieces;
    ZEPM_INLINE explicit Held(const char* p) : pieces(p) {}
    ZEPM_INLINE void enter() {}
    ZEPM_INLINE void next() {}
    template <int N, int J>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return pieces.template get<N, J>();
    }
};

// Constants that lie side by side, each for Length elements: a register of them for as many rows.
template <class T, int Length>
struct Spread
{
    SteppingFrom rows;
    Vec<T, lanes<T>> constants{};
    template <int J>
    struct Place
    {
        constexpr int operator()(int lane) const { return (J + lane) / Length; }
    };
    ZEPM_INLINE void enter() { constants = loadVec<T, lanes<T>>(rows.at()); }
    ZEPM_INLINE void next() { rows.next(); }
    template <int N, int J>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return permute<T, N>(constants, Place<J>{});
    }
};

// ---- Loops over the rows --------------------------------------------------------------------------------------------

// Length 0 stands for any length. Streams writes past the caches; each row is then of whole registers and aligned.
template <class T, int Length, bool Streams = false, class Op, class A, class B, class D>
ZEPM_INLINE void rows(Op op, A a, B b, D d, ptrdiff_t width, ptrdiff_t count)
{
    [[maybe_unused]] const bool isWholeRegisters = width % lanes<T> == 0 && width < longRow<T>;
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        a.enter();
        b.enter();
        char* const to = const_cast<char*>(d.at());
        if constexpr (Length > 0)
            pieces<T, Length>([&]<int N, int J>() ZEPM_INLINED {
                const Vec<T, N> x = op(a.template get<N, J>(), b.template get<N, J>());
                if constexpr (Streams)
                    streamVec<T>(to + J * sz<T>, x);
                else
                    storeVec<T, N>(to + J * sz<T>, x);
            });
        else if (isWholeRegisters)
            for (ptrdiff_t j = 0; j < width; j += lanes<T>) piece<T, lanes<T>>(op, a.whole(), b.whole(), to, j);
        else
            row<T>(op, a.whole(), b.whole(), to, width);
        a.next();
        b.next();
        d.next();
    }
}

// A fixed row of few elements is held; a longer one is read again for each object.
template <class T, int Length>
ZEPM_INLINE auto fixedRow(const Sequence& operand)
{
    if constexpr (Length > 0)
        return Held<T, Length>(operand.p);
    else
        return RowElements<T, Stepping>{Stepping(operand, 0)};
}

// Lengths with code of their own for a constant for each row: those of vectors.
template <int Length>
inline constexpr bool takesConstants = Length <= 6;

// count rows from row k on, each by itself.
template <class T, int Length, class Lying, class Op>
[[gnu::noinline]] void rowsOf(Op op, const RowCall& c, ptrdiff_t k, ptrdiff_t count)
{
    const RowElements<T, Lying> a{Lying(c.a, k)};
    const Lying d(c.d, k);
    if (c.isConstant && c.b.isFixed()) return rows<T, Length>(op, a, OneConstant<T>{load<T>(c.b.p)}, d, c.width, count);
    if constexpr (takesConstants<Length> && takesConstantArrays<Op>)
    {
        if (c.isConstant)
        {
            const Constants<T, Lying> b{Lying(c.b, k)};
            return c.a.isFixed() ? rows<T, Length>(op, fixedRow<T, Length>(c.a), b, d, c.width, count)
                                 : rows<T, Length>(op, a, b, d, c.width, count);
        }
    }
    if constexpr (!takesConstantAlone<Op>)
        c.b.isFixed() ? rows<T, Length>(op, a, fixedRow<T, Length>(c.b), d, c.width, count)
                      : rows<T, Length>(op, a, RowElements<T, Lying>{Lying(c.b, k)}, d, c.width, count);
}

// ---- Rows one by one ------------------------------------------------------------------------------------------------

template <class T, int Length, class Op>
ZEPM_INLINE void rowsInOrder(Op op, const RowCall& c, ptrdiff_t k, ptrdiff_t count)
{
    c.isList ? rowsOf<T, Length, Listed>(op, c, k, count) : rowsOf<T, Length, Stepping>(op, c, k, count);
}

// count rows from row k on.
template <class T, class Op>
[[gnu::noinline]] void oneByOne(Op op, const RowCall& c, ptrdiff_t k, ptrdiff_t count)
{
    const bool hasConstants = c.isConstant && !c.b.isFixed();
    switch (hasConstants && c.width > 6 ? 0 : c.width)
    {
    case 3: return rowsInOrder<T, 3>(op, c, k, count);
    case 4: return rowsInOrder<T, 4>(op, c, k, count);
    case 5: return rowsInOrder<T, 5>(op, c, k, count);
    case 6: return rowsInOrder<T, 6>(op, c, k, count);
    case 16: return rowsInOrder<T, 16>(op, c, k, count);
    default: return rowsInOrder<T, 0>(op, c, k, count);
    }
}

// Whether a dense destination of so many bytes is to be stored past the caches; in place it is read anyway.
template <class T>
[[gnu::noinline]] bool repaysStreaming(const char* a, const char* b, const char* d, ptrdiff_t size, int sources)
{
    return a != d && b != d && reinterpret_cast<uintptr_t>(d) % sizeof(T) == 0 && isBeyondCaches(size, sources);
}

template <class T>
ZEPM_INLINE bool isStreamed(const RowCall& c)
{
    const ptrdiff_t rowSize = c.width * sz<T>, size = c.count * rowSize;
    return size >= leastStreamed && !c.isList && c.d.step == rowSize && rowSize <= streamedChunk &&
           repaysStreaming<T>(c.a.p, c.b.p, c.d.p, size, !c.a.isFixed() + (!c.b.isFixed() && !c.isConstant));
}

template <class T, class Op>
[[gnu::noinline]] void streamRows(Op op, const RowCall& c)
{
    streamCall(c, c.d.step, [op](const RowCall& part) { oneByOne<T>(op, part, 0, part.count); });
}

// ---- Dense rows -----------------------------------------------------------------------------------------------------
//
// Rare cases are in noinline functions, so that the common path need not save registers around the test.

template <Sources sources>
inline constexpr bool hasConstants = sources == Sources::RowsAndConstants || sources == Sources::OneRowAndConstants;

template <class T, Sources sources>
ZEPM_INLINE RowCall callOf(const char* a, const char* b, char* d, ptrdiff_t width, ptrdiff_t count)
{
    const ptrdiff_t size = width * sz<T>;
    return {{a, sources == Sources::OneRowAndConstants ? Sequence::fixed : size},
            {b, hasConstants<sources> ? sz<T> : Sequence::fixed},
            {d, size},
            hasConstants<sources>,
            false,
            width,
            count};
}

template <class T, Sources sources, class Op>
[[gnu::noinline]] void denseOneByOne(Op op, const char* a, const char* b, char* d, ptrdiff_t width, ptrdiff_t count)
{
    const RowCall c = callOf<T, sources>(a, b, d, width, count);
    isStreamed<T>(c) ? streamRows<T>(op, c) : oneByOne<T>(op, c, 0, count);
}

// All rows as one, b being the elements or the constant.
template <class T, class Op, class B>
[[gnu::noinline]] void longestRow(Op op, const char* a, B b, char* d, ptrdiff_t n)
{
    constexpr bool isConstant = std::is_same_v<B, T>;
    const char* other = a;
    if constexpr (!isConstant) other = b;
    repaysStreaming<T>(a, other, d, n * sz<T>, isConstant ? 1 : 2) ? row<T, true>(op, a, b, d, n)
                                                                   : row<T>(op, a, b, d, n);
}
template <class T, class Op, class B>
ZEPM_INLINE void oneRow(Op op, const char* a, B b, char* d, ptrdiff_t n)
{
    n < leastStreamed / sz<T> ? row<T>(op, a, b, d, n) : longestRow<T>(op, a, b, d, n);
}

// The number of dense rows that make a group: together they fill whole registers, at least four of them, since the loop
// around a group costs as much as one register. With constants it is as many rows as a register holds constants.
template <class T, int Length, Sources sources>
constexpr int groupSize()
{
    if (hasConstants<sources>) return lanes<T>;
    constexpr int leastRegisters = 4;
    int size = 1;
    while (size * Length % lanes<T> != 0 || size * Length < leastRegisters * lanes<T>) size *= 2;
    return size;
}

// Dense rows of few elements in groups of whole registers: count of them from a, b and d on. The second group begins
// toSecond rows behind the first, those behind it where the one before ends.
template <class T, int Length, Sources sources, bool Streams, class Op>
[[gnu::noinline]] void groupsOf(Op op, const char* a, const char* b, char* d, ptrdiff_t toSecond, ptrdiff_t count)
{
    constexpr int size = groupSize<T, Length, sources>();
    auto lying = [&](const char* p, ptrdiff_t rowBytes) ZEPM_INLINED {
        return SteppingFrom{p, toSecond * rowBytes, size * rowBytes};
    };
    auto along = [&](auto first, auto second) ZEPM_INLINED {
        rows<T, Length * size, Streams>(op, first, second, lying(d, Length * sz<T>), 0, count);
    };
    const RowElements<T, SteppingFrom> rowsA{lying(a, Length * sz<T>)};
    if constexpr (sources == Sources::RowsAndOneRow)
        along(rowsA, Held<T, Length, size>(b));
    else if constexpr (sources == Sources::RowsAndConstants)
        along(rowsA, Spread<T, Length>{lying(b, sz<T>)});
    else
        along(Held<T, Length, size>(a), Spread<T, Length>{lying(b, sz<T>)});
}

// The number of rows before the first one whose destination is aligned to a register, or -1 if there is none.
template <class T>
[[gnu::noinline]] ptrdiff_t rowsToAlignment(const char* d, ptrdiff_t rowSize)
{
    for (ptrdiff_t k = 0; k < lanes<T>; ++k)
        if (reinterpret_cast<uintptr_t>(d + k * rowSize) % registerBytes == 0) return k;
    return -1;
}

// Rows in groups, a remainder row by row. Stores past the caches need alignment, so they begin with the first row whose
// destination is aligned to a register.
template <class T, int Length, Sources sources, bool Streams, class Op>
[[gnu::noinline]] void groupsInTurn(Op op, const char* a, const char* b, char* d, ptrdiff_t count)
{
    constexpr ptrdiff_t size = groupSize<T, Length, sources>();
    const RowCall c = callOf<T, sources>(a, b, d, Length, count);
    const ptrdiff_t head = Streams ? rowsToAlignment<T>(d, c.d.step) : 0;
    if (head < 0) return groupsInTurn<T, Length, sources, false>(op, a, b, d, count);
    if (head > 0) oneByOne<T>(op, c, 0, head);
    const ptrdiff_t groups = (count - head) / size, done = head + groups * size;
    groupsOf<T, Length, sources, Streams>(op, a + head * c.a.toNext(), b + head * c.b.toNext(), d + head * c.d.step,
                                          size, groups);
    if (Streams) fenceStreams();
    if (done < count) oneByOne<T>(op, c, done, count - done);
}

// count is at least one group. A remainder is served by a first group that the second one overlaps, so that some
// results are computed twice; where a source may overlap the destination, by single rows behind the last group.
template <class T, int Length, Sources sources, class Op>
[[gnu::noinline]] void grouped(Op op, const char* a, const char* b, char* d, ptrdiff_t count)
{
    constexpr size_t size = groupSize<T, Length, sources>();
    const auto groups = static_cast<ptrdiff_t>(static_cast<size_t>(count) / size),
               rest = static_cast<ptrdiff_t>(static_cast<size_t>(count) % size), bytes = count * (Length * sz<T>);
    if (rest == 0) return groupsOf<T, Length, sources, false>(op, a, b, d, size, groups);
    if (areApart(a, d, bytes) && areApart(b, d, bytes))
        return groupsOf<T, Length, sources, false>(op, a, b, d, rest, groups + 1);
    groupsInTurn<T, Length, sources, false>(op, a, b, d, count);
}

template <class T, int Length, Sources sources, class Op>
[[gnu::noinline]] void groupedOrStreamed(Op op, const char* a, const char* b, char* d, ptrdiff_t count)
{
    repaysStreaming<T>(a, b, d, count * (Length * sz<T>), sources == Sources::OneRowAndConstants ? 0 : 1)
        ? groupsInTurn<T, Length, sources, true>(op, a, b, d, count)
        : grouped<T, Length, sources>(op, a, b, d, count);
}

template <class T, int Length, Sources sources, class Op>
ZEPM_INLINE void rowsOfLength(Op op, const char* a, const char* b, char* d, ptrdiff_t count)
{
    if (count < groupSize<T, Length, sources>())
        denseOneByOne<T, sources>(op, a, b, d, Length, count);
    else if (Length * count < leastStreamed / sz<T>)
        grouped<T, Length, sources>(op, a, b, d, count);
    else
        groupedOrStreamed<T, Length, sources>(op, a, b, d, count);
}

// Matrices of orders 3 to 6 are rows of 9 to 36 elements. Constants have groups for the lengths of vectors alone.
template <class T, Sources sources, class Op>
ZEPM_INLINE void denseRows(Op op, const char* a, const char* b, char* d, ptrdiff_t width, ptrdiff_t count)
{
    switch (width)
    {
    case 3: return rowsOfLength<T, 3, sources>(op, a, b, d, count);
    case 4: return rowsOfLength<T, 4, sources>(op, a, b, d, count);
    case 5: return rowsOfLength<T, 5, sources>(op, a, b, d, count);
    case 6: return rowsOfLength<T, 6, sources>(op, a, b, d, count);
    default: break;
    }
    if constexpr (!hasConstants<sources>)
    {
        switch (width)
        {
        case 9: return rowsOfLength<T, 9, sources>(op, a, b, d, count);
        case 16: return rowsOfLength<T, 16, sources>(op, a, b, d, count);
        case 25: return rowsOfLength<T, 25, sources>(op, a, b, d, count);
        case 36: return rowsOfLength<T, 36, sources>(op, a, b, d, count);
        default: break;
        }
    }
    denseOneByOne<T, sources>(op, a, b, d, width, count);
}

// Whether the rows follow one another without gaps. With a count of 1 the object strides are not looked at.
template <class T>
ZEPM_INLINE bool isDense(const RowCall& c)
{
    const auto lies = [](const Sequence& operand, ptrdiff_t size) { return operand.isFixed() || operand.step == size; };
    const ptrdiff_t size = c.width * sz<T>;
    return !c.isList &&
           (c.count == 1 || (lies(c.a, size) && lies(c.b, c.isConstant ? sz<T> : size) && c.d.step == size));
}

ZEPM_INLINE Sources sourcesIn(const RowCall& c)
{
    const bool isSecondOne = c.count == 1 || c.b.isFixed();
    if (!c.isConstant) return c.count > 1 && isSecondOne ? Sources::RowsAndOneRow : Sources::RowsAndRows;
    return isSecondOne     ? Sources::RowsAndOneConstant
           : c.a.isFixed() ? Sources::OneRowAndConstants
                           : Sources::RowsAndConstants;
}

} // namespace

template <class T, class Op>
void combineDense(Op op, const char* a, const char* b, char* d, ptrdiff_t width, ptrdiff_t count, Sources sources)
{
    switch (sources)
    {
    case Sources::RowsAndRows: return oneRow<T>(op, a, b, d, width * count);
    case Sources::RowsAndOneConstant: return oneRow<T>(op, a, load<T>(b), d, width * count);
    case Sources::RowsAndConstants:
        if constexpr (takesConstantArrays<Op>) denseRows<T, Sources::RowsAndConstants>(op, a, b, d, width, count);
        return;
    case Sources::OneRowAndConstants:
        if constexpr (takesConstantArrays<Op>) denseRows<T, Sources::OneRowAndConstants>(op, a, b, d, width, count);
        return;
    case Sources::RowsAndOneRow:
        if constexpr (!takesConstantAlone<Op>) denseRows<T, Sources::RowsAndOneRow>(op, a, b, d, width, count);
    }
}

template <class T, class Op>
void combineRows(Op op, const RowCall& c)
{
    if (isDense<T>(c))
        ZEPM_LEVEL::combineDense<T>(op, c.a.p, c.b.p, const_cast<char*>(c.d.p), c.width, c.count, sourcesIn(c));
    else if (isStreamed<T>(c))
        streamRows<T>(op, c);
    else
        oneByOne<T>(op, c, 0, c.count);
}

template void combineDense<float32, Plus>(Plus, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, Plus>(Plus, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float32, Minus>(Minus, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, Minus>(Minus, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float32, MinusFrom>(MinusFrom, const char*, const char*, char*, ptrdiff_t, ptrdiff_t,
                                               Sources);
template void combineDense<float64, MinusFrom>(MinusFrom, const char*, const char*, char*, ptrdiff_t, ptrdiff_t,
                                               Sources);
template void combineDense<float32, Times>(Times, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, Times>(Times, const char*, const char*, char*, ptrdiff_t, ptrdiff_t, Sources);
template void combineRows<float32, Plus>(Plus, const RowCall&);
template void combineRows<float64, Plus>(Plus, const RowCall&);
template void combineRows<float32, Minus>(Minus, const RowCall&);
template void combineRows<float64, Minus>(Minus, const RowCall&);
template void combineRows<float32, MinusFrom>(MinusFrom, const RowCall&);
template void combineRows<float64, MinusFrom>(MinusFrom, const RowCall&);
template void combineRows<float32, Times>(Times, const RowCall&);
template void combineRows<float64, Times>(Times, const RowCall&);
template void combineDense<float32, ScaledPlus<float32>>(ScaledPlus<float32>, const char*, const char*, char*,
                                                         ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, ScaledPlus<float64>>(ScaledPlus<float64>, const char*, const char*, char*,
                                                         ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float32, PlusScaled<float32>>(PlusScaled<float32>, const char*, const char*, char*,
                                                         ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, PlusScaled<float64>>(PlusScaled<float64>, const char*, const char*, char*,
                                                         ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float32, WeightedSum<float32>>(WeightedSum<float32>, const char*, const char*, char*,
                                                          ptrdiff_t, ptrdiff_t, Sources);
template void combineDense<float64, WeightedSum<float64>>(WeightedSum<float64>, const char*, const char*, char*,
                                                          ptrdiff_t, ptrdiff_t, Sources);
template void combineRows<float32, ScaledPlus<float32>>(ScaledPlus<float32>, const RowCall&);
template void combineRows<float64, ScaledPlus<float64>>(ScaledPlus<float64>, const RowCall&);
template void combineRows<float32, PlusScaled<float32>>(PlusScaled<float32>, const RowCall&);
template void combineRows<float64, PlusScaled<float64>>(PlusScaled<float64>, const RowCall&);
template void combineRows<float32, WeightedSum<float32>>(WeightedSum<float32>, const RowCall&);
template void combineRows<float64, WeightedSum<float64>>(WeightedSum<float64>, const RowCall&);

} // namespace zepm::ZEPM_LEVEL
