// The lanes that every exported function runs through. A failure names the function and the case, and one line replays
// it.
//
// Cases are numbered in each lane; CHECK_CASE runs one alone, CHECK_SEED chooses other elements. For a slow processor
// CHECK_SAMPLE=n runs every n-th case, CHECK_LEVEL=n one instruction-set level alone.
#include "tests/check/run.h"
#include "zepcore.h"

#include <algorithm>
#include <cfenv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <immintrin.h>
#include <set>
#include <stdexcept>

using namespace check;

namespace
{

int settingOf(const char* name, int otherwise)
{
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}
const int onlyCase = settingOf("CHECK_CASE", 0), seed = settingOf("CHECK_SEED", 1);
const int sampleStep = settingOf("CHECK_SAMPLE", 1), onlyLevel = settingOf("CHECK_LEVEL", -1);

bool hasLevel(int32 level)
{
    const int32 inForce = ownGetCpuLevel();
    const bool has = zepSetCpuLevel(level) == stsOk;
    zepSetCpuLevel(inForce);
    return has;
}

const std::vector<int32>& levels()
{
    static const std::vector<int32> available = [] {
        std::vector<int32> list;
        for (int32 level = 0; level <= 2; ++level)
            if ((onlyLevel < 0 || level == onlyLevel) && hasLevel(level)) list.push_back(level);
        if (list.empty()) throw std::runtime_error("the processor lacks CHECK_LEVEL");
        return list;
    }();
    return available;
}

// The level for the length of a scope.
class AtLevel
{
public:
    explicit AtLevel(int32 level) { zepSetCpuLevel(level); }
    ~AtLevel() { zepSetCpuLevel(before); }

private:
    const int32 before = ownGetCpuLevel();
};

class AtThreads
{
public:
    explicit AtThreads(int32 count) { threadsToUse = count; }
    ~AtThreads() { threadsToUse = 1; }
};

class Lane : public testing::TestWithParam<const Function*>
{
public:
    // What a touch of forbidden memory is reported with.
    static void reportFault()
    {
        if (running)
            std::fprintf(stderr, "memory outside the operands: %s\n", running->words(running->current).c_str());
    }

protected:
    Lane() { running = this; }
    ~Lane() override { running = nullptr; }

    static inline const Lane* running = nullptr;
    const Function& function = *GetParam();
    Trial trial{function};
    Case current;
    int number = 0;

    // Whether the next case runs, and what a failure says of it.
    bool takes(Case& next, bool isSampled = true)
    {
        ++number;
        next.seed = static_cast<unsigned>(seed * 1000003 + number);
        current = next;
        if (onlyCase > 0) return onlyCase == number;
        const int step = isSampled ? sampleStep : 1;
        return number % step == static_cast<int>(function.name.size()) % step;
    }
    std::string words(const Case& chosen) const
    {
        const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
        return function.name + ", " + chosen.describe() + ", level " + std::to_string(ownGetCpuLevel()) + ", " +
               std::to_string(threadsToUse) + " threads\n  replay: CHECK_SEED=" + std::to_string(seed) +
               " CHECK_CASE=" + std::to_string(number) + " check_test --gtest_filter=" + info->test_suite_name() + "." +
               info->name();
    }
    // A call at each level that must succeed and leave exactly the reference's results.
    bool passes(Case chosen)
    {
        if (!takes(chosen)) return true;
        trial.prepare(chosen);
        for (const int32 level : levels())
        {
            const AtLevel atLevel(level);
            if (!callPasses()) return false;
        }
        return true;
    }
    // The same at the level in force, of the case that is prepared.
    bool callPasses()
    {
        trial.restore();
        const Status status = trial.call(Trial::values(trial.args()));
        EXPECT_EQ(status, trial.expectedStatus()) << words(current);
        const std::string difference = trial.difference();
        EXPECT_EQ(difference, "") << words(current);
        return status == trial.expectedStatus() && difference.empty();
    }
};

// Functions whose destination may be a source, with arrays, with a driver, with an argument that validation leaves out.
class AliasLane : public Lane
{
};
class ArrayLane : public Lane
{
};
class FarLane : public Lane
{
};
class DriverLane : public Lane
{
};
class NarrowLane : public Lane
{
};
class LongLane : public Lane
{
};

constexpr bool hasRoomFarApart = sizeof(void*) > 4;

// The smallest count whose estimate takes the driver, at least threads.
int32 countFor(const Function& function, const Sizes& sizes, int32 limit, int32 threads)
{
    int32 count = threads;
    while (function.estimate(sizes, count) < limit) ++count;
    return count;
}

const std::vector<Strides> nearStrides = {Strides::Dense,       Strides::Gapped, Strides::Records,   Strides::General,
                                          Strides::ColumnMajor, Strides::Across, Strides::OneGeneral};
const std::vector<Strides> stridesAndMixed = [] {
    std::vector<Strides> all = nearStrides;
    all.insert(all.end(), {Strides::FirstGapped, Strides::SecondGapped, Strides::ThirdGapped});
    return all;
}();

} // namespace

// ---- Results and memory ---------------------------------------------------------------------------------------------

// All layouts and strides, small and odd sizes, operands flush against unreadable pages on either side; every byte
// between and around the elements stays as it is.
TEST_P(Lane, Values)
{
    const std::vector<int> counts =
        function.isArray() ? std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 33} : std::vector<int>{1};
    for (const Sizes& sizes : function.sizesToTry)
        for (const int count : counts)
            for (const Strides strides : count == 4 || count == 33 ? stridesAndMixed : nearStrides)
                for (const bool atEnd : {true, false})
                    if (!passes({sizes, count, strides, {atEnd, 0}, 1, -1, true})) return;
}

// Bases at every byte offset.
TEST_P(Lane, Alignment)
{
    for (const Sizes& sizes : function.sizesToTry)
        for (const Strides strides : {Strides::Dense, Strides::Records, Strides::General})
            for (size_t offset = 1; offset < 16; ++offset)
                if (!passes({sizes, function.isArray() ? 17 : 1, strides, {false, offset}})) return;
}

// A destination that is a source.
TEST_P(AliasLane, InPlace)
{
    const Operand& dst = *std::find_if(function.operands.begin(), function.operands.end(),
                                       [](const Operand& o) { return o.name == "dst"; });
    for (const Sizes& sizes : function.sizesToTry)
        for (size_t n = 0; n < function.operands.size(); ++n)
        {
            const Operand& source = function.operands[n];
            if (source.isDst || source.storage != Storage::Laid || source.letter != dst.letter ||
                source.isArray != dst.isArray)
                continue;
            for (const Strides strides : nearStrides)
            {
                const bool isPacked =
                    strides == Strides::Dense || strides == Strides::Gapped || strides == Strides::Records;
                if (function.onlyInPlace && !function.onlyInPlace(sizes, isPacked)) continue;
                if (!passes({sizes, function.isArray() ? 37 : 1, strides, {}, 1, static_cast<int>(n)})) return;
            }
        }
}

// Objects and elements 2 GiB apart, over sparse memory: offsets pass 2 and 4 GiB, in the shift of a share as well.
TEST_P(FarLane, FarApart)
{
    if (!hasRoomFarApart) GTEST_SKIP() << "no room for objects 2 GiB apart";
    for (const int32 threads : {1, 4})
        for (const Strides strides : {Strides::Far, Strides::FarGeneral, Strides::FarElements})
        {
            const AtThreads atThreads(threads);
            Case chosen{function.typical, 4, strides, {}};
            // Few objects with work enough for the driver.
            if (strides != Strides::FarElements && function.hasDriver())
                while (!chosen.sizes.empty() && chosen.sizes[0] < 2000 &&
                       function.estimate(chosen.sizes, chosen.count) <
                           std::max(function.limits.packed, function.limits.general))
                    for (int& size : chosen.sizes) ++size;
            if (!takes(chosen)) continue;
            trial.prepare(chosen);
            EXPECT_EQ(trial.call(Trial::values(trial.args())), stsOk) << words(chosen);
            EXPECT_EQ(trial.differenceOfElements(), "") << words(chosen);
        }
}

// Dense objects beyond the largest cache, whose results are stored past the caches.
TEST_P(LongLane, BeyondTheCaches)
{
    // So many of the result suffice, whatever the sources.
    const int32 elements = largestCache / (function.isFloat32 ? 4 : 8) / 4 * 3 + 100000;
    ASSERT_TRUE(function.operands.back().isDst);
    // With this the destination lies one element behind its page.
    const size_t element = function.isFloat32 ? 4 : 8, operands = function.operands.size();
    const size_t offset = (element + 80 - Trial::offsetStep * (operands - 1)) % 16;
    // Both go ways of their own past the caches.
    for (const Sizes& sizes : {function.written, function.typical})
    {
        // One object is left over behind whole registers, and some stand before the first of them.
        const auto [rows, cols] = function.shape(function.operands.back(), sizes);
        const int32 count = elements / (rows * cols) / 16 * 16 + 1;
        for (const Placement placement : {Placement{true, 0}, Placement{false, offset}})
            if (!passes({sizes, count, Strides::Dense, placement})) return;
    }
}

// ---- Validation -----------------------------------------------------------------------------------------------------

namespace
{

struct Violation
{
    char step;
    Status status;
    size_t arg;
    Arg value;
};

// Whether the sizes still match with the arguments in changes raised by so much.
bool sizesMatch(const Function& function, const std::vector<NamedArg>& args,
                const std::vector<std::pair<size_t, int32>>& changes)
{
    Sizes sizes;
    for (const std::string& name : function.sizeNames)
        for (size_t n = 0; n < args.size(); ++n)
        {
            if (args[n].name != name) continue;
            sizes.push_back(std::get<int32>(args[n].value));
            for (const auto& [arg, by] : changes)
                if (arg == n) sizes.back() += by;
        }
    return function.sizesMatch(sizes);
}

// Whether the step O tests this argument, not the step T.
bool isObjectStride(const Function& function, const NamedArg& arg)
{
    return arg.kind == NamedArg::Stride && arg.name.back() == '0' && function.order.find('O') != std::string::npos;
}

std::vector<Violation> violationsOf(const Function& function, const std::vector<NamedArg>& args)
{
    std::vector<Violation> list;
    const int32 sz = function.isFloat32 ? 4 : 8;
    for (size_t n = 0; n < args.size(); ++n)
    {
        if (std::count(function.untested.begin(), function.untested.end(), args[n].name)) continue;
        auto add = [&](char step, Status status, std::initializer_list<int32> values) {
            for (const int32 value : values) list.push_back({step, status, n, value});
        };
        switch (args[n].kind)
        {
        case NamedArg::Pointer: list.push_back({'N', stsNullPtrErr, n, static_cast<const void*>(nullptr)}); break;
        case NamedArg::Count: add('C', stsCountErr, {0, -1, INT32_MIN}); break;
        case NamedArg::Size:
            add('Z', stsSizeErr, {0, -3, INT32_MIN});
            if (function.sizesMatch && !sizesMatch(function, args, {{n, 1}}))
                add('M', stsSizeMatchErr, {std::get<int32>(args[n].value) + 1});
            break;
        case NamedArg::Stride:
            add(isObjectStride(function, args[n]) ? 'O' : 'T', stsStrideErr,
                {0, -sz, sz + 1, sz / 2, 2 * sz - 1, INT32_MIN});
            break;
        case NamedArg::Shift: add('R', stsRoiShiftErr, {-sz, 1, sz + sz / 2, INT32_MIN}); break;
        case NamedArg::Value: break;
        }
    }
    return list;
}

} // namespace

// Every step violated alone and with every other: the first in the function's order decides, and nothing is written.
TEST_P(Lane, Validation)
{
    std::set<char> steps;
    for (Strides strides : {Strides::Dense, Strides::Gapped, Strides::General})
    {
        Case chosen{function.typical, function.isArray() ? 3 : 1, strides, {}};
        if (!takes(chosen, false)) continue;
        trial.prepare(chosen);
        const std::vector<NamedArg> valid = trial.args();
        ASSERT_EQ(valid.size(), function.exported.parameterCount);
        const std::vector<Violation> violations = violationsOf(function, valid);
        for (const Violation& first : violations)
        {
            steps.insert(first.step);
            ASSERT_NE(function.order.find(first.step), std::string::npos)
                << function.name << " has no step " << first.step;
            for (const Violation& second : violations)
            {
                if (first.arg == second.arg && &first != &second) continue;
                if (first.step == 'M' && second.step == 'M' && &first != &second &&
                    sizesMatch(function, valid, {{first.arg, 1}, {second.arg, 1}}))
                    continue;
                std::vector<Arg> args = Trial::values(valid);
                args[first.arg] = first.value;
                args[second.arg] = second.value;
                const bool firstDecides = function.order.find(first.step) <= function.order.find(second.step);
                const Status status = trial.call(args);
                ASSERT_EQ(status, (firstDecides ? first : second).status)
                    << words(chosen) << "\n  " << valid[first.arg].name << " and " << valid[second.arg].name
                    << " violated";
            }
        }
        ASSERT_EQ(trial.change(), "") << words(chosen);
    }
    if (onlyCase > 0) return;
    EXPECT_EQ(steps.size(), function.order.size());
}

// A row of so many elements that its size wraps to the stride given is still an error.
TEST_P(ArrayLane, RowsThatWrap)
{
    Case chosen{function.typical, 3, Strides::Dense, {}};
    if (function.sizeNames.empty() || (function.sizeNames[0] != "len" && function.sizeNames[0] != "width")) return;
    if (!takes(chosen)) return;
    trial.prepare(chosen);
    std::vector<NamedArg> args = trial.args();
    bool hasWrapped = false;
    for (NamedArg& arg : args)
    {
        if (arg.kind == NamedArg::Size) arg.value = arg.name == "height" ? 1 : INT32_MAX;
        if (arg.kind != NamedArg::Stride || arg.name.back() == '2') continue;
        arg.value = function.isFloat32 ? -4 : -8;
        hasWrapped = true;
    }
    if (!hasWrapped) return;
    EXPECT_EQ(trial.call(Trial::values(args)), stsStrideErr) << words(chosen);
    EXPECT_EQ(trial.change(), "") << words(chosen);
}

// What validation leaves out is used as it is given.
TEST_P(NarrowLane, Untested)
{
    for (const Strides strides : {Strides::General, Strides::Dense})
    {
        Case chosen{function.typical, 1, strides, {}};
        if (!takes(chosen)) continue;
        trial.prepare(chosen);
        std::vector<std::string> untested = function.untested;
        for (const NamedArg& arg : trial.args()) // this is a call on one object
            if (isObjectStride(function, arg)) untested.push_back(arg.name);
        for (const std::string& name : untested)
        {
            trial.prepare(chosen);
            std::vector<NamedArg> args = trial.args();
            for (NamedArg& arg : args)
            {
                if (arg.name != name) continue;
                const int32 sz = function.isFloat32 ? 4 : 8;
                if (arg.kind == NamedArg::Stride)
                {
                    arg.value = 0; // one object lies nowhere else
                    continue;
                }
                // A shift that is no multiple of the element size, and a table that makes up for it.
                const int32 shift = std::get<int32>(arg.value);
                arg.value = shift - 3 * sz - 1;
                const NamedArg& pointer = *(&arg - 1);
                const auto table = static_cast<const char**>(const_cast<void*>(std::get<const void*>(pointer.value)));
                for (int n = 0; n < chosen.sizes[0]; ++n) table[n] += 3 * sz + 1;
            }
            EXPECT_EQ(trial.call(Trial::values(args)), stsOk) << words(chosen) << "\n  " << name;
            EXPECT_EQ(trial.difference(), "") << words(chosen) << "\n  " << name;
        }
    }
}

// ---- Drivers --------------------------------------------------------------------------------------------------------

namespace
{

// Sizes and count whose estimate is exactly wanted, or is the nearest to it that is reached on the given side.
Case caseWithEstimate(const Function& function, int32 wanted, bool atOrAbove)
{
    Case best;
    int32 nearest = 0;
    bool found = false;
    const bool isAnyShape = function.sizeNames == std::vector<std::string>{"width", "height"};
    for (int size = 1; size <= 120; ++size)
    {
        // Equal sizes, or a matrix twice as high as it is wide: some estimates need one, some the other.
        Sizes sizes(function.sizeNames.size(), (size + 1) / 2);
        if (isAnyShape && size % 2 == 0) sizes[1] *= 2;
        for (int count = 2; count <= 6000; ++count)
        {
            const int32 estimate = function.estimate(sizes, count);
            const bool fits = atOrAbove ? estimate >= wanted : estimate <= wanted;
            if (!atOrAbove && estimate > wanted) break;
            const int32 distance = std::abs(estimate - wanted);
            if (fits && (!found || distance < nearest))
            {
                best.sizes = sizes;
                best.count = count;
                nearest = distance;
                found = true;
                if (nearest == 0) return best;
            }
            if (atOrAbove && estimate >= wanted) break;
        }
    }
    return best;
}

} // namespace

// One below the limit the driver is not entered, at the limit it is; it asks for the number of threads.
TEST_P(Lane, Limits)
{
    for (const Strides strides : {Strides::Dense, Strides::Gapped, Strides::General})
        for (const bool above : {false, true})
        {
            if (!function.hasDriver()) continue;
            const bool isPacked = strides != Strides::General && !function.hasTables();
            const int32 limit = isPacked ? function.limits.packed : function.limits.general;
            Case chosen = caseWithEstimate(function, above ? limit : limit - 1, above);
            chosen.strides = strides;
            if (!takes(chosen)) continue;
            trial.prepare(chosen);
            threadsAsked = 0;
            EXPECT_EQ(trial.call(Trial::values(trial.args())), stsOk) << words(chosen);
            EXPECT_EQ(threadsAsked > 0, above) << words(chosen) << "\n  estimate "
                                               << function.estimate(chosen.sizes, chosen.count) << ", limit " << limit;
        }
    if (function.hasDriver()) return;
    // Functions without a driver never ask.
    Case chosen{Sizes(function.sizeNames.size(), 60), function.isArray() ? 900 : 1, Strides::Gapped, {}};
    if (!takes(chosen)) return;
    trial.prepare(chosen);
    threadsAsked = 0;
    EXPECT_EQ(trial.call(Trial::values(trial.args())), stsOk) << words(chosen);
    EXPECT_EQ(threadsAsked, 0) << words(chosen);
}

// The same bytes at every number of threads and every instruction-set level; more threads than objects included.
TEST_P(DriverLane, ThreadsAndLevels)
{
    for (const Sizes& sizes : {function.written, function.looped})
        for (const Strides strides : {Strides::Dense, Strides::General})
        {
            Case chosen{sizes, countFor(function, sizes, function.limits.packed, 8) + 3, strides, {}};
            if (!takes(chosen)) continue;
            trial.prepare(chosen);
            for (const int32 threads : {1, 2, 3, 4, 5, 8})
                for (const int32 level : levels())
                {
                    const AtThreads atThreads(threads);
                    const AtLevel atLevel(level);
                    if (!callPasses()) return;
                }
        }
}

// The caller's rounding mode, and whether subnormal numbers are flushed to zero, hold in every thread of the team,
// which was made before they were set.
TEST_P(DriverLane, RoundingModes)
{
    Case chosen{
        function.written, countFor(function, function.written, function.limits.packed, 8) + 3, Strides::Dense, {}};
    if (!takes(chosen)) return;
    trial.prepare(chosen);
    const auto results = [&](int32 threads, int rounding, bool flushes) {
        const AtThreads atThreads(threads);
        trial.restore();
        const std::vector<Arg> args = Trial::values(trial.args());
        fenv_t before;
        fegetenv(&before);
        fesetround(rounding);
        if (flushes) _mm_setcsr(_mm_getcsr() | 0x8040); // FTZ and DAZ
        trial.call(args);
        fesetenv(&before);
        return trial.outputs();
    };
    results(4, FE_TONEAREST, false);
    for (const int rounding : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
        EXPECT_EQ(results(4, rounding, false), results(1, rounding, false))
            << words(chosen) << "\n  rounding " << rounding;
    EXPECT_EQ(results(4, FE_TONEAREST, true), results(1, FE_TONEAREST, true)) << words(chosen) << "\n  flushed to zero";
}

// A count just below the number of threads, at it, and above, where the driver forks.
TEST_P(DriverLane, FewObjects)
{
    const AtThreads atThreads(4);
    for (const int count : {1, 3, 4, 5, 10})
    {
        Sizes sizes(function.sizeNames.size(), 1);
        while (!sizes.empty() && function.estimate(sizes, count) < function.limits.packed && sizes[0] < 2000)
            for (int& size : sizes) ++size;
        Case chosen{sizes, count, Strides::Dense, {}};
        if (!takes(chosen)) continue;
        trial.prepare(chosen);
        if (!callPasses()) return;
    }
}

namespace
{

template <class Predicate>
std::vector<const Function*> functionsThat(Predicate predicate)
{
    std::vector<const Function*> list;
    for (const Function& function : allFunctions())
        if (predicate(function)) list.push_back(&function);
    return list;
}

// Where there is no room, one function says so for all.
std::vector<const Function*> functionsFarApart()
{
    std::vector<const Function*> list = functionsThat([](const Function& f) { return f.isArray(); });
    if (!hasRoomFarApart) list.resize(1);
    return list;
}

// One for each way past the caches.
std::vector<const Function*> functionsBeyondTheCaches()
{
    static const std::set<std::string> ways{
        "zepmAdd_vava_32f",     "zepmSub_cva_64f",         "zepmAdd_vav_32f",        "zepmAdd_vca_64f",
        "zepmAdd_tama_32f",     "zepmMul_tac_64f",         "zepmMul_mama_32f",       "zepmMul_mam_32f",
        "zepmMul_mat_64f",      "zepmCopy_va_64f_SS",      "zepmCopy_ma_32f_PS",     "zepmExtract_va_32f_L",
        "zepmTranspose_ma_32f", "zepmLoadIdentity_ma_32f", "zepmLoadIdentity_ma_64f"};
    return functionsThat([](const Function& f) { return ways.count(f.name) == 1; });
}

std::string testName(const testing::TestParamInfo<const Function*>& row) { return row.param->name; }

} // namespace

#define INSTANTIATE(Suite, functions) INSTANTIATE_TEST_SUITE_P(All, Suite, testing::ValuesIn(functions), testName)
INSTANTIATE(Lane, functionsThat([](const Function&) { return true; }));
INSTANTIATE(AliasLane, functionsThat([](const Function& f) { return f.worksInPlace; }));
INSTANTIATE(ArrayLane, functionsThat([](const Function& f) { return f.isArray(); }));
INSTANTIATE(DriverLane, functionsThat([](const Function& f) { return f.hasDriver(); }));
INSTANTIATE(NarrowLane, functionsThat([](const Function& f) {
                return !f.untested.empty() || f.order.find('O') != std::string::npos;
            }));
INSTANTIATE(FarLane, functionsFarApart());
INSTANTIATE(LongLane, functionsBeyondTheCaches());

// ---- The levels -----------------------------------------------------------------------------------------------------

// The lanes run at the levels that are there; which one is not, is said here.
TEST(Level, AVX2)
{
    if (!hasLevel(1)) GTEST_SKIP() << "no lane runs at this level: the processor or the build lacks it";
}
TEST(Level, AVX512)
{
    if (!hasLevel(2)) GTEST_SKIP() << "no lane runs at this level: the processor or the build lacks it";
}

// ---- The table itself -----------------------------------------------------------------------------------------------

// Every function of the headers has its row.
TEST(Table, Complete)
{
    // Of the fixed-size functions the one with a driver; the others have tests of their own.
    const std::string fixedSize = "zepm_geometry.h";
    std::set<std::string> declared = {"zepmAffineTransform3DH_mva_32f"}, known;
    for (const auto& header : std::filesystem::directory_iterator(CHECK_INCLUDE_DIR))
    {
        if (header.path().filename() == fixedSize) continue;
        std::ifstream file(header.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::string start = "\nStatus zepm";
        for (size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
        {
            const size_t name = text.find("zepm", at);
            declared.insert(text.substr(name, text.find('(', name) - name));
        }
    }
    for (const Function& function : allFunctions()) known.insert(function.name);
    EXPECT_EQ(declared, known);
    EXPECT_EQ(known.size(), allFunctions().size());
}

// A misspelt row is no row of another function.
TEST(Table, Names)
{
    for (const char* const name : {"zepmAdd_vv_32f_X", "zepmAdd_vv_32f_S", "zepmAdd_vv_32f_SX", "zepmAdd_vv_32f_LPS",
                                   "zepmAdd_vv_16f", "zepmAdd_vx_32f", "zepmAdd_vv", "zepmAdd_vv_32f_P_P"})
        EXPECT_THROW(parsed(name), std::invalid_argument) << name;
    const Function mixed = parsed("zepmCopy_ma_32f_LP");
    EXPECT_EQ(mixed.layout, Layout::L);
    EXPECT_EQ(mixed.operands.front().layout, std::nullopt);
    EXPECT_EQ(mixed.operands.back().layout, Layout::P);
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    onFault(Lane::reportFault);
    zepSetMinParallelWork(0); // the bare limits of the functions
    const int result = RUN_ALL_TESTS();
    // For ctest, a lane of which nothing could run here is neither passed nor failed.
    const testing::UnitTest& unit = *testing::UnitTest::GetInstance();
    const bool isSkipped = unit.skipped_test_count() > 0 && unit.skipped_test_count() == unit.test_to_run_count();
    return result == 0 && isSkipped ? 77 : result;
}
