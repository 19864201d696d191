// The picture: the points as dots, the points shaded by their normals, and the times as bars over a note.
#pragma once

#include "points.h"

#include <utility>

struct View
{
    float eye[3];
    float right[3], up[3], forward[3]; // of the camera
};

// A view from above one corner onto the middle of the points.
View viewOf(const Points& points);

struct Bar
{
    std::string label;
    double nanoseconds;
};

void savePicture(const std::string& path, const Points& points, const View& view, const std::vector<float>& normals,
                 const std::vector<Bar>& bars, const std::string& note);
