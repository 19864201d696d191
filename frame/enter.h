// The road from an exported function to its kernel: validation in the function's own order, the choice between the
// packed and the general kernel, and the limit above which the driver takes the call.
//
// An argument struct X gives operands(f), which calls f with each of its blocks in turn and says whether f was true of
// all; sizesValid(), unless no step asks; in arrays count, estimate(), weight() and share(first, n); where sizes must
// fit each other sizesMatch(). See parallel.h for canFail and scratch.
#pragma once

#include "frame/settings.h"

namespace zepm
{

struct AnyOperand
{
    ZEPM_INLINE bool operator()(const auto&) const { return true; }
};

template <class X>
concept Call = requires(const X& x)
{
    requires std::is_same_v<decltype(x.operands(AnyOperand{})), bool>;
};
template <class X>
concept ArrayCall = Call<X> && requires(const X& x, int32 n)
{
    requires std::is_same_v<decltype(x.count + 0), int32>;
    requires std::is_same_v<decltype(x.estimate()), int32>;
    requires std::is_same_v<decltype(x.weight()), int32>;
    requires std::is_same_v<decltype(x.share(n, n)), X>;
};

// The packed case: the elements of every operand that has strides are contiguous.
template <Call X>
ZEPM_INLINE bool isPacked(const X& x)
{
    return x.operands([](const auto& block) { return block.contiguous(); });
}

// ---- Validation steps -----------------------------------------------------------------------------------------------

struct Pointers
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.operands([](const auto& block) { return !block.isNull(); }) ? stsOk : stsNullPtrErr;
    }
};

struct Count
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.count >= 1 ? stsOk : stsCountErr;
    }
};

struct Sizes
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.sizesValid() ? stsOk : stsSizeErr;
    }
};

struct Strides
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.operands([](const auto& block) { return block.stridesValid(); }) ? stsOk : stsStrideErr;
    }
};

// The strides of the named operands alone: StridesOf<&X::val, &X::dst>.
template <auto... Operands>
struct StridesOf
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return (... && (x.*Operands).stridesValid()) ? stsOk : stsStrideErr;
    }
};

struct RoiShifts
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.operands([](const auto& block) { return block.shiftValid(); }) ? stsOk : stsRoiShiftErr;
    }
};

struct SizeMatch
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        return x.sizesMatch() ? stsOk : stsSizeMatchErr;
    }
};

// The steps of a function in its order; the first that fails decides.
template <class... Steps>
struct order
{
    template <class X>
    ZEPM_INLINE static Status check(const X& x)
    {
        Status status = stsOk;
        static_cast<void>((... && ((status = Steps::check(x)) == stsOk)));
        return status;
    }
};

// ---- Work -----------------------------------------------------------------------------------------------------------

// A work estimate as the limits are compared with it: it wraps in 32 bits, and one that wraps negative stays serial.
class Work
{
public:
    ZEPM_INLINE Work(int32 elements) : bits(static_cast<uint32_t>(elements)) {}
    ZEPM_INLINE int32 estimate() const { return static_cast<int32>(bits); }
    ZEPM_INLINE friend Work operator+(Work a, Work b) { return Work(a.bits + b.bits); }
    ZEPM_INLINE friend Work operator*(Work a, Work b) { return Work(a.bits * b.bits); }

private:
    ZEPM_INLINE explicit Work(uint32_t wrapped) : bits(wrapped) {}
    uint32_t bits;
};

// The smallest estimate that takes the driver, for packed and for general operands.
template <int32 Packed, int32 General = Packed>
struct parallelFrom
{
    static constexpr int32 packed = Packed;
    static constexpr int32 general = General;
};

// ---- The choice of path ---------------------------------------------------------------------------------------------

// Kernels and drivers by their argument struct: KernelOf<CombineVv<float32, S>> ownAdd_vv_32f_Packed;
template <class X>
using KernelOf = Status(const X&);

// Whether a call is the driver's: from its own limit on, unless it takes less time than repays a fork. weight() is the
// time for an element of the estimate, in elements of an element-wise call.
template <int32 Limit, class X>
ZEPM_INLINE bool isHeavy(const X& x)
{
    const int32 work = x.estimate();
    return work >= Limit && static_cast<int64_t>(work) * x.weight() >= minParallelWork();
}

// Arrays in S and L.
template <ArrayCall X, class Order, class Limits>
ZEPM_INLINE Status enter(const X& x, Order, Limits, KernelOf<X>* packed, KernelOf<X>* general, KernelOf<X>* driver)
{
    if (const Status invalid = Order::check(x)) return invalid;
    if (isPacked(x)) return isHeavy<Limits::packed>(x) ? driver(x) : packed(x);
    return isHeavy<Limits::general>(x) ? driver(x) : general(x);
}

// Arrays in P, and families with one kernel.
template <ArrayCall X, class Order, class Limits>
ZEPM_INLINE Status enter(const X& x, Order, Limits, KernelOf<X>* kernel, KernelOf<X>* driver)
{
    if (const Status invalid = Order::check(x)) return invalid;
    return isHeavy<Limits::general>(x) ? driver(x) : kernel(x);
}

// Forms that are always serial.
template <Call X, class Order>
ZEPM_INLINE Status enter(const X& x, Order, KernelOf<X>* packed, KernelOf<X>* general)
{
    if (const Status invalid = Order::check(x)) return invalid;
    return isPacked(x) ? packed(x) : general(x);
}

template <Call X, class Order>
ZEPM_INLINE Status enter(const X& x, Order, KernelOf<X>* kernel)
{
    if (const Status invalid = Order::check(x)) return invalid;
    return kernel(x);
}

// ---- Calls in good order --------------------------------------------------------------------------------------------
//
// For a short call the tests one by one and an argument struct in memory take longer than the arithmetic. serve(x) asks
// by a few combined tests whether a call is in good order and has the operands that most calls have; if so, it serves
// the call with the operands in registers and returns true. All other calls take the road above. serve must be false
// wherever a step of validation fails or the driver is to be entered.

template <class X, class... Road>
[[gnu::noinline]] Status enterStored(const X& x, Road... road)
{
    return enter(x, road...);
}

template <Call X, class Serve, class... Road>
ZEPM_INLINE Status enterQuick(const X& x, Serve serve, Road... road)
{
    if (serve(x)) return stsOk;
    const X stored = x; // so that x itself need not be in memory
    return enterStored<X, Road...>(stored, road...);
}

// No bit is set if all of these are equal to the first.
template <class... Value>
ZEPM_INLINE uint32_t differences(int32 first, Value... others)
{
    return (0u | ... | (static_cast<uint32_t>(first) ^ static_cast<uint32_t>(others)));
}

// Whether no operand's pointer is null and none has gaps, with rows of so many elements.
template <Call X>
ZEPM_INLINE bool isDense(const X& x, int32 rowLength)
{
    uint32_t gaps = 0;
    bool isNull = false;
    x.operands([&](const auto& block) ZEPM_INLINED {
        gaps |= block.gaps(rowLength);
        isNull |= block.isNull();
        return true;
    });
    return gaps == 0 && !isNull;
}

// ---- Arrays whose kernel is a loop over the kernel of one object ----------------------------------------------------

// x.object<One>(k) is the call on object k alone. The first object that fails ends the loop.
template <class X, class One>
ZEPM_INLINE Status forEachObject(const X& x, KernelOf<One>& kernel)
{
    for (int32 k = 0; k < x.count; ++k)
        if (const Status status = kernel(x.template object<One>(k))) return status;
    return stsOk;
}

} // namespace zepm
