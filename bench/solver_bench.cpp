// LU factors and the systems solved from them, beside Eigen and LAPACK.
//
// Each matrix is a random permutation matrix times 3 plus random elements: its pivots lie anywhere, and it is well
// conditioned, so that results can be compared. Contenders:
//
//   eigen_plu       PartialPivLU of fixed size, one for each matrix; with one matrix, solve() of all columns at once
//   eigen_inverse   the inverse times the right-hand side: in LUBackSubst the inverse is there before the clock starts
//   lapack_getrf    LAPACKE's work functions, without its tests of the arguments; getrs and gesv likewise
//
// A factorisation is checked by its product, which must be the matrix.
#include "bench/harness.h"

#include <Eigen/LU>
#include <lapacke.h>
#include <random>
#include <vector>

using bench::Slot;

namespace
{

template <class T>
struct Calls;
template <>
struct Calls<float32>
{
    static constexpr auto factor = zepmLUDecomp_ma_32f;
    static constexpr auto solve = zepmLUBackSubst_mava_32f;
    static constexpr auto solveShared = zepmLUBackSubst_mva_32f;
    static constexpr auto getrf = LAPACKE_sgetrf_work;
    static constexpr auto getrs = LAPACKE_sgetrs_work;
    static constexpr auto gesv = LAPACKE_sgesv_work;
};
template <>
struct Calls<float64>
{
    static constexpr auto factor = zepmLUDecomp_ma_64f;
    static constexpr auto solve = zepmLUBackSubst_mava_64f;
    static constexpr auto solveShared = zepmLUBackSubst_mva_64f;
    static constexpr auto getrf = LAPACKE_dgetrf_work;
    static constexpr auto getrs = LAPACKE_dgetrs_work;
    static constexpr auto gesv = LAPACKE_dgesv_work;
};

// Matrices, right-hand sides, and what each contender makes of them; shared by all cases of a type and order.
template <class T, int N>
struct Systems
{
    using Matrix = Eigen::Matrix<T, N, N>; // by columns: to Eigen and LAPACK these are the transposed matrices
    using Vector = Eigen::Matrix<T, N, 1>;
    using MatrixMap = Eigen::Map<Matrix>;
    using VectorMap = Eigen::Map<Vector>;
    static constexpr int size = N * N;
    static constexpr int sz = sizeof(T);

    int count = 0;
    std::vector<T> a, b, factors, lapack, lapackTransposed;
    std::vector<int32> index;
    std::vector<lapack_int> pivots, pivotsTransposed;
    std::vector<Eigen::PartialPivLU<Matrix>> plu, pluTransposed;
    std::vector<Matrix> inverse;

    static Systems& of(int count)
    {
        static Systems systems;
        if (systems.count < count) systems.grow(count);
        return systems;
    }

    auto matrix(int k) { return MatrixMap(a.data() + k * size); }
    auto rhs(int k) { return VectorMap(b.data() + k * N); }

    Status factor(int n)
    {
        return Calls<T>::factor(a.data(), size * sz, N * sz, sz, index.data(), factors.data(), size * sz, N * sz, sz, N,
                                n);
    }
    Status solve(T* x, int n)
    {
        return Calls<T>::solve(factors.data(), size * sz, N * sz, sz, index.data(), b.data(), N * sz, sz, x, N * sz, sz,
                               N, n);
    }
    Status solveShared(T* x, int n)
    {
        return Calls<T>::solveShared(factors.data(), N * sz, sz, index.data(), b.data(), N * sz, sz, x, N * sz, sz, N,
                                     n);
    }
    void decompose(int n)
    {
        for (int k = 0; k < n; ++k) plu[static_cast<size_t>(k)].compute(matrix(k));
    }
    Status getrf(int n)
    {
        std::memcpy(lapack.data(), a.data(), static_cast<size_t>(n) * size * sz);
        lapack_int info = 0;
        for (int k = 0; k < n; ++k)
            info |= Calls<T>::getrf(LAPACK_COL_MAJOR, N, N, lapack.data() + k * size, N, pivots.data() + k * N);
        return info;
    }

private:
    void grow(int n)
    {
        count = n;
        std::mt19937 random(1);
        auto element = [&] { return static_cast<T>(static_cast<double>(random()) * 0x1p-31 - 1); };
        const auto objects = static_cast<size_t>(n);
        a.resize(objects * size);
        b.resize(objects * N);
        factors.resize(objects * size);
        lapack.resize(objects * size);
        lapackTransposed.resize(objects * size);
        index.resize(objects * N);
        pivots.resize(objects * N);
        pivotsTransposed.resize(objects * N);
        plu.resize(objects);
        pluTransposed.resize(objects);
        inverse.resize(objects);
        for (T& x : b) x = element();
        for (T& x : a) x = element();
        for (int k = 0; k < n; ++k)
        {
            int rows[N];
            for (int i = 0; i < N; ++i)
            {
                const auto other = static_cast<int>(random() % static_cast<unsigned>(i + 1));
                rows[i] = rows[other];
                rows[other] = i;
            }
            for (int i = 0; i < N; ++i) matrix(k)(i, rows[i]) += 3;
        }
    }
};

template <class T, int N>
class Problem
{
    using All = Systems<T, N>;
    int n;
    T tolerance = sizeof(T) == 4 ? T(1e-4) : T(1e-12);
    T* result = bench::Operand<T>::at(Slot::Result, static_cast<size_t>(n) * N * N);

    std::string name(const char* call) const
    {
        return std::string(call) + '/' + bench::typeName<T> + "/order:" + std::to_string(N) +
               "/dense/n:" + std::to_string(n);
    }

    template <class Loop>
    static auto eachOf(int count, Loop loop)
    {
        return [=] {
            All& all = All::of(count);
            for (int k = 0; k < count; ++k) loop(all, k);
            return stsOk;
        };
    }

public:
    explicit Problem(int objects) : n(objects) {}

    void factor() const
    {
        auto copyMatrices = [*this] {
            std::memcpy(result, All::of(n).a.data(), static_cast<size_t>(n) * All::size * sizeof(T));
            return stsOk;
        };
        bench::Case<T> problem(name("LUDecomp_ma"), result, static_cast<size_t>(n) * All::size, copyMatrices,
                               tolerance);
        auto product = eachOf(n, [to = result](All& all, int k) {
            for (int p = 0; p < N; ++p)
                for (int j = 0; j < N; ++j)
                {
                    const int32* const row = all.index.data() + k * N;
                    auto at = [&](int i, int c) {
                        return all.factors[static_cast<size_t>(k * All::size + row[i] * N + c)];
                    };
                    T sum = 0;
                    for (int i = 0; i <= std::min(p, j); ++i) sum += (i == p ? T(1) : at(p, i)) * at(i, j);
                    to[k * All::size + row[p] * N + j] = sum;
                }
        });
        problem.add(
            "zepm", [*this] { return All::of(n).factor(n); }, product);
        problem.add(
            "eigen_plu",
            [*this] {
                All::of(n).decompose(n);
                return stsOk;
            },
            eachOf(n, [to = result](All& all, int k) {
                typename All::MatrixMap(to + k * All::size) = all.plu[static_cast<size_t>(k)].reconstructedMatrix();
            }));
        problem.add(
            "lapack_getrf", [*this] { return All::of(n).getrf(n); }, eachOf(n, [to = result](All& all, int k) {
                using Map = typename All::MatrixMap;
                Map lu(all.lapack.data() + k * All::size), matrix(to + k * All::size);
                matrix = typename All::Matrix(lu.template triangularView<Eigen::UnitLower>()) *
                         typename All::Matrix(lu.template triangularView<Eigen::Upper>());
                for (int i = N - 1; i >= 0; --i)
                    matrix.row(i).swap(matrix.row(all.pivots[static_cast<size_t>(k * N + i)] - 1));
            }));
    }

    // A^T is what Eigen and LAPACK see of the matrices: Eigen is given factors of A, LAPACK solves with those of A^T.
    void solve() const
    {
        const int count = n;
        T* const to = result;
        auto prepared = [=](auto prepare, auto call) {
            auto isPrepared = std::make_shared<bool>(false);
            return [=] {
                All& all = All::of(count);
                if (!*isPrepared) prepare(all);
                *isPrepared = true;
                return call(all);
            };
        };
        auto decompose = [=](All& all) {
            for (int k = 0; k < count; ++k)
                all.pluTransposed[static_cast<size_t>(k)].compute(all.matrix(k).transpose());
        };
        auto plu = prepared(decompose, [=](All& all) {
            for (int k = 0; k < count; ++k)
                typename All::VectorMap(to + k * N) = all.pluTransposed[static_cast<size_t>(k)].solve(all.rhs(k));
            return stsOk;
        });
        bench::Case<T> problem(name("LUBackSubst_mava"), result, static_cast<size_t>(n) * N, plu, tolerance);
        problem.add("zepm",
                    prepared([=](All& all) { all.factor(count); }, [=](All& all) { return all.solve(to, count); }));
        problem.add("eigen_plu", plu);
        problem.add("eigen_inverse", prepared(
                                         [=](All& all) {
                                             for (int k = 0; k < count; ++k)
                                                 all.inverse[static_cast<size_t>(k)] =
                                                     all.matrix(k).transpose().inverse();
                                         },
                                         [=](All& all) {
                                             for (int k = 0; k < count; ++k)
                                                 typename All::VectorMap(to + k * N).noalias() =
                                                     all.inverse[static_cast<size_t>(k)] * all.rhs(k);
                                             return stsOk;
                                         }));
        problem.add("lapack_getrs",
                    prepared([=](All& all) { all.getrf(count); },
                             [=](All& all) {
                                 std::memcpy(to, all.b.data(), static_cast<size_t>(count) * N * sizeof(T));
                                 lapack_int info = 0;
                                 for (int k = 0; k < count; ++k)
                                     info |=
                                         Calls<T>::getrs(LAPACK_COL_MAJOR, 'T', N, 1, all.lapack.data() + k * All::size,
                                                         N, all.pivots.data() + k * N, to + k * N, N);
                                 return info;
                             }));

        using Columns = Eigen::Matrix<T, N, Eigen::Dynamic>;
        auto columns = [=](T* p) { return Eigen::Map<Columns>(p, N, count); };
        auto shared = prepared(decompose, [=](All& all) {
            columns(to) = all.pluTransposed[0].solve(columns(all.b.data()));
            return stsOk;
        });
        bench::Case<T> one(name("LUBackSubst_mva"), result, static_cast<size_t>(n) * N, shared, tolerance);
        one.add("zepm",
                prepared([=](All& all) { all.factor(count); }, [=](All& all) { return all.solveShared(to, count); }));
        one.add("eigen_plu", shared);
        one.add("eigen_inverse", [=] {
            All& all = All::of(count);
            const typename All::Matrix inverse = all.matrix(0).transpose().inverse();
            columns(to).noalias() = inverse.lazyProduct(columns(all.b.data()));
            return stsOk;
        });
    }

    void factorAndSolve() const
    {
        const int count = n;
        T* const to = result;
        auto plu = eachOf(n, [to](All& all, int k) {
            typename All::VectorMap(to + k * N) = all.matrix(k).transpose().partialPivLu().solve(all.rhs(k));
        });
        bench::Case<T> problem(name("LUDecomp_ma+LUBackSubst_mava"), result, static_cast<size_t>(n) * N, plu,
                               tolerance);
        problem.add("zepm", [=] {
            All& all = All::of(count);
            const Status status = all.factor(count);
            return status == stsOk ? all.solve(to, count) : status;
        });
        problem.add("eigen_plu", plu);
        if constexpr (N <= 4)
            problem.add("eigen_inverse", eachOf(n, [to](All& all, int k) {
                            typename All::VectorMap(to + k * N).noalias() =
                                all.matrix(k).transpose().inverse().eval() * all.rhs(k);
                        }));
        problem.add("lapack_gesv", [=] {
            All& all = All::of(count);
            std::memcpy(to, all.b.data(), static_cast<size_t>(count) * N * sizeof(T));
            lapack_int info = 0;
            for (int k = 0; k < count; ++k)
            {
                typename All::MatrixMap(all.lapackTransposed.data() + k * All::size) = all.matrix(k).transpose();
                info |= Calls<T>::gesv(LAPACK_COL_MAJOR, N, 1, all.lapackTransposed.data() + k * All::size, N,
                                       all.pivotsTransposed.data() + k * N, to + k * N, N);
            }
            return info;
        });
    }
};

// A million matrices, but of order 10 a tenth.
template <class T, int N>
void orderOf()
{
    for (const int n : {1000, N > 6 ? 100000 : 1000000})
    {
        const Problem<T, N> problem(n);
        problem.factor();
        problem.solve();
        problem.factorAndSolve();
    }
}

template <class T>
void typeOf()
{
    orderOf<T, 3>();
    orderOf<T, 4>();
    orderOf<T, 6>();
    orderOf<T, 10>();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
