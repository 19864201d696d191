// Moving objects between layouts, and writing identities.
//
// What decides the way of a call is where the elements of its rows lie: contiguous on both sides, rows move by whole
// registers (rows); contiguous on one side and, on the other, side by side with the same element of other objects, they
// move by transpositions in registers, several objects at a time (parts of rows); all else moves element by element.
#include "movement/moves.h"

#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "frame/groups.h"
#include "frame/streams.h"
#include "frame/written.h"
#include "movement/move.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- In order -------------------------------------------------------------------------------------------------------

// Objects first to end - 1, element by element: what every other way must give.
template <class T, class From, class To>
[[gnu::noinline]] void moveInOrder(const From& from, const To& to, int32 width, int32 height, int32 first, int32 end)
{
    for (int32 k = first; k < end; ++k)
    {
        const auto source = from.object(k);
        const auto destination = to.object(k);
        for (int32 i = 0; i < height; ++i)
            for (int32 j = 0; j < width; ++j) destination.set(i, j, source.get(i, j));
    }
}

// ---- Contiguous rows ------------------------------------------------------------------------------------------------

// As an operation on rows: the first operand alone.
struct First
{
    template <class V>
    ZEPM_INLINE V operator()(V x, V) const
    {
        return x;
    }
};

// Rows are measured in words, of which each element is one or two.
using Word = uint32_t;

template <class T>
[[gnu::noinline]] void smear(char* to, const char* from, ptrdiff_t size)
{
    for (ptrdiff_t j = 0; j < size; j += sz<T>) store<T>(to + j, load<T>(from + j));
}

// A row of so many words, 0 standing for any number. Elements are of type T, should they overlap.
template <int Words, class T>
ZEPM_INLINE void moveRow(char* to, const char* from, ptrdiff_t size)
{
    if (!areApart(from, to, size)) return smear<T>(to, from, size);
    if constexpr (Words > 0)
        rowOf<Word, Words>(First{}, from, Word{}, to);
    else
        row<Word>(First{}, from, Word{}, to, size / sz<Word>);
}

// Objects of contiguous rows, on either side listed or at a stride.
struct Rows
{
    Sequence from, to;
    bool isFromList, isToList;
    ptrdiff_t fromStride, toStride; // from row to row
    ptrdiff_t rowSize, height, count;
};

template <int Words, bool MayBeList, class T>
[[gnu::noinline]] void rowsOfEach(const Rows& c)
{
    Walk<MayBeList> from(c.from, c.isFromList), to(c.to, c.isToList);
    const ptrdiff_t count = c.count, height = c.height, rowSize = c.rowSize;
    const ptrdiff_t fromStride = c.fromStride, toStride = c.toStride;
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        const char* source = from.at();
        char* destination = const_cast<char*>(to.at());
        for (ptrdiff_t i = 0; i < height; ++i)
        {
            moveRow<Words, T>(destination, source, Words ? Words * sz<Word> : rowSize);
            source += fromStride, destination += toStride;
        }
        from.advance(), to.advance();
    }
}

// ---- Rows of three words in records of four -------------------------------------------------------------------------

// Four registers of records become three without gaps, and back. The fourth word of a record is neither read nor
// written.
struct Records
{
#if defined(__AVX512F__)
    static constexpr int W = 16;
#else
    static constexpr int W = 4;
#endif
    static constexpr int inRegister = W / 4, atOnce = 4 * inRegister;
    static constexpr ptrdiff_t packed = 3 * sz<Word>, spaced = 4 * sz<Word>;
    using Register = Vec<Word, W>;

    ZEPM_INLINE static Register load(const char* p)
    {
#if defined(__AVX512F__)
        return reinterpret_cast<Register>(loadThreeOfFour(p));
#else
        return loadFirst<Word, 4, 3>(p);
#endif
    }
    ZEPM_INLINE static void store(char* p, Register x)
    {
#if defined(__AVX512F__)
        storeThreeOfFour(p, reinterpret_cast<Vec<float32, W>>(x));
#else
        storeFirst<Word, 4, 3>(p, x);
#endif
    }

    // Lane for lane, where register R of the three is found in registers R and R + 1 of the four.
    template <int R>
    struct Packed
    {
        constexpr int operator()(int lane) const
        {
            const int n = R * W + lane, record = n / 3;
            return (record / inRegister - R) * W + record % inRegister * 4 + n % 3;
        }
    };
    // Where register R of the four is found in registers R - 1 and R of the three, as far as there are such.
    template <int R>
    static constexpr int lower = R > 0 ? R - 1 : 0;
    template <int R>
    static constexpr int upper = R < 3 ? R : 2;
    template <int R>
    struct Spaced
    {
        constexpr int operator()(int lane) const
        {
            const int n = (R * inRegister + lane / 4) * 3 + lane % 4;
            return lane % 4 == 3 ? -1 : n / W == lower<R> ? n % W : W + n % W;
        }
    };
};

[[gnu::noinline]] inline void packRecords(char* to, const char* from, ptrdiff_t turns)
{
    constexpr int W = Records::W;
    for (; turns > 0; --turns)
    {
        Records::Register x[4];
        each<4>([&]<int R>() ZEPM_INLINED { x[R] = Records::load(from + R * W * sz<Word>); });
        each<3>([&]<int R>() ZEPM_INLINED {
            storeVec<Word, W>(to + R * W * sz<Word>, shuffle<Word, W>(x[R], x[R + 1], Records::Packed<R>{}));
        });
        from += Records::atOnce * Records::spaced, to += Records::atOnce * Records::packed;
    }
}

[[gnu::noinline]] inline void unpackRecords(char* to, const char* from, ptrdiff_t turns)
{
    constexpr int W = Records::W;
    for (; turns > 0; --turns)
    {
        Records::Register x[3];
        each<3>([&]<int R>() ZEPM_INLINED { x[R] = loadVec<Word, W>(from + R * W * sz<Word>); });
        each<4>([&]<int R>() ZEPM_INLINED {
            Records::store(to + R * W * sz<Word>,
                           shuffle<Word, W>(x[Records::lower<R>], x[Records::upper<R>], Records::Spaced<R>{}));
        });
        from += Records::atOnce * Records::packed, to += Records::atOnce * Records::spaced;
    }
}

// Serves as many rows as this is for, and returns their number.
ZEPM_INLINE ptrdiff_t moveRecords(const Rows& c)
{
    const bool packs = c.from.step == Records::spaced && c.to.step == Records::packed,
               unpacks = c.from.step == Records::packed && c.to.step == Records::spaced;
    if (!(packs || unpacks) || c.rowSize != Records::packed || c.height != 1) return 0;
    if (!areApart(c.from.p, c.to.p, c.count * Records::spaced)) return 0;
    const ptrdiff_t turns = c.count / Records::atOnce;
    if (packs)
        packRecords(const_cast<char*>(c.to.p), c.from.p, turns);
    else
        unpackRecords(const_cast<char*>(c.to.p), c.from.p, turns);
    return turns * Records::atOnce;
}

// ---- The choice between rows ----------------------------------------------------------------------------------------

template <bool MayBeList, class T>
ZEPM_INLINE void rowsInTurn(const Rows& c)
{
    switch (c.rowSize / sz<Word>)
    {
    case 2: return rowsOfEach<2, MayBeList, T>(c);
    case 3: return rowsOfEach<3, MayBeList, T>(c);
    case 4: return rowsOfEach<4, MayBeList, T>(c);
    case 5: return rowsOfEach<5, MayBeList, T>(c);
    case 6: return rowsOfEach<6, MayBeList, T>(c);
    case 8: return rowsOfEach<8, MayBeList, T>(c);
    case 9: return rowsOfEach<9, MayBeList, T>(c);
    case 10: return rowsOfEach<10, MayBeList, T>(c);
    case 12: return rowsOfEach<12, MayBeList, T>(c);
    case 16: return rowsOfEach<16, MayBeList, T>(c);
    default: return rowsOfEach<0, MayBeList, T>(c);
    }
}

template <class T>
ZEPM_INLINE void moveRows(Rows c)
{
    // Rows without gaps are one.
    if (c.fromStride == c.rowSize && c.toStride == c.rowSize) c.rowSize *= c.height, c.height = 1;
    if (c.isFromList || c.isToList) return rowsInTurn<true, T>(c);
    // The rows of all objects in one sequence.
    if (c.height > 1 &&
        (c.count == 1 || (c.from.step == c.height * c.fromStride && c.to.step == c.height * c.toStride)))
    {
        c.from.step = c.fromStride, c.to.step = c.toStride;
        c.count *= c.height, c.height = 1;
    }
    if (c.height == 1 && (c.count == 1 || (c.from.step == c.rowSize && c.to.step == c.rowSize)))
        return ZEPM_LEVEL::moveRun<T>(const_cast<char*>(c.to.p), c.from.p, c.count * c.rowSize);
    if constexpr (sizeof(T) == sizeof(Word))
    {
        const ptrdiff_t done = moveRecords(c);
        c.from.p += done * c.from.step, c.to.p += done * c.to.step;
        c.count -= done;
    }
    rowsInTurn<false, T>(c);
}

// ---- Where objects lie ----------------------------------------------------------------------------------------------

template <class View>
inline constexpr bool isTable = false;
template <class T, bool Fixed>
inline constexpr bool isTable<TableView<T, Fixed>> = true;
template <class View>
inline constexpr bool isTable<TransposedView<View>> = isTable<View>;

template <class View>
inline constexpr bool isList = false;
template <class T, bool Contiguous>
inline constexpr bool isList<ListView<T, Contiguous>> = true;

template <class T>
ZEPM_INLINE Sequence sequenceOf(const StridedObjects<T>& view)
{
    return {view.p, view.stride0};
}
template <class T>
ZEPM_INLINE Sequence sequenceOf(const ListedObjects<T>& view)
{
    return {reinterpret_cast<const char*>(view.pp), view.shift};
}

template <class View>
ZEPM_INLINE ptrdiff_t objectStride(const View& view)
{
    return view.stride0;
}
template <class View>
ZEPM_INLINE ptrdiff_t objectStride(const TransposedView<View>& view)
{
    return view.stored.stride0;
}

// The bytes from the first element of an operand to the last.
struct Extent
{
    uintptr_t begin, end;
    ZEPM_INLINE bool isApartFrom(const Extent& other) const { return end <= other.begin || other.end <= begin; }
};

// Of objects whose bases lie between two addresses, and whose elements lie so far behind them.
ZEPM_INLINE Extent extentOf(const char* least, const char* greatest, ptrdiff_t size)
{
    return {reinterpret_cast<uintptr_t>(least), reinterpret_cast<uintptr_t>(greatest) + static_cast<uintptr_t>(size)};
}

template <class T>
ZEPM_INLINE Extent extentOf(const StridedObjects<T>& view, int32 width, int32 height, int32 first, int32 end)
{
    const ptrdiff_t size = (height - 1) * view.stride1 + (width - 1) * view.stride2 + sz<T>;
    return extentOf(view.object(first).p, view.object(end - 1).p, size);
}
template <class T>
ZEPM_INLINE Extent extentOf(const ListedObjects<T>& view, int32 width, int32 height, int32 first, int32 end)
{
    const char *least = view.object(first).p, *greatest = least;
    for (int32 k = first + 1; k < end; ++k)
    {
        const char* const p = view.object(k).p;
        least = p < least ? p : least;
        greatest = p > greatest ? p : greatest;
    }
    return extentOf(least, greatest, (height - 1) * view.stride1 + (width - 1) * view.stride2 + sz<T>);
}
template <class View>
requires isTable<View> ZEPM_INLINE Extent extentOf(const View& view, int32 width, int32 height, int32 first, int32 end)
{
    const auto object = view.object(first);
    const char *least = object.at(0, 0), *greatest = least;
    for (int32 i = 0; i < height; ++i)
        for (int32 j = 0; j < width; ++j)
        {
            const char* const p = object.at(i, j);
            least = p < least ? p : least;
            greatest = p > greatest ? p : greatest;
        }
    return extentOf(least, greatest,
                    (end - 1 - first) * objectStride(view) + static_cast<ptrdiff_t>(sizeof(object.get(0, 0))));
}

// ---- Parts of rows --------------------------------------------------------------------------------------------------

inline constexpr int32 longestPart = 6;

// Successive elements of a row: element e of object k is at element[e] + object(k). One of the two is an address, the
// other a distance.
template <bool IsList>
struct Part
{
    uintptr_t element[longestPart];
    const char* table; // of objects
    uintptr_t stride0;

    ZEPM_INLINE uintptr_t object(ptrdiff_t k) const
    {
        if constexpr (IsList)
            return load<uintptr_t>(table + k * static_cast<ptrdiff_t>(sizeof(char*)));
        else
            return static_cast<uintptr_t>(k) * stride0;
    }
    ZEPM_INLINE char* at(int e, ptrdiff_t k) const { return reinterpret_cast<char*>(element[e] + object(k)); }

    // Whether the N elements of each object are contiguous, and whether those of successive objects are.
    template <int N>
    ZEPM_INLINE bool isRow(uintptr_t size) const
    {
        bool is = N > 1;
        for (int e = 1; e < N; ++e) is = is && element[e] - element[0] == static_cast<uintptr_t>(e) * size;
        return is;
    }
    ZEPM_INLINE bool isSpaced(uintptr_t size) const { return !IsList && stride0 == size; }
};

// Elements (i, j) to (i, j + n - 1).
template <class View>
ZEPM_INLINE auto partOf(const View& view, int32 i, int32 j, int32 n)
{
    Part<isList<View>> part;
    if constexpr (isList<View>)
    {
        part.table = reinterpret_cast<const char*>(view.pp);
        for (int32 e = 0; e < n; ++e)
            part.element[e] = static_cast<uintptr_t>(view.shift + i * view.stride1 + (j + e) * view.stride2);
    }
    else
    {
        part.stride0 = static_cast<uintptr_t>(objectStride(view));
        for (int32 e = 0; e < n; ++e) part.element[e] = reinterpret_cast<uintptr_t>(view.object(0).at(i, j + e));
    }
    return part;
}

// Objects one by one, each element at a place of its own.
template <class T, int N, class From, class To>
ZEPM_INLINE void eachElement(const From from, const To to, ptrdiff_t k, ptrdiff_t end)
{
    for (; k < end; ++k)
    {
        const uintptr_t source = from.object(k), destination = to.object(k);
        ZEPM_UNROLL
        for (int e = 0; e < N; ++e)
            store<T>(reinterpret_cast<char*>(to.element[e] + destination),
                     load<T>(reinterpret_cast<const char*>(from.element[e] + source)));
    }
}

// Whether the rows of successive objects follow one another without gaps, in the lengths that are moved so.
template <class T, int N, bool IsList>
ZEPM_INLINE bool areDense(const Part<IsList>& rows)
{
    return (N == 2 || N == 3) && !IsList && rows.stride0 == N * sizeof(T);
}

// The addresses of the rows of lanes<T> objects.
template <class Char, int W, bool IsList>
ZEPM_INLINE void locateRows(const Part<IsList>& rows, ptrdiff_t k, Char* (&p)[W])
{
    ZEPM_UNROLL
    for (int n = 0; n < W; ++n) p[n] = rows.at(0, k + n);
}

// Spaced elements to rows, lanes<T> objects at a time, and back.
template <class T, int N, class To>
ZEPM_INLINE void gatherRows(const Part<false> from, const To to, ptrdiff_t k, ptrdiff_t end)
{
    constexpr int W = lanes<T>;
    for (; k + W <= end; k += W)
    {
        Vec<T, W> x[N];
        ZEPM_UNROLL
        for (int e = 0; e < N; ++e) x[e] = loadVec<T, W>(from.at(e, k));
        if constexpr (N == 2 || N == 3)
        {
            if (areDense<T, N>(to))
            {
                storeDense<T, W, N>(to.at(0, k), x);
                continue;
            }
        }
        char* p[W];
        locateRows(to, k, p);
        storeTransposed<T, W, N>(p, x);
    }
    eachElement<T, N>(from, to, k, end);
}
template <class T, int N, class From>
ZEPM_INLINE void scatterRows(const From from, const Part<false> to, ptrdiff_t k, ptrdiff_t end)
{
    constexpr int W = lanes<T>;
    for (; k + W <= end; k += W)
    {
        Vec<T, W> x[N];
        bool areLoaded = false;
        if constexpr (N == 2 || N == 3)
        {
            if (areDense<T, N>(from))
            {
                loadDense<T, W, N>(from.at(0, k), x);
                areLoaded = true;
            }
        }
        if (!areLoaded)
        {
            const char* p[W];
            locateRows(from, k, p);
            loadTransposed<T, W, N>(p, x);
        }
        ZEPM_UNROLL
        for (int e = 0; e < N; ++e) storeVec<T, W>(to.at(e, k), x[e]);
    }
    eachElement<T, N>(from, to, k, end);
}

// N elements of objects first to end - 1, in any order.
template <class T, int N, bool FromList, bool ToList>
[[gnu::noinline]] void movePart(const Part<FromList>& from, const Part<ToList>& to, int32 first, int32 end)
{
    constexpr uintptr_t size = sizeof(T);
    if constexpr (!FromList && !ToList)
    {
        if (from.isSpaced(size) && to.isSpaced(size))
        {
            const ptrdiff_t n = (end - first) * (sz<T> / sz<Word>);
            for (int e = 0; e < N; ++e) row<Word>(First{}, from.at(e, first), Word{}, to.at(e, first), n);
            return;
        }
    }
    if constexpr (!FromList && N > 1)
    {
        if (from.isSpaced(size) && to.template isRow<N>(size)) return gatherRows<T, N>(from, to, first, end);
    }
    if constexpr (!ToList && N > 1)
    {
        if (to.isSpaced(size) && from.template isRow<N>(size)) return scatterRows<T, N>(from, to, first, end);
    }
    if (from.template isRow<N>(size) && to.template isRow<N>(size))
    {
        for (ptrdiff_t k = first; k < end; ++k)
            rowOf<Word, N * sz<T> / sz<Word>>(First{}, from.at(0, k), Word{}, to.at(0, k));
        return;
    }
    eachElement<T, N>(from, to, first, end);
}

template <class T, class From, class To>
ZEPM_INLINE void moveParts(const From& from, const To& to, int32 width, int32 height, int32 first, int32 end)
{
    for (int32 i = 0; i < height; ++i)
        for (int32 j = 0; j < width; j += longestPart)
        {
            const int32 n = width - j < longestPart ? width - j : longestPart;
            const auto source = partOf(from, i, j, n);
            const auto destination = partOf(to, i, j, n);
            forSize(
                n, sizes<3, 4, 6, 2, 5>{},
                [&]<int32 N>() ZEPM_INLINED { movePart<T, N>(source, destination, first, end); },
                [&]() ZEPM_INLINED { movePart<T, 1>(source, destination, first, end); });
        }
}

// Fewer objects than this do not repay finding out where the parts lie; so many bytes of elements are moved before the
// next part is begun, and stay in the nearest cache.
inline constexpr int32 leastInParts = 8;
inline constexpr ptrdiff_t partsChunk = 1 << 14;

// ---- Transpositions -------------------------------------------------------------------------------------------------

// Objects whose columns lie as from's do, contiguous, to rows that are.
template <class T>
ZEPM_INLINE MatrixCall transposition(const Sequence& from, ptrdiff_t fromStride, const Sequence& to, ptrdiff_t toStride,
                                     bool isList, ptrdiff_t width, ptrdiff_t height, ptrdiff_t count)
{
    const Sequence none{from.p, Sequence::fixed};
    return {{from, none, to, true, isList, width, count}, height, fromStride, 0, toStride, true, false};
}

// A strided operand's objects first to first + n - 1 as a list.
inline constexpr int32 listedAtOnce = 64;
template <class T>
ZEPM_INLINE Sequence listed(const StridedObjects<T>& view, int32 first, int32 n, const char* (&table)[listedAtOnce])
{
    for (int32 k = 0; k < n; ++k) table[k] = view.object(first + k).p;
    return {reinterpret_cast<const char*>(table), 0};
}
template <class T>
ZEPM_INLINE Sequence listed(const ListedObjects<T>& view, int32 first, int32, const char* (&)[listedAtOnce])
{
    return {reinterpret_cast<const char*>(view.pp + first), view.shift};
}

template <class T, class From, class To>
ZEPM_INLINE void transposeTiles(const From& from, ptrdiff_t fromStride, const To& to, ptrdiff_t toStride, int32 width,
                                int32 height, int32 count)
{
    if constexpr (isList<From> == isList<To>)
    {
        ZEPM_LEVEL::transposeMatrices<T>(transposition<T>(sequenceOf(from), fromStride, sequenceOf(to), toStride,
                                                          isList<From>, width, height, count));
    }
    else
    {
        const char* table[listedAtOnce];
        for (int32 left = count; left > 0; left -= listedAtOnce)
        {
            const int32 k = count - left, n = left < listedAtOnce ? left : listedAtOnce;
            ZEPM_LEVEL::transposeMatrices<T>(transposition<T>(
                listed(from, k, n, table), fromStride, listed(to, k, n, table), toStride, true, width, height, n));
        }
    }
}

// ---- Identities -----------------------------------------------------------------------------------------------------

template <class T>
inline constexpr T one = sizeof(T) == 4 ? static_cast<T>(0x3f800000) : static_cast<T>(0x3ff0000000000000);

// Any row of an identity of few columns lies somewhere in here.
inline constexpr int32 widestInBand = 8;
template <class T>
inline constexpr T band[2 * widestInBand] = {0, 0, 0, 0, 0, 0, 0, one<T>};

template <class T>
ZEPM_INLINE void identityRow(char* p, int32 i, int32 width)
{
    if (width <= widestInBand)
    {
        const T* const from = band<T> + (i < width ? widestInBand - 1 - i : widestInBand);
        for (int32 j = 0; j < width; ++j) store<T>(p + j * sz<T>, from[j]);
        return;
    }
    __builtin_memset(p, 0, static_cast<size_t>(width * sz<T>));
    if (i < width) store<T>(p + i * sz<T>, one<T>);
}

// So many identities of a small order side by side that moving them is worth a call.
template <class T, int Order>
struct Identities
{
    static constexpr int size = Order * Order, count = 2304 / (size * static_cast<int>(sizeof(T)));
    T elements[count * size];
    constexpr Identities() : elements()
    {
        for (int n = 0; n < count * size; ++n) elements[n] = n % size % (Order + 1) == 0 ? one<T> : 0;
    }
};
template <class T, int Order>
inline constexpr Identities<T, Order> identities;

// Bytes that repeat after so many, which are those of the pattern.
ZEPM_INLINE void repeatPattern(char* to, ptrdiff_t size, const char* pattern, ptrdiff_t period)
{
    const bool streams = isBeyondCaches(size, 0);
    for (ptrdiff_t at = to == pattern ? period : 0; at < size; at += period)
    {
        const ptrdiff_t n = size - at < period ? size - at : period;
        if (streams)
            streamCopy(to + at, pattern, n, [](ptrdiff_t) ZEPM_INLINED {});
        else
            row<Word>(First{}, pattern, Word{}, to + at, n / sz<Word>);
    }
    if (streams) fenceStreams();
}

template <class T>
ZEPM_INLINE void identityObject(char* p, ptrdiff_t rowStride, int32 width, int32 height)
{
    for (int32 i = 0; i < height; ++i) identityRow<T>(p + i * rowStride, i, width);
}

template <class T>
ZEPM_INLINE void fillDense(char* p, int32 width, int32 height, ptrdiff_t count)
{
    const ptrdiff_t rowSize = width * sz<T>, size = height * rowSize;
    forSize(
        width == height ? width : 0, sizes<3, 4, 5, 6>{},
        [&]<int32 Order>() ZEPM_INLINED {
            const auto& pattern = identities<T, Order>.elements;
            repeatPattern(p, size * count, reinterpret_cast<const char*>(pattern), sizeof pattern);
        },
        [&]() ZEPM_INLINED {
            const ptrdiff_t fitting = streamedChunk / size, first = fitting > count ? count : fitting > 1 ? fitting : 1;
            for (ptrdiff_t k = 0; k < first; ++k) identityObject<T>(p + k * size, rowSize, width, height);
            repeatPattern(p, size * count, p, first * size);
        });
}

// One element of all objects.
template <class T>
ZEPM_INLINE void fillElements(char* p, ptrdiff_t stride0, int32 count, T x)
{
    for (int32 k = 0; k < count; ++k) store<T>(p + k * stride0, x);
}

// ---- Past the caches ------------------------------------------------------------------------------------------------

template <class View>
inline constexpr bool isStrided = !isTable<View> && !isList<View>;

// From object first on; and what is fetched ahead of the objects.
template <class T>
ZEPM_INLINE StridedObjects<T> objectsFrom(const StridedObjects<T>& view, ptrdiff_t first)
{
    return {view.p + first * view.stride0, view.stride0, view.stride1, view.stride2};
}
template <class T>
ZEPM_INLINE ListedObjects<T> objectsFrom(const ListedObjects<T>& view, ptrdiff_t first)
{
    return {view.pp + first, view.shift, view.stride1, view.stride2};
}
template <class T>
ZEPM_INLINE TabledObjects<T> objectsFrom(const TabledObjects<T>& view, ptrdiff_t first)
{
    return {view.pp, view.shift + first * view.stride0, view.stride0, view.width};
}
template <class View>
ZEPM_INLINE TransposedView<View> objectsFrom(const TransposedView<View>& view, ptrdiff_t first)
{
    return {objectsFrom(view.stored, first)};
}
template <class View>
ZEPM_INLINE StreamSource fetchedFrom(const View& view)
{
    if constexpr (isStrided<View>)
        return {view.p, view.stride0};
    else
        return {nullptr, 0};
}

// Objects without gaps that exceed the caches are put together in the nearest one and stored past them. Not all calls
// are served: then false is returned.
template <class T, class From>
[[gnu::noinline]] bool moveStreaming(const From& from, const StridedObjects<T>& to, int32 width, int32 height,
                                     int32 count)
{
    const ptrdiff_t rowSize = width * sz<T>, size = height * rowSize;
    if (to.stride2 != sz<T> || to.stride1 != rowSize || to.stride0 != size || size > streamedMatrix) return false;
    if (!isBeyondCaches(count * size, 1)) return false;
    if (!extentOf(from, width, height, 0, count).isApartFrom(extentOf(to, width, height, 0, count))) return false;
    streamObjects(to.p, size, count, fetchedFrom(from), {nullptr, 0}, [&](ptrdiff_t first, ptrdiff_t n, char* chunk) {
        const StridedObjects<T> part{chunk, size, rowSize, sz<T>};
        ZEPM_LEVEL::moveObjects<T>(objectsFrom(from, first), part, width, height, static_cast<int32>(n));
    });
    return true;
}

// ---- The choice of way ----------------------------------------------------------------------------------------------

// Views of strides: rows or tiles, where these serve the call.
template <class T, class From, class To>
ZEPM_INLINE bool moveStrided(const From& from, const To& to, int32 width, int32 height, int32 count)
{
    if (from.stride2 == sz<T> && to.stride2 == sz<T>)
    {
        moveRows<T>({sequenceOf(from), sequenceOf(to), isList<From>, isList<To>, from.stride1, to.stride1,
                     width * sz<T>, height, count});
        return true;
    }
    const bool areColumns = from.stride1 == sz<T> && to.stride2 == sz<T>,
               becomeColumns = from.stride2 == sz<T> && to.stride1 == sz<T>;
    if (height == 1 || width == 1 || (!areColumns && !becomeColumns)) return false;
    if (!extentOf(from, width, height, 0, count).isApartFrom(extentOf(to, width, height, 0, count))) return false;
    if (areColumns)
        transposeTiles<T>(from, from.stride2, to, to.stride1, width, height, count);
    else
        transposeTiles<T>(from, from.stride1, to, to.stride2, height, width, count);
    return true;
}

} // namespace

// ---- What the level offers ------------------------------------------------------------------------------------------

template <class T>
void moveRun(char* to, const char* from, ptrdiff_t size)
{
    if (smears(to, from, size)) return smear<T>(to, from, size);
    if (size >= longRun && areApart(from, to, size) && isBeyondCaches(size, 1))
    {
        streamCopy(to, from, size, [](ptrdiff_t) ZEPM_INLINED {});
        fenceStreams();
    }
    else
        __builtin_memmove(to, from, static_cast<size_t>(size));
}

template <class T, class From, class To>
void moveObjects(const From& from, const To& to, int32 width, int32 height, int32 count)
{
    if constexpr (isStrided<To>)
    {
        // Whether it is worth asking.
        if (count * to.stride0 >= leastStreamed && moveStreaming<T>(from, to, width, height, count)) return;
    }
    if constexpr (!isTable<From> && !isTable<To>)
    {
        if (moveStrided<T>(from, to, width, height, count)) return;
    }
    if (count < leastInParts) return moveInOrder<T>(from, to, width, height, 0, count);
    const ptrdiff_t size = static_cast<ptrdiff_t>(width) * height * sz<T>;
    const auto chunk = static_cast<int32>(size < partsChunk / 64 ? partsChunk / size / 64 * 64 : 64);
    for (int32 left = count; left > 0; left -= chunk)
    {
        const int32 k = count - left, end = left < chunk ? count : k + chunk;
        if (extentOf(from, width, height, k, end).isApartFrom(extentOf(to, width, height, k, end)))
            moveParts<T>(from, to, width, height, k, end);
        else
            moveInOrder<T>(from, to, width, height, k, end);
    }
}

template <class T, class From, class To>
void transposeObjects(const From& from, const To& to, int32 width, int32 height, int32 count)
{
    transposeTiles<T>(from, from.stride2, to, to.stride1, width, height, count);
}

template <class T, class To>
void fillIdentity(const To& to, int32 width, int32 height, int32 count)
{
    if constexpr (isTable<To>)
    {
        const auto object = to.object(0);
        for (int32 i = 0; i < height; ++i)
            for (int32 j = 0; j < width; ++j) fillElements<T>(object.at(i, j), to.stride0, count, i == j ? one<T> : 0);
        return;
    }
    else if (to.stride2 == sz<T>)
    {
        if constexpr (!isList<To>)
        {
            const ptrdiff_t rowSize = width * sz<T>;
            if (to.stride1 == rowSize && (count == 1 || to.stride0 == height * rowSize))
                return fillDense<T>(to.p, width, height, count);
        }
        for (int32 k = 0; k < count; ++k) identityObject<T>(to.object(k).p, to.stride1, width, height);
    }
    else
    {
        for (int32 k = 0; k < count; ++k)
        {
            const auto object = to.object(k);
            for (int32 i = 0; i < height; ++i)
                for (int32 j = 0; j < width; ++j) object.set(i, j, i == j ? one<T> : 0);
        }
    }
}

// ---- What there is of each ------------------------------------------------------------------------------------------

#define ZEPM_MOVES(T, From, To) template void moveObjects<T>(const From<const T>&, const To<T>&, int32, int32, int32);
#define ZEPM_MOVES_FROM(T, From)                                                                                       \
    ZEPM_MOVES(T, From, StridedObjects)                                                                                \
    ZEPM_MOVES(T, From, ListedObjects)                                                                                 \
    ZEPM_MOVES(T, From, TabledObjects)
#define ZEPM_MOVES_OF(T)                                                                                               \
    template void moveRun<T>(char*, const char*, ptrdiff_t);                                                           \
    ZEPM_MOVES_FROM(T, StridedObjects)                                                                                 \
    ZEPM_MOVES_FROM(T, ListedObjects)                                                                                  \
    ZEPM_MOVES_FROM(T, TabledObjects)                                                                                  \
    ZEPM_MOVES(T, TransposedTable, StridedObjects)                                                                     \
    ZEPM_MOVES(T, TransposedTable, TabledObjects)                                                                      \
    template void transposeObjects<T>(const StridedObjects<const T>&, const StridedObjects<T>&, int32, int32, int32);  \
    template void transposeObjects<T>(const ListedObjects<const T>&, const StridedObjects<T>&, int32, int32, int32);   \
    template void transposeObjects<T>(const ListedObjects<const T>&, const ListedObjects<T>&, int32, int32, int32);    \
    template void fillIdentity<T>(const StridedObjects<T>&, int32, int32, int32);                                      \
    template void fillIdentity<T>(const ListedObjects<T>&, int32, int32, int32);                                       \
    template void fillIdentity<T>(const TabledObjects<T>&, int32, int32, int32);
ZEPM_MOVES_OF(uint32_t)
ZEPM_MOVES_OF(uint64_t)

} // namespace zepm::ZEPM_LEVEL
