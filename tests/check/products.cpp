// Rows of the products of matrices.
#include "tests/check/function.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

namespace check
{

namespace
{

// Rows, inner size and columns of a product.
struct Shape
{
    int rows, inner, cols;
};

// Which factors a form transposes.
struct Form
{
    bool transposes1, transposes2;
};

Form formOf(const Function& f) { return {f.operands[0].letter == 't', f.operands[1].letter == 't'}; }

// The sizes are src1Width, src1Height, src2Width, src2Height.
Sizes sizesOf(Form form, Shape shape)
{
    Sizes sizes{shape.inner, shape.rows, shape.cols, shape.inner};
    if (form.transposes1) std::swap(sizes[0], sizes[1]);
    if (form.transposes2) std::swap(sizes[2], sizes[3]);
    return sizes;
}
Shape shapeOf(Form form, Sizes sizes)
{
    if (form.transposes1) std::swap(sizes[0], sizes[1]);
    if (form.transposes2) std::swap(sizes[2], sizes[3]);
    return {sizes[1], sizes[0], sizes[2]};
}

// ---- Which kernel has a body of its own for which orders ------------------------------------------------------------

using Orders = std::vector<int>;

const std::map<std::string, Orders> packedOrders = {
    {"zepmMul_tm_32f", {3, 4, 5}}, {"zepmMul_mta_32f_L", {}}, {"zepmMul_tta_32f_L", {}}, {"zepmMul_tta_64f_L", {}}};
const std::map<std::string, Orders> generalOrders = {
    {"zepmMul_mama_32f", {3, 4, 5}}, {"zepmMul_mam_32f_L", {3}}, {"zepmMul_mat_32f", {3}},   {"zepmMul_mat_32f_L", {3}},
    {"zepmMul_tam_32f", {3}},        {"zepmMul_tam_32f_L", {3}}, {"zepmMul_tat_32f_L", {3}}, {"zepmMul_mam_32f_P", {3}},
    {"zepmMul_mat_32f_P", {3}},      {"zepmMul_tam_32f_P", {3}}};

Orders ordersOf(const std::map<std::string, Orders>& exceptions, const std::string& name)
{
    const auto found = exceptions.find(name);
    return found == exceptions.end() ? Orders{3, 4, 5, 6} : found->second;
}

// The two that take sizes of 1 to 3 whose bitwise or is 3 for order 3.
bool takesForOrder3(const std::string& name, const Sizes& sizes)
{
    return (name == "zepmMul_mm_32f_P" || name == "zepmMul_tt_64f_P") &&
           (sizes[0] | sizes[1] | sizes[2] | sizes[3]) == 3;
}

// ---- The reference --------------------------------------------------------------------------------------------------

// The terms added to start from left to right.
template <class T>
T sum(T start, const std::vector<T>& terms)
{
    for (const T term : terms) start += term;
    return start;
}

// Behind the last whole block of four rows: how many rows may be left if they are to sum in pairs.
int mostRowsInPairs(Form form)
{
    if (form.transposes1 == form.transposes2) return 2;
    return form.transposes1 ? 1 : 0;
}

template <class T>
void multiply(const Function& f, Problem<T>& problem)
{
    const Form form = formOf(f);
    Shape shape = shapeOf(form, problem.sizes);
    if (takesForOrder3(f.name, problem.sizes)) shape = {3, 3, 3};
    const bool isPacked = problem.isPacked;
    const Orders orders = ordersOf(isPacked ? packedOrders : generalOrders, f.name);
    const bool hasBody = shape.rows == shape.inner && shape.cols == shape.inner &&
                         std::count(orders.begin(), orders.end(), shape.inner) > 0;
    const int left = shape.rows % 4;
    std::vector<T> all, even, odd, last;
    for (int k = 0; k < problem.count; ++k)
        for (int i = 0; i < shape.rows; ++i)
            for (int j = 0; j < shape.cols; ++j)
            {
                for (auto* terms : {&all, &even, &odd, &last}) terms->clear();
                for (int n = 0; n < shape.inner; ++n)
                {
                    const Tensor<T>&a = problem.operands[0], &b = problem.operands[1];
                    const T term = (form.transposes1 ? a.at(k, n, i) : a.at(k, i, n)) *
                                   (form.transposes2 ? b.at(k, j, n) : b.at(k, n, j));
                    all.push_back(term);
                    (n + 1 == shape.inner && n % 2 == 0 ? last : n % 2 == 0 ? even : odd).push_back(term);
                }
                T& d = problem.operands[2].at(k, i, j);
                if (hasBody)
                    d = sum<T>(-T(0), all);
                else if (isPacked && i >= shape.rows - left && left <= mostRowsInPairs(form))
                    d = sum<T>(sum<T>(0, even) + sum<T>(0, odd), last);
                else
                    d = sum<T>(0, all);
            }
}

// Besides values with specials among them: finite ones whose sums depend on their order, and products that are all -0.
template <class T>
void choose(Problem<T>& problem, Random& random)
{
    const unsigned kind = random() % 4;
    if (kind == 0) return;
    for (size_t n = 0; n < 2; ++n)
        for (T& x : problem.operands[n].elements)
        {
            const T fraction = T(1) + T(random()) / T(4294967296.0);
            x = std::ldexp(random() % 2 ? fraction : -fraction, static_cast<int>(random() % 6));
            if (kind == 1) x = n == 0 ? -T(0) : std::fabs(x);
        }
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

Function completed(Function f)
{
    const Form form = formOf(f);
    f.items = {"src1", "src1Width", "src1Height", "src2", "src2Width", "src2Height", "dst"};
    if (f.isArray()) f.items.push_back("count");
    f.sizeNames = {"src1Width", "src1Height", "src2Width", "src2Height"};
    for (const Shape shape : {Shape{1, 1, 1},
                              {2, 2, 2},
                              {4, 4, 4},
                              {3, 3, 3},
                              {5, 5, 5},
                              {6, 6, 6},
                              {7, 7, 7},
                              {8, 8, 8},
                              {6, 5, 7},
                              {1, 3, 3},
                              {3, 2, 1},
                              {4, 3, 4},
                              {9, 2, 21},
                              {10, 9, 3},
                              {3, 6, 38}})
        f.sizesToTry.push_back(sizesOf(form, shape));
    f.written = sizesOf(form, {4, 4, 4});
    f.looped = sizesOf(form, {6, 5, 7});
    f.typical = sizesOf(form, {3, 3, 3});
    f.shape = [form, name = f.name](const Operand& operand, const Sizes& sizes) {
        if (takesForOrder3(name, sizes)) return std::pair(3, 3);
        if (operand.name == "src1") return std::pair(sizes[1], sizes[0]);
        if (operand.name == "src2") return std::pair(sizes[3], sizes[2]);
        const Shape shape = shapeOf(form, sizes);
        return std::pair(shape.rows, shape.cols);
    };
    f.sizesMatch = [form](const Sizes& sizes) {
        return sizes[form.transposes1 ? 1 : 0] == sizes[form.transposes2 ? 2 : 3];
    };
    f.order = f.isArray() ? "NCZM" : "NZM";
    if (f.layout != Layout::P || f.isArray()) f.order += 'T';
    if (f.layout != Layout::S) f.order += 'R';
    if (f.isArray())
    {
        f.limits.packed = f.layout == Layout::P ? 1441 : f.layout == Layout::S && f.isFloat32 ? 2501 : 3601;
        f.limits.general = 1441;
        f.estimate = [form, isArray1 = f.operands[0].isArray, isArray2 = f.operands[1].isArray](const Sizes& sizes,
                                                                                                int32 count) {
            const Shape shape = shapeOf(form, sizes);
            return sizes[0] * sizes[1] * (isArray1 ? count : 1) + sizes[2] * sizes[3] * (isArray2 ? count : 1) +
                   shape.rows * shape.cols * count;
        };
    }
    const auto self = std::make_shared<Function>(f);
    forElementType(f, [&]<class T>(T) {
        f.reference = Reference<T>([self](Problem<T>& problem) { multiply(*self, problem); });
        f.values = Values<T>(choose<T>);
    });
    f.nansAlike = true;
    if (f.layout == Layout::S && !f.isArray()) // orders 3 and 4 are held in registers
    {
        f.worksInPlace = true;
        f.onlyInPlace = [](const Sizes& sizes, bool isPacked) {
            return isPacked && (sizes == Sizes{3, 3, 3, 3} || sizes == Sizes{4, 4, 4, 4});
        };
    }
    return f;
}

} // namespace

std::vector<Function> families::products()
{
    return rows(
        {
            SINGLE_FORM(zepmMul_mm),
            SINGLE_FORM(zepmMul_mt),
            SINGLE_FORM(zepmMul_tm),
            SINGLE_FORM(zepmMul_tt),
            ARRAY_FORM(zepmMul_mam),
            ARRAY_FORM(zepmMul_mat),
            ARRAY_FORM(zepmMul_tam),
            ARRAY_FORM(zepmMul_tat),
            ARRAY_FORM(zepmMul_mma),
            ARRAY_FORM(zepmMul_mta),
            ARRAY_FORM(zepmMul_tma),
            ARRAY_FORM(zepmMul_tta),
            ARRAY_FORM(zepmMul_mama),
            ARRAY_FORM(zepmMul_mata),
            ARRAY_FORM(zepmMul_tama),
            ARRAY_FORM(zepmMul_tata),
        },
        completed);
}

} // namespace check
