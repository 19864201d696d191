// Products of matrices, beside Eigen, libxsmm, cglm and a plain triple loop.
//
// Layouts: dense, without gaps; gapped, rows at the next multiple of 16 bytes that leaves a gap. Contenders:
//
//   eigen_map      a loop of fixed-size Maps, row-major as the data lie
//   eigen_swapped  the same data as transposes in Eigen's own column-major order: transpose(d) = transpose(b)
//   transpose(a) eigen_tall     array times one matrix: all objects are one tall matrix libxsmm_loop   a loop of the
//   kernel generated for the order cglm_loop      a loop of its functions for orders 3 and 4 own_loop       the plain
//   triple loop of known order
//
// Peers may contract a product and a sum into one rounding, so results are compared within a tolerance.
#include "bench/harness.h"

#define CGLM_ALL_UNALIGNED
#include <Eigen/Core>
#include <cglm/cglm.h>
#include <libxsmm.h>

using bench::Slot;

namespace
{

// The library's calls by type.
template <class T>
struct Calls;

#define CALLS(T, suffix)                                                                                               \
    template <>                                                                                                        \
    struct Calls<T>                                                                                                    \
    {                                                                                                                  \
        static constexpr auto mm = zepmMul_mm_##suffix;                                                                \
        static constexpr auto mama = zepmMul_mama_##suffix, tama = zepmMul_tama_##suffix;                              \
        static constexpr auto mata = zepmMul_mata_##suffix, tata = zepmMul_tata_##suffix;                              \
        static constexpr auto mam = zepmMul_mam_##suffix, mma = zepmMul_mma_##suffix;                                  \
    };
CALLS(float32, 32f)
CALLS(float64, 64f)
#undef CALLS

template <class T, int N, bool isGapped>
class Problem
{
    static constexpr int sz = sizeof(T);
    static constexpr int stride1 = isGapped ? ((N + 1) * sz + 15) / 16 * 16 : N * sz;
    static constexpr int stride0 = N * stride1;
    static constexpr int rowStep = stride1 / sz, step = stride0 / sz;

    using Stride = std::conditional_t<isGapped, Eigen::OuterStride<rowStep>, Eigen::Stride<0, 0>>;
    using RowMajor = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
    using ColMajor = Eigen::Matrix<T, N, N>;
    using Tall = Eigen::Matrix<T, Eigen::Dynamic, N, Eigen::RowMajor>;

    int n;
    size_t elements = static_cast<size_t>(n) * step;
    const T* a = bench::Operand<T>::at(Slot::A, elements);
    const T* b = bench::Operand<T>::at(Slot::B, elements);
    T* d = bench::Operand<T>::at(Slot::Result, elements);

    // What a loop over the objects does for object k; factors that are fixed stay at their first object.
    template <class Object>
    auto loop(Object object, bool isFixed1, bool isFixed2) const
    {
        return [a = a, b = b, d = d, n = n, object, step1 = isFixed1 ? 0 : step, step2 = isFixed2 ? 0 : step] {
            for (ptrdiff_t k = 0; k < n; ++k) object(a + k * step1, b + k * step2, d + k * step);
            return stsOk;
        };
    }

    static void eigenMap(const T* pa, const T* pb, T* pd)
    {
        using Source = Eigen::Map<const RowMajor, 0, Stride>;
        Eigen::Map<RowMajor, 0, Stride>(pd).noalias() = Source(pa) * Source(pb);
    }
    static void eigenSwapped(const T* pa, const T* pb, T* pd)
    {
        using Source = Eigen::Map<const ColMajor, 0, Stride>;
        Eigen::Map<ColMajor, 0, Stride>(pd).noalias() = Source(pb) * Source(pa);
    }
    static void own(const T* pa, const T* pb, T* pd)
    {
        for (int i = 0; i < N; ++i)
            for (int j = 0; j < N; ++j)
            {
                T sum = 0;
                for (int k = 0; k < N; ++k) sum += pa[i * rowStep + k] * pb[k * rowStep + j];
                pd[i * rowStep + j] = sum;
            }
    }

    static auto xsmmKernel()
    {
        const int ld = rowStep;
        const T one = 1, zero = 0;
        if constexpr (sz == 4)
            return libxsmm_smmdispatch(N, N, N, &ld, &ld, &ld, &one, &zero, nullptr, nullptr);
        else
            return libxsmm_dmmdispatch(N, N, N, &ld, &ld, &ld, &one, &zero, nullptr, nullptr);
    }

    void addPeers(const bench::Case<T>& problem, bool isFixed1, bool isFixed2) const
    {
        problem.add("eigen_map",
                    loop([](const T* pa, const T* pb, T* pd) { eigenMap(pa, pb, pd); }, isFixed1, isFixed2));
        problem.add("eigen_swapped",
                    loop([](const T* pa, const T* pb, T* pd) { eigenSwapped(pa, pb, pd); }, isFixed1, isFixed2));
        if (const auto kernel = xsmmKernel())
            problem.add("libxsmm_loop",
                        loop([kernel](const T* pa, const T* pb, T* pd) { kernel(pb, pa, pd); }, isFixed1, isFixed2));
        if constexpr (sz == 4 && !isGapped && (N == 3 || N == 4))
            problem.add("cglm_loop",
                        loop(
                            [](const T* pa, const T* pb, T* pd) {
                                T* const first = const_cast<T*>(pb);
                                T* const second = const_cast<T*>(pa);
                                if constexpr (N == 3)
                                    glm_mat3_mul(reinterpret_cast<vec3*>(first), reinterpret_cast<vec3*>(second),
                                                 reinterpret_cast<vec3*>(pd));
                                else
                                    glm_mat4_mul(reinterpret_cast<vec4*>(first), reinterpret_cast<vec4*>(second),
                                                 reinterpret_cast<vec4*>(pd));
                            },
                            isFixed1, isFixed2));
        problem.add("own_loop", loop([](const T* pa, const T* pb, T* pd) { own(pa, pb, pd); }, isFixed1, isFixed2));
    }

    bench::Case<T> caseOf(const char* form, double operands, std::function<Status()> reference) const
    {
        bench::Case<T> problem(std::string("Mul_") + form + '/' + bench::typeName<T> + "/order:" + std::to_string(N) +
                                   (isGapped ? "/gapped" : "/dense") + "/n:" + std::to_string(n),
                               d, elements, std::move(reference), sz == 4 ? 1e-5 : 1e-13);
        problem.moves(operands * n * N * N * sz);
        return problem;
    }

public:
    explicit Problem(int objects) : n(objects) {}

    void mama() const
    {
        const auto problem =
            caseOf("mama", 3, loop([](const T* pa, const T* pb, T* pd) { own(pa, pb, pd); }, false, false));
        problem.add("zepm", [*this] {
            return Calls<T>::mama(a, stride0, stride1, sz, N, N, b, stride0, stride1, sz, N, N, d, stride0, stride1, sz,
                                  n);
        });
        addPeers(problem, false, false);
        if (n >= 100000) problem.addCopies();
    }

    // One matrix for all objects: the second factor, or the first.
    void mam() const
    {
        const auto problem =
            caseOf("mam", 2, loop([](const T* pa, const T* pb, T* pd) { own(pa, pb, pd); }, false, true));
        problem.add("zepm", [*this] {
            return Calls<T>::mam(a, stride0, stride1, sz, N, N, b, stride1, sz, N, N, d, stride0, stride1, sz, n);
        });
        problem.add("eigen_tall", [*this] {
            const Eigen::Map<const RowMajor> fixed(b);
            Eigen::Map<Tall>(d, n * N, N).noalias() = Eigen::Map<const Tall>(a, n * N, N) * fixed;
            return stsOk;
        });
        addPeers(problem, false, true);
        if (n >= 100000) problem.addCopies();
    }
    void mma() const
    {
        const auto problem =
            caseOf("mma", 2, loop([](const T* pa, const T* pb, T* pd) { own(pa, pb, pd); }, true, false));
        problem.add("zepm", [*this] {
            return Calls<T>::mma(a, stride1, sz, N, N, b, stride0, stride1, sz, N, N, d, stride0, stride1, sz, n);
        });
        addPeers(problem, true, false);
    }

    // The transposed forms: beside the plain one, and one peer.
    template <class Call>
    void transposed(const char* form, Call call, bool transposes1, bool transposes2) const
    {
        const auto peer = loop(
            [=](const T* pa, const T* pb, T* pd) {
                using Source = Eigen::Map<const RowMajor>;
                Eigen::Map<RowMajor> result(pd);
                if (transposes1 && transposes2)
                    result.noalias() = Source(pa).transpose() * Source(pb).transpose();
                else if (transposes1)
                    result.noalias() = Source(pa).transpose() * Source(pb);
                else
                    result.noalias() = Source(pa) * Source(pb).transpose();
            },
            false, false);
        const auto problem = caseOf(form, 3, peer);
        problem.add("zepm", [*this, call] {
            return call(a, stride0, stride1, sz, N, N, b, stride0, stride1, sz, N, N, d, stride0, stride1, sz, n);
        });
        problem.add("eigen_map", peer);
    }
    void transposed() const
    {
        transposed("tama", Calls<T>::tama, true, false);
        transposed("mata", Calls<T>::mata, false, true);
        transposed("tata", Calls<T>::tata, true, true);
    }

    void single() const
    {
        const auto problem =
            caseOf("mm", 3, loop([](const T* pa, const T* pb, T* pd) { own(pa, pb, pd); }, false, false));
        problem.add("zepm",
                    [*this] { return Calls<T>::mm(a, stride1, sz, N, N, b, stride1, sz, N, N, d, stride1, sz); });
        problem.add("eigen_inlined", [*this] {
            eigenMap(a, b, d);
            return stsOk;
        });
    }
};

template <class T, int N>
void orderOf()
{
    for (const int n : {1000, 1000000})
    {
        Problem<T, N, false>(n).mama();
        Problem<T, N, false>(n).mam();
    }
    Problem<T, N, false>(64).mam();
    Problem<T, N, false>(1000).mma();
    Problem<T, N, false>(1000).transposed();
    Problem<T, N, true>(1000).mama();
    Problem<T, N, false>(1).single();
}

template <class T>
void typeOf()
{
    orderOf<T, 3>();
    orderOf<T, 4>();
    orderOf<T, 5>();
    orderOf<T, 6>();
    orderOf<T, 8>();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
