#include "points.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <fstream>
#include <numbers>
#include <sstream>
#include <stdexcept>

namespace
{

class Lines
{
public:
    explicit Lines(std::string path_) : path(std::move(path_)), file(path)
    {
        if (!file) throw std::runtime_error(path + ": " + std::strerror(errno));
    }
    bool next(std::string& line)
    {
        if (!std::getline(file, line)) return false;
        ++number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        return true;
    }
    [[noreturn]] void fail(const std::string& fault) const
    {
        throw std::runtime_error(path + ":" + std::to_string(number) + ": " + fault);
    }

private:
    std::string path;
    std::ifstream file;
    int number = 0;
};

// Appends the numbers in the given columns of a line.
void takePoint(const Lines& lines, const std::string& line, const int (&columns)[3], std::vector<float>& xyz)
{
    float point[3] = {};
    int found = 0, column = 0;
    const char* p = line.data();
    const char* const end = p + line.size();
    while (found < 3)
    {
        while (p < end && (*p == ' ' || *p == '\t')) ++p;
        const char* word = p;
        while (p < end && *p != ' ' && *p != '\t') ++p;
        if (word == p) lines.fail("a point needs three coordinates");
        for (int n = 0; n < 3; ++n)
        {
            if (columns[n] != column) continue;
            const auto [last, error] = std::from_chars(word, p, point[n]);
            if (error != std::errc() || last != p || !std::isfinite(point[n]))
                lines.fail(std::string("\"").append(word, p).append("\" is not a coordinate"));
            ++found;
        }
        ++column;
    }
    xyz.insert(xyz.end(), point, point + 3);
}

void readPly(Lines& lines, std::vector<float>& xyz)
{
    std::string line;
    int vertices = -1, column = 0, columns[3] = {-1, -1, -1};
    bool ofVertex = false;
    for (;;)
    {
        if (!lines.next(line)) lines.fail("the header has no end");
        std::istringstream words(line);
        std::string word;
        words >> word;
        if (word == "end_header") break;
        if (word == "format")
        {
            words >> word;
            if (word != "ascii") lines.fail("format " + word + " is not supported, only ascii");
        }
        else if (word == "element")
        {
            int n = -1;
            words >> word >> n;
            ofVertex = word == "vertex";
            if (!ofVertex && vertices < 0) lines.fail("the first element must be the vertices");
            if (ofVertex && (!words || n < 1)) lines.fail("the number of vertices is missing");
            if (ofVertex) vertices = n;
        }
        else if (word == "property" && ofVertex)
        {
            words >> word;
            if (word == "list") lines.fail("a vertex must not hold a list");
            words >> word;
            for (int n = 0; n < 3; ++n)
                if (word == std::string(1, static_cast<char>('x' + n))) columns[n] = column;
            ++column;
        }
    }
    if (vertices < 0) lines.fail("the header has no vertices");
    for (const int c : columns)
        if (c < 0) lines.fail("the vertices have no x, y, z");
    for (int n = 0; n < vertices; ++n)
    {
        if (!lines.next(line))
            lines.fail("the file ends after " + std::to_string(n) + " of " + std::to_string(vertices) + " vertices");
        takePoint(lines, line, columns, xyz);
    }
}

} // namespace

Points readPoints(const std::string& path)
{
    Points points;
    points.caption = path.substr(path.rfind('/') + 1);
    Lines lines(path);
    std::string line;
    if (!lines.next(line)) lines.fail("the file is empty");
    if (line == "ply")
    {
        readPly(lines, points.xyz);
        return points;
    }
    do
    {
        if (line.find_first_not_of(" \t") != std::string::npos && line[0] != '#')
            takePoint(lines, line, {0, 1, 2}, points.xyz);
    } while (lines.next(line));
    return points;
}

Points builtInSurface()
{
    constexpr int count = 100000;
    Points points;
    points.caption = "a built-in surface (the scanned building could not be had)";
    for (int n = 0; n < count; ++n)
    {
        // A spiral that covers the torus evenly, without a pattern in the neighbourhoods.
        const double turn = 2 * std::numbers::pi * (n + 0.5) / count;
        const double around = 2 * std::numbers::pi * std::fmod(n * std::numbers::phi, 1.0);
        const double radius = 4 + 0.3 * std::sin(9 * turn) * std::cos(5 * around);
        const double out = 10 + radius * std::cos(around);
        for (const double x : {out * std::cos(turn), out * std::sin(turn), radius * std::sin(around)})
            points.xyz.push_back(static_cast<float>(x));
    }
    return points;
}
