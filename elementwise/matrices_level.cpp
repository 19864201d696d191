// Element-wise calls on matrices with contiguous rows: as rows wherever no source is transposed, else in tiles. Each
// result element is one operation on its own two elements, which are read before it is written.
#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "frame/streams.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// Whether the second source may be transposed too. If only one source is transposed it comes first, so that operations
// with exchanged operands never have two.
template <class Op>
inline constexpr bool takesTransposed = !takesConstantAlone<Op> && !std::is_same_v<Op, MinusFrom>;

// ---- Rows -----------------------------------------------------------------------------------------------------------

// Whether f is true of the operands that have rows, and of their row strides.
template <class F>
ZEPM_INLINE bool ofRows(const MatrixCall& c, F f)
{
    return f(c.a, c.rowStrideA) && (c.isConstant || f(c.b, c.rowStrideB)) && f(c.d, c.rowStrideD);
}
ZEPM_INLINE bool haveRowStride(const MatrixCall& c, ptrdiff_t size)
{
    return ofRows(c, [size](const Sequence&, ptrdiff_t rowStride) { return rowStride == size; });
}

// Rows of few elements with gaps between them, object by object. The second operand of rowOf is a pointer or a constant.
template <int Width, bool IsList, class T, class Op>
[[gnu::noinline]] void shortRowsOfEach(Op op, const MatrixCall& c)
{
    Walk<IsList> a(c.a, IsList), b(c.b, IsList), d(c.d, IsList);
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
        a.advance(), b.advance(), d.advance();
    }
}

// Gapped rows of any length: the rows of each object by themselves.
template <bool IsList, class T, class Op>
[[gnu::noinline]] void longRowsOfEach(Op op, const MatrixCall& c)
{
    Walk<IsList> a(c.a, IsList), b(c.b, IsList), d(c.d, IsList);
    for (ptrdiff_t k = 0; k < c.count; ++k)
    {
        const Sequence rowsB = c.isConstant ? c.b : Sequence{b.at(), c.rowStrideB};
        ZEPM_LEVEL::combineRows<T>(
            op, {{a.at(), c.rowStrideA}, rowsB, {d.at(), c.rowStrideD}, c.isConstant, false, c.width, c.height});
        a.advance(), b.advance(), d.advance();
    }
}

template <bool IsList, class T, class Op>
ZEPM_INLINE void combineGapped(Op op, const MatrixCall& c)
{
    switch (c.width)
    {
    case 3: return shortRowsOfEach<3, IsList, T>(op, c);
    case 4: return shortRowsOfEach<4, IsList, T>(op, c);
    case 5: return shortRowsOfEach<5, IsList, T>(op, c);
    case 6: return shortRowsOfEach<6, IsList, T>(op, c);
    case 8: return shortRowsOfEach<8, IsList, T>(op, c);
    case 16: return shortRowsOfEach<16, IsList, T>(op, c);
    default: return longRowsOfEach<IsList, T>(op, c);
    }
}

// The call itself is changed into one on rows: a copy would have to wait until the fields just written can be read.
template <class T, class Op>
ZEPM_INLINE void combineAsRows(Op op, MatrixCall& c)
{
    if (haveRowStride(c, c.width * sz<T>))
    {
        c.width *= c.height;
        return ZEPM_LEVEL::combineRows<T>(op, c);
    }
    // The rows of all objects in one sequence.
    if (!c.isList && ofRows(c, [&](const Sequence& x, ptrdiff_t rowStride) {
            return c.count == 1 || (!x.isFixed() && x.step == c.height * rowStride);
        }))
    {
        c.a.step = c.rowStrideA;
        if (!c.isConstant) c.b.step = c.rowStrideB;
        c.d.step = c.rowStrideD;
        c.count *= c.height;
        return ZEPM_LEVEL::combineRows<T>(op, c);
    }
    c.isList ? combineGapped<true, T>(op, c) : combineGapped<false, T>(op, c);
}

// ---- TransposingTiles
// ----------------------------------------------------------------------------------------------------------

enum class Second
{
    None, // the transpose of the first source alone
    Normal,
    Transposed,
    Constant
};

// The operands of one object, the first source transposed. RowSize is the row stride of all three operands if it is known
// at compile time, else 0.
template <Second second, class T, class Op, ptrdiff_t RowSize>
struct TransposingTiles
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
    Walk<IsList> a(c.a, IsList), b(c.b, IsList), d(c.d, IsList);
    T constant{};
    if constexpr (second == Second::Constant) constant = load<T>(c.b.p);
    const ptrdiff_t count = c.count, width = c.width, height = c.height;
    ptrdiff_t strideA = c.rowStrideA, strideB = c.rowStrideB, strideD = c.rowStrideD;
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        // Hides the strides from the optimiser, which would compute every row's offset before the loop and spill them.
        if constexpr (RowSize == 0) asm("" : "+rm"(strideA), "+rm"(strideB), "+rm"(strideD));
        const TransposingTiles<second, T, Op, RowSize> object{op,      a.at(),  b.at(),  const_cast<char*>(d.at()),
                                                              strideA, strideB, strideD, constant};
        if constexpr (Order > 0)
            object.template square<Order, tileSize<T, Order>()>();
        else
            object.template region<lanes<T>>(0, height, 0, width);
        a.advance(), b.advance(), d.advance();
    }
}

// ---- Dense matrices of few elements ---------------------------------------------------------------------------------

// A dense matrix (or Objects of them) held entirely in registers; an odd last element stays outside, as transposing
// does not move it. fits: at most 12 registers, and one two-operand shuffle makes each register of the transpose.
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

// Successive objects of the strided layout. If they follow one another without gaps, Together of them at a time.
template <int Order, int Together, Second second, class T, class Op>
[[gnu::noinline]] void wholeOfEach(Op op, const MatrixCall& c)
{
    const char *a = c.a.p, *b = c.b.p;
    char* d = const_cast<char*>(c.d.p);
    const ptrdiff_t aStep = c.a.toNext(), bStep = c.b.toNext(), dStep = c.d.step;
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
            if constexpr (second == Second::Normal || second == Second::Transposed) y = load<T>(b + last);
            if constexpr (second == Second::None)
                store<T>(d + last, load<T>(a + last));
            else
                store<T>(d + last, op(load<T>(a + last), y));
        }
        a += Objects * aStep, b += Objects * bStep, d += Objects * dStep;
    };
    ptrdiff_t count = c.count;
    for (; count >= Together; count -= Together) some.template operator()<Together>();
    if constexpr (Together > 1)
        for (; count > 0; --count) some.template operator()<1>();
}

// Two matrices of an odd order together fill whole registers of two elements. One by one, every second matrix would start
// in the middle of a register, and its loads and stores would cross cache lines.
template <class T, int Order>
inline constexpr int togetherIfDense = lanes<T> == 2 && Order % 2 == 1 && Whole<T, Order, 2>::fits ? 2 : 1;

// Whether the objects lie without gaps too.
template <class T>
ZEPM_INLINE bool areDense(const MatrixCall& c)
{
    const ptrdiff_t size = c.width * c.height * sz<T>;
    return c.a.step == size && (c.isConstant || c.b.step == size) && c.d.step == size;
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

// A fixed matrix up to this size is transposed once a call.
inline constexpr ptrdiff_t copiedBytes = 4096;

template <class T, class Op>
[[gnu::noinline]] void combineWithCopy(Op op, const MatrixCall& c)
{
    alignas(64) char copy[copiedBytes];
    const ptrdiff_t rowSize = c.width * sz<T>;
    const Sequence to{copy, Sequence::fixed};
    combineTransposed<Second::None, T>(
        op, {{c.a, c.a, to, false, false, c.width, 1}, c.height, c.rowStrideA, 0, rowSize, true, false});
    MatrixCall copied{
        {c.b, to, c.d, false, c.isList, c.width, c.count}, c.height, c.rowStrideB, rowSize, c.rowStrideD, false, false};
    combineAsRows<T>(flipped(op), copied);
}

// The first source, or both, transposed.
template <class T, class Op>
[[gnu::noinline]] void combineInTiles(Op op, const MatrixCall& c)
{
    if constexpr (takesConstantAlone<Op>)
    {
        combineTransposed<Second::Constant, T>(op, c);
    }
    else
    {
        if constexpr (takesTransposed<Op>)
        {
            if (c.isTransposedB) return combineTransposed<Second::Transposed, T>(op, c);
        }
        if (c.a.isFixed() && c.count > 1 && c.width * c.height <= copiedBytes / sz<T>) return combineWithCopy<T>(op, c);
        combineTransposed<Second::Normal, T>(op, c);
    }
}

// Whether results are to be stored past the caches; in place they are read anyway.
template <class T>
ZEPM_INLINE bool areMatricesStreamed(const MatrixCall& c)
{
    const ptrdiff_t rowSize = c.width * sz<T>, size = c.height * rowSize;
    const int sources = !c.a.isFixed() + (!c.b.isFixed() && !c.isConstant);
    return !c.isList && c.rowStrideD == rowSize && c.d.step == size && size <= streamedMatrix &&
           isBeyondCaches(c.count * size, sources) && c.a.p != c.d.p && c.b.p != c.d.p;
}

template <class T, class Op>
[[gnu::noinline]] void combineStreaming(Op op, const MatrixCall& c)
{
    streamCall(c, c.d.step, [op](const MatrixCall& part) { combineInTiles<T>(op, part); });
}

} // namespace

template <class T, class Op>
void combineMatrices(Op op, MatrixCall& c)
{
    if (!c.isTransposedA) return combineAsRows<T>(op, c);
    areMatricesStreamed<T>(c) ? combineStreaming<T>(op, c) : combineInTiles<T>(op, c);
}

template <class T>
void transposeMatrices(const MatrixCall& c)
{
    struct None // no operation
    {
    };
    if (areMatricesStreamed<T>(c))
        streamCall(c, c.d.step, [](const MatrixCall& part) { combineTransposed<Second::None, T>(None{}, part); });
    else
        combineTransposed<Second::None, T>(None{}, c);
}

template void combineMatrices<float32, Plus>(Plus, MatrixCall&);
template void combineMatrices<float64, Plus>(Plus, MatrixCall&);
template void combineMatrices<float32, Minus>(Minus, MatrixCall&);
template void combineMatrices<float64, Minus>(Minus, MatrixCall&);
template void combineMatrices<float32, MinusFrom>(MinusFrom, MatrixCall&);
template void combineMatrices<float64, MinusFrom>(MinusFrom, MatrixCall&);
template void combineMatrices<float32, Times>(Times, MatrixCall&);
template void combineMatrices<float64, Times>(Times, MatrixCall&);
template void transposeMatrices<uint32_t>(const MatrixCall&);
template void transposeMatrices<uint64_t>(const MatrixCall&);

} // namespace zepm::ZEPM_LEVEL
