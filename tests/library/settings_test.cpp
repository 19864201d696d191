// The process-wide settings and what becomes of them in children, in regions, and with a sparing OpenMP runtime.
#include "array_call.h"
#include "zepcore.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <limits>
#include <omp.h>
#include <sched.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using testing::ExitedWithCode;

namespace
{

constexpr unsigned timeLimit = 20; // seconds until the alarm ends a child that hangs

// OpenMP runtimes read their environment once, so these cases run in children started anew: in an EXPECT_EXIT of this
// style the child executes the program again, and the test up to that line.
class InNewProcess : public testing::Test
{
protected:
    InNewProcess()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        for (const char* name : {"OMP_NUM_THREADS", "OMP_THREAD_LIMIT", "OMP_DYNAMIC"}) unsetenv(name);
        sched_getaffinity(0, sizeof processors, &processors);
    }
    ~InNewProcess() override { sched_setaffinity(0, sizeof processors, &processors); }

    void useOneProcessor()
    {
        cpu_set_t first;
        CPU_ZERO(&first);
        for (size_t n = 0; CPU_COUNT(&first) == 0; ++n)
            if (CPU_ISSET(n, &processors)) CPU_SET(n, &first);
        sched_setaffinity(0, sizeof first, &first);
    }

    cpu_set_t processors;
};

[[noreturn]] void tellNumThreads()
{
    std::fprintf(stderr, "threads: %d", ownGetNumThreads());
    std::_Exit(0);
}

[[noreturn]] void endWith(bool isRight) { std::_Exit(isRight ? 0 : 1); }

// Forks; whether the child has as many threads to use as expected and its array call comes out right, in time.
bool childIsRight(int32 expectedThreads)
{
    const pid_t child = fork();
    if (child == 0)
    {
        alarm(timeLimit);
        endWith(ownGetNumThreads() == expectedThreads && addsRight(zepmAdd_vava_32f));
    }
    int status = -1;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// ---- The number of threads ------------------------------------------------------------------------------------------

TEST(NumThreads, KeepsWhatIsSetAndRefusesLessThanOneAndWhatNoSystemGives)
{
    ASSERT_EQ(stsOk, zepSetNumThreads(3));
    EXPECT_EQ(3, ownGetNumThreads());
    for (const int32 refused : {0, -1, std::numeric_limits<int32>::min(), 40000, std::numeric_limits<int32>::max()})
    {
        EXPECT_EQ(stsSizeErr, zepSetNumThreads(refused));
        EXPECT_EQ(3, ownGetNumThreads());
    }
}

TEST_F(InNewProcess, DefaultsToTheProcessorsAvailable)
{
    const std::string all = "threads: " + std::to_string(CPU_COUNT(&processors)) + "$";
    EXPECT_EXIT(tellNumThreads(), ExitedWithCode(0), all);
    setenv("OMP_NUM_THREADS", "1000", 1);
    EXPECT_EXIT(tellNumThreads(), ExitedWithCode(0), all);
}

TEST_F(InNewProcess, DefaultsToTheThreadsThatOpenMPIsTold)
{
    setenv("OMP_NUM_THREADS", "1", 1);
    EXPECT_EXIT(tellNumThreads(), ExitedWithCode(0), "threads: 1$");
}

TEST_F(InNewProcess, DefaultsToTheAffinity)
{
    useOneProcessor();
    EXPECT_EXIT(tellNumThreads(), ExitedWithCode(0), "threads: 1$");
    setenv("OMP_NUM_THREADS", "1000", 1);
    EXPECT_EXIT(tellNumThreads(), ExitedWithCode(0), "threads: 1$");
}

TEST(NumThreads, IsOneInsideAnActiveRegion)
{
    ASSERT_EQ(stsOk, zepSetNumThreads(3));
    ASSERT_EQ(stsOk, zepSetMinParallelWork(0));
    int delivered = 0, wrong = 0;
#pragma omp parallel num_threads(2) reduction(+ : delivered, wrong)
    {
        delivered = 1;
        wrong = ownGetNumThreads() == 1 && addsRight(zepmAdd_vava_32f) ? 0 : 1;
    }
    EXPECT_EQ(2, delivered);
    EXPECT_EQ(0, wrong);

    int32 inactive = 0;
#pragma omp parallel num_threads(1)
    inactive = ownGetNumThreads();
    EXPECT_EQ(3, inactive) << "a region of one thread is not active";
}

TEST_F(InNewProcess, CallsCompleteWithFewerThreadsThanAskedFor)
{
    setenv("OMP_THREAD_LIMIT", "2", 1);
    auto call = [] {
        alarm(timeLimit);
        zepSetNumThreads(4);
        zepSetMinParallelWork(0);
        endWith(addsRight(zepmAdd_vava_32f) && threadsOfThisProcess() == 2);
    };
    EXPECT_EXIT(call(), ExitedWithCode(0), "");
}

// ---- Children of fork -----------------------------------------------------------------------------------------------

TEST(Fork, ChildrenOfAProcessWithThreadsWorkAlone)
{
    ASSERT_EQ(stsOk, zepSetNumThreads(2));
    ASSERT_EQ(stsOk, zepSetMinParallelWork(0));
    for (int n = 0; n < 100; ++n)
    {
        ASSERT_TRUE(addsRight(zepmAdd_vava_32f));
        ASSERT_GE(threadsOfThisProcess(), 2);
        ASSERT_TRUE(childIsRight(1)) << "child " << n;
    }
    EXPECT_EQ(2, ownGetNumThreads());
}

TEST_F(InNewProcess, ChildrenOfAProcessWithoutThreadsMayUseThem)
{
    auto forkFirst = [] {
        zepSetNumThreads(2);
        zepSetMinParallelWork(0);
        endWith(childIsRight(2));
    };
    EXPECT_EXIT(forkFirst(), ExitedWithCode(0), "");
}

// ---- The other settings ---------------------------------------------------------------------------------------------

TEST_F(InNewProcess, LessWorkThanTheLeastStaysOnTheCallingThread)
{
    auto call = [] {
        zepSetNumThreads(2);
        zepSetMinParallelWork(arrayWork + 1);
        if (!addsRight(zepmAdd_vava_32f) || threadsOfThisProcess() != 1) std::_Exit(1);
        zepSetMinParallelWork(arrayWork);
        endWith(addsRight(zepmAdd_vava_32f) && threadsOfThisProcess() == 2);
    };
    EXPECT_EXIT(call(), ExitedWithCode(0), "");
}

// The setting is made when the library is loaded, which the child does anew.
TEST_F(InNewProcess, LeastWorkIsMoreWhereIdleThreadsSleep)
{
    auto tell = [] {
        std::fprintf(stderr, "least work: %d\n", static_cast<int>(ownGetMinParallelWork()));
        std::_Exit(0);
    };
    setenv("OMP_WAIT_POLICY", "active", 1);
    EXPECT_EXIT(tell(), ExitedWithCode(0), "least work: 200000\n");
    setenv("OMP_WAIT_POLICY", "PASSIVE", 1);
    EXPECT_EXIT(tell(), ExitedWithCode(0), "least work: 2000000\n");
}

TEST(MinParallelWork, KeepsWhatIsSetAndRefusesLessThanNothing)
{
    for (const int32 elements : {0, 12345, std::numeric_limits<int32>::max()})
    {
        EXPECT_EQ(stsOk, zepSetMinParallelWork(elements));
        EXPECT_EQ(stsSizeErr, zepSetMinParallelWork(-1));
        EXPECT_EQ(elements, ownGetMinParallelWork());
        EXPECT_EQ(elements, ownGetSettings()->minParallelWork);
    }
}

// The highest level by what the kernel says of the processor.
int32 highestLevel()
{
    std::ifstream cpuinfo("/proc/cpuinfo");
    std::string line;
    while (std::getline(cpuinfo, line) && line.rfind("flags", 0) != 0)
        ;
    auto has = [&](const char* feature) { return (line + " ").find(std::string(" ") + feature + " ") != line.npos; };
    if (!has("avx2")) return 0;
#ifdef ZEPM_WITHOUT_AVX512
    return 1;
#endif
    return has("avx512f") && has("avx512vl") && has("avx512dq") && has("avx512bw") ? 2 : 1;
}

TEST(CpuLevel, ReachesFromTheBaselineToTheProcessorsOwn)
{
    const int32 highest = ownGetCpuLevel();
    EXPECT_EQ(highestLevel(), highest);
    for (int32 level = 0; level <= highest; ++level)
    {
        EXPECT_EQ(stsOk, zepSetCpuLevel(level));
        for (const int32 refused : {-1, highest + 1, std::numeric_limits<int32>::max()})
            EXPECT_EQ(stsSizeErr, zepSetCpuLevel(refused));
        EXPECT_EQ(level, ownGetCpuLevel());
        EXPECT_EQ(level, ownGetSettings()->cpuLevel);
        EXPECT_TRUE(addsRight(zepmAdd_vava_32f));
    }
}

TEST(CacheSize, IsUnknownOrThatOfACache)
{
    EXPECT_EQ(stsNullPtrErr, zepGetMaxCacheSizeB(nullptr));
    int32 size = -1;
    ASSERT_EQ(stsOk, zepGetMaxCacheSizeB(&size));
    EXPECT_TRUE(size == 0 || size >= 16 * 1024) << size;
}

// ---- The version record ---------------------------------------------------------------------------------------------

TEST(Version, RecordIsThatOfThisLibrary)
{
    const LibVersion* const version = zepmGetLibVersion();
    ASSERT_NE(nullptr, version);
    EXPECT_EQ(version, zepmGetLibVersion());
    EXPECT_EQ(7, version->major);
    EXPECT_EQ(0, version->minor);
    EXPECT_EQ(205, version->majorBuild);
    EXPECT_EQ(952, version->build);
    EXPECT_EQ(0, std::memcmp(version->targetCpu, "v8\0\0", 4));
    EXPECT_STREQ("zepmv8-7.0.dll", version->Name);
    EXPECT_STREQ("7.0 build 205.23", version->Version);
    EXPECT_STREQ("Sep  2 2010", version->BuildDate);
}

} // namespace
