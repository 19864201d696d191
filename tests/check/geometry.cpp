// Rows of the drivers among the fixed-size functions.
#include "tests/check/function.h"

#include <cfloat>
#include <cmath>
#include <random>

namespace check
{

namespace
{

void transformHomogeneous(Problem<float32>& problem)
{
    const Tensor<float32>& m = problem.operands[0];
    const Tensor<float32>& points = problem.operands[1];
    Tensor<float32>& d = problem.operands[2];
    for (int k = 0; k < problem.count; ++k)
    {
        const float32 x = points.at(k, 0, 0), y = points.at(k, 0, 1), z = points.at(k, 0, 2);
        auto element = [&](int i) {
            return m.at(0, i, 0) * x + m.at(0, i, 1) * y + (m.at(0, i, 2) * z + m.at(0, i, 3));
        };
        const float32 q = element(3);
        const bool isRegular = std::fabs(q) > FLT_MIN;
        const float32 inv = 1 / q;
        for (int i = 0; i < 3; ++i) d.at(k, 0, i) = isRegular ? inv * element(i) : FLT_MAX;
        if (!isRegular) problem.status = stsDivByZeroErr;
    }
}

// Points in front of the viewer; where some may fail, x alone makes w, now and then zero or as small as can be.
void chooseHomogeneous(Problem<float32>& problem, Random& random)
{
    std::uniform_real_distribution<float32> positive(0.25f, 4), any(-4, 4);
    Tensor<float32>& m = problem.operands[0];
    for (float32& x : m.elements) x = any(random);
    const bool onX = problem.mayFail && random() % 2 == 0;
    for (int j = 0; j < 4; ++j) m.at(0, 3, j) = onX ? static_cast<float32>(j == 0) : positive(random);
    Tensor<float32>& points = problem.operands[1];
    for (float32& x : points.elements) x = positive(random);
    if (!onX) return;
    constexpr float32 small[] = {0, -0.0f, FLT_MIN, -FLT_MIN, FLT_MIN * (1 + FLT_EPSILON), -2 * FLT_MIN, FLT_MIN / 2};
    for (int k = 0; k < problem.count; ++k)
        if (random() % 8 == 0) points.at(k, 0, 0) = small[random() % std::size(small)];
}

Function completed(Function f)
{
    f.operands.back().letter = 'v';
    f.items = {"src1", "src2", "dst", "count"};
    f.sizesToTry.assign(9, {}); // of fixed size: other elements each time
    f.shape = [](const Operand& operand, const Sizes&) {
        return operand.letter == 'm' ? std::pair(4, 4) : std::pair(1, 3);
    };
    f.order = "NCT";
    f.limits = {785, 785};
    f.estimate = [](const Sizes&, int32 count) { return 6 * count; };
    f.reference = Reference<float32>(transformHomogeneous);
    f.values = Values<float32>(chooseHomogeneous);
    f.worksInPlace = true;
    return f;
}

} // namespace

std::vector<Function> families::geometry() { return rows({CHECK_NAME(zepmAffineTransform3DH_mva_32f)}, completed); }

} // namespace check
