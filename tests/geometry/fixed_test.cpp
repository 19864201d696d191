// The functions of single vectors and matrices: each formula in its order bit for bit, and within a bound that follows
// from its operations of what extended precision gives.
#include "rows.h"
#include "tests/check/memory.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <immintrin.h>
#include <random>
#include <set>
#include <string>

using namespace geometry;

namespace
{

// ---- Calls ----------------------------------------------------------------------------------------------------------

bool isSame(float32 a, float32 b)
{
    return std::bit_cast<uint32_t>(a) == std::bit_cast<uint32_t>(b) || (std::isnan(a) && std::isnan(b));
}

// Calls with every operand flush against an unreadable page, in front of it or behind, or at an odd address.
class Memory
{
public:
    enum Place
    {
        AtEnd,
        AtBegin,
        Odd
    };

    // The destination is the source of this number, or -1 for a place of its own. What is not written keeps its bytes.
    Status call(const Row& function, const Sources<float32>& s, const Numbers<float32>& v, Place place, int inPlace,
                Numbers<float32>& results)
    {
        std::vector<const float32*> sources;
        for (size_t n = 0; n < s.size(); ++n)
        {
            char* const p = at(n, s[n].size(), place);
            std::memcpy(p, s[n].data(), s[n].size() * sizeof(float32));
            sources.push_back(reinterpret_cast<const float32*>(p));
        }
        const auto source = static_cast<size_t>(inPlace);
        char* const d = inPlace < 0 ? at(4, function.size, place) : at(source, s[source].size(), place);
        if (inPlace < 0) std::memcpy(d, results.data(), function.size * sizeof(float32));
        const Status status = function.call(sources, v, reinterpret_cast<float32*>(d));
        std::memcpy(results.data(), d, function.size * sizeof(float32));
        return status;
    }

private:
    check::Arena arenas[5] = {check::Arena(1), check::Arena(1), check::Arena(1), check::Arena(1), check::Arena(1)};

    char* at(size_t n, size_t size, Place place)
    {
        if (place == AtEnd) return arenas[n].end() - size * sizeof(float32);
        return arenas[n].begin() + (place == Odd ? 3 + 2 * n : 0);
    }
};

std::mt19937 random_(1);

float32 between(float32 low, float32 high) { return std::uniform_real_distribution<float32>(low, high)(random_); }

// Of all magnitudes, with infinities, NaNs, zeros and subnormals among them.
float32 anything()
{
    constexpr float32 inf = std::numeric_limits<float32>::infinity();
    constexpr float32 nan = std::numeric_limits<float32>::quiet_NaN();
    constexpr float32 special[] = {0, -0.0f, inf, -inf, nan, FLT_MAX, FLT_MIN, 1e-40f};
    if (random_() % 8 == 0) return special[random_() % std::size(special)];
    return std::ldexp(between(-1, 1), static_cast<int>(random_() % 60) - 30);
}

template <class Choose>
void fill(const Row& function, Sources<float32>& s, Numbers<float32>& v, Choose choose)
{
    s.clear();
    for (const size_t size : function.sources)
    {
        s.emplace_back(size);
        for (float32& x : s.back()) x = choose();
    }
    v.assign(function.values, 0);
    for (float32& x : v) x = choose();
}

Sources<Bounded> boundedOf(const Sources<float32>& s)
{
    Sources<Bounded> result;
    for (const auto& x : s) result.emplace_back(x.begin(), x.end());
    return result;
}

class Fixed : public testing::TestWithParam<const Row*>
{
protected:
    const Row& function = *GetParam();
    Memory memory;
    Sources<float32> s;
    Numbers<float32> v;
};

} // namespace

// ---- Tests of all rows ----------------------------------------------------------------------------------------------

// The order of operations, over all magnitudes.
TEST_P(Fixed, BitForBit)
{
    if (!function.inOrder) return;
    for (int n = 0; n < 2000; ++n)
    {
        n % 2 ? fill(function, s, v, anything) : fill(function, s, v, [] { return between(-2, 2); });
        Numbers<float32> expected(function.size), results(function.size, 77);
        function.inOrder(s, v, expected);
        ASSERT_EQ(memory.call(function, s, v, static_cast<Memory::Place>(n % 3), -1, results), stsOk);
        for (size_t i = 0; i < function.size; ++i)
            ASSERT_TRUE(isSame(results[i], expected[i])) << "call " << n << ", element " << i << ": " << results[i]
                                                         << " for " << expected[i];
    }
}

TEST_P(Fixed, WithinItsBound)
{
    int conclusive = 0;
    for (int n = 0; n < 500; ++n)
    {
        fill(function, s, v, [] { return between(-2, 2); });
        Numbers<Bounded> expected(function.size);
        function.bounded(boundedOf(s), {v.begin(), v.end()}, expected);
        Numbers<float32> results(function.size, 77);
        ASSERT_EQ(memory.call(function, s, v, static_cast<Memory::Place>(n % 3), -1, results), stsOk);
        bool isSharp = true;
        for (size_t i = 0; i < function.size; ++i)
        {
            ASSERT_TRUE(expected[i].admits(results[i]))
                << "call " << n << ", element " << i << ": " << results[i] << " for "
                << static_cast<double>(expected[i].value) << " within " << static_cast<double>(expected[i].error);
            isSharp = isSharp && expected[i].error < 1e-3L * std::fmax(1.0L, std::fabs(expected[i].value));
        }
        conclusive += isSharp;
    }
    EXPECT_GT(conclusive, 100) << "the bound says too little";
}

// A destination that is a source.
TEST_P(Fixed, InPlace)
{
    for (int n = 0; n < 20; ++n)
        for (size_t source = 0; source < function.sources.size(); ++source)
        {
            if (function.sources[source] < function.size) continue;
            fill(function, s, v, [] { return between(-2, 2); });
            Numbers<float32> apart(function.size, 77), inPlace(function.size);
            ASSERT_EQ(memory.call(function, s, v, Memory::AtEnd, -1, apart), stsOk);
            ASSERT_EQ(memory.call(function, s, v, Memory::AtEnd, static_cast<int>(source), inPlace), stsOk);
            for (size_t i = 0; i < function.size; ++i) ASSERT_TRUE(isSame(apart[i], inPlace[i])) << "source " << source;
        }
}

namespace
{

std::vector<const Row*> pointers()
{
    std::vector<const Row*> list;
    for (const Row& r : allRows()) list.push_back(&r);
    return list;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All, Fixed, testing::ValuesIn(pointers()),
                         [](const testing::TestParamInfo<const Row*>& r) { return std::string(r.param->name); });

// ---- Single cases ---------------------------------------------------------------------------------------------------

namespace
{

constexpr float32 nan_ = std::numeric_limits<float32>::quiet_NaN();
constexpr float32 identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

template <size_t N>
void expectSame(const float32 (&results)[N], const std::array<float32, N>& expected)
{
    for (size_t i = 0; i < N; ++i) EXPECT_TRUE(isSame(results[i], expected[i])) << i << ": " << results[i];
}

} // namespace

// The second operand on a tie of zeros and with a NaN.
TEST(Single, MinAndMax)
{
    const float32 a[4] = {nan_, 1, 0, -0.0f}, b[4] = {2, nan_, -0.0f, 0};
    float32 d4[4], d3[3], d2[2];
    zepmMin_v4_32f(a, b, d4);
    expectSame(d4, {2, nan_, -0.0f, 0});
    zepmMax_v4_32f(a, b, d4);
    expectSame(d4, {2, nan_, -0.0f, 0});
    const float32 e[4] = {1, 5, -3, 7}, f[4] = {2, 4, -4, 8};
    zepmMin_v4_32f(e, f, d4);
    expectSame(d4, {1, 4, -4, 7});
    zepmMax_v4_32f(e, f, d4);
    expectSame(d4, {2, 5, -3, 8});
    zepmMin_v3_32f(e, f, d3);
    expectSame(d3, {1, 4, -4});
    zepmMax_v3_32f(a, b, d3);
    expectSame(d3, {2, nan_, -0.0f});
    zepmMin_v2_32f(e, f, d2);
    expectSame(d2, {1, 4});
    zepmMax_v2_32f(a, b, d2);
    expectSame(d2, {2, nan_});
}

TEST(Single, IsIdentity)
{
    float32 m[16];
    int32 result = -1;
    for (int i = -1; i < 16; ++i)
        for (const float32 change : {1e-30f, nan_})
        {
            std::memcpy(m, identity, sizeof m);
            m[1] = -0.0f;
            if (i >= 0) m[i] = m[i] == 1 && change < 1 ? 1 + FLT_EPSILON : change;
            EXPECT_EQ(zepmIsIdentity_m4_32f(m, &result), stsOk);
            EXPECT_EQ(result, i < 0) << i;
        }
}

TEST(Single, MulTestsItsPointers)
{
    float32 d[16] = {5};
    EXPECT_EQ(zepmMul_mm4x4_32f(nullptr, identity, d), stsNullPtrErr);
    EXPECT_EQ(zepmMul_mm4x4_32f(identity, nullptr, d), stsNullPtrErr);
    EXPECT_EQ(zepmMul_mm4x4_32f(identity, identity, nullptr), stsNullPtrErr);
    EXPECT_EQ(d[0], 5);
}

// The determinant decides, to the last place of its limit.
TEST(Single, SingularInverse)
{
    constexpr float32 least = 0x1p-119f;
    for (const float32 sign : {1.0f, -1.0f})
        for (const float32 det : {0.0f, 0x1p-140f, least * (1 - FLT_EPSILON), least, 2 * least})
        {
            float32 m[16], d[16] = {5}, pDet = 7;
            std::memcpy(m, identity, sizeof m);
            m[0] = sign * det;
            const bool isSingular = det < least;
            EXPECT_EQ(zepmInvert_m4_32f(m, nullptr, d), isSingular ? stsSingularErr : stsOk) << det;
            EXPECT_EQ(d[0] == 5, isSingular);
            EXPECT_EQ(zepmInvert_m4_32f(m, &pDet, d), isSingular ? stsSingularErr : stsOk) << det;
            EXPECT_EQ(pDet, isSingular ? 0 : sign * det);
        }
    float32 small[16] = {}, d[16] = {5}; // its inverse exists
    for (size_t i = 0; i < 4; ++i) small[5 * i] = 1e-10f;
    EXPECT_EQ(zepmInvert_m4_32f(small, nullptr, d), stsSingularErr);
    EXPECT_EQ(d[0], 5);
}

// The reciprocal of the determinant is the 12-bit estimate with one Newton step, not a division.
TEST(Single, InverseByEstimate)
{
    for (int n = 0; n < 1000; ++n)
    {
        float32 m[16], d[16], det;
        std::memcpy(m, identity, sizeof m);
        m[0] = between(0.01f, 100);
        ASSERT_EQ(zepmInvert_m4_32f(m, &det, d), stsOk);
        ASSERT_EQ(det, m[0]);
        const float32 q = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(det)));
        const float32 inv = q + q - det * (q * q);
        ASSERT_TRUE(isSame(d[0], inv)) << det;
        ASSERT_TRUE(isSame(d[5], det * inv)) << det;
    }
}

// The step squares the estimate: that of a smaller determinant overflows, that of a larger one loses its bits.
TEST(Single, InverseHasItsRange)
{
    float32 m[16], d[16];
    std::memcpy(m, identity, sizeof m);
    for (int exponent = -64; exponent <= 62; ++exponent)
        for (int n = 0; n < 100; ++n)
        {
            m[0] = std::ldexp(between(1, 2), exponent);
            if (n % 2) m[0] = -m[0];
            ASSERT_EQ(zepmInvert_m4_32f(m, nullptr, d), stsOk);
            ASSERT_NEAR(static_cast<float64>(m[0]) * d[0], 1, 0x1p-21) << m[0];
        }
    m[0] = 0x1p-65f;
    EXPECT_EQ(zepmInvert_m4_32f(m, nullptr, d), stsOk);
    EXPECT_TRUE(std::isinf(d[0]));
    m[0] = 0x1p80f;
    EXPECT_EQ(zepmInvert_m4_32f(m, nullptr, d), stsOk);
    EXPECT_NEAR(m[0] * d[0], 2, 0.01);
}

// Down column 0, the rows 3 + 1 and 2 + 0 in pairs: whole numbers elsewhere make the cofactors exact.
TEST(Single, OrderOfTheInversesDeterminant)
{
    for (int n = 0; n < 1000; ++n)
    {
        std::vector<float32> m(16);
        float32 d[16], det = 0, t[4];
        for (size_t i = 0; i < 16; ++i) m[i] = i % 4 == 0 ? between(-2, 2) : static_cast<float32>(random_() % 9) - 4;
        for (size_t i = 0; i < 4; ++i) t[i] = m[4 * i] * cofactor(m, i, 0);
        const float32 expected = t[3] + t[1] + (t[2] + t[0]);
        if (zepmInvert_m4_32f(m.data(), &det, d) == stsOk)
        {
            ASSERT_EQ(det, expected);
        }
    }
}

TEST(Single, NullVectorsGiveNans)
{
    const float32 zero[3] = {};
    float32 d[3], m[16];
    EXPECT_EQ(zepmNormalize_v3_32f(zero, d), stsOk);
    expectSame(d, {nan_, nan_, nan_});
    EXPECT_EQ(zepmRotationAxis_v3m4_32f(zero, 1, m), stsOk);
    EXPECT_TRUE(std::isnan(m[0]) && std::isnan(m[10]));
    EXPECT_EQ(zepmLookAtLH_m4_32f(zero, zero, zero, m), stsOk);
    EXPECT_TRUE(std::isnan(m[0]) && m[15] == 1);
}

// Each function of the header has its row, or a test named here.
TEST(Header, EveryFunctionIsTested)
{
    std::ifstream file(GEOMETRY_HEADER);
    const std::string text{std::istreambuf_iterator<char>(file), {}}, start = "\nStatus ";
    std::set<std::string> untested;
    for (size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
    {
        const size_t name = at + start.size();
        untested.insert(text.substr(name, text.find('(', name) - name));
    }
    EXPECT_EQ(untested.size(), 87u);
    for (const Row& r : allRows()) EXPECT_EQ(untested.erase(r.name), 1u) << r.name;
    std::set<std::string> elsewhere = {"zepmIsIdentity_m4_32f", "zepmAffineTransform3DH_mva_32f", // here; in the lanes
                                       "zepmMin_v2_32f", "zepmMin_v3_32f", "zepmMin_v4_32f",
                                       "zepmMax_v2_32f", "zepmMax_v3_32f", "zepmMax_v4_32f"};
    for (const std::string& name : untested)
        if (name.ends_with("a_32f")) elsewhere.insert(name); // arrays: points_test.cpp
    EXPECT_EQ(untested, elsewhere);
}
