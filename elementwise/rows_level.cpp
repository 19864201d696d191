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
    ZEPM_INLINE Stepping(const RowOperand& operand, ptrdiff_t k) : p(operand.p), stride(operand.toNext())
    {
        p += k * stride;
    }
    ZEPM_INLINE const char* at() const { return p; }
    ZEPM_INLINE void next() { p += stride; }
};

// Rows of which the second lies at a distance of its own from the first.
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
    ZEPM_INLINE Listed(const RowOperand& operand, ptrdiff_t k)
        : entry(operand.p + k * static_cast<ptrdiff_t>(sizeof(char*))), shift(operand.stride)
    {
    }
    ZEPM_INLINE const char* at() const { return load<const char*>(entry) + shift; }
    ZEPM_INLINE void next() { entry += sizeof(char*); }
};

// ---- What the operation takes from them -----------------------------------------------------------------------------
//
// A source gives its row as a whole, for rows of any length, or N elements from element J of it, for rows of a known
// one.

// The elements of each row.
template <class T, class Rows>
struct Elements
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
        return [&]<int... Lane>(std::integer_sequence<int, Lane...>) __attribute__((always_inline))
        {
            return Vec<T, N>{load<T>(p + (J + Lane) % Length * sz<T>)...};
        }
    (std::make_integer_sequence<int, N>{});
}

// The pieces of such a row, each in a register of its own.
template <class T, int Length, int Total, int N = lanes<T>, int J = 0>
struct Pieces
{
    static constexpr bool fits = Total - J >= N;
    Vec<T, fits ? N : 1> own{};
    Pieces<T, Length, Total, fits ? N : N / 2, fits ? J + N : J> rest;

    ZEPM_INLINE explicit Pieces(const char* p) : rest(p)
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
struct Pieces<T, Length, Total, N, Total>
{
    ZEPM_INLINE explicit Pieces(const char*) {}
};

// The elements of a fixed row of a known length, over and over.
template <class T, int Length, int Repeated = 1>
struct Held
{
    Pieces<T, Length, Length * Repeated> pieces;
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
            pieces<T, Length>([&]<int N, int J>() __attribute__((always_inline)) {
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
ZEPM_INLINE auto fixedRow(const RowOperand& operand)
{
    if constexpr (Length > 0)
        return Held<T, Length>(operand.p);
    else
        return Elements<T, Stepping>{Stepping(operand, 0)};
}

// Lengths with code of their own for a constant for each row: those of vectors.
template <int Length>
inline constexpr bool takesConstants = Length <= 6;

// count rows from row k on, each by itself.
template <class T, int Length, class Lying, class Op>
[[gnu::noinline]] void rowsOf(Op op, const RowCall& c, ptrdiff_t k, ptrdiff_t count)
{
    const Elements<T, Lying> a{Lying(c.a, k)};
    const Lying d(c.d, k);
    if (c.isConstant && c.b.isFixed()) return rows<T, Length>(op, a, OneConstant<T>{load<T>(c.b.p)}, d, c.width, count);
    if constexpr (takesConstants<Length>)
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
                      : rows<T, Length>(op, a, Elements<T, Lying>{Lying(c.b, k)}, d, c.width, count);
}

// How many dense rows fill whole registers together, some registers at least: what surrounds a group costs as much as
// one. With constants it is as many as a register holds.
template <class T, int Length, bool isConstant>
constexpr int groupSize()
{
    if (isConstant) return lanes<T>;
    constexpr int leastRegisters = 4;
    int size = 1;
    while (size * Length % lanes<T> != 0 || size * Length < leastRegisters * lanes<T>) size *= 2;
    return size;
}

// Dense rows of few elements in groups of whole registers: count of them from row k on, each a row of its own. The
// second group begins toSecond rows behind the first, those behind it where the one before ends.
template <class T, int Length, bool isConstant, bool Streams, class Op>
[[gnu::noinline]] void groupsOf(Op op, const RowCall& c, ptrdiff_t k, ptrdiff_t toSecond, ptrdiff_t count)
{
    constexpr int size = groupSize<T, Length, isConstant>();
    auto lying = [&](const RowOperand& operand, ptrdiff_t rowBytes) __attribute__((always_inline))
    {
        return SteppingFrom{operand.p + k * rowBytes, toSecond * rowBytes, size * rowBytes};
    };
    const Elements<T, SteppingFrom> a{lying(c.a, Length * sz<T>)};
    auto along = [&](auto first, auto second) __attribute__((always_inline))
    {
        rows<T, Length * size, Streams>(op, first, second, lying(c.d, Length * sz<T>), 0, count);
    };
    if constexpr (!isConstant)
        along(a, Held<T, Length, size>(c.b.p));
    else if (c.a.isFixed())
        along(Held<T, Length, size>(c.a.p), Spread<T, Length>{lying(c.b, sz<T>)});
    else
        along(a, Spread<T, Length>{lying(c.b, sz<T>)});
}

// ---- The call -------------------------------------------------------------------------------------------------------

ZEPM_INLINE bool isDense(const RowOperand& operand, ptrdiff_t size) { return operand.stride == size; }

// Dense operands without a fixed one but a constant are one long row.
template <class T>
ZEPM_INLINE bool isOneRow(const RowCall& c)
{
    const ptrdiff_t size = c.width * sz<T>;
    const bool fits = c.isConstant ? c.b.isFixed() : c.count == 1 || isDense(c.b, size);
    return !c.isList && fits && (c.count == 1 || (isDense(c.a, size) && isDense(c.d, size)));
}

// Whether dense rows may go in groups of so many.
template <class T>
ZEPM_INLINE bool isGrouped(const RowCall& c, ptrdiff_t groupSize)
{
    const ptrdiff_t size = c.width * sz<T>;
    return !c.isList && c.count >= groupSize && isDense(c.d, size) && (c.a.isFixed() || isDense(c.a, size)) &&
           (c.isConstant ? isDense(c.b, sz<T>) : c.b.isFixed() || isDense(c.b, size));
}

// Whether n elements are to be stored past the caches; in place they are read anyway.
template <class T>
[[gnu::noinline]] bool repaysStreaming(const RowCall& c, ptrdiff_t n)
{
    const auto sources = [&](const RowOperand& operand) { return c.count == 1 || !operand.isFixed() ? 1 : 0; };
    return c.a.p != c.d.p && c.b.p != c.d.p && reinterpret_cast<uintptr_t>(c.d.p) % sizeof(T) == 0 &&
           isBeyondCaches(n * sz<T>, sources(c.a) + (c.isConstant ? 0 : sources(c.b)));
}
template <class T>
ZEPM_INLINE bool isStreamed(const RowCall& c, ptrdiff_t n)
{
    return n >= leastStreamed / sz<T> && repaysStreaming<T>(c, n);
}

template <class T, class Op>
[[gnu::noinline]] void oneRow(Op op, const RowCall& c)
{
    const ptrdiff_t n = c.width * c.count;
    char* const d = const_cast<char*>(c.d.p);
    auto along = [&](auto b) __attribute__((always_inline))
    {
        isStreamed<T>(c, n) ? row<T, true>(op, c.a.p, b, d, n) : row<T>(op, c.a.p, b, d, n);
    };
    c.isConstant ? along(load<T>(c.b.p)) : along(c.b.p);
}

// Whether no row of the source lies where the destination does, both being dense.
ZEPM_INLINE bool isApart(const RowOperand& source, const RowCall& c)
{
    return areApart(source.p, c.d.p, c.count * c.d.stride);
}

// Dense rows before the first that starts a register of the destination, or -1 where none does.
template <class T>
[[gnu::noinline]] ptrdiff_t rowsToAlignment(const RowCall& c)
{
    for (ptrdiff_t k = 0; k < lanes<T>; ++k)
        if (reinterpret_cast<uintptr_t>(c.d.p + k * c.d.stride) % registerBytes == 0) return k;
    return -1;
}

// Matrices of orders 3 to 6 are rows of 9 to 36 elements: those have groups, but odd lengths no code for single rows.
template <int Length>
inline constexpr int singleLength = Length > 6 && Length % 16 != 0 ? 0 : Length;

// Dense rows in groups, what is left over row by row. Rows that are stored past the caches begin with the first that
// starts a register of the destination.
template <class T, int Length, bool isConstant, bool Streams, class Op>
[[gnu::noinline]] void groupsInTurn(Op op, const RowCall& c)
{
    constexpr ptrdiff_t size = groupSize<T, Length, isConstant>();
    const auto one = rowsOf<T, singleLength<Length>, Stepping, Op>;
    const ptrdiff_t head = Streams ? rowsToAlignment<T>(c) : 0;
    if (head < 0) return groupsInTurn<T, Length, isConstant, false>(op, c);
    if (head > 0) one(op, c, 0, head);
    const ptrdiff_t groups = (c.count - head) / size, done = head + groups * size;
    groupsOf<T, Length, isConstant, Streams>(op, c, head, size, groups);
    if (Streams) fenceStreams();
    if (done < c.count) one(op, c, done, c.count - done);
}

// Dense rows, at least a group of them. What does not fill a group makes one more, the first, which the next overlaps,
// unless the sources may lie under the destination.
template <class T, int Length, bool isConstant, class Op>
[[gnu::noinline]] void grouped(Op op, const RowCall& c)
{
    constexpr size_t size = groupSize<T, Length, isConstant>();
    const auto count = static_cast<size_t>(c.count);
    const auto groups = static_cast<ptrdiff_t>(count / size), rest = static_cast<ptrdiff_t>(count % size);
    if (rest == 0) return groupsOf<T, Length, isConstant, false>(op, c, 0, size, groups);
    if (isApart(c.a, c) && isApart(c.b, c)) return groupsOf<T, Length, isConstant, false>(op, c, 0, rest, groups + 1);
    groupsInTurn<T, Length, isConstant, false>(op, c);
}

// Dense rows of any length that are stored past the caches.
template <class T, class Op>
[[gnu::noinline]] void streamRows(Op op, const RowCall& c)
{
    streamCall(c, c.d.stride, [op](const RowCall& part) { rowsOf<T, 0, Stepping>(op, part, 0, part.count); });
}

// Which of the two, for a call that is large enough to ask: a function of its own, so that the others need not keep
// anything across the question.
template <class T, int Length, bool isConstant, class Op>
[[gnu::noinline]] void groupedOrStreamed(Op op, const RowCall& c)
{
    repaysStreaming<T>(c, Length * c.count) ? groupsInTurn<T, Length, isConstant, true>(op, c)
                                            : grouped<T, Length, isConstant>(op, c);
}

// Dense rows in groups, if the call is one of those: whether it was.
template <class T, int Length, bool isConstant, class Op>
ZEPM_INLINE bool takesGroups(Op op, const RowCall& c)
{
    if (c.isConstant != isConstant || !isGrouped<T>(c, groupSize<T, Length, isConstant>())) return false;
    Length* c.count < leastStreamed / sz<T> ? grouped<T, Length, isConstant>(op, c)
                                            : groupedOrStreamed<T, Length, isConstant>(op, c);
    return true;
}

template <class T, int Length, class Op>
ZEPM_INLINE void rowsInOrder(Op op, const RowCall& call)
{
    if constexpr (Length > 0)
    {
        if constexpr (takesConstants<Length>)
        {
            if (takesGroups<T, Length, true>(op, call)) return;
        }
        if constexpr (!takesConstantAlone<Op>)
        {
            if (takesGroups<T, Length, false>(op, call)) return;
        }
    }
    else if (const ptrdiff_t size = call.width * sz<T>; !call.isList && isDense(call.d, size) && size <= streamedChunk)
    {
        if (isStreamed<T>(call, call.width * call.count)) return streamRows<T>(op, call);
    }
    call.isList ? rowsOf<T, singleLength<Length>, Listed>(op, call, 0, call.count)
                : rowsOf<T, singleLength<Length>, Stepping>(op, call, 0, call.count);
}

} // namespace

template <class Op, class T>
void combineRows(const RowCall& c)
{
    if (isOneRow<T>(c)) return oneRow<T>(Op{}, c);
    // A fixed operand stands second; what is first with constants has code of its own.
    if (c.a.isFixed() && !c.isConstant)
        return ZEPM_LEVEL::combineRows<decltype(flipped(Op{})), T>({c.b, c.a, c.d, false, c.isList, c.width, c.count});
    const bool hasConstants = c.isConstant && !c.b.isFixed();
    switch (hasConstants && c.width > 6 ? 0 : c.width)
    {
    case 3: return rowsInOrder<T, 3>(Op{}, c);
    case 4: return rowsInOrder<T, 4>(Op{}, c);
    case 5: return rowsInOrder<T, 5>(Op{}, c);
    case 6: return rowsInOrder<T, 6>(Op{}, c);
    case 9: return rowsInOrder<T, 9>(Op{}, c);
    case 16: return rowsInOrder<T, 16>(Op{}, c);
    case 25: return rowsInOrder<T, 25>(Op{}, c);
    case 36: return rowsInOrder<T, 36>(Op{}, c);
    default: return rowsInOrder<T, 0>(Op{}, c);
    }
}

template void combineRows<Plus, float32>(const RowCall&);
template void combineRows<Plus, float64>(const RowCall&);
template void combineRows<Minus, float32>(const RowCall&);
template void combineRows<Minus, float64>(const RowCall&);
template void combineRows<MinusFrom, float32>(const RowCall&);
template void combineRows<MinusFrom, float64>(const RowCall&);
template void combineRows<Times, float32>(const RowCall&);
template void combineRows<Times, float64>(const RowCall&);

} // namespace zepm::ZEPM_LEVEL
