// What the benchmarks of all families share: operands, the check of a result before its timing, registration.
//
// A family defines registerBenchmarks(), makes a Case for each problem and adds to it the library's call and its peers:
//
//     bench::Case<float32> problem("Add_vava/32f/len:3/dense/n:1000", result, elements, [=] { peer(); return stsOk; });
//     problem.add("zepm", [=] { return zepmAdd_vava_32f(...); });
//     problem.add("eigen_flat", [=] { peer(); return stsOk; });
//
// Names are <call>/<type>/<sizes>/<layout>/n:<objects>/<contender>, the contender being zepm, eigen_<idiom>, copy_<way>
// or another peer's name with an underscore: bench/ratios.py sets side by side what is equal before the contender.
//
// Code here may be compiled at several levels, so it does nothing before registerBenchmarks() is called.
#pragma once

#include "zepcore.h"
#include "zepm.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <sys/mman.h>
#include <type_traits>

namespace bench
{

// Defined by each family.
void registerBenchmarks();

// A copy of bytes that the compiler has not turned into a call of memcpy.
void copyLoop(char* dst, const char* src, size_t bytes);

// Set once a result or a status was wrong: the process then fails.
inline bool& anyFailed()
{
    static bool failed = false;
    return failed;
}

// ---- Operands -------------------------------------------------------------------------------------------------------

enum class Slot
{
    A,
    B,
    C,
    Result,
    Expected,
    Count
};

// The storage of one slot, shared by all cases of a type: addresses never change, pages appear as they are first used.
// It starts at a multiple of 64, in each slot at another place in its page and in another page of the first MiB: some
// processors look lines up in the nearest cache by the low bits of the address alone, and those of operands a power of
// two apart are the same. What remains of such conflicts depends on the placement, of which ZEPM_BENCH_PLACEMENT gives
// as many as wanted: 0, 1, 2 and so on.
template <class T>
class Operand
{
public:
    // elements of storage, the first one `shift` bytes past a multiple of 64; random numbers until they are written.
    static T* at(Slot slot, size_t elements, size_t shift = 0)
    {
        static Operand operands[static_cast<int>(Slot::Count)];
        Operand& operand = operands[static_cast<int>(slot)];
        operand.reach(slot, (shift + 63) / sizeof(T) + elements);
        return reinterpret_cast<T*>(operand.base + shift);
    }

private:
    static constexpr size_t capacity = size_t{1} << 30, placed = size_t{1} << 20;
    char* base = nullptr;
    size_t filled = 0;
    uint64_t state = 0;

    static size_t placeOf(Slot slot)
    {
        const char* const placement = std::getenv("ZEPM_BENCH_PLACEMENT");
        const size_t k = static_cast<size_t>(slot), steps = 37 + (placement ? std::strtoul(placement, nullptr, 10) : 0);
        return k * steps * 4096 % (placed - 8192) / 4096 * 4096 + k * 17 * 64;
    }

    void reach(Slot slot, size_t elements)
    {
        if (!base)
        {
            void* const p =
                mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
            if (p == MAP_FAILED) std::abort();
            base = static_cast<char*>(p) + placeOf(slot);
            state = static_cast<uint64_t>(slot) + 1;
        }
        if (elements * sizeof(T) > capacity - placed) std::abort();
        for (; filled < elements; ++filled)
        {
            state = state * 6364136223846793005u + 1442695040888963407u;
            const double x = static_cast<double>(static_cast<int64_t>(state) >> 12) * 0x1p-50; // within 2 of zero
            const T value = static_cast<T>(x);
            std::memcpy(base + filled * sizeof(T), &value, sizeof(T));
        }
    }
};

// ---- Cases ----------------------------------------------------------------------------------------------------------

template <class T>
class Case
{
public:
    // The result is the storage from result on, gaps included. The reference is a peer's call that writes it; a
    // tolerance of zero asks for the same bits, another bounds the difference relative to the larger magnitude of the
    // result.
    Case(std::string caseName, T* pResult, size_t numElements, std::function<Status()> peer, double bound = 0)
        : name(std::move(caseName)),
          result(pResult),
          elements(numElements),
          reference(std::move(peer)),
          tolerance(bound)
    {
    }

    // What one call reads and writes, for the bandwidth.
    void moves(double bytes) { bytesMoved = bytes; }

    // show, where what a call leaves is a format of its own, turns it into the result before that is compared; it is not
    // timed.
    template <class Call>
    void add(const std::string& contender, Call call, std::function<void()> show = [] {}) const
    {
        auto isChecked = std::make_shared<bool>(false);
        benchmark::RegisterBenchmark((name + '/' + contender).c_str(),
                                     [problem = *this, call, show, isChecked](benchmark::State& state) {
                                         if (!*isChecked && !problem.agrees(call, show))
                                         {
                                             anyFailed() = true;
                                             state.SkipWithError("wrong status or result");
                                             return;
                                         }
                                         *isChecked = true;
                                         problem.time(call, state);
                                     });
    }

    // The same bytes moved by plain copies.
    void addCopies() const
    {
        const auto bytes = static_cast<size_t>(bytesMoved / 2);
        T* const to = Operand<T>::at(Slot::Result, bytes / sizeof(T));
        const T* const from = Operand<T>::at(Slot::A, bytes / sizeof(T));
        const Case copies(name, to, bytes / sizeof(T), [=] {
            std::memcpy(to, from, bytes);
            return stsOk;
        });
        copies.add("copy_memcpy", [=] {
            std::memcpy(to, from, bytes);
            return stsOk;
        });
        copies.add("copy_loop", [=] {
            copyLoop(reinterpret_cast<char*>(to), reinterpret_cast<const char*>(from), bytes);
            return stsOk;
        });
    }

private:
    std::string name;
    T* result;
    size_t elements;
    std::function<Status()> reference;
    double tolerance;
    double bytesMoved = 0;

    template <class Call>
    bool agrees(const Call& call, const std::function<void()>& show) const
    {
        T* const expected = Operand<T>::at(Slot::Expected, elements);
        const size_t bytes = elements * sizeof(T);
        std::memset(result, 0x5a, bytes);
        if (reference() != stsOk) return false;
        std::memcpy(expected, result, bytes);
        std::memset(result, 0x5a, bytes);
        if (call() != stsOk) return false;
        show();
        if (tolerance == 0) return std::memcmp(expected, result, bytes) == 0;
        double largest = 0, difference = 0;
        for (size_t k = 0; k < elements; ++k)
        {
            largest = std::fmax(largest, std::fabs(static_cast<double>(expected[k])));
            difference = std::fmax(difference, std::fabs(static_cast<double>(result[k]) - expected[k]));
            if (std::isnan(result[k]) != std::isnan(expected[k])) return false;
        }
        return difference <= tolerance * largest;
    }

    template <class Call>
    void time(const Call& call, benchmark::State& state) const
    {
        Status status = stsOk;
        for (auto _ : state)
        {
            status |= call();
            benchmark::ClobberMemory();
        }
        if (status != stsOk)
        {
            anyFailed() = true;
            state.SkipWithError("wrong status");
        }
        if (bytesMoved > 0)
            state.SetBytesProcessed(static_cast<int64_t>(bytesMoved * static_cast<double>(state.iterations())));
    }
};

template <class T>
inline constexpr const char* typeName = std::is_same_v<T, float32> ? "32f" : "64f";

} // namespace bench
