// Vector algebra over arrays: sums, vector products, linear combinations, beside Eigen and GLM.
//
// Layouts: dense, without gaps; records, at the next multiple of 16 bytes; tables, elements of successive objects side
// by side, in the layout P. Contenders:
//
//   eigen_flat   one expression over all elements (linear combinations of dense arrays)
//   eigen_whole  one expression over all objects as the columns, or in tables as the rows, of a matrix
//   eigen_map    a loop of one Map for each object
//   glm_loop     a loop of its functions for lengths 3 and 4
//
// Peers add in orders of their own and may contract a product and a sum, so results are compared within a tolerance.
#include "bench/harness.h"

#include <Eigen/Dense>
#include <glm/geometric.hpp>
#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/vec3.hpp>
#include <glm/vec4.hpp>

#include <vector>

using bench::Slot;

namespace
{

template <class T>
struct Calls;

#define CALLS(T, suffix)                                                                                               \
    template <>                                                                                                        \
    struct Calls<T>                                                                                                    \
    {                                                                                                                  \
        static constexpr auto dotVav = zepmDotProduct_vav_##suffix, dotVava = zepmDotProduct_vava_##suffix;            \
        static constexpr auto dotTables = zepmDotProduct_vava_##suffix##_P;                                            \
        static constexpr auto norm = zepmL2Norm_va_##suffix;                                                           \
        static constexpr auto normTables = zepmL2Norm_va_##suffix##_P;                                                 \
        static constexpr auto frob = zepmFrobNorm_ma_##suffix, trace = zepmTrace_ma_##suffix;                          \
        static constexpr auto crossVav = zepmCrossProduct_vav_##suffix, crossVava = zepmCrossProduct_vava_##suffix;    \
        static constexpr auto crossTables = zepmCrossProduct_vava_##suffix##_P;                                        \
        static constexpr auto saxpyVav = zepmSaxpy_vav_##suffix, saxpyVava = zepmSaxpy_vava_##suffix;                  \
        static constexpr auto lcombVava = zepmLComb_vava_##suffix;                                                     \
    };
CALLS(float32, 32f)
CALLS(float64, 64f)
#undef CALLS

enum class Layout
{
    Dense,
    Records,
    Tables
};

// Vectors of Len elements; lengths above 6 are not known to the peer's compiler, nor to the library's.
template <class T, int Len, Layout layout>
class Vectors
{
    static constexpr int sz = sizeof(T), rows = Len <= 6 ? Len : Eigen::Dynamic;
    static constexpr int stride0 = layout == Layout::Records ? (Len * sz + 15) / 16 * 16 : Len * sz,
                         step = stride0 / sz;
    static constexpr bool isTables = layout == Layout::Tables;
    static constexpr T val1 = T(0.7), val2 = T(-1.3);

    // In tables an object is a row, its elements n apart.
    static constexpr int storage = isTables ? Eigen::RowMajor : Eigen::ColMajor;
    using Columns = Eigen::Map<Eigen::Array<T, rows, Eigen::Dynamic, storage>, 0, Eigen::OuterStride<>>;
    using ConstColumns = Eigen::Map<const Eigen::Array<T, rows, Eigen::Dynamic, storage>, 0, Eigen::OuterStride<>>;
    using Flat = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
    using ConstFlat = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
    using Row = Eigen::Map<Eigen::Array<T, 1, Eigen::Dynamic>>;
    using Stride = Eigen::InnerStride<>;
    using Vector = Eigen::Map<Eigen::Matrix<T, rows, 1>, 0, Stride>;
    using ConstVector = Eigen::Map<const Eigen::Matrix<T, rows, 1>, 0, Stride>;

    int n;
    size_t elements = static_cast<size_t>(n) * step;
    const T* a = bench::Operand<T>::at(Slot::A, elements);
    const T* b = bench::Operand<T>::at(Slot::B, elements);
    T* d = bench::Operand<T>::at(Slot::Result, elements);

    template <class P>
    auto columns(P p) const
    {
        using Map = std::conditional_t<std::is_const_v<std::remove_pointer_t<P>>, ConstColumns, Columns>;
        return Map(p, Len, n, Eigen::OuterStride<>(isTables ? n : step));
    }
    template <class P>
    auto object(P p, ptrdiff_t k) const
    {
        using Map = std::conditional_t<std::is_const_v<std::remove_pointer_t<P>>, ConstVector, Vector>;
        return Map(p + k * (isTables ? 1 : step), Len, Stride(isTables ? n : 1));
    }
    template <class P>
    std::vector<P> table(P p) const
    {
        std::vector<P> list;
        for (int j = 0; j < Len; ++j) list.push_back(p + static_cast<ptrdiff_t>(j) * n);
        return list;
    }

    template <class F>
    static auto done(F f)
    {
        return [f] {
            f();
            return stsOk;
        };
    }
    // A case whose reference is a loop over the objects.
    template <class Loop>
    bench::Case<T> caseOf(const char* call, size_t results, double bytes, Loop loop) const
    {
        constexpr const char* layouts[] = {"dense", "records", "tables"};
        bench::Case<T> problem(std::string(call) + '/' + bench::typeName<T> + "/len:" + std::to_string(Len) + '/' +
                                   layouts[static_cast<int>(layout)] + "/n:" + std::to_string(n),
                               d, results, done(loop), sz == 4 ? 1e-5 : 1e-13);
        problem.moves(bytes);
        problem.add("eigen_map", done(loop));
        return problem;
    }
    double objectBytes() const { return static_cast<double>(n) * Len * sz; }
    double numberBytes() const { return static_cast<double>(n) * sz; }

public:
    explicit Vectors(int objects) : n(objects) {}

    void dotVava() const
    {
        const auto loop = [*this] {
            for (ptrdiff_t k = 0; k < n; ++k) d[k] = object(a, k).dot(object(b, k));
        };
        const auto problem = caseOf("DotProduct_vava", static_cast<size_t>(n), 2 * objectBytes() + numberBytes(), loop);
        if constexpr (isTables)
            problem.add("zepm", [*this, ta = table(a), tb = table(b)] {
                return Calls<T>::dotTables(ta.data(), 0, sz, tb.data(), 0, sz, d, Len, n);
            });
        else
            problem.add("zepm", [*this] { return Calls<T>::dotVava(a, stride0, sz, b, stride0, sz, d, Len, n); });
        problem.add("eigen_whole", done([*this] { Row(d, n) = (columns(a) * columns(b)).colwise().sum(); }));
        if constexpr (!isTables && (Len == 3 || Len == 4))
            problem.add("glm_loop", done([*this] {
                            using V = glm::vec<Len, T>;
                            for (ptrdiff_t k = 0; k < n; ++k)
                                d[k] = glm::dot(*reinterpret_cast<const V*>(a + k * step),
                                                *reinterpret_cast<const V*>(b + k * step));
                        }));
    }
    void dotVav() const
    {
        const auto loop = [*this] {
            for (ptrdiff_t k = 0; k < n; ++k) d[k] = object(a, k).dot(object(b, 0));
        };
        const auto problem = caseOf("DotProduct_vav", static_cast<size_t>(n), objectBytes() + numberBytes(), loop);
        problem.add("zepm", [*this] { return Calls<T>::dotVav(a, stride0, sz, b, sz, d, Len, n); });
        problem.add("eigen_product",
                    done([*this] { Row(d, n).matrix().noalias() = object(b, 0).transpose() * columns(a).matrix(); }));
    }
    void norms() const
    {
        const auto loop = [*this] {
            for (ptrdiff_t k = 0; k < n; ++k) d[k] = object(a, k).norm();
        };
        const auto problem = caseOf("L2Norm_va", static_cast<size_t>(n), objectBytes() + numberBytes(), loop);
        if constexpr (isTables)
            problem.add("zepm", [*this, ta = table(a)] { return Calls<T>::normTables(ta.data(), 0, sz, d, Len, n); });
        else
            problem.add("zepm", [*this] { return Calls<T>::norm(a, stride0, sz, d, Len, n); });
        problem.add("eigen_whole", done([*this] { Row(d, n) = columns(a).square().colwise().sum().sqrt(); }));
        if constexpr (!isTables && (Len == 3 || Len == 4))
            problem.add("glm_loop", done([*this] {
                            using V = glm::vec<Len, T>;
                            for (ptrdiff_t k = 0; k < n; ++k)
                                d[k] = glm::length(*reinterpret_cast<const V*>(a + k * step));
                        }));
    }
    void crossVava() const
    {
        const auto loop = [*this] {
            for (ptrdiff_t k = 0; k < n; ++k) object(d, k) = object(a, k).cross(object(b, k));
        };
        const auto problem =
            caseOf("CrossProduct_vava", layout == Layout::Dense ? elements : 3, 3 * objectBytes(), loop);
        if constexpr (isTables)
            problem.add("zepm", [*this, ta = table(a), tb = table(b), td = table(d)] {
                return Calls<T>::crossTables(ta.data(), 0, sz, tb.data(), 0, sz, td.data(), 0, sz, n);
            });
        else
            problem.add("zepm",
                        [*this] { return Calls<T>::crossVava(a, stride0, sz, b, stride0, sz, d, stride0, sz, n); });
        problem.add("eigen_whole", done([*this] {
                        auto A = columns(a), B = columns(b);
                        auto D = columns(d);
                        D.row(0) = A.row(1) * B.row(2) - A.row(2) * B.row(1);
                        D.row(1) = A.row(2) * B.row(0) - A.row(0) * B.row(2);
                        D.row(2) = A.row(0) * B.row(1) - A.row(1) * B.row(0);
                    }));
        if constexpr (!isTables)
            problem.add("glm_loop", done([*this] {
                            using V = glm::vec<3, T>;
                            for (ptrdiff_t k = 0; k < n; ++k)
                                *reinterpret_cast<V*>(d + k * step) =
                                    glm::cross(*reinterpret_cast<const V*>(a + k * step),
                                               *reinterpret_cast<const V*>(b + k * step));
                        }));
    }
    void linear() const
    {
        const auto add = [&](const char* call, double operands, auto zepm, auto one, auto whole, auto flat) {
            const auto loop = [*this, one] {
                for (ptrdiff_t k = 0; k < n; ++k) object(d, k) = one(object(a, k), object(b, k), object(b, 0));
            };
            const auto problem = caseOf(call, layout == Layout::Dense ? elements : Len, operands * objectBytes(), loop);
            problem.add("zepm", zepm);
            problem.add("eigen_whole", done([*this, whole] { whole(columns(d), columns(a), columns(b)); }));
            if constexpr (layout == Layout::Dense && !std::is_null_pointer_v<decltype(flat)>)
                problem.add("eigen_flat", done([*this, flat] {
                                const auto size = static_cast<ptrdiff_t>(elements);
                                flat(Flat(d, size), ConstFlat(a, size), ConstFlat(b, size));
                            }));
            if (n >= 100000 && layout == Layout::Dense) problem.addCopies();
        };
        add(
            "Saxpy_vava", 3,
            [*this] { return Calls<T>::saxpyVava(a, stride0, sz, val1, b, stride0, sz, d, stride0, sz, Len, n); },
            [](const auto& x, const auto& y, const auto&) { return x * val1 + y; },
            [](auto&& z, const auto& x, const auto& y) { z = x * val1 + y; },
            [](auto&& z, const auto& x, const auto& y) { z = x * val1 + y; });
        add(
            "LComb_vava", 3,
            [*this] { return Calls<T>::lcombVava(a, stride0, sz, val1, b, stride0, sz, val2, d, stride0, sz, Len, n); },
            [](const auto& x, const auto& y, const auto&) { return x * val1 + y * val2; },
            [](auto&& z, const auto& x, const auto& y) { z = x * val1 + y * val2; },
            [](auto&& z, const auto& x, const auto& y) { z = x * val1 + y * val2; });
        add(
            "Saxpy_vav", 2, [*this] { return Calls<T>::saxpyVav(a, stride0, sz, val1, b, sz, d, stride0, sz, Len, n); },
            [](const auto& x, const auto&, const auto& y) { return x * val1 + y; },
            [](auto&& z, const auto& x, const auto& y) {
                const Eigen::Array<T, rows, 1> fixed = y.col(0);
                z = (x * val1).colwise() + fixed;
            },
            nullptr);
    }
};

template <class T, int N>
class Matrices
{
    static constexpr int sz = sizeof(T);
    using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
    int n;
    const T* a = bench::Operand<T>::at(Slot::A, static_cast<size_t>(n) * N * N);
    T* d = bench::Operand<T>::at(Slot::Result, static_cast<size_t>(n));

    template <class Zepm, class One, class Whole>
    void run(const char* call, Zepm zepm, One one, Whole whole) const
    {
        const auto loop = [*this, one] {
            for (ptrdiff_t k = 0; k < n; ++k) d[k] = one(Eigen::Map<const Matrix>(a + k * N * N));
            return stsOk;
        };
        bench::Case<T> problem(std::string(call) + '/' + bench::typeName<T> + "/order:" + std::to_string(N) +
                                   "/dense/n:" + std::to_string(n),
                               d, static_cast<size_t>(n), loop, sz == 4 ? 1e-5 : 1e-13);
        problem.add("eigen_map", loop);
        problem.add("zepm", zepm);
        problem.add("eigen_whole", [*this, whole] {
            whole(Eigen::Map<Eigen::Array<T, 1, Eigen::Dynamic>>(d, n),
                  Eigen::Map<const Eigen::Array<T, N * N, Eigen::Dynamic>>(a, N * N, n));
            return stsOk;
        });
    }

public:
    explicit Matrices(int objects) : n(objects) {}
    void all() const
    {
        run(
            "FrobNorm_ma", [*this] { return Calls<T>::frob(a, N * N * sz, N * sz, sz, N, N, d, n); },
            [](const auto& m) { return m.norm(); },
            [](auto&& z, const auto& x) { z = x.square().colwise().sum().sqrt(); });
        run(
            "Trace_ma", [*this] { return Calls<T>::trace(a, N * N * sz, N * sz, sz, N, d, n); },
            [](const auto& m) { return m.trace(); },
            [](auto&& z, const auto& x) {
                z = x.row(0) + x.row(N + 1);
                for (int i = 2; i < N; ++i) z += x.row(i * (N + 1));
            });
    }
};

template <class T, int Len>
void lengthOf()
{
    const std::vector<int> counts = Len > 16 ? std::vector{1000} : std::vector{1000, 1000000};
    for (const int n : counts)
    {
        const Vectors<T, Len, Layout::Dense> dense(n);
        dense.dotVava();
        dense.dotVav();
        dense.norms();
        dense.linear();
        if constexpr (Len == 3) dense.crossVava();
    }
    const Vectors<T, Len, Layout::Records> records(1000);
    const Vectors<T, Len, Layout::Tables> tables(1000);
    records.dotVava();
    records.norms();
    records.linear();
    tables.dotVava();
    tables.norms();
    if constexpr (Len == 3)
    {
        records.crossVava();
        tables.crossVava();
    }
}

template <class T>
void typeOf()
{
    lengthOf<T, 3>();
    lengthOf<T, 4>();
    lengthOf<T, 6>();
    lengthOf<T, 9>();
    lengthOf<T, 16>();
    lengthOf<T, 100>();
    lengthOf<T, 1000>();
    Matrices<T, 3>(1000).all();
    Matrices<T, 4>(1000).all();
    Matrices<T, 6>(1000).all();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
