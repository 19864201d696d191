// Where the objects of an operand lie for a level source, whatever kernel called it, and a walk over them.
#pragma once

#include "frame/operands.h"

namespace zepm
{

// Object k of an operand lies at p + k * step or, in a list, at entry k of the table p plus step. An operand that is
// the same for every object has the step fixed, and is never a list.
struct Sequence
{
    static constexpr ptrdiff_t fixed = -1;
    const char* p;
    ptrdiff_t step;

    ZEPM_INLINE bool isFixed() const { return step < 0; }
    ZEPM_INLINE ptrdiff_t toNext() const { return isFixed() ? 0 : step; }
};

template <class T, bool IsArray, int Rank>
ZEPM_INLINE Sequence sequenceOf(const StridedBlock<T, IsArray, Rank>& block)
{
    return {bytes(block.p), IsArray ? block.stride0 : Sequence::fixed};
}
template <class T, int Rank>
ZEPM_INLINE Sequence sequenceOf(const ListBlock<T, Rank>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift};
}
template <class T>
ZEPM_INLINE Sequence sequenceOf(const ConstantBlock<T>& block)
{
    return {bytes(&block.val), Sequence::fixed};
}
template <class T>
ZEPM_INLINE Sequence sequenceOf(const ConstantArrayBlock<T>& block)
{
    return {bytes(block.p), block.stride0};
}
template <class T>
ZEPM_INLINE Sequence sequenceOf(const ConstantListBlock<T>& block)
{
    return {reinterpret_cast<const char*>(block.pp), block.roiShift};
}

// The objects one after another. Without MayBeList no operand of the call is a list, and nothing is asked.
template <bool MayBeList>
struct Walk
{
    const char* p;
    ptrdiff_t step, shift;
    bool isListed;

    ZEPM_INLINE Walk(const Sequence& objects, bool isList)
        : p(objects.p),
          step(objects.isFixed()     ? 0
               : MayBeList && isList ? static_cast<ptrdiff_t>(sizeof(char*))
                                     : objects.step),
          shift(objects.step),
          isListed(MayBeList && isList && !objects.isFixed())
    {
    }
    // The next object, or one some way ahead.
    ZEPM_INLINE const char* at(int ahead = 0) const
    {
        const char* const object = p + ahead * step;
        return isListed ? load<const char*>(object) + shift : object;
    }
    ZEPM_INLINE void advance(int objects = 1) { p += objects * step; }
};

} // namespace zepm
