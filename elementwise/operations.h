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

// The first operand times a value, and the second.
template <class T>
struct ScaledPlus
{
    T val;
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a * val + b;
    }
};

// The same with the operands in the other order.
template <class T>
struct PlusScaled
{
    T val;
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return b * val + a;
    }
};

// Each operand times a value of its own.
template <class T>
struct WeightedSum
{
    T val1, val2;
    template <class V>
    ZEPM_INLINE V operator()(V a, V b) const
    {
        return a * val1 + b * val2;
    }
};

// The second operand of Times is a constant always: there is no function for the product element by element.
template <class Op>
inline constexpr bool takesConstantAlone = std::is_same_v<Op, Times>;

// Operations that carry values take no array of constants.
template <class Op>
inline constexpr bool takesConstantArrays = std::is_empty_v<Op>;

// The same operation with its operands in the other order.
ZEPM_INLINE Plus flipped(Plus) { return {}; }
ZEPM_INLINE MinusFrom flipped(Minus) { return {}; }
ZEPM_INLINE Minus flipped(MinusFrom) { return {}; }
ZEPM_INLINE Times flipped(Times) { return {}; }
template <class T>
ZEPM_INLINE PlusScaled<T> flipped(ScaledPlus<T> op)
{
    return {op.val};
}

} // namespace zepm
