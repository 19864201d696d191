// The least work for which the cheap families fork threads.
#include "zepcore.h"

#include <atomic>

namespace
{

// Measured break-even of two threads against one (bench/fork_bench): an element-wise call on operands in the first- and
// second-level caches handles about 10 elements in a nanosecond, and a region costs 1 to 17 microseconds.
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
