// Dense results larger than the caches are stored past them, which saves reading the destination first.
#pragma once

#include "frame/pieces.h"
#include "zepcore.h"

namespace zepm::ZEPM_LEVEL
{

[[gnu::noinline]] inline bool exceedCaches(ptrdiff_t bytes, int operands)
{
    int32 cacheSize = 0;
    zepGetMaxCacheSizeB(&cacheSize);
    return cacheSize > 0 && bytes > cacheSize / 4 * 3 / operands;
}

// The least bytes of a destination for which it is worth asking.
inline constexpr ptrdiff_t leastStreamed = 1 << 22;

// Whether a destination of this size and its sources together exceed three quarters of the largest cache.
ZEPM_INLINE bool isBeyondCaches(ptrdiff_t bytes, int sources)
{
    return bytes >= leastStreamed && exceedCaches(bytes, 1 + sources);
}

// Copies past the caches, calling ahead(i) for each line, i bytes from the start. What shares its cache line with other
// bytes goes through the caches.
template <class Ahead>
ZEPM_INLINE void streamCopy(char* to, const char* from, ptrdiff_t bytes, Ahead ahead)
{
    constexpr ptrdiff_t line = 64;
    const ptrdiff_t toLine = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(to) % line);
    const ptrdiff_t head = toLine < bytes ? toLine : bytes, lines = (bytes - head) / line * line;
    __builtin_memcpy(to, from, static_cast<size_t>(head));
    for (ptrdiff_t i = head; i < head + lines; i += line)
    {
        ahead(i);
        ZEPM_UNROLL
        for (ptrdiff_t j = i; j < i + line; j += registerBytes)
            streamVec<float32>(to + j, loadVec<float32, lanes<float32>>(from + j));
    }
    __builtin_memcpy(to + head + lines, from + head + lines, static_cast<size_t>(bytes - head - lines));
}

// Bytes computed into the buffer at a time. Matrices above streamedMatrix bytes are bound by arithmetic, not by memory.
inline constexpr ptrdiff_t streamedChunk = 4096, streamedMatrix = 512;

// How many chunks ahead the sources are fetched, besides the next one, which is on its way.
inline constexpr ptrdiff_t chunksAhead = 3;

// Fetches what lies some way ahead in a source, up to its end.
struct FetchedAhead
{
    static constexpr ptrdiff_t distance = 2048;
    const char* last;

    ZEPM_INLINE FetchedAhead(const char* p, ptrdiff_t bytes) : last(p + bytes - 1) {}
    ZEPM_INLINE void from(const char* p) const
    {
        const ptrdiff_t left = last - p;
        __builtin_prefetch(p + (left < distance ? left : distance));
    }
};

// A source of streamed objects: successive ones, or a fixed one with a step of 0.
struct StreamSource
{
    const char* p;
    ptrdiff_t step;
};

// count objects of size bytes each, side by side from d on: compute(first, n, to) writes n of them to memory that stays
// in the nearest caches. While they are stored past the caches, sources of later ones are fetched.
template <class Compute>
ZEPM_INLINE void streamObjects(char* d, ptrdiff_t size, ptrdiff_t count, StreamSource a, StreamSource b,
                               Compute compute)
{
    alignas(64) char chunk[streamedChunk];
    const ptrdiff_t fitting = streamedChunk / size;
    const ptrdiff_t most = fitting < 16 ? fitting : fitting / 16 * 16; // then whole registers, and cache lines
    for (ptrdiff_t k = 0; k < count; k += most)
    {
        const ptrdiff_t n = count - k < most ? count - k : most;
        compute(k, n, chunk);
        const ptrdiff_t ahead = k + n + chunksAhead * most, next = ahead < count ? ahead : 0;
        streamCopy(d + k * size, chunk, n * size, [&](ptrdiff_t i) ZEPM_INLINED {
            if (a.step) __builtin_prefetch(a.p + next * a.step + i);
            if (b.step) __builtin_prefetch(b.p + next * b.step + i);
        });
    }
    fenceStreams();
}

// The same of a call on operands a, b and d, in parts of it.
template <class Call, class Compute>
ZEPM_INLINE void streamCall(const Call& call, ptrdiff_t size, Compute compute)
{
    Call part = call;
    const ptrdiff_t stepA = call.a.toNext(), stepB = call.b.toNext();
    streamObjects(const_cast<char*>(call.d.p), size, call.count, {call.a.p, stepA}, {call.b.p, stepB},
                  [&](ptrdiff_t first, ptrdiff_t n, char* to) {
                      part.a.p = call.a.p + first * stepA, part.b.p = call.b.p + first * stepB, part.d.p = to;
                      part.count = n;
                      compute(part);
                  });
}

} // namespace zepm::ZEPM_LEVEL
