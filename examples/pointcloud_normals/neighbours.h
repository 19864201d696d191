// The nearest neighbours of each point.
#pragma once

#include "points.h"

// For point n the `size` points nearest to it, itself included: the entries from n * size on.
std::vector<int> nearestNeighbours(const Points& points, int size);
