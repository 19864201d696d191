// What else a user could take, on the same matrices.
#pragma once

#include "normals.h"

#include <optional>

// Eigenvalues and eigenvectors of all matrices, one after the other: the iterative solver, and the closed form.
void eigenLoop(const std::vector<float>& matrices, EigenSystems& systems);
void eigenDirectLoop(const std::vector<float>& matrices, EigenSystems& systems);

// Nanoseconds a matrix that NumPy takes, if Python and NumPy are there. The script is eigh_time.py.
std::optional<double> numpyTime(const std::string& script, const std::vector<float>& matrices);

struct Deviation
{
    double degrees = 0; // the largest angle between a normal and LAPACK's, in double from the points on
    int compared = 0;   // neighbourhoods whose two smaller eigenvalues differ by more than 1e-3 of the trace
};
Deviation deviationFromLapack(const std::vector<float>& normals, const Points& points,
                              const std::vector<int>& neighbours, int size);
