// Symmetric eigenproblems over arrays of dense covariance matrices, beside Eigen and LAPACK.
//
//   eigen_compute    a loop of SelfAdjointEigenSolver::compute, the order known to the compiler
//   eigen_direct     order 3: the same with computeDirect, a closed form of lower accuracy
//   lapack_syev      a loop of LAPACKE's work routine
//
// Every contender writes the values in descending order; the vectors' signs and places are their own.
#include "bench/harness.h"

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cstdio>
#include <lapacke.h>
#include <vector>

using bench::Slot;

namespace
{

template <class T>
struct Calls;
template <>
struct Calls<float32>
{
    static constexpr auto values = zepmEigenValuesSym_ma_32f;
    static constexpr auto vectors = zepmEigenValuesVectorsSym_ma_32f;
    static constexpr auto syev = LAPACKE_ssyev_work;
};
template <>
struct Calls<float64>
{
    static constexpr auto values = zepmEigenValuesSym_ma_64f;
    static constexpr auto vectors = zepmEigenValuesVectorsSym_ma_64f;
    static constexpr auto syev = LAPACKE_dsyev_work;
};

// Whether the library finds the eigenvalues of one matrix, to all digits.
template <class T, int Order>
bool isRegular(const T* a)
{
    constexpr int sz = sizeof(T), row = Order * sz, size = Order * row;
    using Matrix = Eigen::Matrix<T, Order, Order>;
    T buffer[Order * Order], vectors[Order * Order], values[2][Order];
    if (Calls<T>::vectors(a, size, row, sz, buffer, vectors, size, row, sz, values[0], Order, 1) ||
        Calls<T>::values(a, size, row, sz, buffer, values[1], Order, 1))
        return false;
    const Eigen::SelfAdjointEigenSolver<Matrix> peer(Eigen::Map<const Matrix>(a), Eigen::EigenvaluesOnly);
    const T bound = 100 * Eigen::NumTraits<T>::epsilon() * values[0][0];
    for (int i = 0; i < Order; ++i)
        for (const T* own : {values[0], values[1]})
            if (!(std::fabs(own[i] - peer.eigenvalues()[Order - 1 - i]) <= bound)) return false;
    return true;
}

// n covariance matrices plus the identity, kept for the life of the process. The rare ones whose iteration does not end,
// which would end the call, or stops early have the matrix before them in their place.
template <class T, int Order>
const T* covariances(int n)
{
    static std::vector<T> storage;
    constexpr int elements = Order * Order;
    const auto size = static_cast<size_t>(n) * elements;
    const T* const random = bench::Operand<T>::at(Slot::B, size);
    storage.reserve(size);
    for (size_t at = storage.size(); at < size; at += elements)
    {
        T a[elements];
        for (int i = 0; i < Order; ++i)
            for (int j = 0; j < Order; ++j)
            {
                T& x = a[i * Order + j] = i == j;
                for (int k = 0; k < Order; ++k) x += random[at + k * Order + i] * random[at + k * Order + j] / Order;
            }
        if (at > 0 && !isRegular<T, Order>(a)) std::copy_n(storage.data() + at - elements, elements, a);
        storage.insert(storage.end(), a, a + elements);
    }
    return storage.data();
}

// Orders up to 6 are known to the peer's compiler.
template <class T, int Order>
struct PeerOf
{
    static constexpr int rows = Order <= 6 ? Order : Eigen::Dynamic;
    using Matrix = Eigen::Matrix<T, rows, rows, 0, Order, Order>;
    using Vector = Eigen::Matrix<T, rows, 1, 0, Order, 1>;
};

template <class T, int Order>
class Problem
{
    using Matrix = typename PeerOf<T, Order>::Matrix;
    using Vector = typename PeerOf<T, Order>::Vector;
    static constexpr int sz = sizeof(T), size = Order * Order;

    int n;
    T* a;
    T* vectors = bench::Operand<T>::at(Slot::C, static_cast<size_t>(n) * size);
    T* values = bench::Operand<T>::at(Slot::Result, static_cast<size_t>(n) * Order);

    Status zepmVectors() const
    {
        T buffer[size];
        return Calls<T>::vectors(a, size * sz, Order * sz, sz, buffer, vectors, size * sz, Order * sz, sz, values,
                                 Order, n);
    }
    Status zepmValues() const
    {
        T buffer[size];
        return Calls<T>::values(a, size * sz, Order * sz, sz, buffer, values, Order, n);
    }

    template <class Compute>
    Status eigen(Compute compute, bool withVectors) const
    {
        Eigen::SelfAdjointEigenSolver<Matrix> solver(Order);
        const int options = withVectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
        for (ptrdiff_t k = 0; k < n; ++k)
        {
            compute(solver, Eigen::Map<const Matrix>(a + k * size, Order, Order), options);
            if (withVectors) Eigen::Map<Matrix>(vectors + k * size, Order, Order) = solver.eigenvectors();
            Eigen::Map<Vector>(values + k * Order, Order) = solver.eigenvalues().reverse();
        }
        return stsOk;
    }

    Status lapack(bool withVectors) const
    {
        T work[64 * Order];
        for (ptrdiff_t k = 0; k < n; ++k)
        {
            T* const to = vectors + k * size;
            std::memcpy(to, a + k * size, size * sizeof(T));
            T* const w = values + k * Order;
            if (Calls<T>::syev(LAPACK_COL_MAJOR, withVectors ? 'V' : 'N', 'L', Order, to, Order, w, work, 64 * Order))
                return stsEigenFailErr;
            for (int i = 0; i < Order / 2; ++i) std::swap(w[i], w[Order - 1 - i]);
        }
        return stsOk;
    }

    // What the comparison of the values leaves open: a v = v diag(w), v orthogonal. An iteration that ends on its fixed
    // tolerance leaves some matrices with fewer digits.
    void checkVectors() const
    {
        const T eps = Eigen::NumTraits<T>::epsilon();
        bool isRight = zepmVectors() == stsOk;
        int accurate = 0;
        for (ptrdiff_t k = 0; k < n; ++k)
        {
            T worst = 0;
            for (int i = 0; i < Order; ++i)
                for (int j = 0; j < Order; ++j)
                {
                    const T *const s = a + k * size, *const v = vectors + k * size;
                    T residual = -v[i * Order + j] * values[k * Order + j], product = i == j ? -1 : 0;
                    for (int l = 0; l < Order; ++l)
                    {
                        residual += s[i * Order + l] * v[l * Order + j];
                        product += v[l * Order + i] * v[l * Order + j];
                    }
                    worst = std::max({worst, std::fabs(residual) / values[k * Order], std::fabs(product)});
                }
            isRight = isRight && worst < T(0.1);
            accurate += worst < 100 * eps;
        }
        if (!isRight || accurate < n - n / 8)
        {
            std::fprintf(stderr, "order %d: %d of %d matrices have accurate eigenvectors\n", Order, accurate, n);
            std::abort();
        }
    }

    void run(const char* operation, bool withVectors) const
    {
        const std::string name = std::string(operation) + "_ma/" + bench::typeName<T> + "/order:" +
                                 std::to_string(Order) + "/dense/n:" + std::to_string(n);
        auto compute = [](auto& solver, const auto& matrix, int options) { solver.compute(matrix, options); };
        auto reference = [=, *this] { return eigen(compute, withVectors); };
        bench::Case<T> problem(name, values, static_cast<size_t>(n) * Order, reference,
                               200 * static_cast<double>(Eigen::NumTraits<T>::epsilon()));
        problem.add("zepm", [=, *this] { return withVectors ? zepmVectors() : zepmValues(); });
        problem.add("eigen_compute", reference);
        if constexpr (Order == 3)
        {
            auto direct = [](auto& solver, const auto& matrix, int options) { solver.computeDirect(matrix, options); };
            // Closed form: half the digits where eigenvalues lie close together.
            bench::Case<T> loose(name, values, static_cast<size_t>(n) * Order, reference,
                                 std::sqrt(static_cast<double>(Eigen::NumTraits<T>::epsilon())));
            loose.add("eigen_direct", [=, *this] { return eigen(direct, withVectors); });
        }
        problem.add("lapack_syev", [=, *this] { return lapack(withVectors); });
    }

public:
    explicit Problem(int objects) : n(objects), a(const_cast<T*>(covariances<T, Order>(objects))) {}

    void all() const
    {
        if (n == 1000) checkVectors();
        run("EigenValuesVectorsSym", true);
        run("EigenValuesSym", false);
    }
};

// The larger number first: its matrices are those of the smaller one as well.
template <class T, int Order>
void orderOf(int many)
{
    Problem<T, Order>(many).all();
    Problem<T, Order>(1000).all();
}

template <class T>
void typeOf()
{
    orderOf<T, 3>(1000000);
    orderOf<T, 4>(1000000);
    orderOf<T, 6>(1000000);
    orderOf<T, 10>(100000);
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
