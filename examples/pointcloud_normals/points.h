// Points as a file or the built-in surface gives them.
#pragma once

#include <string>
#include <vector>

struct Points
{
    std::vector<float> xyz; // three for each point
    std::string caption;    // where they come from

    int count() const { return static_cast<int>(xyz.size() / 3); }
    const float* at(int n) const { return xyz.data() + 3 * static_cast<size_t>(n); }
};

// An ASCII PLY file or lines of "x y z ..."; what is wrong with it is thrown in one line that names file and line.
Points readPoints(const std::string& path);

// A closed surface with a hole and a wave on it.
Points builtInSurface();
