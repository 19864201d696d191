// Rows of the vector algebra: sums in the order of each function, vector products, linear combinations.
#include "frame/operands.h"
#include "tests/check/function.h"
#include "zepcore.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace check
{

namespace
{

// ---- Orders of summation, as plainly as they can be written ---------------------------------------------------------

template <class T>
using Terms = std::vector<T>;
using Names = std::vector<std::string>;

template <class T>
T chain(const Terms<T>& x, size_t from, size_t to, T sum)
{
    for (size_t k = from; k < to; ++k) sum += x[k];
    return sum;
}
template <class T>
T leftToRight(const Terms<T>& x)
{
    return chain(x, 1, x.size(), x[0]);
}
template <class T>
T neighbours(const Terms<T>& x)
{
    Terms<T> sums;
    for (size_t k = 0; k < x.size(); k += 2) sums.push_back(k + 1 < x.size() ? x[k] + x[k + 1] : x[k]);
    return leftToRight(sums);
}
template <class T>
T evensAndOdds(const Terms<T>& x)
{
    Terms<T> part[2];
    for (size_t k = 0; k < x.size(); ++k) part[k % 2].push_back(x[k]);
    return leftToRight(part[0]) + leftToRight(part[1]);
}
// Steps of so many terms to two sums by turns, the rest one by one to both.
template <class T>
T inPairs(const Terms<T>& x, size_t step, T total = 0)
{
    T sum[2] = {total, 0};
    const size_t steps = x.size() / step * step;
    for (size_t k = 0; k < steps; ++k) sum[k % 2] += x[k];
    return chain(x, steps, x.size(), sum[0] + sum[1]);
}
// Eight partial sums of floats, four of doubles.
template <class T>
T joined(const T* p)
{
    if constexpr (sizeof(T) == 4)
        return ((p[0] + p[4]) + (p[1] + p[5])) + ((p[2] + p[6]) + (p[3] + p[7]));
    else
        return (p[0] + p[2]) + (p[1] + p[3]);
}
template <class T>
T peeled(const Terms<T>& x, const void* address)
{
    const size_t past = reinterpret_cast<uintptr_t>(address) % 16, sums = 32 / sizeof(T);
    const size_t peel = (16 - past) % 16 / sizeof(T);
    if (past % sizeof(T) != 0 || peel + 8 > x.size()) return chain(x, 0, x.size(), T(0));
    const size_t stop = x.size() - (x.size() - peel) % 8;
    T p[8] = {chain(x, 0, peel, T(0))};
    for (size_t k = peel; k < stop; ++k) p[(k - peel) % sums] += x[k];
    return chain(x, stop, x.size(), joined(p));
}

// ---- Which function sums how ----------------------------------------------------------------------------------------

template <class T>
T dotOf(const Function& f, const Terms<T>& x, bool isPacked, const void* second)
{
    const size_t n = x.size();
    if (!isPacked) return n >= 3 && n <= 6 ? leftToRight(x) : inPairs(x, 2);
    if (n == 4 && !f.isFloat32) return evensAndOdds(x);
    if (n == 4 && f.form == "vav") return neighbours(x);
    if (n >= 3 && n <= 6) return leftToRight(x);
    const bool isPeeled = f.form == "vv" || (f.form == "vava" && f.isFloat32 && f.layout == Layout::S);
    return isPeeled ? peeled(x, second) : inPairs(x, 2);
}

template <class T>
T squaresOfVector(const Function& f, const Terms<T>& x, bool isPacked, const void* address)
{
    const size_t n = x.size();
    const bool isShort = n >= 3 && n <= 6;
    if (!isPacked) return isShort ? leftToRight(x) : inPairs(x, 2);
    if (isShort) return f.isFloat32 ? neighbours(x) : evensAndOdds(x);
    if (f.isArray()) return chain(x, 0, n, T(0));
    return f.isFloat32 ? peeled(x, address) : inPairs(x, 2);
}

template <class T>
T squaresOfMatrix(const Function& f, const Terms<T>& x, size_t width, const Tensor<T>& src, int k)
{
    const size_t height = x.size() / width;
    const auto rowOf = [&](size_t i) {
        const auto begin = x.begin() + static_cast<ptrdiff_t>(i * width);
        return Terms<T>(begin, begin + static_cast<ptrdiff_t>(width));
    };
    if (f.layout == Layout::P) return inPairs(x, 4);
    T sum = 0;
    if (!f.isFloat32)
    {
        for (size_t i = 0; i < height; ++i) sum = inPairs(rowOf(i), 2, sum);
        return sum;
    }
    if (width == height && width < 6)
    {
        for (size_t j = 0; j < width; ++j)
        {
            Terms<T> column;
            for (size_t i = 0; i < height; ++i) column.push_back(x[i * width + j]);
            sum = j == 0 ? leftToRight(column) : sum + leftToRight(column);
        }
        return sum;
    }
    const bool isAligned = reinterpret_cast<uintptr_t>(src.addresses[static_cast<size_t>(k)]) % sizeof(T) == 0;
    const auto stride2 = static_cast<size_t>(src.stride2);
    const bool isRun = isAligned && width * stride2 == static_cast<size_t>(src.stride1);
    T p[8] = {};
    for (size_t i = 0; i < (isRun ? 1 : height); ++i)
    {
        const Terms<T> run = isRun ? x : rowOf(i);
        const size_t eights = isRun || stride2 == sizeof(T) ? run.size() / 8 * 8 : 0;
        for (size_t e = 0; e < run.size(); ++e) p[e < eights ? e % 8 : 0] += run[e];
    }
    return joined(p);
}

// ---- References -----------------------------------------------------------------------------------------------------

template <class T>
void reduce(const Function& f, Problem<T>& problem)
{
    const Tensor<T>& a = problem.operands[0];
    const Tensor<T>& b = problem.operands[f.operation == "DotProduct" ? 1 : 0];
    for (int k = 0; k < problem.count; ++k)
    {
        Terms<T> terms;
        for (int i = 0; i < a.rows; ++i)
            for (int j = 0; j < a.cols; ++j)
                if (f.operation != "Trace")
                    terms.push_back(a.at(k, i, j) * b.at(k, i, j));
                else if (i == j)
                    terms.push_back(a.at(k, i, j));
        T& d = problem.operands.back().at(k, 0, 0);
        const void* const address = b.addresses[b.count == 1 ? 0 : static_cast<size_t>(k)];
        if (f.operation == "DotProduct")
            d = dotOf(f, terms, problem.isPacked, address);
        else if (f.operation == "L2Norm")
            d = std::sqrt(squaresOfVector(f, terms, problem.isPacked, address));
        else if (f.operation == "FrobNorm")
            d = std::sqrt(squaresOfMatrix(f, terms, static_cast<size_t>(a.cols), a, k));
        else
            d = a.rows >= 3 && a.rows <= 6 ? leftToRight(terms) : chain(terms, 0, terms.size(), T(0));
    }
}

template <class T>
void cross(Problem<T>& problem)
{
    for (int k = 0; k < problem.count; ++k)
    {
        const auto a = [&](int j) { return problem.operands[0].at(k, 0, j % 3); };
        const auto b = [&](int j) { return problem.operands[1].at(k, 0, j % 3); };
        for (int j = 0; j < 3; ++j) problem.operands[2].at(k, 0, j) = a(j + 1) * b(j + 2) - a(j + 2) * b(j + 1);
    }
}

template <class T>
void combine(const Function& f, Problem<T>& problem)
{
    const bool isWeighted = f.operation == "LComb";
    Tensor<T>& d = problem.operands.back();
    const Tensor<T>& a = problem.operands[0];
    const Tensor<T>& b = problem.operands[2];
    const T val1 = problem.operands[1].elements[0], val2 = isWeighted ? problem.operands[3].elements[0] : 0;
    for (int k = 0; k < problem.count; ++k)
        for (int j = 0; j < d.cols; ++j)
        {
            const T product = a.at(k, 0, j) * val1;
            d.at(k, 0, j) = product + (isWeighted ? b.at(k, 0, j) * val2 : b.at(k, 0, j));
        }
}

// Of a few neighbouring orders of magnitude, so that the order of a sum shows in its last place; in some cases special
// values among them.
template <class T>
void chooseTerms(Problem<T>& problem, Random& random)
{
    const T infinity = std::numeric_limits<T>::infinity(), least = std::numeric_limits<T>::denorm_min();
    const T special[] = {0,
                         -T(0),
                         infinity,
                         -infinity,
                         std::numeric_limits<T>::quiet_NaN(),
                         least,
                         -least,
                         std::numeric_limits<T>::max()};
    const bool hasSpecial = random() % 8 == 0;
    for (size_t n = 0; n + 1 < problem.operands.size(); ++n)
        for (T& x : problem.operands[n].elements)
        {
            x = std::ldexp(T(1) + T(random()) / T(4294967296.0), static_cast<int>(random() % 8) - 4);
            if (random() % 2) x = -x;
            if (hasSpecial && random() % 16 == 0) x = special[random() % std::size(special)];
        }
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

struct LimitsOf
{
    Limits layout[3]; // S, L, P
};
const std::map<std::string, LimitsOf> limits = {
    {"DotProduct 32f", {{{5001, 2621}, {2401, 2401}, {2401, 2401}}}},
    {"DotProduct 64f", {{{3501, 2001}, {4201, 3301}, {2001, 2001}}}},
    {"L2Norm 32f", {{{1501, 1501}, {1501, 1501}, {1501, 1501}}}},
    {"L2Norm 64f", {{{1501, 1501}, {1501, 1501}, {1501, 1501}}}},
    {"FrobNorm 32f", {{{2501, 1801}, {1601, 1601}, {1501, 1501}}}},
    {"FrobNorm 64f", {{{1801, 1501}, {1601, 1601}, {2501, 2501}}}},
    {"Trace 32f", {{{3601, 3601}, {3601, 3601}, {3601, 3601}}}},
    {"Trace 64f", {{{3601, 3601}, {3601, 3601}, {3601, 3601}}}},
    {"Saxpy 32f", {{{3001, 2001}, {1501, 1001}, {1201, 1201}}}},
    {"Saxpy 64f", {{{3001, 1201}, {1001, 1001}, {1201, 1201}}}},
    {"LComb 32f", {{{4501, 4501}, {4501, 3751}, {4501, 4501}}}},
    {"LComb 64f", {{{4501, 4501}, {4501, 4501}, {4501, 4501}}}},
};

Limits limitsOf(const Function& f)
{
    if (f.operation == "CrossProduct") return f.form == "vava" ? Limits{3001, 3001} : Limits{3000, 3000};
    if (f.name == "zepmSaxpy_vva_32f_L") return {1501, 1501};
    return limits.at(f.operation + (f.isFloat32 ? " 32f" : " 64f")).layout[static_cast<size_t>(f.layout)];
}

// The elements of the sources and of the destination that a call counts, of vectors of len elements.
int32 estimateOf(const Function& f, int32 len, int32 count)
{
    int32 estimate = 0;
    for (const Operand& operand : f.operands)
        if (operand.letter != 'c' && operand.storage == Storage::Laid) estimate += len * (operand.isArray ? count : 1);
    return estimate;
}

template <class Serve>
Function withReference(Function f, Serve serve)
{
    forElementType(f, [&]<class T>(T) {
        f.values = Values<T>(chooseTerms<T>);
        f.reference = Reference<T>([f, serve](Problem<T>& problem) { serve(f, problem); });
    });
    f.order = standardOrder(f);
    f.nansAlike = true;
    if (f.isArray()) f.limits = limitsOf(f);
    return f;
}

// One number for each object, without gaps.
Function reduction(Function f)
{
    const bool isTrace = f.operation == "Trace", isMatrix = f.form[0] == 'm';
    f.operands.back() = {"dst", 'v', f.isArray(), true, Storage::Dense};
    f.sizeNames = isTrace ? Names{"widthHeight"} : isMatrix ? Names{"width", "height"} : Names{"len"};
    f.items = standardItems(f);
    if (isMatrix) // the sizes stand behind the matrix
        std::rotate(f.items.begin() + 1, f.items.begin() + 2,
                    f.items.begin() + 2 + static_cast<ptrdiff_t>(f.sizeNames.size()));
    if (isMatrix && !isTrace)
    {
        for (const int n : {1, 2, 3, 4, 5, 6, 7, 9}) f.sizesToTry.push_back({n, n});
        for (const Sizes& sizes : {Sizes{3, 4}, Sizes{9, 2}, Sizes{17, 3}, Sizes{1, 11}}) f.sizesToTry.push_back(sizes);
        f.written = {3, 3}, f.looped = {9, 5}, f.typical = {5, 7};
    }
    else
    {
        f.sizesToTry = lengths({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16, 19, 33, 42});
        if (isTrace) f.sizesToTry.resize(9);
        f.written = {3}, f.looped = {19}, f.typical = {9};
    }
    f.shape = [isTrace](const Operand& operand, const Sizes& sizes) {
        if (operand.isDst) return std::pair(1, 1);
        if (operand.letter == 'v') return std::pair(1, sizes[0]);
        return std::pair(isTrace ? sizes[0] : sizes[1], sizes[0]);
    };
    f = withReference(f, [](const Function& of, auto& problem) { reduce(of, problem); });
    if (f.isArray())
        f.estimate = [f](const Sizes& sizes, int32 count) {
            return estimateOf(f, sizes.size() == 2 ? sizes[0] * sizes[1] : sizes[0], count);
        };
    return f;
}

Function crossProduct(Function f)
{
    f.items = standardItems(f);
    f.sizesToTry.assign(3, {}); // of fixed size: other elements each time
    f.shape = [](const Operand&, const Sizes&) { return std::pair(1, 3); };
    f = withReference(f, [](const Function&, auto& problem) { cross(problem); });
    f.order.erase(f.order.find('Z'), 1);
    if (f.form == "vav") f.order = f.layout == Layout::S ? "NTC" : f.layout == Layout::L ? "NTRC" : "NTCR";
    f.estimate = [f](const Sizes&, int32 count) { return (f.form == "vava" ? 3 : 2) * count; };
    f.worksInPlace = true;
    return f;
}

Function linearCombination(Function f)
{
    const bool isWeighted = f.operation == "LComb";
    f.operands.insert(f.operands.begin() + 1, {isWeighted ? "val1" : "val", 'c', false, false});
    if (isWeighted) f.operands.insert(f.operands.begin() + 3, {"val2", 'c', false, false});
    f.sizeNames = {"len"};
    f.items = standardItems(f);
    f.sizesToTry = lengths({1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 16, 17, 33});
    f.written = {3}, f.looped = {9}, f.typical = {7};
    f.shape = [](const Operand& operand, const Sizes& sizes) {
        return std::pair(1, operand.letter == 'c' ? 1 : sizes[0]);
    };
    f = withReference(f, [](const Function& of, auto& problem) { combine(of, problem); });
    f.estimate = [f](const Sizes& sizes, int32 count) { return estimateOf(f, sizes[0], count); };
    f.worksInPlace = true;
    return f;
}

Function completed(Function f)
{
    if (f.operation == "CrossProduct") return crossProduct(f);
    if (f.operation == "Saxpy" || f.operation == "LComb") return linearCombination(f);
    return reduction(f);
}

// ---- Overlap --------------------------------------------------------------------------------------------------------

// Vectors that overlap their results by some elements, at each level: those of an ascending loop over all objects.
template <class T, class Call>
void expectAscending(Call call)
{
    constexpr int len = 19, count = 5, size = 400;
    const int32 levelInForce = ownGetCpuLevel();
    for (int32 level = 0; level <= 2; ++level)
        for (const int shift : {-9, -1, 0, 1, 3, 8, 19, 40})
            for (const int step : {len, len + 1, len + 5})
            {
                if (zepSetCpuLevel(level) != stsOk) continue;
                T wanted[size], got[size], other[size];
                for (int n = 0; n < size; ++n) wanted[n] = got[n] = T(n % 7) + T(0.25), other[n] = T(n % 5) - T(1.5);
                for (int k = 0; k < count; ++k)
                    for (int j = 0; j < len; ++j)
                        wanted[50 + shift + k * step + j] =
                            wanted[50 + k * step + j] * T(0.5) + other[k * step + j] * T(0.75);
                call(got + 50, other, got + 50 + shift, step * static_cast<int32>(sizeof(T)), len, count);
                ASSERT_EQ(std::memcmp(got, wanted, sizeof got), 0)
                    << "level " << level << ", shift " << shift << ", step " << step;
            }
    zepSetCpuLevel(levelInForce);
}

} // namespace

TEST(VectorAlgebra, ResultsThatFeedOthers)
{
    expectAscending<float32>([](float32* a, float32* b, float32* d, int32 stride0, int32 len, int32 count) {
        EXPECT_EQ(zepmLComb_vava_32f(a, stride0, 4, 0.5f, b, stride0, 4, 0.75f, d, stride0, 4, len, count), stsOk);
    });
    expectAscending<float64>([](float64* a, float64* b, float64* d, int32 stride0, int32 len, int32 count) {
        std::vector<const float64*> listA, listB;
        std::vector<float64*> listD;
        for (int k = 0; k < count; ++k)
        {
            listA.push_back(a + k * stride0 / 8), listB.push_back(b + k * stride0 / 8);
            listD.push_back(d + k * stride0 / 8);
        }
        EXPECT_EQ(
            zepmLComb_vava_64f_L(listA.data(), 0, 8, 0.5, listB.data(), 0, 8, 0.75, listD.data(), 0, 8, len, count),
            stsOk);
    });
    expectAscending<float32>([](float32* a, float32* b, float32* d, int32 stride0, int32 len, int32 count) {
        for (int k = 0; k < count; ++k)
        {
            const int first = k * stride0 / 4;
            EXPECT_EQ(zepmLComb_vv_32f(a + first, 4, 0.5f, b + first, 4, 0.75f, d + first, 4, len), stsOk);
        }
    });
}

// A trace that stands on the diagonal is zero there before it is added up.
TEST(VectorAlgebra, TraceOnItsDiagonal)
{
    float32 m[7][7] = {};
    for (int i = 0; i < 7; ++i) m[i][i] = static_cast<float32>(1 << i);
    EXPECT_EQ(zepmTrace_m_32f(m[0], sizeof m[0], sizeof m[0][0], 7, &m[2][2]), stsOk);
    EXPECT_EQ(m[2][2], 1 + 2 + (1 + 2) + 8 + 16 + 32 + 64);
}

std::vector<Function> families::vector_algebra()
{
    return rows(
        {
            SINGLE_FORM(zepmDotProduct_vv),    ARRAY_FORM(zepmDotProduct_vav),   ARRAY_FORM(zepmDotProduct_vava),
            SINGLE_FORM(zepmCrossProduct_vv),  ARRAY_FORM(zepmCrossProduct_vav), ARRAY_FORM(zepmCrossProduct_vva),
            ARRAY_FORM(zepmCrossProduct_vava), SINGLE_FORM(zepmL2Norm_v),        ARRAY_FORM(zepmL2Norm_va),
            SINGLE_FORM(zepmFrobNorm_m),       ARRAY_FORM(zepmFrobNorm_ma),      SINGLE_FORM(zepmTrace_m),
            ARRAY_FORM(zepmTrace_ma),          SINGLE_FORM(zepmSaxpy_vv),        ARRAY_FORM(zepmSaxpy_vav),
            ARRAY_FORM(zepmSaxpy_vva),         ARRAY_FORM(zepmSaxpy_vava),       SINGLE_FORM(zepmLComb_vv),
            ARRAY_FORM(zepmLComb_vav),         ARRAY_FORM(zepmLComb_vava),
        },
        completed);
}

} // namespace check
