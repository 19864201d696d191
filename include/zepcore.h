/* zepcore.h: the process-wide settings that zepm reads: threads, instruction-set level, least work worth a fork.
 *
 *   threads      ownGetNumThreads, zepSetNumThreads
 *   processor    ownGetCpuLevel, zepSetCpuLevel, zepGetMaxCacheSizeB
 *   fork limit   ownGetMinParallelWork, zepSetMinParallelWork
 *
 * All functions may be called from any thread at any time. A setting takes effect with the next call that reads it.
 */
#ifndef ZEPCORE_H
#define ZEPCORE_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The number of threads that an array call may use, at least 1.
 *
 * Unless set, it is what OpenMP would use (OMP_NUM_THREADS and the processor affinity count), at most the processors
 * available. It is 1 inside an active parallel region, and 1 in a child forked by a process that had threads: OpenMP's
 * team does not survive the fork. */
int32 ownGetNumThreads(void);

/* Sets the number of threads. stsSizeErr if numThreads is below 1, above OpenMP's thread limit or above 16 for each
 * processor available; the setting is then unchanged. OpenMP ends the process if the system cannot give it a thread, as
 * where the address space has no room for another stack: the limit keeps away from that, but cannot rule it out. */
Status zepSetNumThreads(int32 numThreads);

/* The instruction-set level in force: 0 baseline (SSSE3), 1 AVX2, 2 AVX-512. Unless set, the highest that the processor
 * and the operating system support. Results are the same at every level. */
int32 ownGetCpuLevel(void);

/* Sets the level. stsSizeErr if it is below 0 or above what the processor has; the setting is then unchanged. */
Status zepSetCpuLevel(int32 level);

/* Writes the size in bytes of the largest processor cache, 0 if it is not known. stsNullPtrErr if pSizeByte is null. */
Status zepGetMaxCacheSizeB(int32* pSizeByte);

/* The least work for which an array call forks threads, in elements that an element-wise call reads and writes or in what
 * takes as long. Below it a call runs on the calling thread whatever its own limit says. Unless set, it is what repays
 * waking the threads, ten times as much where OpenMP was told to let them sleep (OMP_WAIT_POLICY=passive). */
int32 ownGetMinParallelWork(void);

/* Sets the least work; 0 leaves the limit of each function alone in force. stsSizeErr if elements is below 0; the
 * setting is then unchanged. */
Status zepSetMinParallelWork(int32 elements);

/* The settings as they stand, for what reads them so often that a call would tell: read a member with a relaxed atomic
 * load. The address stays the same and is valid for as long as the process runs. */
typedef struct OwnSettings
{
    int32 cpuLevel;        /* ownGetCpuLevel */
    int32 minParallelWork; /* ownGetMinParallelWork */
} OwnSettings;
const OwnSettings* ownGetSettings(void);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
