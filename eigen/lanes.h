// Numbers of a group of objects, one object in each lane of a few registers.
#pragma once

#include "eigen/numbers.h"

namespace zepm::ZEPM_LEVEL
{

template <class T>
struct IntegerOf
{
    using type = int32;
};
template <>
struct IntegerOf<float64>
{
    using type = int64_t;
};

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
struct Mask
{
    using Part = Vec<typename IntegerOf<T>::type, lanes<T>>;
    Part part[Registers];

    Mask() = default;
    ZEPM_INLINE Mask(const Mask& other) { copyParts(part, other.part); }
    ZEPM_INLINE Mask& operator=(const Mask& other)
    {
        copyParts(part, other.part);
        return *this;
    }
};

// Several registers hide the latency of square roots and divisions behind each other.
template <class T, int Registers>
struct Lanes
{
    static constexpr int count = Registers * lanes<T>;
    using Part = Vec<T, lanes<T>>;
    Part part[Registers];

    Lanes() = default;
    ZEPM_INLINE Lanes(T x)
    {
        ZEPM_UNROLL
        for (int r = 0; r < Registers; ++r) part[r] = broadcast<T, lanes<T>>(x);
    }
    ZEPM_INLINE Lanes(const Lanes& other) { copyParts(part, other.part); }
    ZEPM_INLINE Lanes& operator=(const Lanes& other)
    {
        copyParts(part, other.part);
        return *this;
    }
    ZEPM_INLINE explicit Lanes(int32 index) : Lanes(static_cast<T>(index)) {}
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
ZEPM_INLINE Lanes<T, R> operator+(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Lanes<T, R>>([](auto x, auto y) ZEPM_INLINED { return x + y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> operator-(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Lanes<T, R>>([](auto x, auto y) ZEPM_INLINED { return x - y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> operator*(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Lanes<T, R>>([](auto x, auto y) ZEPM_INLINED { return x * y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> operator/(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Lanes<T, R>>([](auto x, auto y) ZEPM_INLINED { return x / y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> operator-(const Lanes<T, R>& a)
{
    return inParts<Lanes<T, R>>([](auto x) ZEPM_INLINED { return -x; }, a);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator>(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Mask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x > y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator>=(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Mask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x >= y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator==(const Lanes<T, R>& a, const Lanes<T, R>& b)
{
    return inParts<Mask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x == y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator&(const Mask<T, R>& a, const Mask<T, R>& b)
{
    return inParts<Mask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x & y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator|(const Mask<T, R>& a, const Mask<T, R>& b)
{
    return inParts<Mask<T, R>>([](auto x, auto y) ZEPM_INLINED { return x | y; }, a, b);
}
template <class T, int R>
ZEPM_INLINE Mask<T, R> operator!(const Mask<T, R>& a)
{
    return inParts<Mask<T, R>>([](auto x) ZEPM_INLINED { return ~x; }, a);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> select(const Mask<T, R>& mask, const Lanes<T, R>& yes, const Lanes<T, R>& no)
{
    return inParts<Lanes<T, R>>([](auto m, auto x, auto y) ZEPM_INLINED { return m ? x : y; }, mask, yes, no);
}

// ---- What the vector types have no spelling for ---------------------------------------------------------------------

#if defined(__AVX512F__)
// All lanes: the unmasked form of GCC 12 warns of an operand that it leaves undefined.
ZEPM_INLINE auto squareRootOf(__m512 x) { return _mm512_maskz_sqrt_ps(static_cast<__mmask16>(-1), x); }
ZEPM_INLINE auto squareRootOf(__m512d x) { return _mm512_maskz_sqrt_pd(static_cast<__mmask8>(-1), x); }
ZEPM_INLINE auto narrowed(__m512d x) { return _mm512_maskz_cvtpd_ps(static_cast<__mmask8>(-1), x); }
ZEPM_INLINE auto widened(__m256 x) { return _mm512_maskz_cvtps_pd(static_cast<__mmask8>(-1), x); }
ZEPM_INLINE bool anySign(__m512 x) { return _mm512_movepi32_mask(_mm512_castps_si512(x)) != 0; }
ZEPM_INLINE bool anySign(__m512d x) { return _mm512_movepi64_mask(_mm512_castpd_si512(x)) != 0; }
#elif defined(__AVX2__)
ZEPM_INLINE auto squareRootOf(__m256 x) { return _mm256_sqrt_ps(x); }
ZEPM_INLINE auto squareRootOf(__m256d x) { return _mm256_sqrt_pd(x); }
ZEPM_INLINE auto narrowed(__m256d x) { return _mm256_cvtpd_ps(x); }
ZEPM_INLINE auto widened(__m128 x) { return _mm256_cvtps_pd(x); }
ZEPM_INLINE bool anySign(__m256 x) { return _mm256_movemask_ps(x) != 0; }
ZEPM_INLINE bool anySign(__m256d x) { return _mm256_movemask_pd(x) != 0; }
#else
ZEPM_INLINE auto squareRootOf(__m128 x) { return _mm_sqrt_ps(x); }
ZEPM_INLINE auto squareRootOf(__m128d x) { return _mm_sqrt_pd(x); }
ZEPM_INLINE auto narrowed(__m128d x) { return _mm_cvtpd_ps(x); }
ZEPM_INLINE auto widened(__m128 x) { return _mm_cvtps_pd(x); }
ZEPM_INLINE bool anySign(__m128 x) { return _mm_movemask_ps(x) != 0; }
ZEPM_INLINE bool anySign(__m128d x) { return _mm_movemask_pd(x) != 0; }
#endif

// The compiler's own names for registers of T.
template <class T>
struct RegisterOf
{
    typedef T type __attribute__((vector_size(registerBytes), may_alias));
};

template <class T, int R>
ZEPM_INLINE Lanes<T, R> squareRoot(const Lanes<T, R>& a)
{
    return inParts<Lanes<T, R>>(
        [](auto x) ZEPM_INLINED { return Vec<T, lanes<T>>(squareRootOf(typename RegisterOf<T>::type(x))); }, a);
}
template <int R>
ZEPM_INLINE Lanes<float64, R> asFloat32(const Lanes<float64, R>& a)
{
    return inParts<Lanes<float64, R>>(
        [](auto x) ZEPM_INLINED { return widened(narrowed(RegisterOf<float64>::type(x))); }, a);
}
template <class T, int R>
ZEPM_INLINE Lanes<T, R> magnitude(const Lanes<T, R>& a)
{
    using Integer = typename IntegerOf<T>::type;
    return inParts<Lanes<T, R>>(
        [](auto x) ZEPM_INLINED {
            using Bits = Vec<Integer, lanes<T>>;
            constexpr Integer allButSign = static_cast<Integer>(~(Integer{1} << (8 * sizeof(T) - 1)));
            return Vec<T, lanes<T>>(Bits(x) & broadcast<Integer, lanes<T>>(allButSign));
        },
        a);
}
template <class T, int R>
ZEPM_INLINE bool any(const Mask<T, R>& mask)
{
    auto together = mask.part[0];
    ZEPM_UNROLL
    for (int r = 1; r < R; ++r) together = together | mask.part[r];
    return anySign(typename RegisterOf<T>::type(together));
}
template <class N, class T, int R, class Body>
ZEPM_INLINE void atIndex(N n, int32 from, int32 to, const Lanes<T, R>& index, Body body)
{
    ascend(n, from, to, [&](int32 i) ZEPM_INLINED { body(index == Lanes<T, R>(i), i); });
}

} // namespace zepm::ZEPM_LEVEL

namespace zepm
{

template <class T, int R>
struct NumberTraits<ZEPM_LEVEL::Lanes<T, R>>
{
    using Mask = ZEPM_LEVEL::Mask<T, R>;
    using Index = ZEPM_LEVEL::Lanes<T, R>;
};

} // namespace zepm
