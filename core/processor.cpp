// What the processor offers: its instruction-set level and its caches.
#include "zepcore.h"

#include <atomic>
#include <initializer_list>
#include <limits>
#include <unistd.h>

namespace
{

int32 highestCpuLevel()
{
    __builtin_cpu_init();
    const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
                        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
    if (__builtin_cpu_supports("avx2")) return avx512 ? 2 : 1;
    return 0;
}

// Read once: each query of a cache size executes cpuid, which a virtual machine traps.
int32 largestCacheSize()
{
    long largest = 0;
    for (const int level :
         {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE})
    {
        const long size = sysconf(level);
        if (size > largest) largest = size;
    }
    constexpr long limit = std::numeric_limits<int32>::max();
    return static_cast<int32>(largest < limit ? largest : limit);
}

const int32 cpuLevelMax = highestCpuLevel();
const int32 cacheSizeMax = largestCacheSize();
std::atomic<int32> cpuLevel{cpuLevelMax};

} // namespace

int32 ownGetCpuLevel(void) { return cpuLevel.load(std::memory_order_relaxed); }

Status zepSetCpuLevel(int32 level)
{
    if (level < 0 || level > cpuLevelMax) return stsSizeErr;
    cpuLevel = level;
    return stsOk;
}

Status zepGetMaxCacheSizeB(int32* pSizeByte)
{
    if (!pSizeByte) return stsNullPtrErr;
    *pSizeByte = cacheSizeMax;
    return stsOk;
}
