// Drivers: the objects of an array in contiguous shares, one for each thread, each share through the serial kernel.
//
// A driver stays serial with one thread or with fewer objects than threads. An argument struct X gives share(first, n),
// the same call on objects first to first + n - 1, and where they apply:
//
//   canFail               the kernel's status counts: the first one not stsOk that a thread brings stands
//   scratchPerThread()    bytes that a kernel needs at pBuffer; the caller's buffer serves one thread only
#pragma once

#include "frame/enter.h"
#include "zepcore.h"

#include <cfenv>
#include <omp.h>

namespace zepm
{

struct Share
{
    int32 first;
    int32 count;
};

// Thread tid's share of count objects: the first count % numThreads threads take one more.
inline Share shareOf(int32 tid, int32 quotient, int32 remainder)
{
    if (tid < remainder) return {tid * (quotient + 1), quotient + 1};
    return {(tid - remainder) * quotient + remainder * (quotient + 1), quotient};
}

template <class X>
concept CanFail = requires
{
    requires X::canFail;
};
template <class X>
concept NeedsScratch = requires(const X& x)
{
    x.scratchPerThread();
};

// One region over all objects. scratch, where the kernel needs it, holds one part for each thread.
template <class X>
Status forkShares(const X& x, KernelOf<X>* kernel, int32 numThreads, [[maybe_unused]] char* scratch)
{
    Status status = stsOk;
    fenv_t caller;
    fegetenv(&caller);
#pragma omp parallel num_threads(numThreads) default(none) shared(x, kernel, scratch, status, caller)
    {
        // The rounding mode, and what becomes of subnormal numbers, are the caller's in every thread.
        fenv_t former;
        fegetenv(&former);
        fesetenv(&caller);
        // Fewer threads may be delivered than were asked for, so each works out its share inside.
        const int32 delivered = omp_get_num_threads(), tid = omp_get_thread_num();
        const Share own = shareOf(tid, x.count / delivered, x.count % delivered);
        X part = x.share(own.first, own.count);
        if constexpr (NeedsScratch<X>) part.pBuffer = scratch + static_cast<size_t>(tid) * x.scratchPerThread();
        const Status result = kernel(part);
        if constexpr (CanFail<X>)
        {
            if (result != stsOk)
            {
#pragma omp critical
                if (status == stsOk) status = result;
            }
        }
        else
        {
            static_cast<void>(result);
        }
        fesetenv(&former);
    }
    return status;
}

template <class X>
Status shareObjects(const X& x, KernelOf<X>* kernel)
{
    const int32 numThreads = ownGetNumThreads();
    if (numThreads <= 1 || x.count < numThreads) return kernel(x);
    if constexpr (NeedsScratch<X>)
    {
        size_t bytes = 0;
        const bool fits = !__builtin_mul_overflow(static_cast<size_t>(numThreads), x.scratchPerThread(), &bytes);
        char* const scratch = fits ? static_cast<char*>(omp_alloc(bytes, omp_default_mem_alloc)) : nullptr;
        if (!scratch) return kernel(x); // with the caller's own buffer
        const Status status = forkShares(x, kernel, numThreads, scratch);
        omp_free(scratch, omp_default_mem_alloc);
        return status;
    }
    else
    {
        return forkShares(x, kernel, numThreads, nullptr);
    }
}

template <class X>
Status shareObjects(const X& x, KernelOf<X>* packed, KernelOf<X>* general)
{
    return shareObjects(x, isPacked(x) ? packed : general);
}

} // namespace zepm
