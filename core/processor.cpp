// What the processor offers: its instruction-set level and its caches.
#include "core/processor.h"

#include "zepcore.h"

#include <algorithm>
#include <cpuid.h>
#include <initializer_list>
#include <limits>
#include <unistd.h>

namespace zepcore
{

int32 highestCpuLevel()
{
    __builtin_cpu_init();
#ifdef ZEPM_WITHOUT_AVX512
    const bool avx512 = false;
#else
    const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
                        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
#endif
    if (__builtin_cpu_supports("avx2")) return avx512 ? 2 : 1;
    return 0;
}

} // namespace zepcore

namespace
{

// The caches as the processor itself lists them. (sysconf gives the third level of some processors as the sum over the
// package.) Read once: a virtual machine traps each cpuid.
int32 largestCacheSize()
{
    unsigned long long largest = 0;
    for (const unsigned leaf : {0x4u, 0x8000001du})
    {
        unsigned a = 0, b = 0, c = 0, d = 0;
        for (unsigned index = 0; index < 16 && __get_cpuid_count(leaf, index, &a, &b, &c, &d) && (a & 31) != 0; ++index)
        {
            const unsigned long long ways = (b >> 22) + 1, partitions = ((b >> 12) & 1023) + 1, line = (b & 4095) + 1;
            largest = std::max(largest, ways * partitions * line * (c + 1ull));
        }
    }
    if (largest == 0)
    {
        for (const int level :
             {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE})
            largest = std::max(largest, static_cast<unsigned long long>(std::max(sysconf(level), 0L)));
    }
    constexpr unsigned long long limit = std::numeric_limits<int32>::max();
    return static_cast<int32>(std::min(largest, limit));
}

const int32 cacheSizeMax = largestCacheSize();

} // namespace

Status zepGetMaxCacheSizeB(int32* pSizeByte)
{
    if (!pSizeByte) return stsNullPtrErr;
    *pSizeByte = cacheSizeMax;
    return stsOk;
}
