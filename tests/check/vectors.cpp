// Rows of the element-wise families on vectors.
#include "tests/check/function.h"

#include <map>

namespace check
{

namespace
{

// d[k][j] = operation(first[k][j], second[k][j]), first and second in the order of the name; a constant has one column.
template <class Operation, class T>
void combine(Problem<T>& problem, bool constantFirst)
{
    const Tensor<T>& a = problem.operands[0];
    const Tensor<T>& b = problem.operands[1];
    Tensor<T>& d = problem.operands[2];
    for (int k = 0; k < problem.count; ++k)
        for (int j = 0; j < d.cols; ++j)
        {
            const T x = a.at(k, 0, j);
            const T y = b.at(k, 0, b.cols == 1 ? 0 : j);
            d.at(k, 0, j) = constantFirst ? Operation{}(y, x) : Operation{}(x, y);
        }
}

template <class T>
std::function<void(Problem<T>&)> reference(const std::string& operation, bool constantFirst)
{
    if (operation == "Add") return [=](Problem<T>& problem) { combine<std::plus<T>>(problem, constantFirst); };
    if (operation == "Mul") return [=](Problem<T>& problem) { combine<std::multiplies<T>>(problem, constantFirst); };
    return [=](Problem<T>& problem) { combine<std::minus<T>>(problem, constantFirst); };
}

using Estimate = int32 (*)(int32 len, int32 count);

const std::map<std::string, Estimate> estimates = {
    {"vac", [](int32 len, int32 count) { return 2 * len * count + len; }},
    {"cva", [](int32, int32 count) { return 2 * count; }},
    {"vaca", [](int32 len, int32 count) { return (2 * len + 1) * count; }},
    {"cava", [](int32 len, int32 count) { return (2 * len + 1) * count; }},
    {"vca", [](int32 len, int32 count) { return len * (count + 1) + count; }},
    {"cav", [](int32 len, int32 count) { return len * (count + 1) + count; }},
    {"vav", [](int32 len, int32 count) { return 2 * len * count + len; }},
    {"vva", [](int32 len, int32 count) { return 2 * len * count + len; }},
    {"vava", [](int32 len, int32 count) { return 3 * len * count; }},
};

// 32f and 64f in the layouts S, L, P; of Mul the packed and the general ones.
const int32 limits[2][3] = {{4801, 2501, 1501}, {1401, 2501, 1501}};
const Limits mulVacLimits[2][3] = {{{2501, 1441}, {3601, 1441}, {1441, 1441}},
                                   {{3601, 1441}, {3601, 1441}, {1441, 1441}}};
const int32 mulConstantsLimits[3] = {2101, 1201, 651};

Limits limitsOf(const Function& f)
{
    const int type = f.isFloat32 ? 0 : 1, layout = static_cast<int>(f.layout);
    if (f.operation == "Mul" && f.form == "vac") return mulVacLimits[type][layout];
    const int32 limit = f.operation == "Mul" ? mulConstantsLimits[layout] : limits[type][layout];
    return f.form == "cva" ? Limits{limit - 1, limit - 1} : Limits{limit, limit};
}

// The functions that test less than their neighbours.
struct Narrowed
{
    const char* order;
    std::vector<std::string> untested;
};
const std::map<std::string, Narrowed> narrowed = {
    {"zepmAdd_vca_64f_P", {"NCZT", {"srcRoiShift", "dstRoiShift"}}},
    {"zepmSub_cav_32f_P", {"NCZT", {"srcRoiShift", "dstRoiShift"}}},
    {"zepmAdd_vaca_32f_P", {"NCZTR", {"srcStride0"}}},
};

Function completed(Function f)
{
    f.sizeNames = {"len"};
    f.items = standardItems(f);
    f.sizesToTry = lengths({1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 16, 17, 33});
    f.written = {3};
    f.looped = {9};
    f.typical = {7};
    f.shape = [](const Operand& operand, const Sizes& sizes) {
        return std::pair(1, operand.letter == 'c' ? 1 : sizes[0]);
    };
    f.order = standardOrder(f);
    if (f.form == "vav") f.order = f.layout == Layout::S ? "NZTC" : f.layout == Layout::L ? "NZTRC" : "NZTCR";
    if (const auto found = narrowed.find(f.name); found != narrowed.end())
    {
        f.order = found->second.order;
        f.untested = found->second.untested;
    }
    if (f.isArray())
    {
        f.limits = limitsOf(f);
        // Add and Sub count the constant as a vector, Mul does not.
        const Estimate estimate = f.operation == "Mul" && f.form == "vac"
                                      ? [](int32 len, int32 count) { return 2 * len * count; }
                                      : estimates.at(f.form);
        f.estimate = [estimate](const Sizes& sizes, int32 count) { return estimate(sizes[0], count); };
    }
    const bool constantFirst = f.form[0] == 'c';
    forElementType(f, [&]<class T>(T) { f.reference = Reference<T>(reference<T>(f.operation, constantFirst)); });
    f.worksInPlace = true;
    return f;
}

} // namespace

std::vector<Function> families::vectors()
{
    return rows(
        {
            SINGLE_FORM(zepmAdd_vv),  SINGLE_FORM(zepmAdd_vc),  ARRAY_FORM(zepmAdd_vac),  ARRAY_FORM(zepmAdd_vaca),
            ARRAY_FORM(zepmAdd_vav),  ARRAY_FORM(zepmAdd_vava), ARRAY_FORM(zepmAdd_vca),  SINGLE_FORM(zepmSub_vv),
            SINGLE_FORM(zepmSub_vc),  SINGLE_FORM(zepmSub_cv),  ARRAY_FORM(zepmSub_vac),  ARRAY_FORM(zepmSub_cva),
            ARRAY_FORM(zepmSub_vaca), ARRAY_FORM(zepmSub_cava), ARRAY_FORM(zepmSub_vav),  ARRAY_FORM(zepmSub_vva),
            ARRAY_FORM(zepmSub_vava), ARRAY_FORM(zepmSub_vca),  ARRAY_FORM(zepmSub_cav),  SINGLE_FORM(zepmMul_vc),
            ARRAY_FORM(zepmMul_vac),  ARRAY_FORM(zepmMul_vca),  ARRAY_FORM(zepmMul_vaca),
        },
        completed);
}

} // namespace check
