// The tests' own number of threads: it is set at will, and counts how often a driver asked.
#include "tests/check/run.h"
#include "zepcore.h"

int32 ownGetNumThreads(void)
{
    ++check::threadsAsked;
    return check::threadsToUse;
}
