#pragma once

#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// A smooth curve through all `points`, each span cut into `steps` pieces. An open curve keeps its ends.
std::vector<Vec> smoothCurve(const std::vector<Vec>& points, int steps, bool closed);

/// The radii of the `count` points of a path, out of fewer or more that are spread evenly over it.
std::vector<double> radiiAlong(const std::vector<double>& given, std::size_t count);

/// The triangles of a simple polygon in the XY plane, in the polygon's own turning sense.
std::vector<std::array<std::uint32_t, 3>> triangulate(const std::vector<Vec>& outline);

/// Twice the area; positive when the outline runs counter-clockwise.
double doubleArea(const std::vector<Vec>& outline);

}  // namespace nerida::library
