// Rows of the symmetric eigenproblems.
#include "tests/check/function.h"
#include "tests/check/symmetric_reference.h"

namespace check
{

namespace
{

Kernel kernelOf(const Function& f, bool isPacked)
{
    const bool withVectors = f.operation == "EigenValuesVectorsSym", single = f.form == "m";
    const bool isStandardPacked = f.layout == Layout::S && isPacked;
    const double eps = f.isFloat32 ? 0x1p-23 : 0x1p-52;
    Kernel kernel{withVectors, false, false, false, false, eps};
    if (withVectors)
    {
        kernel.wideScalars = f.isFloat32 && !single;
        kernel.wideRootTopDown = kernel.wideRootBottomUp = f.isFloat32 && single;
        kernel.sortsSingular = single && !(f.isFloat32 && f.layout == Layout::S && !isPacked);
    }
    else
    {
        kernel.wideRootTopDown = f.isFloat32 && single && isStandardPacked;
        if (f.isFloat32 && !single && isStandardPacked) kernel.order2Threshold = 0x1p-52;
    }
    return kernel;
}

template <class T>
Status order2(const Kernel& kernel, T a, T b, T c, T* values, T (&V)[2][2])
{
    const T eps = T(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);
    if (T(kernel.order2Threshold) >= std::abs(c * a - b * b)) return stsSingularErr;
    const T t = c + a, r = std::sqrt((a - c) * (a - c) + (2 * b) * (2 * b));
    int s1 = 1, s2 = 1;
    if (t > eps)
        values[0] = (r + t) * T(0.5), values[1] = (a * c - b * b) / values[0];
    else if (t < -eps)
        values[0] = (t - r) * T(0.5), values[1] = (a * c - b * b) / values[0], s1 = -1;
    else
        values[0] = T(0.5) * r, values[1] = T(-0.5) * r;
    const T d = a - c, q = 2 * b;
    T w = d + r, x, y, g;
    if (d < -eps) w = d - r, s2 = -1;
    if (std::abs(w) > std::abs(q))
        g = -q / w, y = T(1 / std::sqrt(double(g * g + 1))), x = g * y;
    else if (std::abs(q) <= eps)
        x = 1, y = 0;
    else
        g = -w / q, x = T(1 / std::sqrt(double(g * g + 1))), y = g * x;
    if (s1 == s2)
    {
        std::swap(x, y);
        x = -x;
    }
    V[0][0] = x, V[1][0] = y, V[0][1] = -y, V[1][1] = x;
    return stsOk;
}

// Operands by place in the argument list: the source, the scratch, with vectors their matrix, the values.
template <class T>
Status solveObject(const Kernel& kernel, Problem<T>& problem, int k)
{
    const Tensor<T>& src = problem.operands[0];
    Tensor<T>& dst = problem.operands[2];
    Tensor<T>& dstValues = problem.operands.back();
    const int n = problem.sizes[0];
    T* const values = &dstValues.at(k, 0, 0);
    if (n == 1)
    {
        values[0] = src.at(k, 0, 0);
        if (kernel.withVectors) dst.at(k, 0, 0) = 1;
        return stsOk;
    }
    if (n == 2)
    {
        T V[2][2];
        const Status status = order2(kernel, src.at(k, 0, 0), src.at(k, 0, 1), src.at(k, 1, 1), values, V);
        for (int i = 0; i < 2 && kernel.withVectors && status == stsOk; ++i)
            for (int j = 0; j < 2; ++j) dst.at(k, i, j) = V[i][j];
        return status;
    }
    auto run = [&](auto scalar) {
        Eigenproblem<T, decltype(scalar)> object(kernel, n, [&](int i, int j) { return src.at(k, i, j); });
        const Status status = object.run();
        std::copy(object.values.begin(), object.values.end(), values);
        for (int i = 0; i < n && kernel.withVectors; ++i)
            for (int j = 0; j < n; ++j) dst.at(k, i, j) = object.V[i][j];
        return status;
    };
    return kernel.wideScalars ? run(double{}) : run(T{});
}

// A matrix of one of several kinds, near 1 in size, not always symmetric.
template <class T>
void chooseMatrix(Tensor<T>& src, int k, Random& random, bool mayFail)
{
    const int n = src.rows;
    const unsigned kind = random() % 8;
    auto uniform = [&] { return T(random()) / T(2147483648.0) - 1; };
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j)
        {
            T x = uniform();
            if (kind == 0 && i - j > 1) x = 0;                         // tridiagonal
            if (kind == 1 && i != j) x = 0;                            // diagonal
            if (kind == 2) x = T(1 + random() % 3) * (i == j ? 2 : 1); // ties, also of the two ends
            if (kind == 3) x = (i == j ? 1 : 0) + x * T(0x1p-22);      // clustered, columns below the tolerance
            if (kind == 4) x = std::ldexp(x, 3 * (n - i) - 2 * n);     // graded
            if (kind == 5 && i != j && random() % 2) x = 0;
            src.at(k, i, j) = src.at(k, j, i) = i == j && kind != 2 ? x + std::copysign(T(0.5), x) : x;
        }
    if (kind == 6 && n > 1) src.at(k, 0, n - 1) += 1;
    if (mayFail && random() % 8 == 0)
        for (int i = 0; i < n; ++i) src.at(k, i, n / 2) = src.at(k, n / 2, i) = 0;
}

template <class T>
void chooseValues(const Function& f, Problem<T>& problem, Random& random)
{
    for (int k = 0; k < problem.count; ++k)
        for (;;)
        {
            chooseMatrix(problem.operands[0], k, random, problem.mayFail);
            // What a failure to converge leaves behind is of no use to compare.
            const Status packed = solveObject(kernelOf(f, true), problem, k);
            const Status general = solveObject(kernelOf(f, false), problem, k);
            const bool isGood = packed == stsOk && general == stsOk;
            if (isGood || (problem.mayFail && packed != stsEigenFailErr && general != stsEigenFailErr)) break;
        }
}

template <class T>
void reference(const Function& f, Problem<T>& problem)
{
    const Kernel kernel = kernelOf(f, problem.isPacked);
    for (int k = 0; k < problem.count && problem.status == stsOk; ++k) problem.status = solveObject(kernel, problem, k);
}

Function completed(Function f)
{
    const bool withVectors = f.operation == "EigenValuesVectorsSym", isArray = f.isArray();
    const Operand src = f.operands[0], dst{"dst", 'm', isArray, true};
    const Operand buffer{"buffer", 'm', false, false, Storage::Scratch};
    const Operand values{"dstValues", 'v', isArray, true, Storage::Dense};
    f.operands = withVectors ? std::vector{src, buffer, dst, values} : std::vector{src, buffer, values};
    f.sizeNames = {"widthHeight"};
    f.items = standardItems(f);
    f.sizesToTry = lengths({1, 2, 3, 4, 5, 6, 7, 10});
    f.written = {3};
    f.looped = {5};
    f.typical = {4};
    f.shape = [](const Operand& operand, const Sizes& sizes) {
        return std::pair(operand.letter == 'v' ? 1 : sizes[0], sizes[0]);
    };
    f.order = isArray ? (f.layout == Layout::S ? "NZCT" : "NZCRT") : (f.layout == Layout::S ? "NZT" : "NZR");
    if (isArray)
    {
        const int32 limit = withVectors ? 701 : 1001;
        f.limits = {limit, limit};
        f.estimate = [withVectors](const Sizes& sizes, int32 count) {
            const int32 n = sizes[0];
            return ((withVectors ? 2 : 1) * n * n + n) * count;
        };
    }
    forElementType(f, [&]<class T>(T) {
        f.values = Values<T>([f](Problem<T>& problem, Random& random) { chooseValues(f, problem, random); });
        f.reference = Reference<T>([f](Problem<T>& problem) { reference(f, problem); });
    });
    return f;
}

} // namespace

std::vector<Function> families::symmetric()
{
    return rows(
        {
            SINGLE_FORM(zepmEigenValuesSym_m),
            ARRAY_FORM(zepmEigenValuesSym_ma),
            SINGLE_FORM(zepmEigenValuesVectorsSym_m),
            ARRAY_FORM(zepmEigenValuesVectorsSym_ma),
        },
        completed);
}

} // namespace check
