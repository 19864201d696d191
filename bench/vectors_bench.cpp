// Sums and differences over arrays of vectors, beside Eigen.
//
// Layouts: dense, without gaps; shifted, the same one element past an aligned address; gapped, at the next multiple of
// 16 bytes that leaves a gap. Idioms of Eigen:
//
//   flat       one expression over all elements, where the form allows it
//   whole      one expression over all objects as the columns of a matrix (colwise, rowwise, replicate)
//   block      dense vav: the same over columns of eight objects, so that columns are whole registers
//   map        a loop of one Map for each object
#include "bench/harness.h"

#include <Eigen/Core>

using bench::Slot;

namespace
{

struct Add
{
    static constexpr const char* name = "Add";
    template <class A, class B>
    auto operator()(const A& a, const B& b) const
    {
        return a + b;
    }
};

struct Sub
{
    static constexpr const char* name = "Sub";
    template <class A, class B>
    auto operator()(const A& a, const B& b) const
    {
        return a - b;
    }
};

// The library's calls by operation and type.
template <class Op, class T>
struct Calls;

#define CALLS(Op, T, suffix)                                                                                           \
    template <>                                                                                                        \
    struct Calls<Op, T>                                                                                                \
    {                                                                                                                  \
        static constexpr auto vava = zepm##Op##_vava_##suffix, vav = zepm##Op##_vav_##suffix;                          \
        static constexpr auto vac = zepm##Op##_vac_##suffix;                                                           \
        static constexpr auto vaca = zepm##Op##_vaca_##suffix;                                                         \
        static constexpr auto vca = zepm##Op##_vca_##suffix;                                                           \
    };
CALLS(Add, float32, 32f)
CALLS(Add, float64, 64f)
CALLS(Sub, float32, 32f)
CALLS(Sub, float64, 64f)
#undef CALLS

enum class Layout
{
    Dense,
    Shifted,
    Gapped
};

// Lengths above 6 are not known to the peer's compiler, nor to the library's.
template <class Op, class T, int Len, Layout layout>
class Problem
{
    static constexpr bool isGapped = layout == Layout::Gapped;
    static constexpr int rows = Len <= 6 ? Len : Eigen::Dynamic;
    static constexpr int sz = sizeof(T);
    static constexpr int stride2 = sz;
    static constexpr int stride0 = isGapped ? ((Len + 1) * sz + 15) / 16 * 16 : Len * sz;
    static constexpr int step = stride0 / sz;

    using Stride = std::conditional_t<isGapped, Eigen::OuterStride<>, Eigen::Stride<0, 0>>;
    using Columns = Eigen::Map<Eigen::Array<T, rows, Eigen::Dynamic>, 0, Stride>;
    using ConstColumns = Eigen::Map<const Eigen::Array<T, rows, Eigen::Dynamic>, 0, Stride>;
    using Vector = Eigen::Map<Eigen::Array<T, rows, 1>>;
    using ConstVector = Eigen::Map<const Eigen::Array<T, rows, 1>>;
    using Row = Eigen::Map<const Eigen::Array<T, 1, Eigen::Dynamic>>;
    using Flat = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
    using ConstFlat = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;

    int n;
    size_t elements = static_cast<size_t>(n) * step;
    static constexpr size_t shift = layout == Layout::Shifted ? sz : 0;
    const T* a = bench::Operand<T>::at(Slot::A, elements, shift);
    const T* b = bench::Operand<T>::at(Slot::B, elements, shift);
    const T* c = bench::Operand<T>::at(Slot::C, elements, shift);
    T* d = bench::Operand<T>::at(Slot::Result, elements, shift);
    T val = static_cast<T>(0.7);
    double objectBytes = static_cast<double>(n) * Len * sz;
    double constantBytes = static_cast<double>(n) * sz;

    template <class Map, class Pointer>
    static Map columns(Pointer p, int count)
    {
        if constexpr (isGapped)
            return Map(p, Len, count, Eigen::OuterStride<>(step));
        else
            return Map(p, Len, count);
    }

    // One case: the idioms over all objects first, the loop over the objects last.
    template <class Zepm, class Object, class... Idioms>
    void run(const char* form, double bytes, Zepm zepm, Object object, Idioms... idioms) const
    {
        constexpr const char* layouts[] = {"dense", "shifted", "gapped"};
        const std::string name = std::string(Op::name) + '_' + form + '/' + bench::typeName<T> +
                                 "/len:" + std::to_string(Len) + '/' + layouts[static_cast<int>(layout)] +
                                 "/n:" + std::to_string(n);
        const int count = n;
        auto loop = [object, count] {
            for (ptrdiff_t k = 0; k < count; ++k) object(k);
            return stsOk;
        };
        bench::Case<T> problem(name, d, elements, loop);
        problem.moves(bytes);
        problem.add("zepm", zepm);
        (problem.add(std::string("eigen_") + idioms.first,
                     [call = idioms.second] {
                         call();
                         return stsOk;
                     }),
         ...);
        problem.add("eigen_map", loop);
        if (n >= 100000 && layout == Layout::Dense) problem.addCopies();
    }

public:
    explicit Problem(int objects) : n(objects) {}

    void vava() const
    {
        auto zepm = [*this] {
            return Calls<Op, T>::vava(a, stride0, stride2, b, stride0, stride2, d, stride0, stride2, Len, n);
        };
        auto object = [*this](ptrdiff_t k) {
            Vector(d + k * step, Len) = Op{}(ConstVector(a + k * step, Len), ConstVector(b + k * step, Len));
        };
        auto whole = [*this] {
            columns<Columns>(d, n) = Op{}(columns<ConstColumns>(a, n), columns<ConstColumns>(b, n));
        };
        auto flat = [*this] {
            const ptrdiff_t size = static_cast<ptrdiff_t>(n) * Len;
            Flat(d, size) = Op{}(ConstFlat(a, size), ConstFlat(b, size));
        };
        if constexpr (isGapped)
            run("vava", 3 * objectBytes, zepm, object, std::pair("whole", whole));
        else
            run("vava", 3 * objectBytes, zepm, object, std::pair("flat", flat));
    }

    void vac() const
    {
        auto zepm = [*this] { return Calls<Op, T>::vac(a, stride0, stride2, val, d, stride0, stride2, Len, n); };
        auto object = [*this](ptrdiff_t k) { Vector(d + k * step, Len) = Op{}(ConstVector(a + k * step, Len), val); };
        auto whole = [*this] { columns<Columns>(d, n) = Op{}(columns<ConstColumns>(a, n), val); };
        auto flat = [*this] {
            const ptrdiff_t size = static_cast<ptrdiff_t>(n) * Len;
            Flat(d, size) = Op{}(ConstFlat(a, size), val);
        };
        if constexpr (isGapped)
            run("vac", 2 * objectBytes, zepm, object, std::pair("whole", whole));
        else
            run("vac", 2 * objectBytes, zepm, object, std::pair("flat", flat));
    }

    void vav() const
    {
        auto zepm = [*this] { return Calls<Op, T>::vav(a, stride0, stride2, b, stride2, d, stride0, stride2, Len, n); };
        auto object = [*this](ptrdiff_t k) {
            Vector(d + k * step, Len) = Op{}(ConstVector(a + k * step, Len), ConstVector(b, Len));
        };
        auto whole = [*this] {
            const Eigen::Array<T, rows, 1> fixed = ConstVector(b, Len);
            columns<Columns>(d, n) = Op{}(columns<ConstColumns>(a, n).colwise(), fixed);
        };
        auto block = [*this] {
            constexpr int objects = 8;
            constexpr int height = rows > 0 ? rows * objects : Eigen::Dynamic;
            using Blocks = Eigen::Map<Eigen::Array<T, height, Eigen::Dynamic>>;
            using ConstBlocks = Eigen::Map<const Eigen::Array<T, height, Eigen::Dynamic>>;
            const Eigen::Array<T, height, 1> fixed = ConstVector(b, Len).template replicate<objects, 1>();
            const int blocks = n / objects, done = blocks * objects;
            Blocks(d, Len * objects, blocks) = Op{}(ConstBlocks(a, Len * objects, blocks).colwise(), fixed);
            const Eigen::Array<T, rows, 1> one = ConstVector(b, Len);
            columns<Columns>(d + done * step, n - done) =
                Op{}(columns<ConstColumns>(a + done * step, n - done).colwise(), one);
        };
        if constexpr (isGapped || Len > 6)
            run("vav", 2 * objectBytes, zepm, object, std::pair("whole", whole));
        else
            run("vav", 2 * objectBytes, zepm, object, std::pair("whole", whole), std::pair("block", block));
    }

    void vaca() const
    {
        auto zepm = [*this] { return Calls<Op, T>::vaca(a, stride0, stride2, c, sz, d, stride0, stride2, Len, n); };
        auto object = [*this](ptrdiff_t k) { Vector(d + k * step, Len) = Op{}(ConstVector(a + k * step, Len), c[k]); };
        auto whole = [*this] { columns<Columns>(d, n) = Op{}(columns<ConstColumns>(a, n).rowwise(), Row(c, n)); };
        run("vaca", 2 * objectBytes + constantBytes, zepm, object, std::pair("whole", whole));
    }

    void vca() const
    {
        auto zepm = [*this] { return Calls<Op, T>::vca(b, stride2, c, sz, d, stride0, stride2, Len, n); };
        auto object = [*this](ptrdiff_t k) { Vector(d + k * step, Len) = Op{}(ConstVector(b, Len), c[k]); };
        auto whole = [*this] {
            const Eigen::Array<T, rows, 1> fixed = ConstVector(b, Len);
            columns<Columns>(d, n) = Op{}(fixed.replicate(1, n), Row(c, n).replicate(Len, 1));
        };
        run("vca", objectBytes + constantBytes, zepm, object, std::pair("whole", whole));
    }

    void all() const { vava(), vac(), vav(), vaca(), vca(); }
};

// A million objects, but of long vectors a tenth: 120 to 240 MB in a call of three operands.
template <class Op, class T, int Len>
void lengthOf()
{
    constexpr int many = Len > 6 ? 100000 : 1000000;
    for (const int n : {1000, many})
    {
        Problem<Op, T, Len, Layout::Dense>(n).all();
        Problem<Op, T, Len, Layout::Gapped>(n).all();
    }
    Problem<Op, T, Len, Layout::Shifted>(1000).vava();
    Problem<Op, T, Len, Layout::Shifted>(1000).vac();
}

template <class T>
void typeOf()
{
    lengthOf<Add, T, 3>();
    lengthOf<Add, T, 4>();
    lengthOf<Add, T, 6>();
    lengthOf<Add, T, 100>();
    Problem<Sub, T, 3, Layout::Dense>(1000).all();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
