// The least work for which the cheap families fork threads.
#include "zepcore.h"

#include <atomic>

namespace
{

// On two threads the fastest element-wise calls (dense float32 operands in the caches, about 15 elements read or
// written in a nanosecond) break even at 60,000 to 90,000 elements: a region costs 2 to 3 microseconds where the other
// processor is idle. The rest is margin for slower ones (bench/fork_bench).
constexpr int32 breakEvenWork = 200000;

std::atomic<int32> minParallelWork{breakEvenWork};

} // namespace

int32 ownGetMinParallelWork(void) { return minParallelWork.load(std::memory_order_relaxed); }

Status zepSetMinParallelWork(int32 elements)
{
    if (elements < 0) return stsSizeErr;
    minParallelWork = elements;
    return stsOk;
}
