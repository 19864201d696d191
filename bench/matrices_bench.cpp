// Sums and multiples over arrays of square matrices, transposed operands among them, beside Eigen.
//
// Layouts: dense, without gaps; gapped, rows at the next multiple of 16 bytes that leaves a gap. Idioms of Eigen:
//
//   flat       one expression over all elements, where the form allows it
//   whole      dense mam: one expression over all objects as the columns of a matrix
//   map        a loop of one Map for each object; a transposed operand is a Map of the other storage order
#include "bench/harness.h"

#include <Eigen/Core>

using bench::Slot;

namespace
{

template <class T>
struct Calls;

#define CALLS(T, suffix)                                                                                               \
    template <>                                                                                                        \
    struct Calls<T>                                                                                                    \
    {                                                                                                                  \
        static constexpr auto mama = zepmAdd_mama_##suffix, tama = zepmAdd_tama_##suffix;                              \
        static constexpr auto tata = zepmAdd_tata_##suffix, mam = zepmAdd_mam_##suffix;                                \
        static constexpr auto tam = zepmAdd_tam_##suffix, mac = zepmMul_mac_##suffix, tac = zepmMul_tac_##suffix;      \
    };
CALLS(float32, 32f)
CALLS(float64, 64f)
#undef CALLS

template <class T, int Order, bool isGapped>
class Problem
{
    static constexpr int sz = sizeof(T);
    static constexpr int stride1 = isGapped ? (Order * sz / 16 + 1) * 16 : Order * sz;
    static constexpr int stride0 = Order * stride1;
    static constexpr int row = stride1 / sz, step = stride0 / sz; // in elements

    using Stride = Eigen::OuterStride<row>;
    template <int storage>
    using Square = Eigen::Array<T, Order, Order, storage>;
    template <int storage>
    using Stored = Eigen::Map<const Square<storage>, 0, Stride>;
    static constexpr int rowMajor = Eigen::RowMajor, transposed = Eigen::ColMajor;
    using Result = Eigen::Map<Square<rowMajor>, 0, Stride>;
    using Flat = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
    using ConstFlat = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
    using Columns = Eigen::Map<Eigen::Array<T, Order * Order, Eigen::Dynamic>>;
    using ConstColumns = Eigen::Map<const Eigen::Array<T, Order * Order, Eigen::Dynamic>>;

    int n;
    size_t elements = static_cast<size_t>(n) * step;
    const T* a = bench::Operand<T>::at(Slot::A, elements);
    const T* b = bench::Operand<T>::at(Slot::B, elements);
    T* d = bench::Operand<T>::at(Slot::Result, elements);
    T val = static_cast<T>(0.7);
    double objectBytes = static_cast<double>(n) * Order * Order * sz;

    // The idioms over all objects first, the loop over the objects last.
    template <class Zepm, class Object, class... Idioms>
    void run(const char* call, double bytes, Zepm zepm, Object object, Idioms... idioms) const
    {
        const std::string name = std::string(call) + '/' + bench::typeName<T> + "/order:" + std::to_string(Order) +
                                 (isGapped ? "/gapped" : "/dense") + "/n:" + std::to_string(n);
        const int count = n;
        auto loop = [object, count] {
            for (ptrdiff_t k = 0; k < count; ++k) object(k * step);
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
        if (n >= 30000 && !isGapped) problem.addCopies();
    }

    template <int first, int second, class Call>
    void runArrays(const char* name, Call call) const
    {
        auto zepm = [*this, call] {
            return call(a, stride0, stride1, sz, b, stride0, stride1, sz, d, stride0, stride1, sz, Order, Order, n);
        };
        auto object = [*this](ptrdiff_t at) { Result(d + at) = Stored<first>(a + at) + Stored<second>(b + at); };
        auto flat = [*this] {
            const auto size = static_cast<ptrdiff_t>(elements);
            Flat(d, size) = ConstFlat(a, size) + ConstFlat(b, size);
        };
        if constexpr (first == rowMajor && second == rowMajor && !isGapped)
            run(name, 3 * objectBytes, zepm, object, std::pair("flat", flat));
        else
            run(name, 3 * objectBytes, zepm, object);
    }

    template <int first, class Call>
    void runFixed(const char* name, Call call) const
    {
        auto zepm = [*this, call] {
            return call(a, stride0, stride1, sz, b, stride1, sz, d, stride0, stride1, sz, Order, Order, n);
        };
        auto object = [*this](ptrdiff_t at) { Result(d + at) = Stored<first>(a + at) + Stored<rowMajor>(b); };
        auto whole = [*this] {
            const Eigen::Array<T, Order * Order, 1> fixed = ConstColumns(b, Order * Order, 1).col(0);
            Columns(d, Order * Order, n) = ConstColumns(a, Order * Order, n).colwise() + fixed;
        };
        if constexpr (first == rowMajor && !isGapped)
            run(name, 2 * objectBytes, zepm, object, std::pair("whole", whole));
        else
            run(name, 2 * objectBytes, zepm, object);
    }

    template <int first, class Call>
    void runConstant(const char* name, Call call) const
    {
        auto zepm = [*this, call] {
            return call(a, stride0, stride1, sz, val, d, stride0, stride1, sz, Order, Order, n);
        };
        auto object = [*this](ptrdiff_t at) { Result(d + at) = Stored<first>(a + at) * val; };
        auto flat = [*this] {
            const auto size = static_cast<ptrdiff_t>(elements);
            Flat(d, size) = ConstFlat(a, size) * val;
        };
        if constexpr (first == rowMajor && !isGapped)
            run(name, 2 * objectBytes, zepm, object, std::pair("flat", flat));
        else
            run(name, 2 * objectBytes, zepm, object);
    }

public:
    explicit Problem(int objects) : n(objects) {}

    void all() const
    {
        runArrays<rowMajor, rowMajor>("Add_mama", Calls<T>::mama);
        runArrays<transposed, rowMajor>("Add_tama", Calls<T>::tama);
        runArrays<transposed, transposed>("Add_tata", Calls<T>::tata);
        runFixed<rowMajor>("Add_mam", Calls<T>::mam);
        runFixed<transposed>("Add_tam", Calls<T>::tam);
        runConstant<rowMajor>("Mul_mac", Calls<T>::mac);
        runConstant<transposed>("Mul_tac", Calls<T>::tac);
    }
};

// A million objects of order 3, of the others as many elements.
template <class T, int Order>
void orderOf()
{
    for (const int n : {1000, 9000000 / (Order * Order)})
    {
        Problem<T, Order, false>(n).all();
        Problem<T, Order, true>(n).all();
    }
}

template <class T>
void typeOf()
{
    orderOf<T, 3>();
    orderOf<T, 4>();
    orderOf<T, 5>();
    orderOf<T, 6>();
    orderOf<T, 16>();
}

} // namespace

void bench::registerBenchmarks()
{
    zepSetNumThreads(1);
    typeOf<float32>();
    typeOf<float64>();
}
