// Element-wise calls on contiguous rows, the wide code of the packed kernels: compiled for each instruction-set level
// from rows_level.cpp.
#pragma once

#include "elementwise/operations.h"
#include "frame/levels.h"

namespace zepm
{

// Where the rows of one operand lie: object k at p + k * stride0 or, in a list, at entry k of the table p plus stride0.
// A fixed operand, the same for every object, is never a list.
struct RowOperand
{
    const char* p;
    ptrdiff_t stride0;
    ptrdiff_t stride1;
    bool isFixed;
};

// d = op(a, b) on count objects of height rows of width elements.
struct RowCall
{
    RowOperand a, b;
    RowOperand d;
    bool isConstant; // b is one element for each object (stride0), or one for all (fixed)
    bool isList;
    ptrdiff_t width, height, count;
};

#define ZEPM_DECLARE_LEVEL(level)                                                                                      \
    namespace level                                                                                                    \
    {                                                                                                                  \
    template <class Op, class T>                                                                                       \
    void combineRows(const RowCall& call);                                                                             \
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

} // namespace zepm
