// The frame by itself, with made-up argument structs: shares, the merge of statuses, scratch memory, estimates that
// wrap.
#include "frame/parallel.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <vector>

using namespace zepm;

// In place of the runtime's: it can fail, and counts what is not given back.
namespace
{
int32 threadsToUse = 4;
bool allocationFails = false;
std::atomic<int> blocksHeld{0};
} // namespace

void* omp_alloc(size_t size, omp_allocator_handle_t)
{
    if (allocationFails) return nullptr;
    ++blocksHeld;
    return std::malloc(size);
}

void omp_free(void* p, omp_allocator_handle_t)
{
    --blocksHeld;
    std::free(p);
}

int32 ownGetNumThreads(void) { return threadsToUse; }

namespace
{

// Objects are numbers; the kernel notes which it met, fails at a chosen one and stops its share there.
struct Failing
{
    static constexpr bool canFail = true;
    std::atomic<int>* met;
    int32 first, count, failsAt;

    bool isPacked() const { return true; }
    Failing share(int32 from, int32 n) const { return {met, first + from, n, failsAt}; }
};

Status failingKernel(const Failing& x)
{
    for (int32 k = x.first; k < x.first + x.count; ++k)
    {
        ++x.met[k];
        if (k == x.failsAt) return stsSingularErr;
    }
    return stsOk;
}

// The kernel notes the buffer it was given and writes all of it.
struct WithScratch
{
    std::set<char*>* buffers;
    char* pBuffer;
    int32 count;

    bool isPacked() const { return true; }
    size_t scratchPerThread() const { return 48; }
    WithScratch share(int32, int32 n) const { return {buffers, pBuffer, n}; }
};

Status scratchKernel(const WithScratch& x)
{
    for (size_t n = 0; n < x.scratchPerThread(); ++n) x.pBuffer[n] = static_cast<char>(n);
#pragma omp critical
    x.buffers->insert(x.pBuffer);
    return stsOk;
}

} // namespace

// Compiled as the library is, for a processor that could do it in one.
[[gnu::target("fma"), gnu::noinline]] static float32 productAndSum(float32 a, float32 b, float32 c)
{
    return a * b + c;
}

TEST(Numerics, ProductAndSumRoundOneByOne)
{
    if (!__builtin_cpu_supports("fma")) GTEST_SKIP() << "no fused instruction";
    volatile float32 a = 1.0F + 0x1p-12F; // not to be computed by the compiler
    EXPECT_EQ(productAndSum(a, a, -(1.0F + 0x1p-11F)), 0.0F);
}

TEST(Shares, TileTheArray)
{
    for (int32 threads = 1; threads <= 9; ++threads)
        for (int32 count = threads; count < 40; ++count)
        {
            int32 next = 0;
            for (int32 tid = 0; tid < threads; ++tid)
            {
                const Share share = shareOf(tid, count / threads, count % threads);
                EXPECT_EQ(share.first, next);
                EXPECT_EQ(share.count, count / threads + (tid < count % threads ? 1 : 0));
                next += share.count;
            }
            EXPECT_EQ(next, count);
        }
    const Share last = shareOf(7, std::numeric_limits<int32>::max() / 8, std::numeric_limits<int32>::max() % 8);
    EXPECT_EQ(last.first + last.count, std::numeric_limits<int32>::max());
}

TEST(Drivers, AFailureStopsItsShareAlone)
{
    threadsToUse = 4;
    std::array<std::atomic<int>, 10> met{};
    EXPECT_EQ(shareObjects(Failing{met.data(), 0, 10, 3}, failingKernel), stsSingularErr);
    for (int k = 0; k < 10; ++k) EXPECT_EQ(met[static_cast<size_t>(k)], k == 4 || k == 5 ? 0 : 1) << k;

    for (auto& times : met) times = 0;
    EXPECT_EQ(shareObjects(Failing{met.data(), 0, 10, -1}, failingKernel), stsOk);
    for (auto& times : met) EXPECT_EQ(times, 1);
}

TEST(Drivers, SerialWithFewerObjectsThanThreads)
{
    threadsToUse = 4;
    std::array<std::atomic<int>, 3> met{};
    EXPECT_EQ(shareObjects(Failing{met.data(), 0, 3, 1}, failingKernel), stsSingularErr);
    EXPECT_EQ(met[2], 0) << "the serial path ends at the first failure";
}

TEST(Drivers, ScratchForEachThread)
{
    threadsToUse = 4;
    std::set<char*> buffers;
    char own[48];
    EXPECT_EQ(shareObjects(WithScratch{&buffers, own, 9}, scratchKernel), stsOk);
    ASSERT_EQ(buffers.size(), 4u);
    EXPECT_EQ(buffers.count(own), 0u);
    EXPECT_EQ(*buffers.rbegin() - *buffers.begin(), 3 * 48);
    EXPECT_EQ(blocksHeld, 0);
}

TEST(Drivers, SerialWithTheCallersBufferWhenMemoryIsShort)
{
    threadsToUse = 4;
    allocationFails = true;
    std::set<char*> buffers;
    char own[48];
    EXPECT_EQ(shareObjects(WithScratch{&buffers, own, 9}, scratchKernel), stsOk);
    allocationFails = false;
    EXPECT_EQ(buffers, std::set<char*>{own});
}

TEST(Estimates, WrapIn32Bits)
{
    EXPECT_EQ((Work(3) * 30000 * 30000).estimate(), static_cast<int32>(3LL * 30000 * 30000 - (1LL << 32)));
    EXPECT_EQ((Work(2) * std::numeric_limits<int32>::max() + 7).estimate(), 5);
    EXPECT_EQ((Work(65536) * 65536).estimate(), 0);
}
