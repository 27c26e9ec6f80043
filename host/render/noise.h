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

/// The same with soft transitions between the grid points.
inline float softGrain(float x, float y) {
  const float floorX = std::floor(x), floorY = std::floor(y);
  const auto column = static_cast<int>(floorX), line = static_cast<int>(floorY);
  const auto ease = [](float t) { return t * t * (3 - 2 * t); };
  const float u = ease(x - floorX), v = ease(y - floorY);
  const float top = grain(column, line) * (1 - u) + grain(column + 1, line) * u;
  const float bottom = grain(column, line + 1) * (1 - u) + grain(column + 1, line + 1) * u;
  return top * (1 - v) + bottom * v;
}

/// The unevenness of drawing paper, 0 to 1: a sheet that is made once and laid out again and again.
inline float paperGrain(int x, int y) {
  constexpr int side = 256;
  static const auto sheet = [] {
    std::array<float, side * side> values{};
    for (int i = 0; i < side * side; ++i) {
      const int column = i % side, line = i / side;
      const float soft = softGrain(static_cast<float>(column) * 0.3F, static_cast<float>(line) * 0.3F);
      values[static_cast<std::size_t>(i)] = (soft + grain(column, line)) / 2;
    }
    return values;
  }();
  const auto line = static_cast<std::size_t>(y & (side - 1)), column = static_cast<std::size_t>(x & (side - 1));
  return sheet[line * side + column];
}

}  // namespace nerida
