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

struct Form
{
    const char *orderS, *orderL, *orderP;
    int32 (*estimate)(int32 len, int32 count);
};

const Form single{"NZT", "", "NZR", nullptr};

const std::map<std::string, Form> forms = {
    {"vv", single},
    {"vc", single},
    {"cv", single},
    {"vac", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return 2 * len * count + len; }}},
    {"cva", {"NCZT", "NCZTR", "NCZTR", [](int32, int32 count) { return 2 * count; }}},
    {"vaca", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return (2 * len + 1) * count; }}},
    {"cava", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return (2 * len + 1) * count; }}},
    {"vca", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return len * (count + 1) + count; }}},
    {"cav", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return len * (count + 1) + count; }}},
    {"vav", {"NZTC", "NZTRC", "NZTCR", [](int32 len, int32 count) { return 2 * len * count + len; }}},
    {"vva", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return 2 * len * count + len; }}},
    {"vava", {"NCZT", "NCZTR", "NCZTR", [](int32 len, int32 count) { return 3 * len * count; }}},
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
    const Form& form = forms.at(f.form);
    for (const Operand& operand : f.operands) f.items.push_back(operand.name);
    f.items.push_back("len");
    if (f.isArray()) f.items.push_back("count");
    f.sizeNames = {"len"};
    for (const int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 16, 17, 33}) f.sizesToTry.push_back({len});
    f.shape = [](const Operand& operand, const std::vector<int>& sizes) {
        return std::pair(1, operand.letter == 'c' ? 1 : sizes[0]);
    };
    f.order = f.layout == Layout::S ? form.orderS : f.layout == Layout::L ? form.orderL : form.orderP;
    if (const auto found = narrowed.find(f.name); found != narrowed.end())
    {
        f.order = found->second.order;
        f.untested = found->second.untested;
    }
    if (form.estimate)
    {
        f.limits = limitsOf(f);
        // Add and Sub count the constant as a vector, Mul does not.
        const auto estimate = f.operation == "Mul" && f.form == "vac"
                                  ? [](int32 len, int32 count) { return 2 * len * count; }
                                  : form.estimate;
        f.estimate = [estimate](const std::vector<int>& sizes, int32 count) { return estimate(sizes[0], count); };
    }
    const bool constantFirst = f.form[0] == 'c';
    if (f.isFloat32)
        f.reference = reference<float32>(f.operation, constantFirst);
    else
        f.reference = reference<float64>(f.operation, constantFirst);
    f.worksInPlace = true;
    return f;
}

#define ROW(name) completed(described(#name, name))

} // namespace

std::vector<Function> vectorFunctions()
{
    return {
        ROW(zepmAdd_vv_32f),     ROW(zepmAdd_vv_32f_P),   ROW(zepmAdd_vv_64f),     ROW(zepmAdd_vv_64f_P),
        ROW(zepmAdd_vc_32f),     ROW(zepmAdd_vc_32f_P),   ROW(zepmAdd_vc_64f),     ROW(zepmAdd_vc_64f_P),
        ROW(zepmAdd_vac_32f),    ROW(zepmAdd_vac_32f_L),  ROW(zepmAdd_vac_32f_P),  ROW(zepmAdd_vac_64f),
        ROW(zepmAdd_vac_64f_L),  ROW(zepmAdd_vac_64f_P),  ROW(zepmAdd_vaca_32f),   ROW(zepmAdd_vaca_32f_L),
        ROW(zepmAdd_vaca_32f_P), ROW(zepmAdd_vaca_64f),   ROW(zepmAdd_vaca_64f_L), ROW(zepmAdd_vaca_64f_P),
        ROW(zepmAdd_vav_32f),    ROW(zepmAdd_vav_32f_L),  ROW(zepmAdd_vav_32f_P),  ROW(zepmAdd_vav_64f),
        ROW(zepmAdd_vav_64f_L),  ROW(zepmAdd_vav_64f_P),  ROW(zepmAdd_vava_32f),   ROW(zepmAdd_vava_32f_L),
        ROW(zepmAdd_vava_32f_P), ROW(zepmAdd_vava_64f),   ROW(zepmAdd_vava_64f_L), ROW(zepmAdd_vava_64f_P),
        ROW(zepmAdd_vca_32f),    ROW(zepmAdd_vca_32f_L),  ROW(zepmAdd_vca_32f_P),  ROW(zepmAdd_vca_64f),
        ROW(zepmAdd_vca_64f_L),  ROW(zepmAdd_vca_64f_P),  ROW(zepmSub_vv_32f),     ROW(zepmSub_vv_32f_P),
        ROW(zepmSub_vv_64f),     ROW(zepmSub_vv_64f_P),   ROW(zepmSub_vc_32f),     ROW(zepmSub_vc_32f_P),
        ROW(zepmSub_vc_64f),     ROW(zepmSub_vc_64f_P),   ROW(zepmSub_cv_32f),     ROW(zepmSub_cv_32f_P),
        ROW(zepmSub_cv_64f),     ROW(zepmSub_cv_64f_P),   ROW(zepmSub_vac_32f),    ROW(zepmSub_vac_32f_L),
        ROW(zepmSub_vac_32f_P),  ROW(zepmSub_vac_64f),    ROW(zepmSub_vac_64f_L),  ROW(zepmSub_vac_64f_P),
        ROW(zepmSub_cva_32f),    ROW(zepmSub_cva_32f_L),  ROW(zepmSub_cva_32f_P),  ROW(zepmSub_cva_64f),
        ROW(zepmSub_cva_64f_L),  ROW(zepmSub_cva_64f_P),  ROW(zepmSub_vaca_32f),   ROW(zepmSub_vaca_32f_L),
        ROW(zepmSub_vaca_32f_P), ROW(zepmSub_vaca_64f),   ROW(zepmSub_vaca_64f_L), ROW(zepmSub_vaca_64f_P),
        ROW(zepmSub_cava_32f),   ROW(zepmSub_cava_32f_L), ROW(zepmSub_cava_32f_P), ROW(zepmSub_cava_64f),
        ROW(zepmSub_cava_64f_L), ROW(zepmSub_cava_64f_P), ROW(zepmSub_vav_32f),    ROW(zepmSub_vav_32f_L),
        ROW(zepmSub_vav_32f_P),  ROW(zepmSub_vav_64f),    ROW(zepmSub_vav_64f_L),  ROW(zepmSub_vav_64f_P),
        ROW(zepmSub_vva_32f),    ROW(zepmSub_vva_32f_L),  ROW(zepmSub_vva_32f_P),  ROW(zepmSub_vva_64f),
        ROW(zepmSub_vva_64f_L),  ROW(zepmSub_vva_64f_P),  ROW(zepmSub_vava_32f),   ROW(zepmSub_vava_32f_L),
        ROW(zepmSub_vava_32f_P), ROW(zepmSub_vava_64f),   ROW(zepmSub_vava_64f_L), ROW(zepmSub_vava_64f_P),
        ROW(zepmSub_vca_32f),    ROW(zepmSub_vca_32f_L),  ROW(zepmSub_vca_32f_P),  ROW(zepmSub_vca_64f),
        ROW(zepmSub_vca_64f_L),  ROW(zepmSub_vca_64f_P),  ROW(zepmSub_cav_32f),    ROW(zepmSub_cav_32f_L),
        ROW(zepmSub_cav_32f_P),  ROW(zepmSub_cav_64f),    ROW(zepmSub_cav_64f_L),  ROW(zepmSub_cav_64f_P),
        ROW(zepmMul_vc_32f),     ROW(zepmMul_vc_32f_P),   ROW(zepmMul_vc_64f),     ROW(zepmMul_vc_64f_P),
        ROW(zepmMul_vac_32f),    ROW(zepmMul_vac_32f_L),  ROW(zepmMul_vac_32f_P),  ROW(zepmMul_vac_64f),
        ROW(zepmMul_vac_64f_L),  ROW(zepmMul_vac_64f_P),  ROW(zepmMul_vca_32f),    ROW(zepmMul_vca_32f_L),
        ROW(zepmMul_vca_32f_P),  ROW(zepmMul_vca_64f),    ROW(zepmMul_vca_64f_L),  ROW(zepmMul_vca_64f_P),
        ROW(zepmMul_vaca_32f),   ROW(zepmMul_vaca_32f_L), ROW(zepmMul_vaca_32f_P), ROW(zepmMul_vaca_64f),
        ROW(zepmMul_vaca_64f_L), ROW(zepmMul_vaca_64f_P),
    };
}

} // namespace check
