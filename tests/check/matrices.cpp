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
    f.sizeNames = {"width", "height"};
    f.items = standardItems(f);
    f.sizesToTry = {{3, 3}, {1, 1}, {4, 4}, {5, 3}, {1, 7}, {7, 1},  {5, 5}, {3, 5},
                    {6, 6}, {4, 3}, {6, 4}, {8, 2}, {9, 7}, {17, 5}, {5, 18}};
    f.written = {4, 4};
    f.looped = {6, 6};
    f.typical = {5, 3};
    f.shape = [](const Operand& operand, const Sizes& sizes) {
        if (operand.letter == 'c') return std::pair(1, 1);
        return operand.letter == 't' ? std::pair(sizes[0], sizes[1]) : std::pair(sizes[1], sizes[0]);
    };
    f.order = stridesFirst.count(f.name) ? "NCTZ" : standardOrder(f);
    if (f.isArray())
    {
        f.limits = limitsOf(f);
        int32 fixed = 0, arrays = 0;
        for (const Operand& operand : f.operands)
            if (operand.letter != 'c') ++(operand.isArray ? arrays : fixed);
        f.estimate = [=](const Sizes& sizes, int32 count) { return sizes[0] * sizes[1] * (arrays * count + fixed); };
    }
    forElementType(f, [&]<class T>(T) { f.reference = Reference<T>(reference<T>(f)); });
    f.worksInPlace = true;
    return f;
}

} // namespace

std::vector<Function> families::matrices()
{
    return rows(
        {
            SINGLE_FORM(zepmAdd_mm),  SINGLE_FORM(zepmAdd_tm),  SINGLE_FORM(zepmAdd_tt),  ARRAY_FORM(zepmAdd_mam),
            ARRAY_FORM(zepmAdd_mat),  ARRAY_FORM(zepmAdd_tam),  ARRAY_FORM(zepmAdd_tat),  ARRAY_FORM(zepmAdd_mama),
            ARRAY_FORM(zepmAdd_tama), ARRAY_FORM(zepmAdd_tata), SINGLE_FORM(zepmSub_mm),  SINGLE_FORM(zepmSub_mt),
            SINGLE_FORM(zepmSub_tm),  SINGLE_FORM(zepmSub_tt),  ARRAY_FORM(zepmSub_mam),  ARRAY_FORM(zepmSub_mat),
            ARRAY_FORM(zepmSub_tam),  ARRAY_FORM(zepmSub_tat),  ARRAY_FORM(zepmSub_mma),  ARRAY_FORM(zepmSub_mta),
            ARRAY_FORM(zepmSub_tma),  ARRAY_FORM(zepmSub_tta),  ARRAY_FORM(zepmSub_mama), ARRAY_FORM(zepmSub_mata),
            ARRAY_FORM(zepmSub_tama), ARRAY_FORM(zepmSub_tata), SINGLE_FORM(zepmMul_mc),  SINGLE_FORM(zepmMul_tc),
            ARRAY_FORM(zepmMul_mac),  ARRAY_FORM(zepmMul_tac),
        },
        completed);
}

} // namespace check
