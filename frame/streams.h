// Dense results larger than the caches are stored past them, which saves reading the destination first.
#pragma once

#include "frame/lanes.h"
#include "zepcore.h"

namespace zepm::ZEPM_LEVEL
{

[[gnu::noinline]] inline bool exceedCaches(ptrdiff_t bytes, int operands)
{
    int32 cacheSize = 0;
    zepGetMaxCacheSizeB(&cacheSize);
    return cacheSize > 0 && bytes > cacheSize / operands;
}

// The least bytes of a destination for which it is worth asking.
inline constexpr ptrdiff_t leastStreamed = 1 << 22;

// Whether a destination of so many bytes, with the sources read for each of its bytes, is beyond the largest cache.
ZEPM_INLINE bool isBeyondCaches(ptrdiff_t bytes, int sources)
{
    return bytes >= leastStreamed && exceedCaches(bytes, 1 + sources);
}

// Copies past the caches. What shares its cache line with other bytes goes through them.
[[gnu::noinline]] inline void streamCopy(char* to, const char* from, ptrdiff_t bytes)
{
    constexpr ptrdiff_t line = 64;
    const ptrdiff_t toLine = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(to) % line);
    const ptrdiff_t head = toLine < bytes ? toLine : bytes, lines = (bytes - head) / line * line;
    __builtin_memcpy(to, from, static_cast<size_t>(head));
    for (ptrdiff_t i = head; i < head + lines; i += registerBytes)
        streamVec<float32>(to + i, loadVec<float32, lanes<float32>>(from + i));
    __builtin_memcpy(to + head + lines, from + head + lines, static_cast<size_t>(bytes - head - lines));
}

// The most bytes of one object for which it is worth it.
inline constexpr ptrdiff_t streamedObject = 512;

// count objects of size bytes each, side by side from d on: compute(first, n, to) writes n of them to memory that stays
// in the nearest cache. Small chunks let the stores of one drain while the next is computed.
template <class Compute>
ZEPM_INLINE void streamObjects(char* d, ptrdiff_t size, ptrdiff_t count, Compute compute)
{
    alignas(64) char chunk[8 * streamedObject];
    const ptrdiff_t fitting = static_cast<ptrdiff_t>(sizeof chunk) / size;
    const ptrdiff_t most = fitting < 16 ? fitting : fitting / 16 * 16; // then whole registers, and cache lines
    for (ptrdiff_t k = 0; k < count; k += most)
    {
        const ptrdiff_t n = count - k < most ? count - k : most;
        compute(k, n, chunk);
        streamCopy(d + k * size, chunk, n * size);
    }
    fenceStreams();
}

} // namespace zepm::ZEPM_LEVEL
