// Formulas over arrays of points: compiled for each instruction-set level from points_level.cpp.
#pragma once

#include "frame/levels.h"
#include "geometry/formulas.h"

namespace zepm
{

// Element j of point k lies at p + k * stride + j * elementStride.
template <class T>
struct PointArray
{
    T* p;
    ptrdiff_t stride;
    ptrdiff_t elementStride = sizeof(T);

    ZEPM_INLINE Bytes<T> at(ptrdiff_t k, int j = 0) const { return bytes(p) + k * stride + j * elementStride; }
};

ZEPM_EACH_LEVEL(template <class Formula> bool transformPointArray(const Formula& formula,
                                                                  const PointArray<const float32>& src,
                                                                  const PointArray<float32>& dst, ptrdiff_t count);)

// Whether the formula succeeded on all points. Where points overlap, as a walk from the first to the last gives it.
template <class Formula>
ZEPM_INLINE bool transformPoints(const Formula& formula, const PointArray<const float32>& src,
                                 const PointArray<float32>& dst, ptrdiff_t count)
{
    return ZEPM_AT_LEVEL(transformPointArray<Formula>)(formula, src, dst, count);
}

} // namespace zepm
