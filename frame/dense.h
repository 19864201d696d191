// Vectors of two or three floats without gaps between memory and registers: N vectors, element j of all of them in
// x[j].
#pragma once

#include "frame/quads.h"

namespace zepm::ZEPM_LEVEL
{

// Group g takes vectors 4 * g to 4 * g + 3, its lanes of Size registers.
struct Dense
{
    template <int Size, int N>
    ZEPM_INLINE void load(const char* p, Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[Size];
        ZEPM_UNROLL
        for (int i = 0; i < Size; ++i)
            r[i] = gathered<N>([&](int g) ZEPM_INLINED { return loadVec<float32, 4>(p + (g * Size + i) * 16); });
        if constexpr (Size == 2)
        {
            x[0] = shuffled<N, 0, 2, 0, 2>(r[0], r[1]);
            x[1] = shuffled<N, 1, 3, 1, 3>(r[0], r[1]);
        }
        else // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
        {
            const Lanes<N> xy23 = shuffled<N, 2, 3, 1, 2>(r[1], r[2]), yz01 = shuffled<N, 1, 2, 0, 1>(r[0], r[1]);
            x[0] = shuffled<N, 0, 3, 0, 2>(r[0], xy23);
            x[1] = shuffled<N, 0, 2, 1, 3>(yz01, xy23);
            x[2] = shuffled<N, 1, 3, 0, 3>(yz01, r[2]);
        }
    }

    // Streams stores past the caches, to a multiple of 16.
    template <int Size, int N, bool Streams = false>
    ZEPM_INLINE void store(char* p, const Lanes<N> (&x)[Size]) const
    {
        Lanes<N> r[Size];
        if constexpr (Size == 2)
        {
            r[0] = interleaved<N, 0>(x[0], x[1]);
            r[1] = interleaved<N, 1>(x[0], x[1]);
        }
        else
        {
            const Lanes<N> x02y02 = shuffled<N, 0, 2, 0, 2>(x[0], x[1]), y13z13 = shuffled<N, 1, 3, 1, 3>(x[1], x[2]);
            const Lanes<N> z02x13 = shuffled<N, 0, 2, 1, 3>(x[2], x[0]);
            r[0] = shuffled<N, 0, 2, 0, 2>(x02y02, z02x13);
            r[1] = shuffled<N, 0, 2, 1, 3>(y13z13, x02y02);
            r[2] = shuffled<N, 1, 3, 1, 3>(z02x13, y13z13);
        }
        ZEPM_UNROLL
        for (int i = 0; i < Size; ++i)
            scattered<N>(r[i], [&](int g, Lanes<4> row) ZEPM_INLINED {
                char* const to = p + (g * Size + i) * 16;
                Streams ? streamPieces<float32, 4>(to, row) : storeVec<float32, 4>(to, row);
            });
    }
};

} // namespace zepm::ZEPM_LEVEL
