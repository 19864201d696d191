// Arrays of symmetric matrices of small order, one object per lane: compiled for each instruction-set level from
// symmetric_level.cpp.
#pragma once

#include "frame/levels.h"

namespace zepm
{

inline constexpr int32 smallestGroupOrder = 3, largestGroupOrder = 12;

// Where the elements of an operand's objects lie: element ij of object k at element[ij] + object(k), whatever the
// layout. One of the two is an address, the other a distance.
struct Places
{
    uintptr_t element[largestGroupOrder * largestGroupOrder];
    const char* table; // of objects, or null
    uintptr_t first, stride0;

    ZEPM_INLINE uintptr_t object(int32 k) const
    {
        if (table) return load<uintptr_t>(table + static_cast<size_t>(k) * sizeof(char*)) + first;
        return first + static_cast<uintptr_t>(k) * stride0;
    }
};

struct GroupCall
{
    Places src, vectors;
    char* values;
    int32 order;
};

// The most objects in a group at any level.
inline constexpr int32 mostInGroup = 32;

// Solves the objects from first on, group after group, up to the first group in which an object fails: of that group
// nothing is written. The result is the first object not solved.
ZEPM_EACH_LEVEL(template <class T, bool WithVectors>
                int32 solveGroups(const GroupCall& call, int32 first, int32 count);)

} // namespace zepm
