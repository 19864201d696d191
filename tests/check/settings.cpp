// The tests' own settings in place of the machine's: the number of threads is set at will, and counts how often a
// driver asked; caches are so small that a test has room for what is larger.
#include "tests/check/run.h"
#include "zepcore.h"

int32 ownGetNumThreads(void)
{
    ++check::threadsAsked;
    return check::threadsToUse;
}

extern "C" Status __wrap_zepGetMaxCacheSizeB(int32* pSizeByte); // what the linker makes of zepGetMaxCacheSizeB

Status __wrap_zepGetMaxCacheSizeB(int32* pSizeByte)
{
    *pSizeByte = check::largestCache;
    return stsOk;
}
