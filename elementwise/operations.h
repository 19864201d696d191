// The operations of the element-wise families, on elements and on vectors of them.
#pragma once

#include "frame/operands.h"

namespace zepm
{

struct Plus
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a + b;
    }
};

struct Minus
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a - b;
    }
};

// The second operand less the first: where the constant stands first in the name and second in the arguments. It is not
// the negative of Minus, which has another sign of zero.
struct MinusFrom
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return b - a;
    }
};

struct Times
{
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a * b;
    }
};

// The second operand of Times is a constant always: there is no function for the product element by element.
template <class Op>
inline constexpr bool takesConstantAlone = std::is_same_v<Op, Times>;

// The same operation with its operands in the other order.
ZEPM_INLINE Plus flipped(Plus) { return {}; }
ZEPM_INLINE MinusFrom flipped(Minus) { return {}; }
ZEPM_INLINE Minus flipped(MinusFrom) { return {}; }
ZEPM_INLINE Times flipped(Times) { return {}; }

} // namespace zepm
