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

template <class Op, class T>
[[gnu::noinline]] void rowsOfEach(const MatrixCall& c)
{
    Objects a(c, c.a), b(c, c.b), d(c, c.d);
    for (ptrdiff_t k = 0; k < c.count; ++k)
    {
        ZEPM_LEVEL::combineRows<Op, T>({rowByRow(c.a, a.at()), c.isConstant ? c.b : rowByRow(c.b, b.at()),
                                        rowByRow(c.d, d.at()), c.isConstant, false, c.width, c.height});
        a.next(), b.next(), d.next();
    }
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
    rowsOfEach<Op, T>(c);
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
    T constant{};
    if constexpr (second == Second::Constant) constant = load<T>(c.b.p);
    for (ptrdiff_t k = 0; k < c.count; ++k)
    {
        const Tiles<second, T, Op> object{
            op, a.at(), b.at(), const_cast<char*>(d.at()), c.a.rowStride, c.b.rowStride, c.d.rowStride, constant};
        if constexpr (Order > 0)
            object.template square<Order, smallTile<T>>();
        else
            object.template region<lanes<T>>(0, c.height, 0, c.width);
        a.next(), b.next(), d.next();
    }
}

template <Second second, class T, class Op>
ZEPM_INLINE void combineTransposed(Op op, const MatrixCall& c)
{
    switch (c.width == c.height ? c.width : 0)
    {
    case 3: return tilesOfEach<3, second, T>(op, c);
    case 4: return tilesOfEach<4, second, T>(op, c);
    case 5: return tilesOfEach<5, second, T>(op, c);
    case 6: return tilesOfEach<6, second, T>(op, c);
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
