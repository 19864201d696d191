// Element-wise calls on contiguous rows, the wide code of the packed kernels: compiled for each instruction-set level
// from rows_level.cpp.
#pragma once

#include "elementwise/operations.h"
#include "frame/levels.h"

namespace zepm
{

// What the sources of a call give to each object: a row or a constant of its own, or one for all.
enum class Sources
{
    RowsAndRows,
    RowsAndOneRow,
    RowsAndConstants,
    RowsAndOneConstant,
    OneRowAndConstants
};

// Where the rows of one operand lie, those of object k from p + k * stride on or, in a list, from entry k of the table
// p plus stride. An operand that is the same for every object has the stride fixed, and is never a list.
struct RowOperand
{
    static constexpr ptrdiff_t fixed = -1;
    const char* p;
    ptrdiff_t stride;

    ZEPM_INLINE bool isFixed() const { return stride < 0; }
    ZEPM_INLINE ptrdiff_t toNext() const { return isFixed() ? 0 : stride; }
};

// d = op(a, b) on count objects of one row of width elements. One row for all stands second, unless with constants.
struct RowCall
{
    RowOperand a, b, d;
    bool isConstant; // b is one element for each object, or a fixed one for all
    bool isList;
    ptrdiff_t width, count;
};

// The same on objects of several rows, which lie a row stride from each other. A transposed source is stored as width
// rows of height elements.
struct MatrixCall : RowCall
{
    ptrdiff_t height;
    ptrdiff_t rowStrideA, rowStrideB, rowStrideD;
    bool isTransposedA, isTransposedB;
};

// combineDense takes rows of which each begins where the one before ends, constants likewise. Its arguments stay in
// registers: a short dense call takes about a cycle a result, and storing an argument struct would be a tenth of it.
ZEPM_EACH_LEVEL(template <class Op, class T> void combineDense(const char* a, const char* b, char* d, ptrdiff_t width,
                                                               ptrdiff_t count, Sources sources);
                template <class Op, class T> void combineRows(const RowCall& call);
                template <class Op, class T> void combineMatrices(MatrixCall& call);)

} // namespace zepm
