#pragma once

#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// A box that stands on the origin; `round` is the radius of its edges.
Mesh makeBox(const Vec& size, double round);

/// Centred at the origin.
Mesh makeSphere(double radius, int segments);

/// Stands on the origin and narrows (or widens) to `topRadius`; `round` is the radius of its rims.
Mesh makeCylinder(double radius, double topRadius, double height, double round, int segments);

/// A ring around the vertical axis, centred at the origin.
Mesh makeTorus(double radius, double tube, int segments, int sides);

/// Turns a profile (x = distance from the axis, y = height) about the vertical axis. A profile that runs upwards
/// faces outwards.
Mesh makeLathe(const std::vector<Vec>& profile, bool closedProfile, int segments);

/// An outline in the XY plane, made `depth` thick to both sides of it; `bevel` rounds the rims.
Mesh makeExtrusion(std::vector<Vec> outline, double depth, double bevel);

/// A tube along a path, with a radius for each point of the path. An open tube has round ends.
Mesh makeTube(const std::vector<Vec>& path, const std::vector<double>& radii, bool closed, int sides);

}  // namespace nerida::library
