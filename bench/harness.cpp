// The benchmarks' main: holds the library to the level at which the peers are compiled.
#include "bench/harness.h"

#include <cstdio>

int main(int argc, char** argv)
{
    const int32 level = ZEPM_BENCH_LEVEL < 0 ? ownGetCpuLevel() : ZEPM_BENCH_LEVEL;
    if (zepSetCpuLevel(level) != stsOk)
    {
        std::printf("skipped: the processor has no %s\n", ZEPM_BENCH_LEVEL_NAME);
        return 0;
    }
    benchmark::AddCustomContext("peers", ZEPM_BENCH_LEVEL_NAME);
    benchmark::AddCustomContext("level", std::to_string(level));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    bench::registerBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    return bench::anyFailed() ? 1 : 0;
}
