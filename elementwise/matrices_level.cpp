// Element-wise calls on matrices with contiguous rows: as rows wherever no source is transposed, else in tiles. Each
// result element is one operation on its own two elements, which are read before it is written.
#include "elementwise/row.h"
#include "elementwise/rows.h"
#include "elementwise/tile.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Rows -----------------------------------------------------------------------------------------------------------

// An operand object by object; a fixed one is never a list.
struct Objects
{
    const char* p;
    ptrdiff_t step, shift;
    bool isList;
    ZEPM_INLINE Objects(const MatrixCall& c, const RowOperand& operand)
        : p(operand.p),
          step(operand.isFixed ? 0
               : c.isList      ? static_cast<ptrdiff_t>(sizeof(char*))
                               : operand.stride),
          shift(operand.stride),
          isList(c.isList && !operand.isFixed)
    {
    }
    ZEPM_INLINE const char* at() const { return isList ? load<const char*>(p) + shift : p; }
    ZEPM_INLINE void next() { p += step; }
};

// Whether f is true of the operands that have rows.
template <class F>
ZEPM_INLINE bool ofRows(const MatrixCall& c, F f)
{
    return f(c.a) && (c.isConstant || f(c.b)) && f(c.d);
}

// The rows of one object as if each were an object.
ZEPM_INLINE RowOperand rowByRow(const RowOperand& operand, const char* p) { return {p, operand.rowStride, false, 0}; }

// Row i of the objects from k on.
ZEPM_INLINE RowOperand rowOfEach(const RowOperand& operand, bool isList, ptrdiff_t k, ptrdiff_t i)
{
    const ptrdiff_t toRow = i * operand.rowStride;
    if (operand.isFixed) return {operand.p + toRow, 0, true, 0};
    if (isList) return {operand.p + k * static_cast<ptrdiff_t>(sizeof(char*)), operand.stride + toRow, false, 0};
    return {operand.p + k * operand.stride + toRow, operand.stride, false, 0};
}

// Gapped rows: either all rows of one object after the other, or row i of as many objects as stay in the first cache
// until their next row.
template <class Op, class T>
[[gnu::noinline]] void combineGapped(const MatrixCall& c)
{
    constexpr ptrdiff_t blockBytes = 8192;
    const ptrdiff_t block = blockBytes / (c.width * c.height * sz<T>);
    if (block < c.height)
    {
        Objects a(c, c.a), b(c, c.b), d(c, c.d);
        for (ptrdiff_t k = 0; k < c.count; ++k)
        {
            ZEPM_LEVEL::combineRows<Op, T>({rowByRow(c.a, a.at()), c.isConstant ? c.b : rowByRow(c.b, b.at()),
                                            rowByRow(c.d, d.at()), c.isConstant, false, c.width, c.height});
            a.next(), b.next(), d.next();
        }
        return;
    }
    for (ptrdiff_t k = 0; k < c.count; k += block)
        for (ptrdiff_t i = 0; i < c.height; ++i)
            ZEPM_LEVEL::combineRows<Op, T>({rowOfEach(c.a, c.isList, k, i), rowOfEach(c.b, c.isList, k, i),
                                            rowOfEach(c.d, c.isList, k, i), c.isConstant, c.isList, c.width,
                                            c.count - k < block ? c.count - k : block});
}

template <class Op, class T>
ZEPM_INLINE void combineAsRows(const MatrixCall& c)
{
    RowCall rows = c;
    if (ofRows(c, [&](const RowOperand& x) { return x.rowStride == c.width * sz<T>; }))
    {
        rows.width *= c.height;
        return ZEPM_LEVEL::combineRows<Op, T>(rows);
    }
    // The rows of all objects in one sequence.
    if (!c.isList && ofRows(c, [&](const RowOperand& x) {
            return c.count == 1 || (!x.isFixed && x.stride == c.height * x.rowStride);
        }))
    {
        rows.a = rowByRow(c.a, c.a.p);
        if (!c.isConstant) rows.b = rowByRow(c.b, c.b.p);
        rows.d = rowByRow(c.d, c.d.p);
        rows.count *= c.height;
        return ZEPM_LEVEL::combineRows<Op, T>(rows);
    }
    combineGapped<Op, T>(c);
}

// ---- Tiles ----------------------------------------------------------------------------------------------------------

enum class Second
{
    Normal,
    Transposed,
    Constant
};

// One object's operands, the first source transposed.
template <Second second, class T, class Op>
struct Tiles
{
    Op op;
    const char *a, *b;
    char* d;
    ptrdiff_t aRow, bRow, dRow;
    T constant;

    // Rows x Columns results at (i, j), through a tile of N x N elements.
    template <int N, int Rows, int Columns>
    ZEPM_INLINE void tile(ptrdiff_t i, ptrdiff_t j) const
    {
        Vec<T, N> x[N] = {};
        forEachIndex<Columns>([&]<int C>() __attribute__((always_inline)) {
            x[C] = loadPart<T, N, Rows>(a + (j + C) * aRow + i * sz<T>);
            if constexpr (second == Second::Transposed)
                x[C] = op(x[C], loadPart<T, N, Rows>(b + (j + C) * bRow + i * sz<T>));
            if constexpr (second == Second::Constant) x[C] = op(x[C], broadcast<T, N>(constant));
        });
        transpose<T, N>(x);
        forEachIndex<Rows>([&]<int R>() __attribute__((always_inline)) {
            if constexpr (second == Second::Normal)
                x[R] = op(x[R], loadPart<T, N, Columns>(b + (i + R) * bRow + j * sz<T>));
            storePart<T, N, Columns>(d + (i + R) * dRow + j * sz<T>, x[R]);
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

// Registers of four elements serve orders 3 to 6 best.
template <class T>
inline constexpr int smallTile = lanes<T> < 4 ? lanes<T> : 4;

template <int Order, Second second, class T, class Op>
[[gnu::noinline]] void tilesOfEach(Op op, const MatrixCall& c)
{
    Objects a(c, c.a), b(c, c.b), d(c, c.d);
    Tiles<second, T, Op> object{op, nullptr, nullptr, nullptr, c.a.rowStride, c.b.rowStride, c.d.rowStride, T{}};
    if constexpr (second == Second::Constant) object.constant = load<T>(c.b.p);
    const ptrdiff_t count = c.count, width = c.width, height = c.height;
    for (ptrdiff_t k = 0; k < count; ++k)
    {
        object.a = a.at(), object.b = b.at(), object.d = const_cast<char*>(d.at());
        if constexpr (Order > 0)
            object.template square<Order, smallTile<T>>();
        else
            object.template region<lanes<T>>(0, height, 0, width);
        a.next(), b.next(), d.next();
    }
}

// ---- Dense matrices of few elements ---------------------------------------------------------------------------------

// The registers that hold a dense matrix whole, but for a last element that transposition leaves in its place: one or
// two of N elements, or none.
template <class T, int Order>
struct Whole
{
    static constexpr int size = Order * Order / 2 * 2;
    static constexpr int N = size <= lanes<T> ? size : lanes<T>;
    static constexpr bool fits = Order <= 4 && size % N == 0 && size / N <= 2 && N >= 4;

    // Lane l of register R of the transpose.
    template <int R>
    struct Place
    {
        constexpr int operator()(int lane) const { return (R * N + lane) % Order * Order + (R * N + lane) / Order; }
    };
};

// Successive objects in S, without gaps or with any distance from object to object.
template <int Order, Second second, class T, class Op>
[[gnu::noinline]] void wholeOfEach(Op op, const MatrixCall& c)
{
    using Matrix = Whole<T, Order>;
    constexpr int N = Matrix::N, registers = Matrix::size / N;
    const char *a = c.a.p, *b = c.b.p;
    char* d = const_cast<char*>(c.d.p);
    const ptrdiff_t aStep = c.a.isFixed ? 0 : c.a.stride, bStep = c.b.isFixed ? 0 : c.b.stride, dStep = c.d.stride;
    T constant{};
    if constexpr (second == Second::Constant) constant = load<T>(b);
    for (ptrdiff_t count = c.count; count > 0; --count)
    {
        Vec<T, N> x[2] = {};
        forEachIndex<registers>([&]<int R>() __attribute__((always_inline)) {
            x[R] = loadVec<T, N>(a + R * N * sz<T>);
            if constexpr (second == Second::Transposed) x[R] = op(x[R], loadVec<T, N>(b + R * N * sz<T>));
            if constexpr (second == Second::Constant) x[R] = op(x[R], broadcast<T, N>(constant));
        });
        const Vec<T, N> high = registers == 2 ? x[1] : x[0];
        forEachIndex<registers>([&]<int R>() __attribute__((always_inline)) {
            Vec<T, N> y = shuffle<T, N>(x[0], high, typename Matrix::template Place<R>{});
            if constexpr (second == Second::Normal) y = op(y, loadVec<T, N>(b + R * N * sz<T>));
            storeVec<T, N>(d + R * N * sz<T>, y);
        });
        if constexpr (Matrix::size < Order * Order)
        {
            constexpr ptrdiff_t last = Matrix::size * sz<T>;
            T y = constant;
            if constexpr (second != Second::Constant) y = load<T>(b + last);
            store<T>(d + last, op(load<T>(a + last), y));
        }
        a += aStep, b += bStep, d += dStep;
    }
}

template <int Order, Second second, class T, class Op>
ZEPM_INLINE void squareOfEach(Op op, const MatrixCall& c)
{
    if constexpr (Whole<T, Order>::fits)
    {
        if (!c.isList && ofRows(c, [](const RowOperand& x) { return x.rowStride == Order * sz<T>; }))
            return wholeOfEach<Order, second, T>(op, c);
    }
    tilesOfEach<Order, second, T>(op, c);
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
    default: return tilesOfEach<0, second, T>(op, c);
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
    const RowOperand to{copy, 0, true, rowSize};
    const RowOperand constant{reinterpret_cast<const char*>(&unused), 0, true, 0};
    combineTransposed<Second::Constant, T>(First{},
                                           {{c.a, constant, to, true, false, c.width, 1}, c.height, true, false});
    combineAsRows<Op, T>({{to, c.b, c.d, false, c.isList, c.width, c.count}, c.height, false, false});
}

// Which sources an operation may have besides a transposed first one. A single transposed source stands first, and is
// the minuend or not.
template <class Op>
inline constexpr bool takesConstant = std::is_same_v<Op, Times>;
template <class Op>
inline constexpr bool takesTransposed = !takesConstant<Op> && !std::is_same_v<Op, MinusFrom>;

} // namespace

template <class Op, class T>
void combineMatrices(const MatrixCall& c)
{
    if (!c.isTransposedA) return combineAsRows<Op, T>(c);
    if constexpr (takesConstant<Op>)
    {
        combineTransposed<Second::Constant, T>(Op{}, c);
    }
    else
    {
        if constexpr (takesTransposed<Op>)
        {
            if (c.isTransposedB) return combineTransposed<Second::Transposed, T>(Op{}, c);
        }
        if (c.a.isFixed && c.count > 1 && c.width * c.height <= copiedBytes / sz<T>) return combineWithCopy<Op, T>(c);
        combineTransposed<Second::Normal, T>(Op{}, c);
    }
}

template void combineMatrices<Plus, float32>(const MatrixCall&);
template void combineMatrices<Plus, float64>(const MatrixCall&);
template void combineMatrices<Minus, float32>(const MatrixCall&);
template void combineMatrices<Minus, float64>(const MatrixCall&);
template void combineMatrices<MinusFrom, float32>(const MatrixCall&);
template void combineMatrices<MinusFrom, float64>(const MatrixCall&);
template void combineMatrices<Times, float32>(const MatrixCall&);
template void combineMatrices<Times, float64>(const MatrixCall&);

} // namespace zepm::ZEPM_LEVEL
