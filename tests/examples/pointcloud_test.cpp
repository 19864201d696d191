// Reading point files and finding neighbours.
#include "neighbours.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

namespace
{

class Files : public testing::Test
{
protected:
    std::string path = testing::TempDir() + "points-" + std::to_string(getpid());
    ~Files() override { std::remove(path.c_str()); }

    Points read(const std::string& text)
    {
        std::ofstream(path) << text;
        return readPoints(path);
    }
    // What is said of a malformed file, behind its name.
    std::string fault(const std::string& text)
    {
        try
        {
            read(text);
        }
        catch (const std::exception& error)
        {
            const std::string words = error.what();
            EXPECT_EQ(words.rfind(path, 0), 0u) << words;
            EXPECT_EQ(words.find('\n'), std::string::npos);
            return words.substr(path.size());
        }
        return "none";
    }
};

const std::string header = "ply\nformat ascii 1.0\nelement vertex 2\nproperty float x\nproperty float y\n"
                           "property float z\n";

} // namespace

TEST_F(Files, Read)
{
    const std::vector<float> wanted = {1, -2.5f, 3e-4f, 4, 5, 6};
    EXPECT_EQ(read(header + "end_header\n1 -2.5 3e-4\n4 5 6\n").xyz, wanted);
    EXPECT_EQ(read("# three and more\n1 -2.5 3e-4 9 9\n\n 4\t5 6\r\n").xyz, wanted);
    // Coordinates in other columns, behind others, another element behind the vertices.
    EXPECT_EQ(read("ply\nformat ascii 1.0\nelement vertex 2\nproperty uchar red\nproperty float z\nproperty float x\n"
                   "property float y\nelement face 1\nproperty list uchar int vertex_indices\nend_header\n"
                   "7 3e-4 1 -2.5\n8 6 4 5\n3 0 1 0\n")
                  .xyz,
              wanted);
}

TEST_F(Files, Faults)
{
    EXPECT_EQ(fault(""), ":0: the file is empty");
    EXPECT_EQ(fault("1 2 3\n4 five 6\n"), ":2: \"five\" is not a coordinate");
    EXPECT_EQ(fault("1 2 3\n4 5\n"), ":2: a point needs three coordinates");
    EXPECT_EQ(fault("1 2 nan\n"), ":1: \"nan\" is not a coordinate");
    EXPECT_EQ(fault("1 2 3.5.1\n"), ":1: \"3.5.1\" is not a coordinate");
    EXPECT_EQ(fault(header + "end_header\n1 2 3\n"), ":8: the file ends after 1 of 2 vertices");
    EXPECT_EQ(fault("ply\nformat binary_little_endian 1.0\n"),
              ":2: format binary_little_endian is not supported, only ascii");
    EXPECT_EQ(fault(header), ":6: the header has no end");
    EXPECT_EQ(fault("ply\nelement vertex 2\nproperty float x\nend_header\n"), ":4: the vertices have no x, y, z");
    EXPECT_EQ(fault("ply\nelement vertex\nend_header\n"), ":2: the number of vertices is missing");
    EXPECT_EQ(fault("ply\nend_header\n"), ":2: the header has no vertices");
    std::remove(path.c_str());
    EXPECT_THROW(readPoints(path), std::exception);
}

// Against all distances, where points lie densely, far out, on a plane, and on one another.
TEST(Neighbours, AreTheNearest)
{
    std::mt19937 random(1);
    auto uniform = [&] { return static_cast<float>(random()) / 4294967296.f; };
    Points points;
    for (int n = 0; n < 600; ++n)
    {
        const float far = n % 100 == 0 ? 50.f : 1.f;
        for (const float x : {far * uniform(), uniform(), n % 2 ? 0.f : uniform()}) points.xyz.push_back(x);
    }
    for (int n = 0; n < 30; ++n) points.xyz.insert(points.xyz.end(), {0.5f, 0.5f, 0.5f});
    constexpr int size = 16;
    const std::vector<int> neighbours = nearestNeighbours(points, size);
    auto distance = [&](int n, int m) {
        float sum = 0;
        for (int a = 0; a < 3; ++a) sum += (points.at(n)[a] - points.at(m)[a]) * (points.at(n)[a] - points.at(m)[a]);
        return sum;
    };
    for (int n = 0; n < points.count(); ++n)
    {
        std::vector<float> all, found;
        for (int m = 0; m < points.count(); ++m) all.push_back(distance(n, m));
        std::sort(all.begin(), all.end());
        all.resize(size);
        for (int m = 0; m < size; ++m) found.push_back(distance(n, neighbours[static_cast<size_t>(n * size + m)]));
        ASSERT_EQ(found, all) << n;
    }
    const Points one{std::vector<float>(3 * 20, 2.f), ""};
    EXPECT_EQ(nearestNeighbours(one, size).size(), 20u * size);
}
