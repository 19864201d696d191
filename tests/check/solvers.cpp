// Rows of the direct solvers.
#include "tests/check/function.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace check
{

namespace
{

bool isWrittenOut(int n) { return n >= 3 && n <= 6; }

// ---- LU factors -----------------------------------------------------------------------------------------------------

// Matrix k into its factors and row numbers, as far as they go.
template <class T>
Status factor(const Tensor<T>& source, Tensor<T>& index, Tensor<T>& d, int k)
{
    const int n = source.rows;
    const bool written = isWrittenOut(n); // at these orders rows appear in d as they become final
    Tensor<T> a{1, n, n, std::vector<T>(static_cast<size_t>(n * n))};
    std::vector<int> idx(static_cast<size_t>(n));
    std::iota(idx.begin(), idx.end(), 0);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) a.at(0, i, j) = source.at(k, i, j);
    auto row = [&](int p) { return idx[static_cast<size_t>(p)]; };
    auto element = [&](int p, int j) -> T& { return a.at(0, row(p), j); };
    auto isSingular = [&](T pivot) {
        if (written) return std::fabs(pivot) < 2 * std::numeric_limits<T>::min();
        return std::fabs(pivot) <= std::numeric_limits<T>::epsilon();
    };
    int final = 0;
    Status status = stsOk;
    for (int p = 0; p < n && status == stsOk; ++p)
    {
        int q = p;
        for (int i = p + 1; i < n; ++i)
            if (std::fabs(element(i, p)) > std::fabs(element(q, p))) q = i;
        const bool fails = isSingular(element(q, p));
        if (fails) status = stsSingularErr;
        if (written || !fails) std::swap(idx[static_cast<size_t>(p)], idx[static_cast<size_t>(q)]);
        if (fails) break;
        final = p + 1;
        const T pivot = element(p, p);
        const T reciprocal = 1 / pivot;
        for (int i = p + 1; i < n; ++i)
        {
            T& multiplier = element(i, p);
            multiplier = written && p == n - 2 ? multiplier / pivot : multiplier * reciprocal;
            for (int j = p + 1; j < n; ++j) element(i, j) -= multiplier * element(p, j);
        }
    }
    for (int p = 0; p < n; ++p)
    {
        index.at(k, 0, p) = static_cast<T>(row(p));
        if (!written || p < final)
            for (int j = 0; j < n; ++j) d.at(k, row(p), j) = element(p, j);
    }
    return status;
}

template <class T>
void factorAll(Problem<T>& problem)
{
    for (int k = 0; k < problem.count && problem.status == stsOk; ++k)
        problem.status = factor(problem.operands[0], problem.operands[1], problem.operands[2], k);
}

// Matrices of all kinds: small integers, which tie and cancel; columns of different magnitudes; pivots on either side
// of the tolerances; some with a NaN or an infinity. Those that fail stay only where they may.
template <class T>
void matrices(Problem<T>& problem, Random& random)
{
    Tensor<T>& a = problem.operands[0];
    const int n = a.rows;
    auto uniform = [&] { return static_cast<T>(random()) / T(2147483648.0) - 1; };
    auto fill = [&](int k, unsigned long kind) {
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
            {
                T x = uniform();
                if (kind == 1) x = static_cast<T>(static_cast<int>(random() % 5) - 2);
                if (kind == 2) x = std::ldexp(x, 3 * (j % 7) - 10);
                if (kind == 3) x = i == j ? x : 0;
                a.at(k, i, j) = x;
            }
        const int i = static_cast<int>(random()) & 0xffff, j = i % n;
        const T limit = isWrittenOut(n) ? 2 * std::numeric_limits<T>::min() : std::numeric_limits<T>::epsilon();
        if (kind == 3) a.at(k, j, j) = random() % 3 ? std::nextafter(limit, T(random() % 2)) : limit;
        if (kind == 4) a.at(k, i / n % n, j) = std::numeric_limits<T>::quiet_NaN();
        if (kind == 5) a.at(k, i / n % n, j) = std::numeric_limits<T>::infinity();
        if (kind == 6) // a column of zeros, or of numbers below the tolerance that differ
        {
            const T scale = limit * static_cast<T>(random() % 3) / 4;
            for (int r = 0; r < n; ++r) a.at(k, r, j) = scale * uniform();
        }
    };
    Tensor<T> index{a.count, 1, n, std::vector<T>(static_cast<size_t>(a.count * n))}, d = a;
    for (int k = 0; k < a.count; ++k)
    {
        fill(k, random() % (problem.mayFail && random() % 4 == 0 ? 7 : 3));
        while (!problem.mayFail && factor(a, index, d, k) != stsOk) fill(k, 0);
    }
}

// ---- Systems with LU factors ----------------------------------------------------------------------------------------

// The sum of f(idx[i], j) * x[j] from first to last - 1 as in two lanes.
template <class T, class Product>
T twoLaneSum(Product product, int first, int last)
{
    T lane[2] = {0, 0};
    const int paired = (last - first) / 2 * 2;
    for (int j = 0; j < paired; ++j) lane[j % 2] += product(first + j);
    T sum = lane[0] + lane[1];
    if (first + paired < last) sum += product(last - 1);
    return sum;
}

// One matrix for all has its diagonal inverted.
template <class T>
void solveAll(Problem<T>& problem, bool sharesMatrix)
{
    const Tensor<T>&f = problem.operands[0], &index = problem.operands[1], &b = problem.operands[2];
    Tensor<T>& x = problem.operands[3];
    const int n = f.rows;
    const bool inverts = isWrittenOut(n) && sharesMatrix;
    for (int k = 0; k < problem.count; ++k)
    {
        auto row = [&](int i) { return static_cast<int>(index.at(k, 0, i)); };
        auto product = [&](int i) { return [&, i](int j) { return f.at(k, row(i), j) * x.at(k, 0, j); }; };
        for (int i = 0; i < n; ++i)
        {
            T& y = x.at(k, 0, i);
            y = b.at(k, 0, row(i));
            if (i == 0) continue;
            if (!isWrittenOut(n))
                y -= twoLaneSum<T>(product(i), 0, i);
            else
            {
                for (int j = 1; j < i; ++j) y -= product(i)(j);
                y -= product(i)(0);
            }
        }
        for (int i = n - 1; i >= 0; --i)
        {
            T& y = x.at(k, 0, i);
            if (!isWrittenOut(n))
                y = i < n - 1 ? y - twoLaneSum<T>(product(i), i + 1, n) : y;
            else
                for (int j = n - 1; j > i; --j) y -= product(i)(j);
            y = inverts ? y * (1 / f.at(k, row(i), i)) : y / f.at(k, row(i), i);
        }
    }
}

// Factors and right-hand sides as they come; permutations, now and then with a row twice.
template <class T>
void systems(Problem<T>& problem, Random& random)
{
    Tensor<T>& index = problem.operands[1];
    std::vector<int> rows(static_cast<size_t>(index.cols));
    for (int k = 0; k < index.count; ++k)
    {
        std::iota(rows.begin(), rows.end(), 0);
        std::shuffle(rows.begin(), rows.end(), random);
        if (random() % 8 == 0) rows[0] = rows.back();
        for (int j = 0; j < index.cols; ++j) index.at(k, 0, j) = static_cast<T>(rows[static_cast<size_t>(j)]);
    }
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

Function completed(Function f)
{
    const bool isDecomp = f.operation == "LUDecomp";
    const bool sharesMatrix = f.form == "mva";
    Operand& dst = f.operands.back();
    const Operand index{isDecomp ? "dstIndex" : "srcIndex", 'v', f.operands[0].isArray, isDecomp, Storage::Index};
    if (!isDecomp)
    {
        dst.letter = 'v';
        f.operands[0].name = "src";
    }
    f.operands.insert(f.operands.begin() + 1, index);
    f.sizeNames = {"widthHeight"};
    f.items = standardItems(f);
    f.sizesToTry = lengths({1, 2, 3, 4, 5, 6, 7, 8, 10, 17});
    f.written = {3};
    f.looped = {10};
    f.typical = {4};
    f.shape = [](const Operand& operand, const Sizes& sizes) {
        return std::pair(operand.letter == 'm' ? sizes[0] : 1, sizes[0]);
    };
    f.order = standardOrder(f);
    if (f.isArray())
    {
        const int32 limit = isDecomp ? 1001 : sharesMatrix ? 701 : 1201;
        f.limits = {limit, limit};
        f.estimate = [=](const Sizes& sizes, int32 count) {
            const int32 n = sizes[0];
            return isDecomp ? n * n * count : sharesMatrix ? (n + 2 * count) * n : (n + 2) * n * count;
        };
    }
    forElementType(f, [&]<class T>(T) {
        if (isDecomp)
        {
            f.reference = Reference<T>(factorAll<T>);
            f.values = Values<T>(matrices<T>);
        }
        else
        {
            f.reference = Reference<T>([=](Problem<T>& problem) { solveAll(problem, sharesMatrix); });
            f.values = Values<T>(systems<T>);
        }
    });
    f.worksInPlace = isDecomp; // a solution in place: tests/solver
    f.nansAlike = true;
    return f;
}

} // namespace

std::vector<Function> families::solvers()
{
    return rows(
        {
            SINGLE_FORM(zepmLUDecomp_m),
            ARRAY_FORM(zepmLUDecomp_ma),
            SINGLE_FORM(zepmLUBackSubst_mv),
            ARRAY_FORM(zepmLUBackSubst_mva),
            ARRAY_FORM(zepmLUBackSubst_mava),
        },
        completed);
}

} // namespace check
