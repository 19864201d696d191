#include "compare.h"

#include <Eigen/Dense>
#include <cstdio>
#include <fstream>
#include <lapacke.h>
#include <numbers>
#include <stdexcept>
#include <unistd.h>

namespace
{

using Matrix = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;

template <class Compute>
void forEachMatrix(const std::vector<float>& matrices, EigenSystems& systems, Compute compute)
{
    const size_t count = matrices.size() / 9;
    systems.values.resize(3 * count);
    systems.vectors.resize(9 * count);
    Eigen::SelfAdjointEigenSolver<Eigen::Matrix3f> solver;
    for (size_t k = 0; k < count; ++k)
    {
        compute(solver, Eigen::Matrix3f(Eigen::Map<const Matrix>(&matrices[9 * k])));
        Eigen::Map<Eigen::Vector3f>(&systems.values[3 * k]) = solver.eigenvalues();
        Eigen::Map<Matrix>(&systems.vectors[9 * k]) = solver.eigenvectors();
    }
}

} // namespace

void eigenLoop(const std::vector<float>& matrices, EigenSystems& systems)
{
    forEachMatrix(matrices, systems, [](auto& solver, const Eigen::Matrix3f& matrix) { solver.compute(matrix); });
}

void eigenDirectLoop(const std::vector<float>& matrices, EigenSystems& systems)
{
    forEachMatrix(matrices, systems, [](auto& solver, const Eigen::Matrix3f& matrix) { solver.computeDirect(matrix); });
}

std::optional<double> numpyTime(const std::string& script, const std::vector<float>& matrices)
{
    char path[] = "/tmp/matricesXXXXXX";
    const int file = mkstemp(path);
    if (file < 0) return {};
    close(file);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(matrices.data()),
               static_cast<std::streamsize>(matrices.size() * sizeof(float)));
    double nanoseconds = 0;
    // The Python that Debian's NumPy belongs to.
    const std::string command = "/usr/bin/python3 '" + script + "' " + path + " 2>/dev/null";
    FILE* const answer = popen(command.c_str(), "r");
    const bool found = answer && std::fscanf(answer, "%lf", &nanoseconds) == 1;
    if (answer) pclose(answer);
    unlink(path);
    return found ? std::optional(nanoseconds) : std::nullopt;
}

Deviation deviationFromLapack(const std::vector<float>& normals, const Points& points,
                              const std::vector<int>& neighbours, int size)
{
    Deviation deviation;
    for (int at = 0; at < points.count(); ++at)
    {
        const int* const own = neighbours.data() + static_cast<size_t>(at) * static_cast<size_t>(size);
        Eigen::Vector3d mean = Eigen::Vector3d::Zero();
        for (int j = 0; j < size; ++j) mean += Eigen::Map<const Eigen::Vector3f>(points.at(own[j])).cast<double>();
        mean /= size;
        Eigen::Matrix3d covariance = Eigen::Matrix3d::Zero();
        for (int j = 0; j < size; ++j)
        {
            const Eigen::Vector3d d = Eigen::Map<const Eigen::Vector3f>(points.at(own[j])).cast<double>() - mean;
            covariance += d * d.transpose();
        }
        const double trace = covariance.trace();
        double values[3];
        if (LAPACKE_dsyev(LAPACK_COL_MAJOR, 'V', 'U', 3, covariance.data(), 3, values) != 0)
            throw std::runtime_error("LAPACKE_dsyev failed");
        if (values[1] - values[0] <= 1e-3 * trace) continue;
        ++deviation.compared;
        const Eigen::Vector3d normal =
            Eigen::Map<const Eigen::Vector3f>(&normals[3 * static_cast<size_t>(at)]).cast<double>().normalized();
        const double sine = normal.cross(covariance.col(0)).norm();
        deviation.degrees = std::max(deviation.degrees, std::asin(std::min(sine, 1.0)) * 180 / std::numbers::pi);
    }
    return deviation;
}
