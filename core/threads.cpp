// How many threads an array call may use.
#include "zepcore.h"

#include <atomic>
#include <omp.h>
#include <pthread.h>
#include <sys/single_threaded.h>

namespace
{

std::atomic<int32> numThreadsSet{0}; // 0: not set
std::atomic<bool> threadsAtFork{false};
std::atomic<bool> teamLost{false};

void noteThreads() { threadsAtFork = !__libc_single_threaded; }
void noteChild()
{
    if (threadsAtFork) teamLost = true;
}

// A child of fork has one thread, but libgomp still believes in its team and would wait for it for ever.
[[gnu::constructor]] void watchForks() { pthread_atfork(noteThreads, nullptr, noteChild); }

int32 defaultNumThreads()
{
    // The count of processors follows the affinity of the calling thread.
    const int32 wanted = omp_get_max_threads();
    const int32 available = omp_get_num_procs();
    return wanted < available ? wanted : available;
}

// The OpenMP runtime ends the process when the system refuses it a thread, so a setting stays far from that.
int32 mostThreads()
{
    constexpr int32 perProcessor = 16;
    const int32 limit = omp_get_thread_limit(), sensible = perProcessor * omp_get_num_procs();
    return limit < sensible ? limit : sensible;
}

} // namespace

int32 ownGetNumThreads(void)
{
    if (omp_in_parallel() || teamLost) return 1;
    const int32 set = numThreadsSet.load(std::memory_order_relaxed);
    return set > 0 ? set : defaultNumThreads();
}

Status zepSetNumThreads(int32 numThreads)
{
    if (numThreads < 1 || numThreads > mostThreads()) return stsSizeErr;
    numThreadsSet = numThreads;
    return stsOk;
}
