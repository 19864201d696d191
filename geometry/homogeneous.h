// zepmAffineTransform3DH_mva: its arguments, kernels and driver.
#pragma once

#include "frame/enter.h"

namespace zepm
{

struct Mva3DH
{
    static constexpr bool canFail = true;
    m<const float32, S> src1;
    va<const float32, S> src2;
    va<float32, S> dst;
    int32 count;

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src1) && f(src2) && f(dst);
    }
    // Three elements read, three written for each point.
    ZEPM_INLINE int32 estimate() const { return (Work(6) * count).estimate(); }
    ZEPM_INLINE static int32 weight() { return 2; }
    ZEPM_INLINE Mva3DH share(int32 first, int32 n) const { return {src1, src2.from(first), dst.from(first), n}; }
};

extern "C" {

KernelOf<Mva3DH> ownAffineTransform3DH_mva_32f_Packed, ownAffineTransform3DH_mva_32f_Strided,
    ownOMP_zepmAffineTransform3DH_mva_32f;
}

} // namespace zepm
