#pragma once

#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

// Outlines in the XY plane that are hard to write down by hand, all counter-clockwise and centred at the origin.

/// A star of `points` points, the first one upwards.
std::vector<Vec> starOutline(int points, double outer, double inner);

/// A cogwheel.
std::vector<Vec> gearOutline(int teeth, double outer, double inner);

/// As high as it is wide: `size` to each side.
std::vector<Vec> heartOutline(double size);

/// A slice of a disc, from one angle to another in degrees (0 = to the right, 90 = up).
std::vector<Vec> sliceOutline(double radius, double from, double to);

}  // namespace nerida::library
