// The settings that every call reads: the instruction-set level in force and the least work worth a fork.
#include "core/processor.h"
#include "zepcore.h"

#include <cstdlib>
#include <strings.h>

namespace
{

// On two threads the fastest element-wise calls (dense float32 operands in the caches, about 15 elements read or
// written in a nanosecond) break even at 60,000 to 90,000 elements: a region costs 2 to 3 microseconds where the other
// processor is idle. The rest is margin for slower ones (bench/fork_bench).
constexpr int32 breakEvenWork = 200000;

// Where idle threads sleep at once, a region has to wake them, which takes some ten times as long.
constexpr int32 breakEvenWorkPassive = 10 * breakEvenWork;

int32 defaultMinParallelWork()
{
    const char* const policy = std::getenv("OMP_WAIT_POLICY");
    return policy && strcasecmp(policy, "passive") == 0 ? breakEvenWorkPassive : breakEvenWork;
}

const int32 cpuLevelMax = zepcore::highestCpuLevel();
OwnSettings settings{cpuLevelMax, defaultMinParallelWork()};

} // namespace

const OwnSettings* ownGetSettings(void) { return &settings; }

int32 ownGetCpuLevel(void) { return __atomic_load_n(&settings.cpuLevel, __ATOMIC_RELAXED); }

Status zepSetCpuLevel(int32 level)
{
    if (level < 0 || level > cpuLevelMax) return stsSizeErr;
    __atomic_store_n(&settings.cpuLevel, level, __ATOMIC_SEQ_CST);
    return stsOk;
}

int32 ownGetMinParallelWork(void) { return __atomic_load_n(&settings.minParallelWork, __ATOMIC_RELAXED); }

Status zepSetMinParallelWork(int32 elements)
{
    if (elements < 0) return stsSizeErr;
    __atomic_store_n(&settings.minParallelWork, elements, __ATOMIC_SEQ_CST);
    return stsOk;
}
