// Objects of any layout for an algorithm on groups: where each element lies, told once a call, so that what moves the
// elements need not know the layout.
#pragma once

#include "frame/numbers.h"

namespace zepm
{

inline constexpr int32 largestPlacedOrder = 12;

// Element ij of object k of an operand is at element[ij] + object(k). One of the two is an address, the other a
// distance.
struct Places
{
    uintptr_t element[largestPlacedOrder * largestPlacedOrder];
    const char* table; // of objects, or null
    uintptr_t first, stride0;

    ZEPM_INLINE uintptr_t object(int32 k) const
    {
        if (table) return load<uintptr_t>(table + static_cast<size_t>(k) * sizeof(char*)) + first;
        return first + static_cast<uintptr_t>(k) * stride0;
    }
};

// Of n by n matrices.
template <class T>
ZEPM_INLINE Places placesOf(const StridedBlock<T, true, 2>& block, int32 n)
{
    Places places;
    for (int32 i = 0; i < n; ++i)
        for (int32 j = 0; j < n; ++j)
            places.element[i * n + j] = static_cast<uintptr_t>(i * static_cast<ptrdiff_t>(block.stride1) +
                                                               j * static_cast<ptrdiff_t>(block.stride2));
    places.table = nullptr;
    places.first = reinterpret_cast<uintptr_t>(block.p);
    places.stride0 = static_cast<uintptr_t>(block.stride0);
    return places;
}
template <class T>
ZEPM_INLINE Places placesOf(const ListBlock<T, 2>& block, int32 n)
{
    Places places = placesOf(StridedBlock<T, true, 2>{nullptr, 0, block.stride1, block.stride2}, n);
    places.table = reinterpret_cast<const char*>(block.pp);
    places.first = static_cast<uintptr_t>(block.roiShift);
    return places;
}
template <class T>
ZEPM_INLINE Places placesOf(const TableBlock<T, true>& block, int32 n)
{
    Places places;
    for (int32 ij = 0; ij < n * n; ++ij) places.element[ij] = reinterpret_cast<uintptr_t>(block.pp[ij]);
    places.table = nullptr;
    places.first = static_cast<uintptr_t>(block.roiShift + block.shareOffset);
    places.stride0 = static_cast<uintptr_t>(block.stride0);
    return places;
}

} // namespace zepm

namespace zepm::ZEPM_LEVEL
{

// One element of all objects of a group, from elements of T, which may be wider in the calculation.
template <class T, class Wide, int R>
ZEPM_INLINE void gatherNumbers(Numbers<Wide, R>& x, uintptr_t element,
                               const uintptr_t (&objects)[Numbers<Wide, R>::count])
{
    constexpr int N = lanes<Wide>;
    ZEPM_UNROLL
    for (int r = 0; r < R; ++r)
    {
        const auto at = [&](int lane) ZEPM_INLINED {
            return load<T>(reinterpret_cast<const char*>(element + objects[r * N + lane]));
        };
        if constexpr (std::is_same_v<T, Wide>)
            x.part[r] = eachLane<Wide, N>(at);
        else
            x.part[r] = [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
            {
                return widened(Narrowed{at(Lane)...});
            }
        (std::make_integer_sequence<int, N>{});
    }
}

// The same as elements of T, those of one lane after the other.
template <class T, class Wide, int R>
ZEPM_INLINE void storeNumbers(T* to, const Numbers<Wide, R>& x)
{
    constexpr int N = lanes<Wide>;
    ZEPM_UNROLL
    for (int r = 0; r < R; ++r)
    {
        if constexpr (std::is_same_v<T, Wide>)
        {
            storeVec<T, N>(reinterpret_cast<char*>(to + r * N), x.part[r]);
        }
        else
        {
            const auto narrow = narrowed(x.part[r]);
            __builtin_memcpy(to + r * N, &narrow, N * sizeof(T));
        }
    }
}

} // namespace zepm::ZEPM_LEVEL
