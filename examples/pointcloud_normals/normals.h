// From neighbourhoods to normals, array by array through zepm.
#pragma once

#include "points.h"

#include <zepm.h>

// What a call returned, or an exception that names the call.
void require(Status status, const char* call);

// The covariance of each neighbourhood, nine elements a point, mean subtracted first; scaled to the trace 64 and
// shifted by the identity, which keeps the eigenvectors and lets no neighbourhood be refused as singular.
std::vector<float> covariances(const Points& points, const std::vector<int>& neighbours, int size);

struct EigenSystems
{
    std::vector<float> values;  // three a matrix, descending
    std::vector<float> vectors; // nine a matrix, in columns
    bool operator==(const EigenSystems&) const = default;
};
// The eigenvalues and eigenvectors of all matrices. The iteration of about one float matrix in 10,000 does not
// converge; it is redone with rows and columns in reverse, where 2 of 1,145 random ones failed again. Returns how many
// were redone.
int solve(const std::vector<float>& matrices, EigenSystems& systems);

// The direction of least extent, towards the viewer.
std::vector<float> normalsOf(const EigenSystems& systems, const Points& points, const float (&eye)[3]);
