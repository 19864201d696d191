// Rows of the element-wise families on matrices.
#include "tests/check/function.h"

#include <set>

namespace check
{

namespace
{

template <class T>
T result(const std::string& operation, T x, T y)
{
    return operation == "Add" ? x + y : operation == "Sub" ? x - y : x * y;
}

// d[k](i, j) = operation(first, second) of the sources, read through their transpose where their letter is t.
template <class T>
std::function<void(Problem<T>&)> reference(const Function& f)
{
    return [operation = f.operation, letters = std::string{f.operands[0].letter, f.operands[1].letter}](Problem<T>& p) {
        auto element = [&](size_t n, int k, int i, int j) {
            const Tensor<T>& source = p.operands[n];
            return letters[n] == 'c' ? source.at(k, 0, 0) : letters[n] == 't' ? source.at(k, j, i) : source.at(k, i, j);
        };
        Tensor<T>& d = p.operands[2];
        for (int k = 0; k < p.count; ++k)
            for (int i = 0; i < d.rows; ++i)
                for (int j = 0; j < d.cols; ++j)
                    d.at(k, i, j) = result(operation, element(0, k, i, j), element(1, k, i, j));
    };
}

Limits limitsOf(const Function& f)
{
    if (f.operation != "Mul") return f.isFloat32 && f.layout == Layout::S ? Limits{3000, 2000} : Limits{2000, 2000};
    if (f.layout == Layout::P) return {1701, 1701};
    return f.isFloat32 && f.layout == Layout::L ? Limits{3501, 1501} : Limits{3501, 3501};
}

// The strides come before the sizes.
const std::set<std::string> stridesFirst = {"zepmAdd_mam_32f", "zepmAdd_mam_64f", "zepmSub_mam_32f",
                                            "zepmSub_mam_64f", "zepmSub_mma_32f", "zepmSub_mma_64f"};

Function completed(Function f)
{
    for (const Operand& operand : f.operands) f.items.push_back(operand.name);
    f.items.insert(f.items.end(), {"width", "height"});
    if (f.isArray()) f.items.push_back("count");
    f.sizeNames = {"width", "height"};
    f.sizesToTry = {{3, 3}, {1, 1}, {4, 4}, {5, 3}, {1, 7}, {7, 1},  {5, 5}, {3, 5},
                    {6, 6}, {4, 3}, {6, 4}, {8, 2}, {9, 7}, {17, 5}, {5, 18}};
    f.shape = [](const Operand& operand, const std::vector<int>& sizes) {
        if (operand.letter == 'c') return std::pair(1, 1);
        return operand.letter == 't' ? std::pair(sizes[0], sizes[1]) : std::pair(sizes[1], sizes[0]);
    };
    if (!f.isArray())
    {
        f.order = f.layout == Layout::S ? "NZT" : "NZR";
    }
    else
    {
        f.order = stridesFirst.count(f.name) ? "NCTZ" : f.layout == Layout::S ? "NCZT" : "NCZTR";
        f.limits = limitsOf(f);
        int32 fixed = 0, arrays = 0;
        for (const Operand& operand : f.operands)
            if (operand.letter != 'c') ++(operand.isArray ? arrays : fixed);
        f.estimate = [=](const std::vector<int>& sizes, int32 count) {
            return sizes[0] * sizes[1] * (arrays * count + fixed);
        };
    }
    if (f.isFloat32)
        f.reference = reference<float32>(f);
    else
        f.reference = reference<float64>(f);
    f.worksInPlace = true;
    return f;
}

#define ROW(name) completed(described(#name, name))

} // namespace

std::vector<Function> matrixFunctions()
{
    return {
        ROW(zepmAdd_mm_32f),     ROW(zepmAdd_mm_32f_P),   ROW(zepmAdd_mm_64f),     ROW(zepmAdd_mm_64f_P),
        ROW(zepmAdd_tm_32f),     ROW(zepmAdd_tm_32f_P),   ROW(zepmAdd_tm_64f),     ROW(zepmAdd_tm_64f_P),
        ROW(zepmAdd_tt_32f),     ROW(zepmAdd_tt_32f_P),   ROW(zepmAdd_tt_64f),     ROW(zepmAdd_tt_64f_P),
        ROW(zepmAdd_mam_32f),    ROW(zepmAdd_mam_32f_L),  ROW(zepmAdd_mam_32f_P),  ROW(zepmAdd_mam_64f),
        ROW(zepmAdd_mam_64f_L),  ROW(zepmAdd_mam_64f_P),  ROW(zepmAdd_mat_32f),    ROW(zepmAdd_mat_32f_L),
        ROW(zepmAdd_mat_32f_P),  ROW(zepmAdd_mat_64f),    ROW(zepmAdd_mat_64f_L),  ROW(zepmAdd_mat_64f_P),
        ROW(zepmAdd_tam_32f),    ROW(zepmAdd_tam_32f_L),  ROW(zepmAdd_tam_32f_P),  ROW(zepmAdd_tam_64f),
        ROW(zepmAdd_tam_64f_L),  ROW(zepmAdd_tam_64f_P),  ROW(zepmAdd_tat_32f),    ROW(zepmAdd_tat_32f_L),
        ROW(zepmAdd_tat_32f_P),  ROW(zepmAdd_tat_64f),    ROW(zepmAdd_tat_64f_L),  ROW(zepmAdd_tat_64f_P),
        ROW(zepmAdd_mama_32f),   ROW(zepmAdd_mama_32f_L), ROW(zepmAdd_mama_32f_P), ROW(zepmAdd_mama_64f),
        ROW(zepmAdd_mama_64f_L), ROW(zepmAdd_mama_64f_P), ROW(zepmAdd_tama_32f),   ROW(zepmAdd_tama_32f_L),
        ROW(zepmAdd_tama_32f_P), ROW(zepmAdd_tama_64f),   ROW(zepmAdd_tama_64f_L), ROW(zepmAdd_tama_64f_P),
        ROW(zepmAdd_tata_32f),   ROW(zepmAdd_tata_32f_L), ROW(zepmAdd_tata_32f_P), ROW(zepmAdd_tata_64f),
        ROW(zepmAdd_tata_64f_L), ROW(zepmAdd_tata_64f_P), ROW(zepmSub_mm_32f),     ROW(zepmSub_mm_32f_P),
        ROW(zepmSub_mm_64f),     ROW(zepmSub_mm_64f_P),   ROW(zepmSub_mt_32f),     ROW(zepmSub_mt_32f_P),
        ROW(zepmSub_mt_64f),     ROW(zepmSub_mt_64f_P),   ROW(zepmSub_tm_32f),     ROW(zepmSub_tm_32f_P),
        ROW(zepmSub_tm_64f),     ROW(zepmSub_tm_64f_P),   ROW(zepmSub_tt_32f),     ROW(zepmSub_tt_32f_P),
        ROW(zepmSub_tt_64f),     ROW(zepmSub_tt_64f_P),   ROW(zepmSub_mam_32f),    ROW(zepmSub_mam_32f_L),
        ROW(zepmSub_mam_32f_P),  ROW(zepmSub_mam_64f),    ROW(zepmSub_mam_64f_L),  ROW(zepmSub_mam_64f_P),
        ROW(zepmSub_mat_32f),    ROW(zepmSub_mat_32f_L),  ROW(zepmSub_mat_32f_P),  ROW(zepmSub_mat_64f),
        ROW(zepmSub_mat_64f_L),  ROW(zepmSub_mat_64f_P),  ROW(zepmSub_tam_32f),    ROW(zepmSub_tam_32f_L),
        ROW(zepmSub_tam_32f_P),  ROW(zepmSub_tam_64f),    ROW(zepmSub_tam_64f_L),  ROW(zepmSub_tam_64f_P),
        ROW(zepmSub_tat_32f),    ROW(zepmSub_tat_32f_L),  ROW(zepmSub_tat_32f_P),  ROW(zepmSub_tat_64f),
        ROW(zepmSub_tat_64f_L),  ROW(zepmSub_tat_64f_P),  ROW(zepmSub_mma_32f),    ROW(zepmSub_mma_32f_L),
        ROW(zepmSub_mma_32f_P),  ROW(zepmSub_mma_64f),    ROW(zepmSub_mma_64f_L),  ROW(zepmSub_mma_64f_P),
        ROW(zepmSub_mta_32f),    ROW(zepmSub_mta_32f_L),  ROW(zepmSub_mta_32f_P),  ROW(zepmSub_mta_64f),
        ROW(zepmSub_mta_64f_L),  ROW(zepmSub_mta_64f_P),  ROW(zepmSub_tma_32f),    ROW(zepmSub_tma_32f_L),
        ROW(zepmSub_tma_32f_P),  ROW(zepmSub_tma_64f),    ROW(zepmSub_tma_64f_L),  ROW(zepmSub_tma_64f_P),
        ROW(zepmSub_tta_32f),    ROW(zepmSub_tta_32f_L),  ROW(zepmSub_tta_32f_P),  ROW(zepmSub_tta_64f),
        ROW(zepmSub_tta_64f_L),  ROW(zepmSub_tta_64f_P),  ROW(zepmSub_mama_32f),   ROW(zepmSub_mama_32f_L),
        ROW(zepmSub_mama_32f_P), ROW(zepmSub_mama_64f),   ROW(zepmSub_mama_64f_L), ROW(zepmSub_mama_64f_P),
        ROW(zepmSub_mata_32f),   ROW(zepmSub_mata_32f_L), ROW(zepmSub_mata_32f_P), ROW(zepmSub_mata_64f),
        ROW(zepmSub_mata_64f_L), ROW(zepmSub_mata_64f_P), ROW(zepmSub_tama_32f),   ROW(zepmSub_tama_32f_L),
        ROW(zepmSub_tama_32f_P), ROW(zepmSub_tama_64f),   ROW(zepmSub_tama_64f_L), ROW(zepmSub_tama_64f_P),
        ROW(zepmSub_tata_32f),   ROW(zepmSub_tata_32f_L), ROW(zepmSub_tata_32f_P), ROW(zepmSub_tata_64f),
        ROW(zepmSub_tata_64f_L), ROW(zepmSub_tata_64f_P), ROW(zepmMul_mc_32f),     ROW(zepmMul_mc_32f_P),
        ROW(zepmMul_mc_64f),     ROW(zepmMul_mc_64f_P),   ROW(zepmMul_tc_32f),     ROW(zepmMul_tc_32f_P),
        ROW(zepmMul_tc_64f),     ROW(zepmMul_tc_64f_P),   ROW(zepmMul_mac_32f),    ROW(zepmMul_mac_32f_L),
        ROW(zepmMul_mac_32f_P),  ROW(zepmMul_mac_64f),    ROW(zepmMul_mac_64f_L),  ROW(zepmMul_mac_64f_P),
        ROW(zepmMul_tac_32f),    ROW(zepmMul_tac_32f_L),  ROW(zepmMul_tac_32f_P),  ROW(zepmMul_tac_64f),
        ROW(zepmMul_tac_64f_L),  ROW(zepmMul_tac_64f_P),
    };
}

} // namespace check
