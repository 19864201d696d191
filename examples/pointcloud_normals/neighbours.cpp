#include "neighbours.h"

#include <algorithm>
#include <cmath>

namespace
{

// The points sorted into cubes; about as many cubes as points.
class Grid
{
public:
    explicit Grid(const Points& points_) : points(points_)
    {
        const int n = points.count();
        float high[3];
        for (int a = 0; a < 3; ++a) low[a] = high[a] = points.at(0)[a];
        for (int k = 0; k < n; ++k)
            for (int a = 0; a < 3; ++a)
            {
                low[a] = std::min(low[a], points.at(k)[a]);
                high[a] = std::max(high[a], points.at(k)[a]);
            }
        float longest = 0;
        for (int a = 0; a < 3; ++a) longest = std::max(longest, high[a] - low[a]);
        edge = std::max(longest, 1e-20f);
        while (longest > 0 && cubesAt(edge * 0.8f, high) <= n) edge *= 0.8f;
        cubesAt(edge, high);

        start.assign(static_cast<size_t>(size[0]) * static_cast<size_t>(size[1]) * static_cast<size_t>(size[2]) + 1, 0);
        for (int k = 0; k < n; ++k) ++start[cubeOf(points.at(k)) + 1];
        for (size_t cube = 1; cube < start.size(); ++cube) start[cube] += start[cube - 1];
        members.resize(static_cast<size_t>(n));
        std::vector<int> next(start.begin(), start.end() - 1);
        for (int k = 0; k < n; ++k) members[static_cast<size_t>(next[cubeOf(points.at(k))]++)] = k;
    }

    // Calls visit for each point in the cubes at distance `ring` from a point's own, in cubes.
    template <class Visit>
    void forEachAt(int ring, const float* p, Visit visit) const
    {
        int from[3], to[3], own[3];
        for (int a = 0; a < 3; ++a)
        {
            own[a] = placeOf(p, a);
            from[a] = std::max(own[a] - ring, 0);
            to[a] = std::min(own[a] + ring, size[a] - 1);
        }
        for (int z = from[2]; z <= to[2]; ++z)
            for (int y = from[1]; y <= to[1]; ++y)
            {
                const bool onFace = std::abs(z - own[2]) == ring || std::abs(y - own[1]) == ring;
                const int step = onFace || ring == 0 ? 1 : 2 * ring; // else only the first and the last of the row
                for (int x = onFace ? from[0] : own[0] - ring; x <= to[0]; x += step)
                {
                    if (x < from[0]) continue;
                    const size_t cube = number(x, y, z);
                    for (int m = start[cube]; m < start[cube + 1]; ++m) visit(members[static_cast<size_t>(m)]);
                }
            }
    }
    int rings() const { return std::max({size[0], size[1], size[2]}); }

    float edge;

private:
    const Points& points;
    float low[3];
    int size[3];
    std::vector<int> start, members; // the points of a cube: members from its start to the next cube's

    double cubesAt(float e, const float (&high)[3])
    {
        double cubes = 1;
        for (int a = 0; a < 3; ++a)
        {
            size[a] = static_cast<int>((high[a] - low[a]) / e) + 1;
            cubes *= size[a];
        }
        return cubes;
    }
    int placeOf(const float* p, int a) const { return std::min(static_cast<int>((p[a] - low[a]) / edge), size[a] - 1); }
    size_t number(int x, int y, int z) const
    {
        return (static_cast<size_t>(z) * static_cast<size_t>(size[1]) + static_cast<size_t>(y)) *
                   static_cast<size_t>(size[0]) +
               static_cast<size_t>(x);
    }
    size_t cubeOf(const float* p) const { return number(placeOf(p, 0), placeOf(p, 1), placeOf(p, 2)); }
};

} // namespace

std::vector<int> nearestNeighbours(const Points& points, int size)
{
    const Grid grid(points);
    std::vector<int> neighbours;
    neighbours.reserve(static_cast<size_t>(points.count()) * static_cast<size_t>(size));
    std::vector<std::pair<float, int>> found; // squared distance, point
    for (int k = 0; k < points.count(); ++k)
    {
        const float* const p = points.at(k);
        found.clear();
        for (int ring = 0; ring <= grid.rings(); ++ring)
        {
            grid.forEachAt(ring, p, [&](int n) {
                const float* const q = points.at(n);
                const float x = q[0] - p[0], y = q[1] - p[1], z = q[2] - p[2];
                found.emplace_back(x * x + y * y + z * z, n);
            });
            if (found.size() < static_cast<size_t>(size)) continue;
            // All that lies nearer than this ring's far side has been seen.
            const float seen = static_cast<float>(ring) * grid.edge;
            std::nth_element(found.begin(), found.begin() + size - 1, found.end());
            if (found[static_cast<size_t>(size) - 1].first <= seen * seen) break;
        }
        std::sort(found.begin(), found.begin() + size);
        for (int n = 0; n < size; ++n) neighbours.push_back(found[static_cast<size_t>(n)].second);
    }
    return neighbours;
}
