// Element-wise calls on contiguous rows, the wide code of the packed kernels: compiled for each instruction-set level
// from rows_level.cpp.
#pragma once

#include "elementwise/operations.h"
#include "frame/levels.h"
#include "frame/sequence.h"

namespace zepm
{

// What the two sources of a call are: a row or a constant for each object, or one row or constant for all objects.
enum class Sources
{
    RowsAndRows,
    RowsAndOneRow,
    RowsAndConstants,
    RowsAndOneConstant,
    OneRowAndConstants
};

// d = op(a, b) on count objects of one row of width elements. One row for all stands second, unless with constants.
struct RowCall
{
    Sequence a, b, d;
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

// transposeMatrices is d = a, a transposed, and no operation: elements are bits, and b, a constant, is not looked at.
//
// combineDense takes rows of which each begins where the one before ends, constants likewise. Its arguments stay in
// registers: a short dense call takes about a cycle a result, and storing an argument struct would be a tenth of it.
ZEPM_EACH_LEVEL(template <class T, class Op> void combineDense(Op op, const char* a, const char* b, char* d,
                                                               ptrdiff_t width, ptrdiff_t count, Sources sources);
                template <class T, class Op> void combineRows(Op op, const RowCall& call);
                template <class T, class Op> void combineMatrices(Op op, MatrixCall& call);
                template <class T> void transposeMatrices(const MatrixCall& call);)

} // namespace zepm
