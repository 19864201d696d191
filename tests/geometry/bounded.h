// A number in extended precision with a bound on how far a float32 evaluation of the same formula may be from it.
#pragma once

#include <cmath>
#include <limits>

namespace geometry
{

class Bounded
{
public:
    Bounded(double exact = 0) : value(exact) {}
    Bounded(long double v, long double e) : value(v), error(e) {}

    // The result of one float32 operation on operands that bring the given error with them.
    static Bounded rounded(long double v, long double propagated)
    {
        constexpr long double unit = 0x1.001p-24L, tiny = 0x1p-149L;
        return {v, propagated + unit * (std::fabs(v) + propagated) + tiny};
    }
    bool admits(float x) const
    {
        return !(error < std::numeric_limits<long double>::infinity()) || std::fabs(x - value) <= error;
    }

    friend Bounded operator+(Bounded a, Bounded b) { return rounded(a.value + b.value, a.error + b.error); }
    friend Bounded operator-(Bounded a, Bounded b) { return rounded(a.value - b.value, a.error + b.error); }
    friend Bounded operator-(Bounded a) { return {-a.value, a.error}; }
    friend Bounded operator*(Bounded a, Bounded b)
    {
        return rounded(a.value * b.value,
                       std::fabs(a.value) * b.error + std::fabs(b.value) * a.error + a.error * b.error);
    }
    friend Bounded operator/(Bounded a, Bounded b)
    {
        const long double least = std::fabs(b.value) - b.error, quotient = a.value / b.value;
        if (!(least > 0)) return {quotient, std::numeric_limits<long double>::infinity()};
        return rounded(quotient, (a.error + std::fabs(quotient) * b.error) / least);
    }
    friend Bounded root(Bounded a)
    {
        const long double result = std::sqrt(a.value);
        return rounded(result, result > 0 ? a.error / result : std::sqrt(a.error));
    }
    friend Bounded sine(Bounded a) { return rounded(std::sin(a.value), a.error); }
    friend Bounded cosine(Bounded a) { return rounded(std::cos(a.value), a.error); }
    // By a 12-bit estimate and one Newton step, which has three roundings of about the result's size.
    friend Bounded estimatedReciprocal(Bounded a)
    {
        const Bounded exact = Bounded(1) / a;
        constexpr long double estimate = 1.5L * 0x1p-12L;
        return {exact.value, exact.error + std::fabs(exact.value) * (estimate * estimate + 4 * 0x1p-24L)};
    }

    long double value, error = 0;
};

// The same functions of numbers: float64 routines, rounded once.
inline float root(float x) { return std::sqrt(x); }
inline float sine(float angle) { return static_cast<float>(std::sin(static_cast<double>(angle))); }
inline float cosine(float angle) { return static_cast<float>(std::cos(static_cast<double>(angle))); }

// Of the half angle of a projection: float32 routines.
inline Bounded shortSine(Bounded a) { return sine(a); }
inline Bounded shortCosine(Bounded a) { return cosine(a); }
inline float shortSine(float angle) { return std::sin(angle); }
inline float shortCosine(float angle) { return std::cos(angle); }

// A formula of three numbers evaluated in float64 and rounded.
template <class Formula>
float inDouble(Formula formula, float a, float b, float c)
{
    return static_cast<float>(formula(static_cast<double>(a), static_cast<double>(b), static_cast<double>(c)));
}
template <class Formula>
Bounded inDouble(Formula formula, Bounded a, Bounded b, Bounded c)
{
    return formula(a, b, c);
}

} // namespace geometry
