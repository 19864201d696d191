// The arithmetic in which an algorithm is written once for one object and for a group of objects, one in each lane.
//
// A number is float32, float64, a register (Vec) or several (Numbers); comparing two gives a mask, bool or all bits of
// each lane. A branch is then a choice by select or a write under a mask, and a loop goes on while any lane needs it.
// All of it is always inlined, so that it needs no namespace for each instruction-set level.
#pragma once

#include "frame/machine.h"
#include "frame/written.h"

namespace zepm
{

// ---- One object: scalars, and jumps ---------------------------------------------------------------------------------

ZEPM_INLINE float32 squareRoot(float32 x) { return __builtin_sqrtf(x); }
ZEPM_INLINE float64 squareRoot(float64 x) { return __builtin_sqrt(x); }
ZEPM_INLINE float32 magnitude(float32 x) { return __builtin_fabsf(x); }
ZEPM_INLINE float64 magnitude(float64 x) { return __builtin_fabs(x); }
ZEPM_INLINE bool any(bool mask) { return mask; }
ZEPM_INLINE bool butNot(bool a, bool b) { return a && !b; }
template <class Number>
ZEPM_INLINE Number select(bool mask, Number yes, Number no)
{
    return mask ? yes : no;
}
// x and y change places where the mask says so.
template <class Number>
ZEPM_INLINE void exchange(bool mask, Number& x, Number& y)
{
    if (!mask) return;
    const Number former = x;
    x = y;
    y = former;
}
// Calls the body where index has a value of from, from + 1 ... to - 1, with that value.
ZEPM_INLINE void atIndex(int32, int32 from, int32 to, int32 index, auto body)
{
    if (index >= from && index < to) body(true, index);
}

// ---- One object in each lane of a register --------------------------------------------------------------------------

template <class V>
concept Register = !std::is_class_v<V> && !std::is_scalar_v<V> && requires(V x)
{
    x[0];
};

template <class T>
using IntOf = std::conditional_t<sizeof(T) == 4, int32, int64_t>;

template <Register V>
ZEPM_INLINE V squareRoot(V x)
{
    return ZEPM_LEVEL::squareRootOf(x);
}
template <Register V>
ZEPM_INLINE V magnitude(V x)
{
    using Bits = decltype(x < x);
    using Int = IntOf<decltype(+x[0])>;
    constexpr Int allButSign = static_cast<Int>(~(Int{1} << (8 * sizeof(Int) - 1)));
    return reinterpret_cast<V>(reinterpret_cast<Bits>(x) & allButSign);
}
template <Register M>
ZEPM_INLINE bool any(M mask)
{
    return ZEPM_LEVEL::anyOf(mask);
}
template <Register M>
ZEPM_INLINE M butNot(M a, M b)
{
    return a & ~b;
}
template <Register M, Register V>
ZEPM_INLINE V select(M mask, V yes, V no)
{
    // Without an instruction that compares lanes of 8 bytes GCC fails over a mask that it cannot trace back.
    if constexpr (ZEPM_LEVEL::registerBytes == 16 && sizeof(yes[0]) == 8)
        return reinterpret_cast<V>((mask & reinterpret_cast<M>(yes)) | (~mask & reinterpret_cast<M>(no)));
    else
        return mask ? yes : no;
}
template <Register M, Register V>
ZEPM_INLINE void exchange(M mask, V& x, V& y)
{
    if constexpr (ZEPM_LEVEL::registerBytes == 16) // without an instruction that selects
    {
        const M difference = mask & (reinterpret_cast<M>(x) ^ reinterpret_cast<M>(y));
        x = reinterpret_cast<V>(reinterpret_cast<M>(x) ^ difference);
        y = reinterpret_cast<V>(reinterpret_cast<M>(y) ^ difference);
    }
    else
    {
        const V former = x;
        x = mask ? y : x;
        y = mask ? former : y;
    }
}

// The result of a comparison of numbers of T in W lanes; one lane is a scalar.
template <class T, int W>
using MaskOf = std::conditional_t<W == 1, bool, ZEPM_LEVEL::Vec<IntOf<T>, W>>;

} // namespace zepm

// ---- One object in each lane of several registers -------------------------------------------------------------------
//
// Several registers hide the latency of square roots and divisions behind each other.

namespace zepm::ZEPM_LEVEL
{

// Register by register: as a block of bytes the compilers copy it in pieces, on which the next load of a whole register
// would wait.
template <class Part, int Registers>
ZEPM_INLINE void copyParts(Part (&to)[Registers], const Part (&from)[Registers])
{
    ZEPM_UNROLL
    for (int r = 0; r < Registers; ++r) to[r] = from[r];
}

// All bits of a lane are set or clear.
template <class T, int Registers>
struct NumbersMask
{
    using Part = Vec<IntOf<T>, lanes<T>>;
    Part part[Registers];

    NumbersMask() = default;
    ZEPM_INLINE NumbersMask(const NumbersMask& other) { copyParts(part, other.part); }
    ZEPM_INLINE NumbersMask& operator=(const NumbersMask& other)
    {
        copyParts(part, other.part);
        return *this;
    }
};

template <class T, int Registers>
struct Numbers
{
    static constexpr int count = Registers * lanes<T>;
    using Part = Vec<T, lanes<T>>;
    Part part[Registers];

    Numbers() = default;
    ZEPM_INLINE Numbers(T x)
    {
        ZEPM_UNROLL
        for (int r = 0; r < Registers; ++r) part[r] = broadcast<T, lanes<T>>(x);
    }
    ZEPM_INLINE Numbers(const Numbers& other) { copyParts(part, other.part); }
    ZEPM_INLINE Numbers& operator=(const Numbers& other)
    {
        copyParts(part, other.part);
        return *this;
    }
    ZEPM_INLINE explicit Numbers(int32 index) : Numbers(static_cast<T>(index)) {}
};

template <class Result, class F, class... Operand>
ZEPM_INLINE Result inParts(F f, const Operand&... operands)
{
    Result result;
    ZEPM_UNROLL
    for (int r = 0; r < static_cast<int>(sizeof result.part / sizeof result.part[0]); ++r)
        result.part[r] = typename Result::Part(f(operands.part[r]...));
    return result;
}

template <class T, int R>
ZEPM_INLINE Numbers<T, R> operator+(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<Numbers<T, R>>([](auto x, auto y) ZEPM_INLINED { return x + y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Numbers<T, R> operator-(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<Numbers<T, R>>([](auto x, auto y) ZEPM_INLINED { return x - y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Numbers<T, R> operator*(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<Numbers<T, R>>([](auto x, auto y) ZEPM_INLINED { return x * y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Numbers<T, R> operator/(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<Numbers<T, R>>([](auto x, auto y) ZEPM_INLINED { return x / y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Numbers<T, R> operator-(const Numbers<T, R>& a)
{
    return inParts<Numbers<T, R>>([](auto x) ZEPM_INLINED { return -x; }, a);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator>(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<NumbersMask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x > y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator>=(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<NumbersMask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x >= y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator==(const Numbers<T, R>& a, const Numbers<T, R>& b)
{
    return inParts<NumbersMask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x == y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator&(const NumbersMask<T, R>& a, const NumbersMask<T, R>& b)
{
    return inParts<NumbersMask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x & y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator|(const NumbersMask<T, R>& a, const NumbersMask<T, R>& b)
{
    return inParts<NumbersMask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x | y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE NumbersMask<T, R> operator!(const NumbersMask<T, R>& a)
{
    return inParts<NumbersMask<T, R>>([](auto x) ZEPM_INLINED { return ~x; }, a);
}
} // namespace zepm::ZEPM_LEVEL

namespace zepm
{

template <class T, int R>
ZEPM_INLINE ZEPM_LEVEL::Numbers<T, R> select(const ZEPM_LEVEL::NumbersMask<T, R>& mask,
                                             const ZEPM_LEVEL::Numbers<T, R>& yes, const ZEPM_LEVEL::Numbers<T, R>& no)
{
    return ZEPM_LEVEL::inParts<ZEPM_LEVEL::Numbers<T, R>>(
        [](auto m, auto x, auto y) ZEPM_INLINED { return select(m, x, y); }, mask, yes, no);
}
template <class T, int R>
ZEPM_INLINE ZEPM_LEVEL::Numbers<T, R> squareRoot(const ZEPM_LEVEL::Numbers<T, R>& a)
{
    return ZEPM_LEVEL::inParts<ZEPM_LEVEL::Numbers<T, R>>([](auto x) ZEPM_INLINED { return squareRoot(x); }, a);
}
template <class T, int R>
ZEPM_INLINE ZEPM_LEVEL::Numbers<T, R> magnitude(const ZEPM_LEVEL::Numbers<T, R>& a)
{
    return ZEPM_LEVEL::inParts<ZEPM_LEVEL::Numbers<T, R>>([](auto x) ZEPM_INLINED { return magnitude(x); }, a);
}
template <int R>
ZEPM_INLINE ZEPM_LEVEL::Numbers<float64, R> asFloat32(const ZEPM_LEVEL::Numbers<float64, R>& a)
{
    return ZEPM_LEVEL::inParts<ZEPM_LEVEL::Numbers<float64, R>>(
        [](auto x) ZEPM_INLINED { return ZEPM_LEVEL::widened(ZEPM_LEVEL::narrowed(x)); }, a);
}
template <class T, int R>
ZEPM_INLINE bool any(const ZEPM_LEVEL::NumbersMask<T, R>& mask)
{
    auto together = mask.part[0];
    ZEPM_UNROLL
    for (int r = 1; r < R; ++r) together = together | mask.part[r];
    return any(together);
}
template <class N, class T, int R, class Body>
ZEPM_INLINE void atIndex(N n, int32 from, int32 to, const ZEPM_LEVEL::Numbers<T, R>& index, Body body)
{
    ascend(n, from, to, [&](int32 i) ZEPM_INLINED { body(index == ZEPM_LEVEL::Numbers<T, R>(i), i); });
}

// What goes with a type of numbers: its masks, and the number of an element, for each object its own.
template <class Number>
struct NumberTraits
{
    using Mask = bool;
    using Index = int32;
};
template <class T, int R>
struct NumberTraits<ZEPM_LEVEL::Numbers<T, R>>
{
    using Mask = ZEPM_LEVEL::NumbersMask<T, R>;
    using Index = ZEPM_LEVEL::Numbers<T, R>;
};

} // namespace zepm
