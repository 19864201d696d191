// Products of matrices with contiguous rows, the wide code of the packed kernels: compiled for each instruction-set
// level from the multiply_*_level.cpp.
#pragma once

#include "frame/levels.h"

namespace zepm
{

// Where the matrices of one operand lie: object k at p + k * step or, in a list, at entry k of the table p plus step; a
// fixed operand, the same for every object, at p. Rows are stride1 apart.
struct MatrixOperand
{
    const char* p;
    ptrdiff_t step, stride1;
    bool isFixed;

    ZEPM_INLINE ptrdiff_t toNext() const { return isFixed ? 0 : step; }
};

// d = a * b on count objects: rows of cols sums over inner products.
struct ProductCall
{
    MatrixOperand a, b, d;
    bool isList;
    ptrdiff_t count;
    int32 order; // of all sizes, 3 to 6, with sums from the first product; 0: sums from zero
    int32 rows, inner, cols;
    int32 firstInPairs; // the rows from here on sum even and odd products apart
};

ZEPM_EACH_LEVEL(template <class T, bool Transposes1, bool Transposes2> void multiplyMatrices(const ProductCall& call);)

} // namespace zepm
