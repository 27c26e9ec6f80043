#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// Cuts a flat face into triangles that run as its outline does; dents stay dents. An outline that crosses itself is
/// filled somehow. Fewer than three corners give nothing.
std::vector<std::array<std::uint32_t, 3>> trianglesOfPolygon(const std::vector<Vec>& outline);

}  // namespace nerida::library
