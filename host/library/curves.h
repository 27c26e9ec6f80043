#pragma once

#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// A smooth curve through all `points`, each span cut into `steps` pieces. An open curve keeps its ends.
std::vector<Vec> smoothCurve(const std::vector<Vec>& points, int steps, bool closed);

/// The triangles of a simple polygon in the XY plane, in the polygon's own turning sense.
std::vector<std::array<std::uint32_t, 3>> triangulate(const std::vector<Vec>& outline);

/// Twice the area; positive when the outline runs counter-clockwise.
double doubleArea(const std::vector<Vec>& outline);

}  // namespace nerida::library
