// One thread against two over counts of objects.
//
//   fork      every call that reaches its own limit forks: where two threads begin to pay
//   default   the library as it is: no call may take much longer with two threads than with one
//   late      as default, each call after a pause in which the team has gone to sleep; the pause is not timed
//   load      as default, while another program keeps every processor busy
//
// Names are <mode>/<call>/<type>/len:<l>/<layout>/n:<count>/threads:<t>, with order:<n> where objects are matrices; the
// counter work is the call's estimate. Element-wise calls come in many counts, as they show where a fork pays; of every
// other family there is one call.
#include "bench/harness.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

using bench::Slot;

namespace
{

enum class Mode
{
    Fork,
    Default,
    Late,
    Load
};

// Threads that compute, one for each processor.
class Load
{
public:
    explicit Load(bool isWanted)
    {
        for (unsigned k = 0; isWanted && k < std::thread::hardware_concurrency(); ++k)
            threads.emplace_back([this] {
                while (!ends.load(std::memory_order_relaxed)) benchmark::DoNotOptimize(this);
            });
    }
    ~Load()
    {
        ends = true;
        for (std::thread& thread : threads) thread.join();
    }
    Load(const Load&) = delete;
    Load& operator=(const Load&) = delete;

private:
    std::atomic<bool> ends{false};
    std::vector<std::thread> threads;
};

double seconds() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

template <class Call>
void timeCall(benchmark::State& state, Mode mode, int threads, Call call)
{
    Status status = call(); // the team exists from here on
    // A team that still waits for work, awake, would slow the one thread where processors share a core.
    if (threads == 1) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const Load load(mode == Mode::Load);
    for (auto _ : state)
    {
        if (mode == Mode::Late) std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const double start = mode == Mode::Late ? seconds() : 0;
        status |= call();
        benchmark::ClobberMemory();
        if (mode == Mode::Late) state.SetIterationTime(seconds() - start);
    }
    if (status != stsOk)
    {
        bench::anyFailed() = true;
        state.SkipWithError("wrong status");
    }
}

template <class Call>
void add(Mode mode, const std::string& name, double work, Call call)
{
    constexpr const char* modes[] = {"fork/", "default/", "late/", "load/"};
    const int32 least = mode == Mode::Fork ? 0 : ownGetMinParallelWork();
    for (const int threads : {1, 2})
    {
        const std::string full = modes[static_cast<int>(mode)] + name + "/threads:" + std::to_string(threads);
        auto* const made = benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
            const int32 before = ownGetMinParallelWork();
            zepSetNumThreads(threads);
            zepSetMinParallelWork(least);
            timeCall(state, mode, threads, call);
            zepSetMinParallelWork(before);
            state.counters["work"] = work;
        });
        if (mode == Mode::Late)
            made->UseManualTime()->Iterations(40);
        else
            made->UseRealTime();
    }
}

void calls(Mode mode, int len, bool isGapped, int n)
{
    constexpr int sz = sizeof(float32);
    const int stride0 = isGapped ? ((len + 1) * sz + 15) / 16 * 16 : len * sz;
    const size_t elements = static_cast<size_t>(n) * (stride0 / sz);
    const float32* const a = bench::Operand<float32>::at(Slot::A, elements);
    const float32* const b = bench::Operand<float32>::at(Slot::B, elements);
    float32* const d = bench::Operand<float32>::at(Slot::Result, elements);
    const std::string name =
        "/32f/len:" + std::to_string(len) + (isGapped ? "/gapped" : "/dense") + "/n:" + std::to_string(n);
    const double objects = n, size = objects * len;
    add(mode, "Add_vava" + name, 3 * size,
        [=] { return zepmAdd_vava_32f(a, stride0, sz, b, stride0, sz, d, stride0, sz, len, n); });
    add(mode, "Add_vac" + name, 2 * size + len,
        [=] { return zepmAdd_vac_32f(a, stride0, sz, 0.7f, d, stride0, sz, len, n); });
    add(mode, "Add_vaca" + name, 2 * size + objects,
        [=] { return zepmAdd_vaca_32f(a, stride0, sz, b, sz, d, stride0, sz, len, n); });
}

constexpr int mostObjects = 1000000;

// ---- One call of each family --------------------------------------------------------------------------------------------

// Symmetric matrices with a diagonal that outweighs the rest: no family fails on them.
template <int N>
const float32* definiteMatrices(int count)
{
    static std::vector<float32> elements;
    elements.reserve(size_t{mostObjects} * N * N); // its address stays
    const auto size = static_cast<size_t>(count) * N * N;
    for (size_t e = elements.size(); e < size; ++e)
    {
        const size_t k = e / (N * N), i = e % (N * N) / N, j = e % N;
        const auto mixed = static_cast<uint32_t>((k * 31 + i * j * 7 + i + j) * 2654435761u);
        elements.push_back(static_cast<float32>(mixed) * 0x1p-32f + (i == j ? 2.f * N + static_cast<float32>(i) : 0.f));
    }
    return elements.data();
}

template <int N>
struct Family
{
    static constexpr int32 sz = sizeof(float32), row = N * sz, size = N * row;
    Mode mode;
    int n;
    const float32* a = definiteMatrices<N>(n);
    const float32* b = bench::Operand<float32>::at(Slot::B, static_cast<size_t>(n) * N * N);
    float32* d = bench::Operand<float32>::at(Slot::Result, static_cast<size_t>(n) * N * N);
    float32* values = bench::Operand<float32>::at(Slot::C, static_cast<size_t>(n) * N);

    // work is counted in elements for each object.
    template <class Call>
    void add(const char* call, double work, Call f) const
    {
        ::add(mode, std::string(call) + "/32f/order:" + std::to_string(N) + "/dense/n:" + std::to_string(n), work * n, f);
    }

    void matrices() const
    {
        add("Add_mama", 3 * N * N, [x = *this] {
            return zepmAdd_mama_32f(x.a, size, row, sz, x.b, size, row, sz, x.d, size, row, sz, N, N, x.n);
        });
        add("Mul_mac", 2 * N * N,
            [x = *this] { return zepmMul_mac_32f(x.a, size, row, sz, .7f, x.d, size, row, sz, N, N, x.n); });
        add("Mul_mama", 3 * N * N, [x = *this] {
            return zepmMul_mama_32f(x.a, size, row, sz, N, N, x.b, size, row, sz, N, N, x.d, size, row, sz, x.n);
        });
    }

    void solvers() const
    {
        auto factors = std::make_shared<std::vector<float32>>(static_cast<size_t>(n) * N * N);
        auto pivots = std::make_shared<std::vector<int32>>(static_cast<size_t>(n) * N);
        auto factor = [x = *this, factors, pivots] {
            return zepmLUDecomp_ma_32f(x.a, size, row, sz, pivots->data(), factors->data(), size, row, sz, N, x.n);
        };
        add("LUDecomp_ma", N * N, factor);
        factor();
        add("LUBackSubst_mava", (N + 2) * N, [x = *this, factors, pivots] {
            return zepmLUBackSubst_mava_32f(factors->data(), size, row, sz, pivots->data(), x.b, row, sz, x.d, row, sz, N,
                                            x.n);
        });
    }

    void eigenproblems() const
    {
        auto scratch = std::make_shared<std::vector<float32>>(N * N);
        add("EigenValuesSym_ma", N * N + N, [x = *this, scratch] {
            return zepmEigenValuesSym_ma_32f(x.a, size, row, sz, scratch->data(), x.values, N, x.n);
        });
        add("EigenValuesVectorsSym_ma", 2 * N * N + N, [x = *this, scratch] {
            return zepmEigenValuesVectorsSym_ma_32f(x.a, size, row, sz, scratch->data(), x.d, size, row, sz, x.values, N,
                                                    x.n);
        });
    }
};

void families(Mode mode)
{
    for (int n = 10; n <= mostObjects; n *= 10)
    {
        for (const auto serve : {&Family<3>::matrices, &Family<3>::solvers, &Family<3>::eigenproblems})
            (Family<3>{mode, n}.*serve)();
        for (const auto serve : {&Family<6>::matrices, &Family<6>::solvers, &Family<6>::eigenproblems})
            (Family<6>{mode, n}.*serve)();
    }
}

} // namespace

void bench::registerBenchmarks()
{
    families(Mode::Default);
    families(Mode::Load);
    for (const int len : {3, 4, 16})
    {
        for (const bool isGapped : {false, true})
        {
            for (int quarter = 0; quarter <= 24; ++quarter)
            {
                const int n = static_cast<int>(std::lround(std::pow(10.0, quarter / 4.0)));
                calls(Mode::Fork, len, isGapped, n);
                if (n <= 100000) calls(Mode::Default, len, isGapped, n);
                if (n >= 1000) calls(Mode::Late, len, isGapped, n);
            }
        }
    }
}
