// Products of matrices with contiguous rows, the wide code of the packed kernels: compiled for each instruction-set
// level from the multiply_*_level.cpp.
#pragma once

#include "frame/levels.h"
#include "frame/sequence.h"

namespace zepm
{

// The matrices of one operand, whose rows are stride1 apart.
struct MatrixSequence : Sequence
{
    ptrdiff_t stride1;
};

// d = a * b on count objects: rows of cols sums over inner products.
struct ProductCall
{
    MatrixSequence a, b, d;
    bool isList;
    ptrdiff_t count;
    int32 order; // of all sizes, 3 to 6, with sums from the first product; 0: sums from zero
    int32 rows, inner, cols;
    int32 firstInPairs; // the rows from here on sum even and odd products apart
};

ZEPM_EACH_LEVEL(template <class T, bool Transposes1, bool Transposes2> void multiplyMatrices(const ProductCall& call);)

} // namespace zepm
