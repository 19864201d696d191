// One thread against two over counts of objects.
//
//   fork      every call that reaches its own limit forks: where two threads begin to pay
//   default   the library as it is: no call may take much longer with two threads than with one
//   late      as default, each call after a pause in which the team has gone to sleep; the pause is not timed
//
// Names are <mode>/<call>/<type>/len:<l>/<layout>/n:<count>/threads:<t>; the counter work is the call's estimate.
#include "bench/harness.h"

#include <chrono>
#include <thread>

using bench::Slot;

namespace
{

enum class Mode
{
    Fork,
    Default,
    Late
};

double seconds() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

template <class Call>
void timeCall(benchmark::State& state, Mode mode, int threads, Call call)
{
    Status status = call(); // the team exists from here on
    // A team that still waits for work, awake, would slow the one thread where processors share a core.
    if (threads == 1) std::this_thread::sleep_for(std::chrono::milliseconds(10));
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
    constexpr const char* modes[] = {"fork/", "default/", "late/"};
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

} // namespace

void bench::registerBenchmarks()
{
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
