#pragma once

#include <functional>

#include "host/library/geometry.h"

namespace nerida::library {

/// A solid as a function: the distance to its surface, negative inside.
using Distance = std::function<double(const Vec&)>;

/// The surface of a solid that lies between two corners, on a grid with `cells` along the longest side.
Mesh meshOf(const Distance& distance, const Vec& low, const Vec& high, int cells);

}  // namespace nerida::library
