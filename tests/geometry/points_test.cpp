// Arrays of points: at every level, count, stride and alignment the bits of one point after the other, nothing else
// touched; to the viewport and back.
#include "tests/check/memory.h"
#include "zepcore.h"
#include "zepm.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace
{

std::mt19937 random_(1);

float32 between(float32 low, float32 high) { return std::uniform_real_distribution<float32>(low, high)(random_); }

struct Matrices
{
    float32 m[3][16]; // projection, view and world; the first one alone in plain transforms
};

// A function over arrays, and what it does with one point.
struct Row
{
    const char* name;
    int in, out;
    std::function<Status(const Matrices&, const void*, int32, void*, int32, int32)> array;
    std::function<Status(const Matrices&, const float32*, float32*)> one;
};

template <class Array, class One>
Row row(const char* name, int in, int out, Array array, One one)
{
    return {name, in, out,
            [array](const Matrices& m, const void* src, int32 srcStride, void* dst, int32 dstStride, int32 count) {
                return array(m.m[0], static_cast<const float32*>(src), srcStride, static_cast<float32*>(dst), dstStride,
                             count);
            },
            [one](const Matrices& m, const float32* src, float32* dst) { return one(m.m[0], src, dst); }};
}

constexpr float32 width = 640, height = 480, zMin = 0.25f, zMax = 0.75f;

using ViewportArray = Status (*)(const float32*, const float32*, const float32*, const float32*, int32, float32,
                                 float32, float32, float32, float32*, int32, int32);

Row viewportRow(const char* name, ViewportArray array)
{
    auto call = [array](const Matrices& m, const void* src, int32 srcStride, void* dst, int32 dstStride, int32 count) {
        return array(m.m[0], m.m[1], m.m[2], static_cast<const float32*>(src), srcStride, width, height, zMin, zMax,
                     static_cast<float32*>(dst), dstStride, count);
    };
    return {name, 3, 3, call,
            [call](const Matrices& m, const float32* src, float32* dst) { return call(m, src, 12, dst, 12, 1); }};
}

const std::vector<Row> rows = {
    row("Affine_m4v2a", 2, 4, zepmAffineTransform_m4v2a_32f, zepmAffineTransform_m4v2_32f),
    row("Affine_m4v3a", 3, 4, zepmAffineTransform_m4v3a_32f, zepmAffineTransform_m4v3_32f),
    row("Affine_m4v4a", 4, 4, zepmAffineTransform_m4v4a_32f, zepmAffineTransform_m4v4_32f),
    row("Coord_m4v2a", 2, 2, zepmAffineTransformCoord_m4v2a_32f, zepmAffineTransformCoord_m4v2_32f),
    row("Coord_m4v3a", 3, 3, zepmAffineTransformCoord_m4v3a_32f, zepmAffineTransformCoord_m4v3_32f),
    row("Normal_m4v2a", 2, 2, zepmAffineTransformNormal_m4v2a_32f, zepmAffineTransformNormal_m4v2_32f),
    row("Normal_m4v3a", 3, 3, zepmAffineTransformNormal_m4v3a_32f, zepmAffineTransformNormal_m4v3_32f),
    viewportRow("Project_m4v3a", zepmProject_m4v3a_32f),
    viewportRow("Unproject_m4v3a", zepmUnproject_m4v3a_32f),
};

class AtLevel
{
public:
    explicit AtLevel(int32 level) : isThere(zepSetCpuLevel(level) == stsOk) {}
    ~AtLevel() { zepSetCpuLevel(before); }

private:
    const int32 before = ownGetCpuLevel();

public:
    const bool isThere;
};

struct Strides
{
    int32 src, dst;
};

class Points : public testing::TestWithParam<const Row*>
{
protected:
    // What a touch of unreadable memory is reported with.
    static inline std::string running;
    static void reportFault() { std::fprintf(stderr, "memory outside the operands: %s\n", running.c_str()); }

    const Row& function = *GetParam();
    Matrices matrices;
    const int32 srcSize = 4 * function.in, dstSize = 4 * function.out;

    Points()
    {
        check::onFault(reportFault);
        for (auto& m : matrices.m)
            for (float32& x : m) x = between(-1, 1);
    }

    // Dense, records, anything with gaps, backwards, one source for all, no multiples of four.
    std::vector<Strides> strides() const
    {
        return {{srcSize, dstSize}, {16, 16},   {srcSize, 16},  {16, dstSize}, {20, 28},
                {32, 32},           {-16, -16}, {-srcSize, 36}, {0, dstSize},  {srcSize + 1, dstSize + 3}};
    }

    // One point after the other, in memory as it stands.
    void walk(char* src, char* dst, Strides stride, int count) const
    {
        for (int k = 0; k < count; ++k)
        {
            float32 p[4], d[4];
            std::memcpy(p, src + static_cast<ptrdiff_t>(k) * stride.src, static_cast<size_t>(srcSize));
            ASSERT_EQ(function.one(matrices, p, d), stsOk);
            std::memcpy(dst + static_cast<ptrdiff_t>(k) * stride.dst, d, static_cast<size_t>(dstSize));
        }
    }
};

// Bytes from the first point's lowest to the last one's highest, and where the first one starts in them.
struct Span
{
    size_t size, first;
    Span(int32 stride, int32 pointSize, int count)
    {
        const int32 last = (count - 1) * stride;
        size = static_cast<size_t>(std::abs(last) + pointSize);
        first = static_cast<size_t>(last < 0 ? -last : 0);
    }
};

bool isSame(float32 a, float32 b) { return std::memcmp(&a, &b, 4) == 0 || (std::isnan(a) && std::isnan(b)); }

} // namespace

// Flush against unreadable pages at either end, at every byte offset in front of them; the gaps keep their bytes.
TEST_P(Points, AsOneAfterTheOther)
{
    check::Arena sources(1 << 13), results(1 << 13);
    for (const int32 level : {0, 1, 2})
    {
        const AtLevel at(level);
        if (!at.isThere) continue;
        for (const Strides stride : strides())
            for (int count = 1; count <= 67; count += count < 36 ? 1 : 31)
                for (const size_t gap : {size_t{0}, size_t{1} + random_() % 15})
                    for (const bool atEnd : {true, false})
                    {
                        const Span from(stride.src, srcSize, count), to(stride.dst, dstSize, count);
                        char* const src = atEnd ? sources.end() - gap - from.size : sources.begin() + gap;
                        char* const dst = atEnd ? results.end() - gap - to.size : results.begin() + gap;
                        for (char* p = src; p < src + from.size; ++p) *p = static_cast<char>(random_());
                        for (int k = 0; k < count; ++k)
                            for (int j = 0; j < function.in; ++j)
                            {
                                const float32 x = between(-2, 2);
                                std::memcpy(src + from.first + static_cast<ptrdiff_t>(k) * stride.src + 4 * j, &x, 4);
                            }
                        std::memset(results.begin(), 0x5a, 1 << 13);
                        std::vector<char> expected(results.begin(), results.end());
                        walk(src + from.first, expected.data() + (dst - results.begin()) + to.first, stride, count);
                        running = std::string(function.name) + ", level " + std::to_string(level) + ", strides " +
                                  std::to_string(stride.src) + ' ' + std::to_string(stride.dst) + ", count " +
                                  std::to_string(count) + ", " + std::to_string(gap) + " bytes " +
                                  (atEnd ? "before" : "behind") + " the page";
                        // Under the address sanitizer the gaps between the points are out of bounds as well.
                        auto forEachGap = [&](auto visit) {
                            for (int k = 0; k < count - 1; ++k)
                                if (stride.src > srcSize)
                                    visit(src + from.first + static_cast<ptrdiff_t>(k) * stride.src + srcSize,
                                          static_cast<size_t>(stride.src - srcSize));
                        };
                        forEachGap(check::forbid);
                        const Status status =
                            function.array(matrices, src + from.first, stride.src, dst + to.first, stride.dst, count);
                        forEachGap(check::allow);
                        ASSERT_EQ(status, stsOk);
                        ASSERT_EQ(std::memcmp(results.begin(), expected.data(), expected.size()), 0) << running;
                    }
    }
}

// In place, one point further and back, and results that overlap each other: what a walk forward gives.
TEST_P(Points, Overlapping)
{
    std::vector<char> memory(4096), expected;
    for (const int32 level : {0, 1, 2})
    {
        const AtLevel at(level);
        if (!at.isThere) continue;
        for (const Strides stride : {Strides{16, 16}, {srcSize, srcSize}, {srcSize, dstSize}, {dstSize, srcSize},
                                     {40, 40}, {16, 4}, {16, 0}, {-16, -16}, {16, -16}})
            for (const int shift : {0, 4, -4, 16, -16, 48, -48, 7})
            {
                for (size_t i = 0; i < memory.size(); i += 4)
                {
                    const float32 x = between(0.5f, 2);
                    std::memcpy(memory.data() + i, &x, 4);
                }
                for (float32& x : matrices.m[0]) x = between(0.5f, 1); // no growth beyond bounds, no NaN
                expected = memory;
                walk(expected.data() + 2048, expected.data() + 2048 + shift, stride, 37);
                ASSERT_EQ(function.array(matrices, memory.data() + 2048, stride.src, memory.data() + 2048 + shift,
                                         stride.dst, 37),
                          stsOk);
                int different = 0;
                for (size_t i = 0; i < memory.size(); i += 4)
                {
                    float32 a, b;
                    std::memcpy(&a, memory.data() + i, 4), std::memcpy(&b, expected.data() + i, 4);
                    different += !isSame(a, b);
                }
                ASSERT_EQ(different, 0) << "level " << level << ", strides " << stride.src << ' ' << stride.dst
                                        << ", shift " << shift;
            }
    }
}

// Dense results larger than the caches are stored past them: the bits of many short calls.
TEST_P(Points, BeyondTheCaches)
{
    int32 cacheSize = 0;
    ASSERT_EQ(zepGetMaxCacheSizeB(&cacheSize), stsOk);
    if (cacheSize > 1 << 28) return; // too much memory for a test
    constexpr int atOnce = 1000;
    const int count = std::max(cacheSize, 1 << 23) / dstSize / 2 + 10007;
    const size_t from = static_cast<size_t>(count) * static_cast<size_t>(srcSize);
    const size_t to = static_cast<size_t>(count) * static_cast<size_t>(dstSize);
    check::Arena sources(from), results(to + 64);
    for (size_t i = 0; i < from; i += 4)
    {
        const float32 x = between(-2, 2);
        std::memcpy(sources.end() - from + i, &x, 4);
    }
    const char* const src = sources.end() - from;
    std::vector<char> expected(to + 64, 0x5a);
    for (int k = 0; k < count; k += atOnce)
        ASSERT_EQ(function.array(matrices, src + static_cast<ptrdiff_t>(k) * srcSize, srcSize,
                                 expected.data() + 32 + static_cast<ptrdiff_t>(k) * dstSize, dstSize,
                                 std::min(atOnce, count - k)),
                  stsOk);
    running = std::string(function.name) + ", beyond the caches";
    for (const int32 level : {0, 1, 2})
    {
        const AtLevel at(level);
        if (!at.isThere) continue;
        for (const int gap : {0, 7, 32}) // bytes before the end
        {
            char* const dst = results.end() - to - gap;
            std::memset(dst - 32, 0x5a, 32 + to + static_cast<size_t>(gap));
            ASSERT_EQ(function.array(matrices, src, srcSize, dst, dstSize, count), stsOk);
            ASSERT_EQ(std::memcmp(dst - 32, expected.data(), 32 + to + static_cast<size_t>(gap)), 0)
                << running << ", level " << level << ", gap " << gap;
        }
    }
}

TEST_P(Points, NoneToDo)
{
    for (const int32 count : {0, -1, INT32_MIN})
        EXPECT_EQ(function.array(matrices, nullptr, 12, nullptr, 12, count), stsOk);
}

// Infinities, NaNs, zero divisors: the same at every level.
TEST_P(Points, AnythingAtEveryLevel)
{
    constexpr float32 inf = std::numeric_limits<float32>::infinity();
    const float32 special[] = {0, -0.0f, inf, -inf, std::nanf(""), FLT_MAX, -FLT_MAX, FLT_MIN, 1e-40f, 1, -1, 3};
    std::vector<float32> src(400), dst(400), expected(400);
    for (int n = 0; n < 50; ++n)
    {
        for (float32& x : src) x = special[random_() % std::size(special)];
        for (float32& x : matrices.m[0]) x = n % 2 ? between(-1, 1) : static_cast<float32>(random_() % 3) - 1;
        for (const int32 level : {0, 1, 2})
        {
            const AtLevel at(level);
            if (!at.isThere) continue;
            const Status status = function.array(matrices, src.data(), srcSize, dst.data(), dstSize, 99);
            if (status == stsSingularErr) break;
            for (int k = 0; k < 99; ++k)
                function.one(matrices, src.data() + function.in * k, expected.data() + function.out * k);
            for (size_t i = 0; i < static_cast<size_t>(99 * function.out); ++i)
                ASSERT_TRUE(isSame(dst[i], expected[i]))
                    << "level " << level << ", element " << i << ": " << dst[i] << " for " << expected[i];
        }
    }
}

namespace
{

std::vector<const Row*> pointers()
{
    std::vector<const Row*> list;
    for (const Row& r : rows) list.push_back(&r);
    return list;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All, Points, testing::ValuesIn(pointers()),
                         [](const testing::TestParamInfo<const Row*>& r) { return std::string(r.param->name); });

// ---- To the viewport and back ---------------------------------------------------------------------------------------

namespace
{

// A camera that sees the points near the origin, in front of it and well within its depth.
Matrices camera()
{
    Matrices c;
    const float32 eye[3] = {between(-4, 4), between(-4, 4), between(6, 9)}, at[3] = {between(-1, 1), 0, 0};
    const float32 up[3] = {between(-0.3f, 0.3f), 1, 0}, axis[3] = {between(-1, 1), between(-1, 1), 1};
    float32 rotation[16], scaling[16];
    random_() % 2 ? zepmPerspectiveFovLH_m4_32f(between(0.5f, 1.5f), 1.25f, 1, 30, c.m[0])
                  : zepmPerspectiveLH_m4_32f(1.5f, 1, 1, 30, c.m[0]);
    zepmLookAtLH_m4_32f(eye, at, up, c.m[1]);
    zepmRotationAxis_v3m4_32f(axis, between(-3, 3), rotation);
    zepmScaling_m4_32f(between(0.5f, 2), between(0.5f, 2), between(0.5f, 2), scaling);
    zepmMul_mm4x4_32f(scaling, rotation, c.m[2]);
    return c;
}

} // namespace

TEST(Viewport, RoundTrip)
{
    for (int n = 0; n < 500; ++n)
    {
        const Matrices c = camera();
        std::vector<float32> points(3 * 21), seen(3 * 21), back(3 * 21);
        for (float32& x : points) x = between(-1, 1);
        ASSERT_EQ(zepmProject_m4v3a_32f(c.m[0], c.m[1], c.m[2], points.data(), 12, width, height, zMin, zMax,
                                        seen.data(), 12, 21),
                  stsOk);
        ASSERT_EQ(zepmUnproject_m4v3a_32f(c.m[0], c.m[1], c.m[2], seen.data(), 12, width, height, zMin, zMax,
                                          back.data(), 12, 21),
                  stsOk);
        for (size_t i = 0; i < points.size(); i += 3)
        {
            float32 one[3], oneBack[3];
            zepmProject_m4v3_32f(c.m[0], c.m[1], c.m[2], &points[i], width, height, zMin, zMax, one);
            ASSERT_EQ(zepmUnproject_m4v3_32f(c.m[0], c.m[1], c.m[2], one, width, height, zMin, zMax, oneBack), stsOk);
            for (size_t j = 0; j < 3; ++j)
            {
                // A depth of up to 20 over a buffer where the far half takes a thirtieth of the range.
                ASSERT_NEAR(back[i + j], points[i + j], 1e-3) << n;
                ASSERT_NEAR(oneBack[j], points[i + j], 1e-3) << n;
                ASSERT_NEAR(one[j], seen[i + j], 1e-6 * (j < 2 ? 2000 : 10)) << n;
            }
        }
    }
}

TEST(Viewport, CornersOfTheCube)
{
    constexpr float32 m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const float32 points[9] = {0, 0, 0, 1, 1, 1, -1, -1, 0.5f}, expected[9] = {320, 240, 0, 640, 0, 1, 0, 480, 0.5f};
    float32 d[9];
    EXPECT_EQ(zepmProject_m4v3a_32f(m, m, m, points, 12, 640, 480, 0, 1, d, 12, 3), stsOk);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(d[i], expected[i]) << i;
    for (int k = 0; k < 3; ++k)
    {
        zepmProject_m4v3_32f(m, m, m, points + 3 * k, 640, 480, 0, 1, d);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(d[i], expected[3 * k + i]) << i;
    }
}

// One point gets as far as the cube, an array stays as it was; the determinant's limit is that of float64.
TEST(Viewport, SingularProduct)
{
    constexpr float32 zero[16] = {}, one[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const float32 p[3] = {160, 120, 0.5f};
    for (int which = 0; which < 3; ++which)
    {
        const float32* m[3] = {one, one, one};
        m[which] = zero;
        float32 d[3] = {5, 6, 7};
        for (const int32 count : {1, 0})
            EXPECT_EQ(zepmUnproject_m4v3a_32f(m[0], m[1], m[2], p, 12, 640, 480, 0, 2, d, 12, count), stsSingularErr);
        EXPECT_TRUE(d[0] == 5 && d[1] == 6 && d[2] == 7);
        EXPECT_EQ(zepmUnproject_m4v3_32f(m[0], m[1], m[2], p, 640, 480, 0, 2, d), stsSingularErr);
        EXPECT_TRUE(d[0] == -0.5f && d[1] == 0.5f && d[2] == 0.25f);
    }
    float32 small[16] = {}, d[3]; // far below the limit of float32, with an inverse all the same
    for (int i = 0; i < 4; ++i) small[5 * i] = 1e-30f;
    EXPECT_EQ(zepmUnproject_m4v3_32f(small, one, one, p, 640, 480, 0, 2, d), stsOk);
    EXPECT_NEAR(d[0], -0.5, 1e-6);
}

// The array goes through the one product of the three matrices: as coordinates through that matrix.
TEST(Viewport, ArraysGoThroughTheProduct)
{
    const Matrices c = camera();
    float32 worldView[16], product[16];
    zepmMul_mm4x4_32f(c.m[2], c.m[1], worldView);
    zepmMul_mm4x4_32f(worldView, c.m[0], product);
    for (int n = 0; n < 200; ++n)
    {
        const float32 p[3] = {between(-1, 1), between(-1, 1), between(-1, 1)};
        float32 d[3], q[3];
        zepmProject_m4v3a_32f(c.m[0], c.m[1], c.m[2], p, 12, width, height, zMin, zMax, d, 12, 1);
        zepmAffineTransformCoord_m4v3_32f(product, p, q);
        ASSERT_EQ(d[0], width * 0.5f + width * 0.5f * q[0]);
        ASSERT_EQ(d[1], height * 0.5f + (0 - height * 0.5f) * q[1]);
        ASSERT_EQ(d[2], zMin + (zMax - zMin) * q[2]);
    }
}

// ---- The driver of the homogeneous transform ------------------------------------------------------------------------

// A point that cannot be divided, wherever its share begins or ends: it alone is marked, the others are computed, and
// the status is the same for any number of threads.
TEST(Homogeneous, FailuresInAnyShare)
{
    constexpr int count = 1001;
    const int32 leastWork = ownGetMinParallelWork(), threadsBefore = ownGetNumThreads();
    float32 m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0}; // w is x
    std::vector<float32> points(3 * count), d(3 * count);
    ASSERT_EQ(zepSetMinParallelWork(0), stsOk);
    for (const int32 threads : {1, 2, 3, 5})
        for (const int failing : {-1, 0, 1, 333, 500, 501, 502, 667, 999, 1000})
        {
            ASSERT_EQ(zepSetNumThreads(threads), stsOk);
            for (float32& x : points) x = between(0.5f, 2);
            if (failing >= 0) points[static_cast<size_t>(3 * failing)] = 0;
            ASSERT_EQ(zepmAffineTransform3DH_mva_32f(m, 16, 4, points.data(), 12, 4, d.data(), 12, 4, count),
                      failing >= 0 ? stsDivByZeroErr : stsOk)
                << threads << " threads, point " << failing;
            for (size_t i = 0; i < d.size(); ++i)
            {
                const float32 w = points[i - i % 3];
                ASSERT_EQ(d[i], w > 0 ? 1 / w * points[i] : FLT_MAX) << threads << " threads, element " << i;
            }
        }
    zepSetMinParallelWork(leastWork);
    zepSetNumThreads(threadsBefore);
}
