// Normals of a point cloud, and what they cost.
//
//     pointcloud_normals [points.ply | points.xyz]    writes demo.png
#include "compare.h"
#include "neighbours.h"
#include "picture.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <stdexcept>
#include <zepcore.h>

namespace
{

constexpr int neighbourhood = 16;

double milliseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// A line while the stage runs, and its time.
void stage(const char* name, const std::function<void()>& work)
{
    std::printf("  %-44s", name);
    std::fflush(stdout);
    std::printf("%9.1f ms\n", milliseconds(work));
}

double nanosecondsEach(size_t count, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int n = 0; n < 7; ++n) times.push_back(milliseconds(work));
    std::sort(times.begin(), times.end());
    return 1e6 * times[times.size() / 2] / static_cast<double>(count);
}

// FNV-1a over the bytes of all results.
uint64_t hashOf(const EigenSystems& systems)
{
    uint64_t hash = 0xcbf29ce484222325;
    for (const std::vector<float>* part : {&systems.values, &systems.vectors})
    {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(part->data());
        for (size_t n = 0; n < part->size() * sizeof(float); ++n) hash = (hash ^ bytes[n]) * 0x100000001b3;
    }
    return hash;
}

// The whole chain at every number of threads and every instruction-set level: one hash, or which run differs.
bool compareRuns(const Points& points, const std::vector<int>& neighbours)
{
    const int32 level = ownGetCpuLevel();
    const int32 threads = ownGetNumThreads();
    uint64_t first = 0;
    int runs = 0;
    bool equal = true;
    for (int32 atLevel = 0; zepSetCpuLevel(atLevel) == stsOk; ++atLevel)
        for (const int32 numThreads : {1, 2, 3, 8})
        {
            require(zepSetNumThreads(numThreads), "zepSetNumThreads");
            EigenSystems systems;
            const std::vector<float> matrices = covariances(points, neighbours, neighbourhood);
            solve(matrices, systems);
            const uint64_t hash = hashOf(systems);
            if (runs++ == 0) first = hash;
            if (hash != first)
                std::printf("  level %d, %d threads: %016llx\n", atLevel, numThreads,
                            static_cast<unsigned long long>(hash));
            equal = equal && hash == first;
        }
    zepSetCpuLevel(level);
    zepSetNumThreads(threads);
    std::printf("\n%d runs (1, 2, 3, 8 threads at each instruction-set level): %016llx, %s\n", runs,
                static_cast<unsigned long long>(first), equal ? "equal" : "different");
    return equal;
}

std::vector<Bar> measure(const std::vector<float>& matrices)
{
    const size_t count = matrices.size() / 9;
    const int32 threads = ownGetNumThreads();
    EigenSystems systems;
    auto ours = [&] { solve(matrices, systems); };
    zepSetNumThreads(1);
    std::vector<Bar> bars{{"zepm, 1 thread", nanosecondsEach(count, ours)}};
    zepSetNumThreads(threads);
    if (threads > 1) bars.push_back({"zepm, " + std::to_string(threads) + " threads", nanosecondsEach(count, ours)});
    bars.push_back({"Eigen computeDirect, loop", nanosecondsEach(count, [&] { eigenDirectLoop(matrices, systems); })});
    bars.push_back({"Eigen compute, loop", nanosecondsEach(count, [&] { eigenLoop(matrices, systems); })});
    if (const auto time = numpyTime(EIGH_TIME_SCRIPT, matrices)) bars.push_back({"NumPy eigh", *time});
    return bars;
}

std::string noteOn(int redone)
{
    if (redone == 0) return {};
    if (redone == 1) return "1 matrix did not converge and was redone in reverse";
    return std::to_string(redone) + " matrices did not converge and were redone in reverse";
}

int run(int argc, char** argv)
{
    Points points;
    std::vector<int> neighbours;
    std::vector<float> matrices, normals;
    EigenSystems systems;
    std::vector<Bar> bars;
    Deviation deviation;
    int redone = 0;

    stage("read the points", [&] { points = argc > 1 ? readPoints(argv[1]) : builtInSurface(); });
    if (points.count() < neighbourhood)
        throw std::runtime_error("too few points: " + std::to_string(points.count()) + ", a neighbourhood has " +
                                 std::to_string(neighbourhood));
    const View view = viewOf(points);
    stage("find the neighbours", [&] { neighbours = nearestNeighbours(points, neighbourhood); });
    stage("covariances", [&] { matrices = covariances(points, neighbours, neighbourhood); });
    stage("eigenvalues and eigenvectors", [&] { redone = solve(matrices, systems); });
    const std::string note = noteOn(redone);
    stage("normals towards the viewer", [&] { normals = normalsOf(systems, points, view.eye); });
    stage("compare with LAPACK in double",
          [&] { deviation = deviationFromLapack(normals, points, neighbours, neighbourhood); });
    stage("time the peers", [&] { bars = measure(matrices); });
    stage("project, shade, write demo.png", [&] { savePicture("demo.png", points, view, normals, bars, note); });

    std::printf("\n%d points: %s\n\nns a matrix        beside zepm, 1 thread\n", points.count(),
                points.caption.c_str());
    for (const Bar& bar : bars)
        std::printf("%10.1f  %8.2f  %s\n", bar.nanoseconds, bar.nanoseconds / bars[0].nanoseconds, bar.label.c_str());
    std::printf("\nlargest angle to LAPACK: %.5f degrees over %d of %d neighbourhoods\n"
                "  (those whose two smaller eigenvalues differ by more than 1e-3 of the trace)\n",
                deviation.degrees, deviation.compared, points.count());
    if (redone > 0) std::printf("%s\n", note.c_str());
    return compareRuns(points, neighbours) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        return run(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "\npointcloud_normals: %s\n", error.what());
        return 1;
    }
}
