// Moves between layouts, transposes and identities, beside Eigen, memcpy, memset, OpenBLAS and plain loops.
//
// Layouts: dense, without gaps; gapped, rows at the next multiple of 16 bytes that leaves a gap; records, three floats
// at a stride of 16 bytes; spaced, the same element of all objects side by side; list and table, pointers to dense
// objects and to spaced elements. Contenders:
//
//   eigen_map     a loop of one Map for each object
//   eigen_whole   one Map of all objects as the columns of a matrix, with strides
//   plain_loop    what a user would write in place of the call
//   open_blas     ?omatcopy, where the build has found OpenBLAS
#include "bench/harness.h"

#include <Eigen/Core>

#include <vector>

using bench::Slot;

#if defined(ZEPM_BENCH_OPENBLAS)
extern "C" void cblas_somatcopy(int order, int trans, int rows, int cols, float alpha, const float* a, int lda,
                                float* b, int ldb);
extern "C" void cblas_domatcopy(int order, int trans, int rows, int cols, double alpha, const double* a, int lda,
                                double* b, int ldb);
#endif

namespace
{

template <class T>
struct Calls;

#define CALLS(T, suffix, blas)                                                                                         \
    template <>                                                                                                        \
    struct Calls<T>                                                                                                    \
    {                                                                                                                  \
        static constexpr auto extractMa = zepmExtract_ma_##suffix, extractTa = zepmExtract_ta_##suffix;                \
        static constexpr auto copyVa = zepmCopy_va_##suffix##_SS, copyMa = zepmCopy_ma_##suffix##_SS;                  \
        static constexpr auto sl = zepmCopy_va_##suffix##_SL, sp = zepmCopy_va_##suffix##_SP;                          \
        static constexpr auto ls = zepmCopy_va_##suffix##_LS, ll = zepmCopy_va_##suffix##_LL;                          \
        static constexpr auto lp = zepmCopy_va_##suffix##_LP, ps = zepmCopy_va_##suffix##_PS;                          \
        static constexpr auto pl = zepmCopy_va_##suffix##_PL, pp = zepmCopy_va_##suffix##_PP;                          \
        static constexpr auto identity = zepmLoadIdentity_ma_##suffix, transpose = zepmTranspose_ma_##suffix;          \
        blas                                                                                                           \
    };
#if defined(ZEPM_BENCH_OPENBLAS)
CALLS(float32, 32f, static constexpr auto omatcopy = cblas_somatcopy;)
CALLS(float64, 64f, static constexpr auto omatcopy = cblas_domatcopy;)
#else
CALLS(float32, 32f, )
CALLS(float64, 64f, )
#endif
#undef CALLS

std::string nameOf(const char* call, const char* type, const std::string& sizes, const char* layout, int n)
{
    return std::string(call) + '/' + type + '/' + sizes + '/' + layout + "/n:" + std::to_string(n);
}

template <class F>
auto succeeding(F f)
{
    return [f] {
        f();
        return stsOk;
    };
}

// ---- Matrices -------------------------------------------------------------------------------------------------------

template <class T, int Order, bool isGapped>
class Matrices
{
    static constexpr int sz = sizeof(T), row = isGapped ? (Order * sz / 16 + 1) * 16 / sz : Order, step = Order * row;
    static constexpr int stride1 = row * sz, stride0 = step * sz;
    static constexpr const char* layout = isGapped ? "gapped" : "dense";
    using Square = Eigen::Matrix<T, Order, Order, Eigen::RowMajor>;
    using Dense = Eigen::Map<Square>;
    using Result = Eigen::Map<Square, 0, Eigen::OuterStride<row>>;
    using Source = Eigen::Map<const Square, 0, Eigen::OuterStride<row>>;

    int n;
    size_t elements = static_cast<size_t>(n) * step, denseElements = static_cast<size_t>(n) * Order * Order;
    const T* a = bench::Operand<T>::at(Slot::A, elements);
    T* d = bench::Operand<T>::at(Slot::Result, elements);
    double bytes = static_cast<double>(denseElements) * sz;

    template <class Zepm, class Object>
    bench::Case<T> run(const char* call, size_t resultElements, double moved, Zepm zepm, Object object) const
    {
        auto loop = succeeding([object, count = n] {
            for (ptrdiff_t k = 0; k < count; ++k) object(k);
        });
        bench::Case<T> problem(nameOf(call, bench::typeName<T>, "order:" + std::to_string(Order), layout, n), d,
                               resultElements, loop);
        problem.moves(moved);
        problem.add("zepm", zepm);
        problem.add("eigen_map", loop);
        return problem;
    }

public:
    explicit Matrices(int objects) : n(objects) {}

    void all() const
    {
        using Call = Calls<T>;
        auto copy = run(
            "Copy_ma_SS", elements, 2 * bytes,
            [*this] { return Call::copyMa(a, stride0, stride1, sz, d, stride0, stride1, sz, Order, Order, n); },
            [*this](ptrdiff_t k) { Result(d + k * step) = Source(a + k * step); });
        auto extract = run(
            "Extract_ma", denseElements, 2 * bytes,
            [*this] { return Call::extractMa(a, stride0, stride1, sz, d, Order, Order, n); },
            [*this](ptrdiff_t k) { Dense(d + k * Order * Order) = Source(a + k * step); });
        if (!isGapped) copy.addCopies(), extract.addCopies();
        run(
            "Extract_ta", denseElements, 2 * bytes,
            [*this] { return Call::extractTa(a, stride0, stride1, sz, d, Order, Order, n); },
            [*this](ptrdiff_t k) { Dense(d + k * Order * Order) = Source(a + k * step).transpose(); });
        [[maybe_unused]] auto transpose = run(
            "Transpose_ma", elements, 2 * bytes,
            [*this] { return Call::transpose(a, stride0, stride1, sz, Order, Order, d, stride0, stride1, sz, n); },
            [*this](ptrdiff_t k) { Result(d + k * step) = Source(a + k * step).transpose(); });
#if defined(ZEPM_BENCH_OPENBLAS)
        transpose.add("open_blas", succeeding([*this] {
                          for (ptrdiff_t k = 0; k < n; ++k) // row-major, transposed
                              Call::omatcopy(101, 112, Order, Order, T(1), a + k * step, row, d + k * step, row);
                      }));
#endif
        auto identity = run(
            "LoadIdentity_ma", elements, bytes,
            [*this] { return Call::identity(d, stride0, stride1, sz, Order, Order, n); },
            [*this](ptrdiff_t k) { Result(d + k * step).setIdentity(); });
        if (isGapped) return;
        bench::Case<T> fill(nameOf("LoadIdentity_ma", bench::typeName<T>, "order:" + std::to_string(Order), layout, n),
                            d, elements, succeeding([*this] { std::memset(d, 0, elements * sz); }));
        fill.moves(bytes);
        fill.add("copy_memset", succeeding([*this] { std::memset(d, 0, elements * sz); }));
    }
};

// ---- Vectors --------------------------------------------------------------------------------------------------------

// Where element j of vector k is, in elements.
struct Place
{
    const char* name;
    ptrdiff_t step, spacing;
};

template <class T, int Len>
class Vectors
{
    static constexpr int sz = sizeof(T);
    using Columns = Eigen::Matrix<T, Len, Eigen::Dynamic>;
    using Strides = Eigen::Stride<Eigen::Dynamic, Eigen::Dynamic>;

    int n;
    Place from, to;
    size_t fromElements = extent(from), toElements = extent(to);
    const T* a = bench::Operand<T>::at(Slot::A, fromElements);
    T* d = bench::Operand<T>::at(Slot::Result, toElements);

    size_t extent(const Place& place) const
    {
        return static_cast<size_t>((n - 1) * place.step + (Len - 1) * place.spacing + 1);
    }

public:
    Vectors(int objects, Place source, Place destination) : n(objects), from(source), to(destination) {}

    void all() const
    {
        const std::string layout = std::string(from.name) + "_to_" + to.name;
        auto plain = succeeding([*this] {
            for (ptrdiff_t k = 0; k < n; ++k)
                for (ptrdiff_t j = 0; j < Len; ++j)
                    d[k * to.step + j * to.spacing] = a[k * from.step + j * from.spacing];
        });
        bench::Case<T> problem(
            nameOf("Copy_va_SS", bench::typeName<T>, "len:" + std::to_string(Len), layout.c_str(), n), d, toElements,
            plain);
        problem.moves(2.0 * n * Len * sz);
        auto bytesOf = [](ptrdiff_t length) { return static_cast<int32>(length * sz); };
        problem.add("zepm", [*this, bytesOf] {
            return Calls<T>::copyVa(a, bytesOf(from.step), bytesOf(from.spacing), d, bytesOf(to.step),
                                    bytesOf(to.spacing), Len, n);
        });
        problem.add("plain_loop", plain);
        problem.add("eigen_whole", succeeding([*this] {
                        Eigen::Map<Columns, 0, Strides>(d, Len, n, Strides(to.step, to.spacing)) =
                            Eigen::Map<const Columns, 0, Strides>(a, Len, n, Strides(from.step, from.spacing));
                    }));
        if (from.spacing == 1 && to.spacing == 1)
            problem.add("eigen_map", succeeding([*this] {
                            using Vector = Eigen::Matrix<T, Len, 1>;
                            for (ptrdiff_t k = 0; k < n; ++k)
                                Eigen::Map<Vector>(d + k * to.step) = Eigen::Map<const Vector>(a + k * from.step);
                        }));
        // The element strides known to the compiler, one loop for each element.
        problem.add("eigen_rows", succeeding([*this] {
                        using Row = Eigen::Matrix<T, 1, Eigen::Dynamic>;
                        using Stride = Eigen::InnerStride<>;
                        for (ptrdiff_t j = 0; j < Len; ++j)
                            Eigen::Map<Row, 0, Stride>(d + j * to.spacing, n, Stride(to.step)) =
                                Eigen::Map<const Row, 0, Stride>(a + j * from.spacing, n, Stride(from.step));
                    }));
    }
};

// Every pair of layouts once: S and the objects of L without gaps, the elements of P spaced.
template <class T, int Len>
class Pairs
{
    static constexpr int sz = sizeof(T);

    int n;
    size_t elements = static_cast<size_t>(n) * Len;
    const T* a = bench::Operand<T>::at(Slot::A, elements);
    T* d = bench::Operand<T>::at(Slot::Result, elements);
    struct Tables
    {
        std::vector<const T*> objects, elements;
        std::vector<T*> dstObjects, dstElements;
    };
    std::shared_ptr<Tables> tables = std::make_shared<Tables>();

    template <class Zepm, class From, class To>
    void run(const char* layouts, Zepm zepm, From from, To to) const
    {
        auto plain = succeeding([from, to, count = n] {
            for (int32 k = 0; k < count; ++k)
                for (int32 j = 0; j < Len; ++j) *to(k, j) = *from(k, j);
        });
        bench::Case<T> problem(nameOf("Copy_va", bench::typeName<T>, "len:" + std::to_string(Len), layouts, n), d,
                               elements, plain);
        problem.moves(2.0 * static_cast<double>(elements) * sz);
        problem.add("zepm", zepm);
        problem.add("plain_loop", plain);
    }

public:
    explicit Pairs(int objects) : n(objects)
    {
        for (ptrdiff_t k = 0; k < n; ++k)
            tables->objects.push_back(a + k * Len), tables->dstObjects.push_back(d + k * Len);
        for (ptrdiff_t j = 0; j < Len; ++j)
            tables->elements.push_back(a + j * n), tables->dstElements.push_back(d + j * n);
    }

    void all() const
    {
        using Call = Calls<T>;
        constexpr int32 stride0 = Len * sz;
        const T *const *objects = tables->objects.data(), *const *spaced = tables->elements.data();
        T *const *dstObjects = tables->dstObjects.data(), *const *dstSpaced = tables->dstElements.data();
        const auto keep = tables;
        auto s = [*this](int32 k, int32 j) { return a + k * ptrdiff_t{Len} + j; };
        auto l = [objects](int32 k, int32 j) { return objects[k] + j; };
        auto p = [spaced](int32 k, int32 j) { return spaced[j] + k; };
        auto toS = [*this](int32 k, int32 j) { return d + k * ptrdiff_t{Len} + j; };
        auto toL = [dstObjects](int32 k, int32 j) { return dstObjects[k] + j; };
        auto toP = [dstSpaced](int32 k, int32 j) { return dstSpaced[j] + k; };
        run(
            "SS", [*this] { return Call::copyVa(a, stride0, sz, d, stride0, sz, Len, n); }, s, toS);
        run(
            "SL", [=, *this] { return Call::sl(a, stride0, sz, dstObjects, 0, sz, Len, n); }, s, toL);
        run(
            "SP", [=, *this] { return Call::sp(a, stride0, sz, dstSpaced, 0, sz, Len, n); }, s, toP);
        run(
            "LS", [=, *this] { return Call::ls(objects, 0, sz, d, stride0, sz, Len, n); }, l, toS);
        run(
            "LL", [=, *this] { return Call::ll(objects, 0, sz, dstObjects, 0, sz, Len, n); }, l, toL);
        run(
            "LP", [=, *this] { return Call::lp(objects, 0, sz, dstSpaced, 0, sz, Len, n); }, l, toP);
        run(
            "PS", [=, *this] { return Call::ps(spaced, 0, sz, d, stride0, sz, Len, n); }, p, toS);
        run(
            "PL", [=, *this] { return Call::pl(spaced, 0, sz, dstObjects, 0, sz, Len, n); }, p, toL);
        run(
            "PP", [=, *this] { return Call::pp(spaced, 0, sz, dstSpaced, 0, sz, Len, n); }, p, toP);
    }
};

// ---- All of them ----------------------------------------------------------------------------------------------------

// A million objects of order 3, of the others as many elements.
template <class T, int Order>
void orderOf()
{
    for (const int n : {1000, 9000000 / (Order * Order)})
    {
        Matrices<T, Order, false>(n).all();
        Matrices<T, Order, true>(n).all();
    }
}

template <class T, int Len>
void lengthOf()
{
    for (const int n : {1000, Len == 100 ? 100000 : 1000000})
    {
        const Place dense{"dense", Len, 1}, records{"records", (Len / 4 + 1) * 4, 1}, spaced{"spaced", 1, n};
        Vectors<T, Len>(n, dense, dense).all();
        Vectors<T, Len>(n, records, dense).all();
        Vectors<T, Len>(n, dense, records).all();
        Vectors<T, Len>(n, spaced, dense).all();
        Vectors<T, Len>(n, dense, spaced).all();
        Pairs<T, Len>(n).all();
    }
}

template <class T>
void typeOf()
{
    lengthOf<T, 3>();
    lengthOf<T, 4>();
    lengthOf<T, 100>();
    orderOf<T, 3>();
    orderOf<T, 4>();
    orderOf<T, 6>();
    orderOf<T, 16>();
    orderOf<T, 40>();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
