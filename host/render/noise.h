#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace nerida {

/// A number from 0 to 1 that belongs to the grid point, the same on every machine and in every frame.
inline float grain(int x, int y) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
  h ^= h >> 15U;
  h *= 0x2C1B3C6DU;
  h ^= h >> 13U;
  h *= 0x297A2D39U;
  h ^= h >> 16U;
  return static_cast<float>(h >> 8U) * (1.0F / 16777216.0F);
}

/// Leaves 0 and arrives at 1 without a bend.
constexpr float eased(float t) { return t * t * (3 - 2 * t); }

/// As grain(), with soft transitions between the grid points.
inline float softGrain(float x, float y) {
  const float floorX = std::floor(x), floorY = std::floor(y);
  const auto column = static_cast<int>(floorX), line = static_cast<int>(floorY);
  const float u = eased(x - floorX), v = eased(y - floorY);
  const float top = grain(column, line) * (1 - u) + grain(column + 1, line) * u;
  const float bottom = grain(column, line + 1) * (1 - u) + grain(column + 1, line + 1) * u;
  return top * (1 - v) + bottom * v;
}

/// Values that are made once and laid out again and again, like sheets side by side.
class Sheet {
 public:
  template <class MakeValue>
  explicit Sheet(MakeValue valueAt) {
    for (int i = 0; i < side * side; ++i) values[static_cast<std::size_t>(i)] = valueAt(i % side, i / side);
  }

  [[nodiscard]] float operator()(int x, int y) const {
    const auto column = static_cast<std::size_t>(x & (side - 1)), line = static_cast<std::size_t>(y & (side - 1));
    return values[line * side + column];
  }

  static constexpr int side = 256;

 private:
  std::array<float, side * side> values;
};

/// The unevenness of drawing paper, 0 to 1.
const Sheet& paperGrain();

/// Soft patches, 0 to 1, about a tenth of the sheet wide; they go on over its borders.
const Sheet& patches();

}  // namespace nerida
