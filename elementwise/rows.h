// Element-wise calls on contiguous rows, the wide code of the packed kernels: compiled for each instruction-set level
// from rows_level.cpp.
#pragma once

#include "elementwise/operations.h"
#include "frame/levels.h"

namespace zepm
{

// Where the rows of one operand lie, those of object k from p + k * stride on or, in a list, from entry k of the table
// p plus stride. An operand that is the same for every object has the stride fixed, and is never a list.
struct RowOperand
{
    static constexpr ptrdiff_t fixed = -1;
    const char* p;
    ptrdiff_t stride;
    ptrdiff_t rowStride; // from row to row of one object

    ZEPM_INLINE bool isFixed() const { return stride < 0; }
    ZEPM_INLINE ptrdiff_t toNext() const { return isFixed() ? 0 : stride; }
};

// d = op(a, b) on count objects of one row of width elements.
struct RowCall
{
    RowOperand a, b, d;
    bool isConstant; // b is one element for each object, or a fixed one for all
    bool isList;
    ptrdiff_t width, count;
};

// The same on objects of several rows. A transposed source is stored as width rows of height elements.
struct MatrixCall : RowCall
{
    ptrdiff_t height;
    bool isTransposedA, isTransposedB;
};

#define ZEPM_DECLARE_LEVEL(level)                                                                                      \
    namespace level                                                                                                    \
    {                                                                                                                  \
    template <class Op, class T>                                                                                       \
    void combineRows(const RowCall& call);                                                                             \
    template <class Op, class T>                                                                                       \
    void combineMatrices(MatrixCall& call);                                                                            \
    }
ZEPM_DECLARE_LEVEL(ssse3)
ZEPM_DECLARE_LEVEL(avx2)
ZEPM_DECLARE_LEVEL(avx512)
#undef ZEPM_DECLARE_LEVEL

template <class Op, class T>
ZEPM_INLINE void combineRows(const RowCall& call)
{
    atLevel(ssse3::combineRows<Op, T>, avx2::combineRows<Op, T>, avx512::combineRows<Op, T>)(call);
}

template <class Op, class T>
ZEPM_INLINE void combineMatrices(MatrixCall call)
{
    atLevel(ssse3::combineMatrices<Op, T>, avx2::combineMatrices<Op, T>, avx512::combineMatrices<Op, T>)(call);
}

} // namespace zepm
