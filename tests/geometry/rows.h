// The functions of single vectors and matrices with their formulas.
#pragma once

#include "bounded.h"
#include "zepm.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace geometry
{

template <class T>
using Sources = std::vector<std::vector<T>>;
template <class T>
using Numbers = std::vector<T>;

template <class T>
using Reference = std::function<void(const Sources<T>&, const Numbers<T>&, Numbers<T>&)>;

struct Row
{
    const char* name;
    std::function<Status(const std::vector<const float32*>&, const Numbers<float32>&, float32*)> call;
    std::vector<size_t> sources; // their sizes
    size_t values, size;         // how many numbers, how many results
    Reference<float32> inOrder;  // where the order of the operations is fixed
    Reference<Bounded> bounded;
};

const std::vector<Row>& allRows();

// The 3 by 3 minor without column c, along the first row.
template <class T>
T minorWithout(size_t c, const std::vector<T>& u, const std::vector<T>& v, const std::vector<T>& t)
{
    const size_t i = c > 0 ? 0 : 1, j = c > 1 ? 1 : 2, k = c > 2 ? 2 : 3;
    auto minor = [&](size_t p, size_t q) { return v[p] * t[q] - v[q] * t[p]; };
    return minor(j, k) * u[i] - minor(i, k) * u[j] + minor(i, j) * u[k];
}

template <class T>
std::vector<T> rowOf(const std::vector<T>& m, size_t i)
{
    return {m.begin() + static_cast<std::ptrdiff_t>(4 * i), m.begin() + static_cast<std::ptrdiff_t>(4 * i + 4)};
}

template <class T>
T cofactor(const std::vector<T>& m, size_t i, size_t j)
{
    const T minor = minorWithout(j, rowOf(m, i > 0 ? 0 : 1), rowOf(m, i > 1 ? 1 : 2), rowOf(m, i > 2 ? 2 : 3));
    return (i + j) % 2 ? -minor : minor;
}

} // namespace geometry
