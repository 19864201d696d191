#include "normals.h"

#include <algorithm>
#include <stdexcept>

namespace
{

constexpr int sz = sizeof(float);

Status solveArray(const float* matrices, float* values, float* vectors, int count)
{
    float scratch[9];
    return zepmEigenValuesVectorsSym_ma_32f(matrices, 9 * sz, 3 * sz, sz, scratch, vectors, 9 * sz, 3 * sz, sz, values,
                                            3, count);
}

// With rows and columns in reverse a matrix has the same eigenvalues, and eigenvectors whose elements are in reverse.
void solveReversed(const float* matrix, EigenSystems& systems, size_t at)
{
    float reversed[9];
    std::reverse_copy(matrix, matrix + 9, reversed);
    float *const values = &systems.values[3 * at], *const vectors = &systems.vectors[9 * at];
    require(solveArray(reversed, values, vectors, 1), "zepmEigenValuesVectorsSym_ma_32f");
    std::swap_ranges(vectors, vectors + 3, vectors + 6);
}

// An object that fails ends the call and is not named: it is found by halves.
int solveHalves(const std::vector<float>& matrices, EigenSystems& systems, size_t first, int count)
{
    const Status status =
        solveArray(&matrices[9 * first], &systems.values[3 * first], &systems.vectors[9 * first], count);
    if (status == stsOk) return 0;
    if (status != stsEigenFailErr) require(status, "zepmEigenValuesVectorsSym_ma_32f");
    if (count > 1)
        return solveHalves(matrices, systems, first, count / 2) +
               solveHalves(matrices, systems, first + static_cast<size_t>(count / 2), count - count / 2);
    solveReversed(&matrices[9 * first], systems, first);
    return 1;
}

} // namespace

void require(Status status, const char* call)
{
    if (status != stsOk) throw std::runtime_error(std::string(call) + " returned " + std::to_string(status));
}

std::vector<float> covariances(const Points& points, const std::vector<int>& neighbours, int size)
{
    const int count = points.count();
    const auto n = static_cast<size_t>(count), k = static_cast<size_t>(size);

    // The points stay where they are: neighbour j of every point is a table of pointers.
    std::vector<const float*> tables(n * k);
    for (size_t at = 0; at < n; ++at)
        for (size_t j = 0; j < k; ++j) tables[j * n + at] = points.at(neighbours[at * k + j]);
    auto neighbour = [&](size_t j) { return tables.data() + j * n; };

    std::vector<float> means(3 * n), centred(3 * n * k);
    std::vector<float*> meanTable(n), centredTable(n);
    for (size_t at = 0; at < n; ++at) meanTable[at] = &means[3 * at];

    require(zepmAdd_vava_32f_L(neighbour(0), 0, sz, neighbour(1), 0, sz, meanTable.data(), 0, sz, 3, count),
            "zepmAdd_vava_32f_L");
    for (size_t j = 2; j < k; ++j)
        require(zepmAdd_vava_32f_L(meanTable.data(), 0, sz, neighbour(j), 0, sz, meanTable.data(), 0, sz, 3, count),
                "zepmAdd_vava_32f_L");
    require(zepmMul_vac_32f(means.data(), 3 * sz, sz, 1 / static_cast<float>(size), means.data(), 3 * sz, sz, 3, count),
            "zepmMul_vac_32f");

    for (size_t j = 0; j < k; ++j)
    {
        for (size_t at = 0; at < n; ++at) centredTable[at] = &centred[3 * (at * k + j)];
        require(zepmSub_vava_32f_L(neighbour(j), 0, sz, meanTable.data(), 0, sz, centredTable.data(), 0, sz, 3, count),
                "zepmSub_vava_32f_L");
    }

    // transpose(X) * X, where X has the neighbours in its rows.
    std::vector<float> matrices(9 * n), factors(n);
    require(zepmMul_tama_32f(centred.data(), 3 * size * sz, 3 * sz, sz, 3, size, centred.data(), 3 * size * sz, 3 * sz,
                             sz, 3, size, matrices.data(), 9 * sz, 3 * sz, sz, count),
            "zepmMul_tama_32f");

    for (size_t at = 0; at < n; ++at)
    {
        const float trace = matrices[9 * at] + matrices[9 * at + 4] + matrices[9 * at + 8];
        factors[at] = trace > 0 ? 64 / trace : 0; // points that coincide have none
    }
    require(zepmMul_vaca_32f(matrices.data(), 9 * sz, sz, factors.data(), sz, matrices.data(), 9 * sz, sz, 9, count),
            "zepmMul_vaca_32f");
    const float identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    require(zepmAdd_mam_32f(matrices.data(), 9 * sz, 3 * sz, sz, identity, 3 * sz, sz, matrices.data(), 9 * sz, 3 * sz,
                            sz, 3, 3, count),
            "zepmAdd_mam_32f");
    return matrices;
}

int solve(const std::vector<float>& matrices, EigenSystems& systems)
{
    constexpr size_t block = 2048; // no more than that is computed again for one that fails

    const size_t count = matrices.size() / 9;
    systems.values.resize(3 * count);
    systems.vectors.resize(9 * count);
    int redone = 0;
    for (size_t first = 0; first < count; first += block)
        redone += solveHalves(matrices, systems, first, static_cast<int>(std::min(block, count - first)));
    return redone;
}

std::vector<float> normalsOf(const EigenSystems& systems, const Points& points, const float (&eye)[3])
{
    std::vector<float> normals;
    normals.reserve(points.xyz.size());
    for (int at = 0; at < points.count(); ++at)
    {
        const float* const vectors = systems.vectors.data() + 9 * static_cast<size_t>(at);
        float towards = 0;
        for (int a = 0; a < 3; ++a) towards += vectors[3 * a + 2] * (eye[a] - points.at(at)[a]);
        for (int a = 0; a < 3; ++a) normals.push_back(towards < 0 ? -vectors[3 * a + 2] : vectors[3 * a + 2]);
    }
    return normals;
}
