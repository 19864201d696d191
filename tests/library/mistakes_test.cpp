// What a program compiled with ZEPM_CHECK is told of its mistakes. The status of each of these calls would be stsOk,
// but for the one that would crash.
#define ZEPM_CHECK 2
#include <zepm.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{

constexpr int32 sz = sizeof(float32), row = 3 * sz, matrix = 9 * sz;
constexpr int32 count = 10;

class Mistakes : public testing::Test
{
protected:
    float32 a[9 * count], b[9 * count], d[9 * count], values[3 * count], buffer[9];
    int32 pivots[3 * count];

    Mistakes()
    {
        for (int k = 0; k < count; ++k)
            for (int i = 0; i < 9; ++i)
                a[9 * k + i] = b[9 * k + i] = d[9 * k + i] = static_cast<float32>(i % 4 == 0 ? 5 + k + i : 1);
        for (int n = 0; n < 3 * count; ++n) pivots[n] = n % 3;
    }
    Status multiply(const float32* s1, const float32* s2, float32* to, int32 dstStride0 = matrix)
    {
        return zepmMul_mama_32f(s1, matrix, row, sz, 3, 3, s2, matrix, row, sz, 3, 3, to, dstStride0, row, sz, count);
    }
    Status solve(const int32* index)
    {
        return zepmLUBackSubst_mava_32f(a, matrix, row, sz, index, b, row, sz, d, row, sz, 3, count);
    }
};

// ---- Overlapping destinations ---------------------------------------------------------------------------------------

TEST_F(Mistakes, ProductOntoItsSource)
{
    EXPECT_DEATH(multiply(a, b, b), "mistakes_test.cpp:[0-9]*: zepmMul_mama_32f: dst overlaps src2");
}

TEST_F(Mistakes, ResultOneObjectFurtherOnTheSource)
{
    auto call = [&] { return zepmAdd_vava_32f(a, row, sz, b, row, sz, a + 3, row, sz, 3, count); };
    EXPECT_DEATH(call(), "dst overlaps src1");
}

TEST_F(Mistakes, TransposedSourceInItsPlace)
{
    auto call = [&] {
        return zepmSub_tama_32f(a, matrix, row, sz, b, matrix, row, sz, a, matrix, row, sz, 3, 3, count);
    };
    EXPECT_DEATH(call(), "dst overlaps src1");
}

TEST_F(Mistakes, SameDestinationTwiceInATable)
{
    const float32* source[2] = {a, b};
    float32* result[2] = {d, d};
    auto call = [&] { return zepmAdd_vac_32f_L(source, 0, sz, 1, result, 0, sz, 3, 2); };
    EXPECT_DEATH(call(), "dst: its elements overlap one another");
}

TEST_F(Mistakes, VectorsOntoTheMatrices)
{
    auto call = [&] {
        return zepmEigenValuesVectorsSym_ma_32f(a, matrix, row, sz, buffer, a, matrix, row, sz, values, 3, count);
    };
    EXPECT_DEATH(call(), "dst overlaps src");
}

TEST_F(Mistakes, BufferInTheValues)
{
    auto call = [&] { return zepmEigenValuesSym_ma_32f(a, matrix, row, sz, values, values, 3, count); };
    EXPECT_DEATH(call(), "pDstValues overlaps pBuffer");
}

// ---- Strides --------------------------------------------------------------------------------------------------------

TEST_F(Mistakes, StrideOfARowBetweenMatrices)
{
    EXPECT_DEATH(multiply(a, b, d, row), "dst: stride.* is 12, but it steps over 36 bytes");
}

TEST_F(Mistakes, StrideInElements)
{
    auto call = [&] { return zepmMul_mac_32f(a, 64, 4, sz, 2, d, 64, 16, sz, 4, 4, 2); };
    EXPECT_DEATH(call(), "src: stride1 is 4, but it steps over 16 bytes");
}

TEST_F(Mistakes, WidthAndHeightExchanged)
{
    // 3 rows of 2 columns.
    auto call = [&] { return zepmMul_mac_32f(a, 6 * sz, 2 * sz, sz, 2, d, 6 * sz, 2 * sz, sz, 3, 2, count); };
    EXPECT_DEATH(call(), "src: stride1 is 8, but it steps over 12 bytes");
}

TEST_F(Mistakes, PointsOfFourElementsInThree)
{
    auto call = [&] { return zepmAffineTransform_m4v3a_32f(b, a, row, d, row, count); };
    EXPECT_DEATH(call(), "dst: stride0 is 12, but it steps over 16 bytes");
}

// ---- Pivots, tables, memory -----------------------------------------------------------------------------------------

TEST_F(Mistakes, PivotsFromOne)
{
    for (int32& pivot : pivots) ++pivot;
    EXPECT_DEATH(solve(pivots), "pivot 2 of matrix 0 is 3, outside the matrix");
}

TEST_F(Mistakes, PivotsOfAnotherMatrix)
{
    EXPECT_DEATH(zepmLUBackSubst_mv_32f(a, 4 * sz, sz, pivots, b, sz, d, sz, 4),
                 "pivot 3 of matrix 0 is 0, a second time");
}

TEST_F(Mistakes, NullInATable)
{
    const float32* source[3] = {a, nullptr, b};
    float32* result[3] = {d, d + 3, d + 6};
    auto call = [&] { return zepmAdd_vac_32f_L(source, 0, sz, 1, result, 0, sz, 3, 3); };
    EXPECT_DEATH(call(), "src: entry 1 of its table is null");
}

#ifdef ZEPM_CHECK_MEMORY
TEST_F(Mistakes, CountBeyondTheArray)
{
    const auto last = std::make_unique<float32[]>(9 * (count - 1));
    EXPECT_DEATH(multiply(last.get(), b, d), "src1: row 0, column 0 of object 9 lies outside its memory");
}
#endif

// ---- What is no mistake ---------------------------------------------------------------------------------------------

TEST_F(Mistakes, AreNotSeenInGoodCalls)
{
    EXPECT_EQ(stsOk, multiply(a, a, d)) << "one source twice";
    EXPECT_EQ(stsOk, zepmMul_mama_32f(a, matrix, sz, row, 3, 3, b, matrix, row, sz, 3, 3, d, matrix, sz, row, count))
        << "by columns";
    EXPECT_EQ(stsOk, zepmAdd_vava_32f(a, row, sz, b, row, sz, b, row, sz, 3, count)) << "in place";
    EXPECT_EQ(stsOk, zepmAdd_vac_32f(a, 24, 8, 1, a + 1, 24, 8, 3, count)) << "in the gaps of the source";
    EXPECT_EQ(stsOk, zepmLUDecomp_ma_32f(a, matrix, row, sz, pivots, a, matrix, row, sz, 3, count));
    EXPECT_EQ(stsOk, zepmLUBackSubst_mava_32f(a, matrix, row, sz, pivots, values, row, sz, values, row, sz, 3, count));
    const float32* source[3] = {b, b, b};
    float32* result[3] = {d + 6, d, d + 3};
    EXPECT_EQ(stsOk, zepmAdd_vac_32f_L(source, 0, sz, 1, result, 0, sz, 3, 3));
    EXPECT_EQ(stsOk, zepmAffineTransformCoord_m4v3a_32f(b, d, row, d, row, count));
    EXPECT_EQ(stsStrideErr, multiply(a, b, d, 0)) << "what the library itself refuses";
}

} // namespace
