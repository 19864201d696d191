// Groups of symmetric matrices of small order, one in each lane: compiled for each instruction-set level from
// symmetric_level.cpp.
#pragma once

#include "frame/levels.h"
#include "frame/places.h"

namespace zepm
{

// The orders that go in groups.
inline constexpr int32 smallestGroupOrder = 3, largestGroupOrder = largestPlacedOrder;

struct SymmetricCall
{
    Places src, vectors;
    char* values;
    int32 order;
};

// solve(call, k, size) solves objects k to k + size - 1, at most size of them; if one fails, it writes nothing and
// returns false.
struct SymmetricGroupSolver
{
    int32 size;
    bool (*solve)(const SymmetricCall& call, int32 k, int32 size);
};

ZEPM_EACH_LEVEL(template <class T, bool WithVectors> SymmetricGroupSolver symmetricGroupSolver(int32 order);)

} // namespace zepm
