// The argument struct of the functions that move objects, and their own steps of validation.
//
// Elements are bits here, uint32_t or uint64_t: a move as a floating-point number could quiet a signalling NaN.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// ---- Elements as bits -----------------------------------------------------------------------------------------------

template <class T>
using BitsOf = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;

ZEPM_INLINE const uint32_t* bits(const float32* p) { return reinterpret_cast<const uint32_t*>(p); }
ZEPM_INLINE const uint64_t* bits(const float64* p) { return reinterpret_cast<const uint64_t*>(p); }
ZEPM_INLINE uint32_t* bits(float32* p) { return reinterpret_cast<uint32_t*>(p); }
ZEPM_INLINE uint64_t* bits(float64* p) { return reinterpret_cast<uint64_t*>(p); }

// Tables of pointers.
ZEPM_INLINE const uint32_t* const* bits(const float32* const* pp)
{
    return reinterpret_cast<const uint32_t* const*>(pp);
}
ZEPM_INLINE const uint64_t* const* bits(const float64* const* pp)
{
    return reinterpret_cast<const uint64_t* const*>(pp);
}
ZEPM_INLINE uint32_t* const* bits(float32* const* pp) { return reinterpret_cast<uint32_t* const*>(pp); }
ZEPM_INLINE uint64_t* const* bits(float64* const* pp) { return reinterpret_cast<uint64_t* const*>(pp); }

// ---- The argument structs -------------------------------------------------------------------------------------------

// d(i, j) = s(i, j) for each object. The sizes are those of the result.
template <int Rank, class Src, class Dst>
struct Moving
{
    static constexpr int rank = Rank;
    Src src;
    Dst dst;
    int32 width, height, count;

    ZEPM_INLINE Moving(Src s, Dst d, int32 len, int32 n = 1) requires(Rank == 1)
        : src(s), dst(d), width(len), height(1), count(n)
    {
    }
    ZEPM_INLINE Moving(Src s, Dst d, int32 columns, int32 rows, int32 n = 1) requires(Rank == 2)
        : src(s), dst(d), width(columns), height(rows), count(n)
    {
    }
    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return width >= 1 && height >= 1; }
};

template <class T, class From, class To>
using CopyVa = Moving<1, va<const BitsOf<T>, From>, va<BitsOf<T>, To>>;
template <class T, class From, class To>
using CopyMa = Moving<2, ma<const BitsOf<T>, From>, ma<BitsOf<T>, To>>;

template <class T, class Y>
using ExtractV = Moving<1, v<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;
template <class T, class Y>
using ExtractM = Moving<2, m<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;
template <class T, class Y>
using ExtractT = Moving<2, t<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;
template <class T, class Y>
using ExtractVa = Moving<1, va<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;
template <class T, class Y>
using ExtractMa = Moving<2, ma<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;
template <class T, class Y>
using ExtractTa = Moving<2, ta<const BitsOf<T>, Y>, DenseBlock<BitsOf<T>>>;

template <class T, class Y>
using TransposeM = Moving<2, t<const BitsOf<T>, Y>, m<BitsOf<T>, Y>>;
template <class T, class Y>
using TransposeMa = Moving<2, ta<const BitsOf<T>, Y>, ma<BitsOf<T>, Y>>;

// d(i, j) = 1 where i is j, else 0.
template <class T, class Y>
struct IdentityMa
{
    ma<BitsOf<T>, Y> dst;
    int32 width, height, count;

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(dst);
    }
    ZEPM_INLINE bool sizesValid() const { return width >= 1 && height >= 1; }
};

// ---- Steps of validation --------------------------------------------------------------------------------------------

// The strides within an object alone.
struct InnerStrides
{
    template <class T, bool IsArray, int Rank>
    ZEPM_INLINE static bool valid(const StridedBlock<T, IsArray, Rank>& block)
    {
        return (Rank < 2 || validStride<T>(block.stride1)) && validStride<T>(block.stride2);
    }
    template <class T, int Rank>
    ZEPM_INLINE static bool valid(const ListBlock<T, Rank>& block)
    {
        return block.stridesValid();
    }
    template <class T>
    ZEPM_INLINE static bool valid(const TableBlock<T, true>&)
    {
        return true;
    }
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.operands([](const auto& block) { return valid(block); }) ? stsOk : stsStrideErr;
    }
};

// The strides between objects, where there is more than one.
struct ObjectStrides
{
    template <class T, int Rank>
    ZEPM_INLINE static bool valid(const StridedBlock<T, true, Rank>& block)
    {
        return validStride<T>(block.stride0);
    }
    template <class T, int Rank>
    ZEPM_INLINE static bool valid(const ListBlock<T, Rank>&)
    {
        return true;
    }
    template <class T>
    ZEPM_INLINE static bool valid(const TableBlock<T, true>& block)
    {
        return block.stridesValid();
    }
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.count == 1 || x.operands([](const auto& block) { return valid(block); }) ? stsOk : stsStrideErr;
    }
};

} // namespace zepm
