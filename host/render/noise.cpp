#include "host/render/noise.h"

namespace nerida {
namespace {

/// Soft noise with that many grid points across the sheet, the last of them being the first again.
float seamlessGrain(int x, int y, int points) {
  const float scale = static_cast<float>(points) / Sheet::side;
  const float column = static_cast<float>(x) * scale, line = static_cast<float>(y) * scale;
  const auto at = [&](int right, int down) {
    return grain((static_cast<int>(column) + right) % points, (static_cast<int>(line) + down) % points);
  };
  const float u = eased(column - std::floor(column)), v = eased(line - std::floor(line));
  const float top = at(0, 0) * (1 - u) + at(1, 0) * u, bottom = at(0, 1) * (1 - u) + at(1, 1) * u;
  return top * (1 - v) + bottom * v;
}

}  // namespace

const Sheet& paperGrain() {
  static const Sheet sheet([](int x, int y) {
    return (softGrain(static_cast<float>(x) * 0.3F, static_cast<float>(y) * 0.3F) + grain(x, y)) / 2;
  });
  return sheet;
}

const Sheet& patches() {
  static const Sheet sheet(
      [](int x, int y) { return 0.65F * seamlessGrain(x, y, 9) + 0.35F * seamlessGrain(x, y, 23); });
  return sheet;
}

}  // namespace nerida
