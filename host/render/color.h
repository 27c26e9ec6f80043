#pragma once

#include <cstdint>

namespace nerida {

/// A colour as automation passes it: red + 256 * green + 65536 * blue.
using PackedRgb = std::uint32_t;

constexpr PackedRgb makeRgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8U | blue << 16U; }
constexpr unsigned redOf(PackedRgb color) { return color & 0xFFU; }
constexpr unsigned greenOf(PackedRgb color) { return color >> 8U & 0xFFU; }
constexpr unsigned blueOf(PackedRgb color) { return color >> 16U & 0xFFU; }

}  // namespace nerida
