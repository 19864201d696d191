// Element-wise calls on matrices with contiguous rows: as rows wherever no source is transposed, else in tiles. Each
// result element is one operation on its own two elements, which are read before it is written.
#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "frame/streams.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// What the second source of an operation may be, besides a matrix as it is stored. A source that alone is transposed
// stands first, as the minuend or not.
template <class Op>
inline constexpr bool takesTransposed = !takesConstantAlone<Op> && !std::is_same_v<Op, MinusFrom>;

// ---- Rows -----------------------------------------------------------------------------------------------------------

// An operand object by object; a fixed one is never a list.
template <bool IsListCall>
struct Objects
{
    const char* p;
    ptrdiff_t step, shift;
    bool isList;
    ZEPM_INLINE explicit Objects(const RowOperand& operand)
        : p(operand.p),
          step(operand.isFixed() ? 0
               : IsListCall      ? static_cast<ptrdiff_t>(sizeof(char*))
                                 : operand.stride),
          shift(operand.stride),
          isList(IsListCall && !operand.isFixed())
    {
    }
    ZEPM_INLINE const char* at() const { return isList ? load<const char*>(p) + shift : p; }
    ZEPM_INLINE void next() { p += step; }
};

// Whether f is true of the operands that have rows, and of their row strides.
template <class F>
ZEPM_INLINE bool ofRows(const MatrixCall& c, F f)
{
    return f(c.a, c.rowStrideA) && (c.isConstant || f(c.b, c.rowStrideB)) && f(c.d, c.rowStrideD);
}
ZEPM_INLINE bool haveRowStride(const MatrixCall& c, ptrdiff_t size)
{
    return ofRows(c, [size](const RowOperand&, ptrdiff_t rowStride) { return rowStride == size; });
}

// Gapped rows of few elements, object by object: in rowOf b is a pointer, or the constant.
template <int Width, bool IsList, class T, class Op>
[[gnu::noinline]] void shortRowsOfEach(Op op, const MatrixCall& c)
{
    Objects<IsList> a(c.a), b(c.b), d(c.d);
    const ptrdiff_t count = c.count, height = c.height;
    const ptrdiff_t strideA = c.rowStrideA, strideB = c.rowStrideB, strideD = c.rowStrideD;
    T constant{};
    if constexpr (takesConstantAlone<Op>) constant = load<T>(c.b.p);
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        const char *rowA = a.at(), *rowB = b.at();
        char* rowD = const_cast<char*>(d.at());
        auto nextRow = [&]() ZEPM_INLINED {
            if constexpr (takesConstantAlone<Op>)
                rowOf<T, Width>(op, rowA, constant, rowD);
            else
                rowOf<T, Width>(op, rowA, rowB, rowD);
            rowA += strideA, rowB += strideB, rowD += strideD;
        };
        if (height == Width)
            each<Width>([&]<int>() ZEPM_INLINED { nextRow(); });
        else
            for (ptrdiff_t i = 0; i < height; ++i) nextRow();
        a.next(), b.next(), d.next();
    }
}

// Gapped rows of any length: the rows of each object by themselves.
template <bool IsList, class Op, class T>
[[gnu::noinline]] void longRowsOfEach(const MatrixCall& c)
{
    Objects<IsList> a(c.a), b(c.b), d(c.d);
    for (ptrdiff_t k = 0; k < c.count; ++k)
    {
        const RowOperand rowsB = c.isConstant ? c.b : RowOperand{b.at(), c.rowStrideB};
        ZEPM_LEVEL::combineRows<Op, T>(
            {{a.at(), c.rowStrideA}, rowsB, {d.at(), c.rowStrideD}, c.isConstant, false, c.width, c.height});
        a.next(), b.next(), d.next();
    }
}

template <bool IsList, class Op, class T>
ZEPM_INLINE void combineGapped(const MatrixCall& c)
{
    switch (c.width)
    {
    case 3: return shortRowsOfEach<3, IsList, T>(Op{}, c);
    case 4: return shortRowsOfEach<4, IsList, T>(Op{}, c);
    case 5: return shortRowsOfEach<5, IsList, T>(Op{}, c);
    case 6: return shortRowsOfEach<6, IsList, T>(Op{}, c);
    case 8: return shortRowsOfEach<8, IsList, T>(Op{}, c);
    case 16: return shortRowsOfEach<16, IsList, T>(Op{}, c);
    default: return longRowsOfEach<IsList, Op, T>(c);
    }
}

// The call becomes one on rows: a copy of it would wait for its fields to be stored.
template <class Op, class T>
ZEPM_INLINE void combineAsRows(MatrixCall& c)
{
    if (haveRowStride(c, c.width * sz<T>))
    {
        c.width *= c.height;
        return ZEPM_LEVEL::combineRows<Op, T>(c);
    }
    // The rows of all objects in one sequence.
    if (!c.isList && ofRows(c, [&](const RowOperand& x, ptrdiff_t rowStride) {
            return c.count == 1 || (!x.isFixed() && x.stride == c.height * rowStride);
        }))
    {
        c.a.stride = c.rowStrideA;
        if (!c.isConstant) c.b.stride = c.rowStrideB;
        c.d.stride = c.rowStrideD;
        c.count *= c.height;
        return ZEPM_LEVEL::combineRows<Op, T>(c);
    }
    c.isList ? combineGapped<true, Op, T>(c) : combineGapped<false, Op, T>(c);
}

// ---- Tiles ----------------------------------------------------------------------------------------------------------

enum class Second
{
    Normal,
    Transposed,
    Constant
};

// One object's operands, the first source transposed. RowSize is the distance between all rows, or 0 where each operand
// has its own.
template <Second second, class T, class Op, ptrdiff_t RowSize>
struct Tiles
{
    Op op;
    const char *a, *b;
    char* d;
    ptrdiff_t strideA, strideB, strideD;
    T constant;

    ZEPM_INLINE const char* atA(ptrdiff_t i, ptrdiff_t j) const
    {
        return a + i * (RowSize ? RowSize : strideA) + j * sz<T>;
    }
    ZEPM_INLINE const char* atB(ptrdiff_t i, ptrdiff_t j) const
    {
        return b + i * (RowSize ? RowSize : strideB) + j * sz<T>;
    }
    ZEPM_INLINE char* atD(ptrdiff_t i, ptrdiff_t j) const { return d + i * (RowSize ? RowSize : strideD) + j * sz<T>; }

    // Rows x Columns results at (i, j), through a tile of N x N elements.
    template <int N, int Rows, int Columns>
    ZEPM_INLINE void tile(ptrdiff_t i, ptrdiff_t j) const
    {
        Vec<T, N> x[N] = {};
        each<Columns>([&]<int C>() ZEPM_INLINED {
            x[C] = loadFirst<T, N, Rows>(atA(j + C, i));
            if constexpr (second == Second::Transposed) x[C] = op(x[C], loadFirst<T, N, Rows>(atB(j + C, i)));
            if constexpr (second == Second::Constant) x[C] = op(x[C], broadcast<T, N>(constant));
        });
        transpose<T, N>(x);
        each<Rows>([&]<int R>() ZEPM_INLINED {
            pieces<T, Columns, N>([&]<int Count, int J>() ZEPM_INLINED {
                Vec<T, Count> y = lanesOf<T, N, J, Count>(x[R]);
                if constexpr (second == Second::Normal) y = op(y, loadVec<T, Count>(atB(i + R, j + J)));
                storeVec<T, Count>(atD(i + R, j + J), y);
            });
        });
    }

    // The results of a square matrix of a known order.
    template <int Order, int N, int I = 0, int J = 0>
    ZEPM_INLINE void square() const
    {
        constexpr int rows = Order - I < N ? Order - I : N, columns = Order - J < N ? Order - J : N;
        if constexpr (I < Order)
        {
            tile<N, rows, columns>(I, J);
            if constexpr (J + N < Order)
                square<Order, N, I, J + N>();
            else
                square<Order, N, I + N, 0>();
        }
    }

    // The results from (i, firstJ) to before (endI, endJ): as many tiles as fit, the rest in smaller ones.
    template <int N>
    [[gnu::noinline]] void region(ptrdiff_t i, ptrdiff_t endI, const ptrdiff_t firstJ, ptrdiff_t endJ) const
    {
        for (; i + N <= endI; i += N)
        {
            ptrdiff_t j = firstJ;
            for (; j + N <= endJ; j += N) tile<N, N, N>(i, j);
            if constexpr (N > 1)
            {
                if (j < endJ) region<N / 2>(i, i + N, j, endJ);
            }
        }
        if constexpr (N > 1)
        {
            if (i < endI) region<N / 2>(i, endI, firstJ, endJ);
        }
    }
};

// The tiles of orders 3 to 6: of four elements. The rows of order 3 would take two loads each, so it has pairs of
// doubles, and single floats.
template <class T, int Order>
constexpr int tileSize()
{
    const int best = Order != 3 ? 4 : sizeof(T) == 8 ? 2 : 1;
    return best < lanes<T> ? best : lanes<T>;
}

template <int Order, Second second, bool IsList, ptrdiff_t RowSize, class T, class Op>
[[gnu::noinline]] void tilesOfEach(Op op, const MatrixCall& c)
{
    Objects<IsList> a(c.a), b(c.b), d(c.d);
    T constant{};
    if constexpr (second == Second::Constant) constant = load<T>(c.b.p);
    const ptrdiff_t count = c.count, width = c.width, height = c.height;
    ptrdiff_t strideA = c.rowStrideA, strideB = c.rowStrideB, strideD = c.rowStrideD;
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        // Not to be known ahead of the loop: the distances of all rows would be, and fill the stack.
        if constexpr (RowSize == 0) asm("" : "+rm"(strideA), "+rm"(strideB), "+rm"(strideD));
        const Tiles<second, T, Op, RowSize> object{op,      a.at(),  b.at(),  const_cast<char*>(d.at()),
                                                   strideA, strideB, strideD, constant};
        if constexpr (Order > 0)
            object.template square<Order, tileSize<T, Order>()>();
        else
            object.template region<lanes<T>>(0, height, 0, width);
        a.next(), b.next(), d.next();
    }
}

// ---- Dense matrices of few elements ---------------------------------------------------------------------------------

// The registers that hold a dense matrix whole, or some side by side, but for a last element that transposition leaves
// in its place. It fits where there are enough, and each register of the transpose has its lanes from two of them at
// most.
template <class T, int Order, int Objects = 1>
struct Whole
{
    static constexpr int elements = Objects * Order * Order;
    static constexpr int size = elements / 2 * 2;
    static constexpr int N = size <= lanes<T> ? size : lanes<T>;
    static constexpr int registers = size / N;

    // The element that is element n of the transpose.
    static constexpr int from(int n)
    {
        const int inObject = n % (Order * Order);
        return n - inObject + inObject % Order * Order + inObject / Order;
    }

    // The registers that the lanes of register R of the transpose are from.
    template <int R>
    static constexpr int first = from(R* N) / N;
    template <int R>
    static constexpr int second = [] {
        int found = first<R>;
        for (int lane = 0; lane < N; ++lane)
            if (from(R * N + lane) / N != first<R>) found = from(R * N + lane) / N;
        return found;
    }();
    // Lane l of it, counted over those two.
    template <int R>
    struct Place
    {
        constexpr int operator()(int lane) const
        {
            const int n = from(R * N + lane);
            return n / N == first<R> ? n % N : N + n % N;
        }
    };

    static constexpr bool fits = size % N == 0 && registers <= 12 &&[]<int... R>(std::integer_sequence<int, R...>)
    {
        auto hasTwo = [](int r, int one, int two) {
            for (int lane = 0; lane < N; ++lane)
                if (const int at = from(r * N + lane) / N; at != one && at != two) return false;
            return true;
        };
        return (... && hasTwo(R, first<R>, second<R>));
    }
    (std::make_integer_sequence<int, size % N == 0 ? registers : 1>{});
};

// Successive objects in S, without gaps or with any distance from object to object; Together at a time if without.
template <int Order, int Together, Second second, class T, class Op>
[[gnu::noinline]] void wholeOfEach(Op op, const MatrixCall& c)
{
    const char *a = c.a.p, *b = c.b.p;
    char* d = const_cast<char*>(c.d.p);
    const ptrdiff_t aStep = c.a.toNext(), bStep = c.b.toNext(), dStep = c.d.stride;
    T constant{};
    if constexpr (second == Second::Constant) constant = load<T>(b);
    auto some = [&]<int Objects>() ZEPM_INLINED {
        using Matrix = Whole<T, Order, Objects>;
        constexpr int N = Matrix::N, registers = Matrix::registers;
        Vec<T, N> x[registers] = {};
        each<registers>([&]<int R>() ZEPM_INLINED {
            x[R] = loadVec<T, N>(a + R * N * sz<T>);
            if constexpr (second == Second::Transposed) x[R] = op(x[R], loadVec<T, N>(b + R * N * sz<T>));
            if constexpr (second == Second::Constant) x[R] = op(x[R], broadcast<T, N>(constant));
        });
        each<registers>([&]<int R>() ZEPM_INLINED {
            Vec<T, N> y = shuffle<T, N>(x[Matrix::template first<R>], x[Matrix::template second<R>],
                                        typename Matrix::template Place<R>{});
            if constexpr (second == Second::Normal) y = op(y, loadVec<T, N>(b + R * N * sz<T>));
            storeVec<T, N>(d + R * N * sz<T>, y);
        });
        if constexpr (Matrix::size < Matrix::elements)
        {
            constexpr ptrdiff_t last = Matrix::size * sz<T>;
            T y = constant;
            if constexpr (second != Second::Constant) y = load<T>(b + last);
            store<T>(d + last, op(load<T>(a + last), y));
        }
        a += Objects * aStep, b += Objects * bStep, d += Objects * dStep;
    };
    ptrdiff_t count = c.count;
    for (; count >= Together; count -= Together) some.template operator()<Together>();
    if constexpr (Together > 1)
        for (; count > 0; --count) some.template operator()<1>();
}

// Two matrices of an odd order fill whole registers of two elements. One by one, every other would lie at half a
// register, and its pieces across cache lines.
template <class T, int Order>
inline constexpr int togetherIfDense = lanes<T> == 2 && Order % 2 == 1 && Whole<T, Order, 2>::fits ? 2 : 1;

// Whether matrices without gaps lie so themselves.
template <class T>
ZEPM_INLINE bool areDense(const MatrixCall& c)
{
    const ptrdiff_t size = c.width * c.height * sz<T>;
    return c.a.stride == size && (c.isConstant || c.b.stride == size) && c.d.stride == size;
}

template <int Order, Second second, class T, class Op>
ZEPM_INLINE void squareOfEach(Op op, const MatrixCall& c)
{
    constexpr ptrdiff_t dense = Order * sz<T>, records = 4 * sz<T>;
    if (c.isList) return tilesOfEach<Order, second, true, 0, T>(op, c);
    if (haveRowStride(c, dense))
    {
        if constexpr (Whole<T, Order>::fits)
        {
            constexpr int together = togetherIfDense<T, Order>;
            return together > 1 && areDense<T>(c) ? wholeOfEach<Order, together, second, T>(op, c)
                                                  : wholeOfEach<Order, 1, second, T>(op, c);
        }
        else
            return tilesOfEach<Order, second, false, dense, T>(op, c);
    }
    if constexpr (Order == 3)
    {
        if (haveRowStride(c, records)) return tilesOfEach<Order, second, false, records, T>(op, c);
    }
    tilesOfEach<Order, second, false, 0, T>(op, c);
}

template <Second second, class T, class Op>
ZEPM_INLINE void combineTransposed(Op op, const MatrixCall& c)
{
    switch (c.width == c.height ? c.width : 0)
    {
    case 3: return squareOfEach<3, second, T>(op, c);
    case 4: return squareOfEach<4, second, T>(op, c);
    case 5: return squareOfEach<5, second, T>(op, c);
    case 6: return squareOfEach<6, second, T>(op, c);
    default: return c.isList ? tilesOfEach<0, second, true, 0, T>(op, c) : tilesOfEach<0, second, false, 0, T>(op, c);
    }
}

// The first operand alone, for a transposed copy.
struct First
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V) const
    {
        return a;
    }
};

// A fixed matrix up to this size is transposed once a call.
inline constexpr ptrdiff_t copiedBytes = 4096;

template <class Op, class T>
[[gnu::noinline]] void combineWithCopy(const MatrixCall& c)
{
    alignas(64) char copy[copiedBytes];
    const ptrdiff_t rowSize = c.width * sz<T>;
    const T unused{};
    const RowOperand to{copy, RowOperand::fixed};
    const RowOperand constant{reinterpret_cast<const char*>(&unused), RowOperand::fixed};
    combineTransposed<Second::Constant, T>(
        First{}, {{c.a, constant, to, true, false, c.width, 1}, c.height, c.rowStrideA, 0, rowSize, true, false});
    MatrixCall copied{
        {c.b, to, c.d, false, c.isList, c.width, c.count}, c.height, c.rowStrideB, rowSize, c.rowStrideD, false, false};
    combineAsRows<decltype(flipped(Op{})), T>(copied);
}

// The first source, or both, transposed.
template <class Op, class T>
[[gnu::noinline]] void combineInTiles(const MatrixCall& c)
{
    if constexpr (takesConstantAlone<Op>)
    {
        combineTransposed<Second::Constant, T>(Op{}, c);
    }
    else
    {
        if constexpr (takesTransposed<Op>)
        {
            if (c.isTransposedB) return combineTransposed<Second::Transposed, T>(Op{}, c);
        }
        if (c.a.isFixed() && c.count > 1 && c.width * c.height <= copiedBytes / sz<T>) return combineWithCopy<Op, T>(c);
        combineTransposed<Second::Normal, T>(Op{}, c);
    }
}

// Whether results are to be stored past the caches; in place they are read anyway.
template <class T>
ZEPM_INLINE bool isStreamed(const MatrixCall& c)
{
    const ptrdiff_t rowSize = c.width * sz<T>, size = c.height * rowSize;
    const int sources = !c.a.isFixed() + (!c.b.isFixed() && !c.isConstant);
    return !c.isList && c.rowStrideD == rowSize && c.d.stride == size && size <= streamedMatrix &&
           isBeyondCaches(c.count * size, sources) && c.a.p != c.d.p && c.b.p != c.d.p;
}

template <class Op, class T>
[[gnu::noinline]] void combineStreaming(const MatrixCall& c)
{
    streamCall(c, c.d.stride, [](const MatrixCall& part) { combineInTiles<Op, T>(part); });
}

} // namespace

template <class Op, class T>
void combineMatrices(MatrixCall& c)
{
    if (!c.isTransposedA) return combineAsRows<Op, T>(c);
    isStreamed<T>(c) ? combineStreaming<Op, T>(c) : combineInTiles<Op, T>(c);
}

template void combineMatrices<Plus, float32>(MatrixCall&);
template void combineMatrices<Plus, float64>(MatrixCall&);
template void combineMatrices<Minus, float32>(MatrixCall&);
template void combineMatrices<Minus, float64>(MatrixCall&);
template void combineMatrices<MinusFrom, float32>(MatrixCall&);
template void combineMatrices<MinusFrom, float64>(MatrixCall&);
template void combineMatrices<Times, float32>(MatrixCall&);
template void combineMatrices<Times, float64>(MatrixCall&);

} // namespace zepm::ZEPM_LEVEL
