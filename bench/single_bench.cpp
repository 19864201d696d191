// Single calls on objects without gaps, beside plain loops in a function of the user's own and beside Eigen inlined.
#include "bench/harness.h"
#include "bench/plain.h"

#include <Eigen/Core>

namespace
{

using bench::Case;
using bench::Operand;
using bench::Slot;
using bench::typeName;

template <class T>
struct Calls;
template <>
struct Calls<float32>
{
    static constexpr auto addVectors = zepmAdd_vv_32f;
    static constexpr auto addMatrices = zepmAdd_mm_32f;
    static constexpr auto multiply = zepmMul_mm_32f;
};
template <>
struct Calls<float64>
{
    static constexpr auto addVectors = zepmAdd_vv_64f;
    static constexpr auto addMatrices = zepmAdd_mm_64f;
    static constexpr auto multiply = zepmMul_mm_64f;
};

template <class T, int N>
struct Single
{
    static constexpr int32 sz = sizeof(T), stride1 = N * sz;
    T* const a = Operand<T>::at(Slot::A, N* N);
    T* const b = Operand<T>::at(Slot::B, N* N);
    T* const d = Operand<T>::at(Slot::Result, N* N);

    template <class Reference>
    Case<T> caseOf(const char* call, int elements, Reference reference) const
    {
        const std::string name = std::string(call) + '/' + typeName<T> + "/order:" + std::to_string(N) + "/dense/n:1";
        return Case<T>(
            name, d, static_cast<size_t>(elements),
            [=, *this] {
                reference(a, b, d);
                return stsOk;
            },
            1e-5);
    }
    // Through a pointer that the compiler cannot see through, as a call to another source is.
    template <class Function>
    static auto called(Function* function)
    {
        Function* volatile hidden = function;
        return hidden;
    }

    void vectors() const
    {
        const auto problem = caseOf("Add_vv", N, bench::plainSum<T, N>);
        problem.add("zepm", [*this] { return Calls<T>::addVectors(a, sz, b, sz, d, sz, N); });
        problem.add("plain_function", [*this, f = called(bench::plainSum<T, N>)] {
            f(a, b, d);
            return stsOk;
        });
        using Vector = Eigen::Matrix<T, N, 1>;
        problem.add("eigen_inlined", [*this] {
            Eigen::Map<Vector>{d} = Eigen::Map<const Vector>(a) + Eigen::Map<const Vector>(b);
            return stsOk;
        });
    }
    void matrices() const
    {
        const auto problem = caseOf("Add_mm", N * N, bench::plainSum<T, N * N>);
        problem.add("zepm",
                    [*this] { return Calls<T>::addMatrices(a, stride1, sz, b, stride1, sz, d, stride1, sz, N, N); });
        problem.add("plain_function", [*this, f = called(bench::plainSum<T, N * N>)] {
            f(a, b, d);
            return stsOk;
        });
        using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
        problem.add("eigen_inlined", [*this] {
            Eigen::Map<Matrix>{d} = Eigen::Map<const Matrix>(a) + Eigen::Map<const Matrix>(b);
            return stsOk;
        });
    }
    void products() const
    {
        const auto problem = caseOf("Mul_mm", N * N, bench::plainProduct<T, N>);
        problem.add("zepm",
                    [*this] { return Calls<T>::multiply(a, stride1, sz, N, N, b, stride1, sz, N, N, d, stride1, sz); });
        problem.add("plain_function", [*this, f = called(bench::plainProduct<T, N>)] {
            f(a, b, d);
            return stsOk;
        });
        using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
        problem.add("eigen_inlined", [*this] {
            Eigen::Map<Matrix>{d}.noalias() = Eigen::Map<const Matrix>(a).lazyProduct(Eigen::Map<const Matrix>(b));
            return stsOk;
        });
    }
};

template <class T>
void typeOf()
{
    auto order = []<int N>() {
        Single<T, N>().vectors();
        Single<T, N>().matrices();
        Single<T, N>().products();
    };
    order.template operator()<3>();
    order.template operator()<4>();
    order.template operator()<6>();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
