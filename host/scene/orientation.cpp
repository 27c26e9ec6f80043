#include "host/scene/orientation.h"

#include <algorithm>
#include <numbers>

namespace nerida {
namespace {

constexpr int fullTurn = 36'000;

struct Direction {
  float cosine, sine;
};

Direction directionOf(int angle) {
  const double radians = (angle % fullTurn) * (2 * std::numbers::pi / fullTurn);
  return {static_cast<float>(std::cos(radians)), static_cast<float>(std::sin(radians))};
}

int angleOf(float sine, float cosine) {
  const auto angle = static_cast<int>(std::lround(std::atan2(sine, cosine) * fullTurn / (2 * std::numbers::pi)));
  return (angle + fullTurn) % fullTurn;
}

}  // namespace

Mat3 tiltUp(int angle) {
  const auto [c, s] = directionOf(angle);
  return {{1, 0, 0}, {0, c, s}, {0, -s, c}};
}

Mat3 turnLeft(int angle) {
  const auto [c, s] = directionOf(angle);
  return {{c, 0, -s}, {0, 1, 0}, {s, 0, c}};
}

Mat3 turnClockwise(int angle) {
  const auto [c, s] = directionOf(angle);
  return {{c, s, 0}, {-s, c, 0}, {0, 0, 1}};
}

Mat3 rotationOf(Orientation orientation) {
  return turnClockwise(orientation.z) * (tiltUp(orientation.x) * turnLeft(orientation.y));
}

Orientation orientationOf(const Mat3& m) {
  // The last row of the product is (cos x sin y, -sin x, cos x cos y); its second column is (sin z cos x, cos z cos x).
  const float sineX = std::clamp(-m.rowZ.y, -1.0F, 1.0F);
  const float cosineX = std::hypot(m.rowZ.x, m.rowZ.z);
  constexpr float nearlyUpright = 1e-4F;
  const int x = angleOf(sineX, cosineX);
  if (cosineX > nearlyUpright) return {x, angleOf(m.rowZ.x, m.rowZ.z), angleOf(m.rowX.y, m.rowY.y)};
  // Seen exactly from above or below, y and z turn about the same axis: all of it goes to y.
  return {x, angleOf(-m.rowX.z, m.rowX.x), 0};
}

Mat3 straightened(const Mat3& m) {
  const Vec3 x = normalized(m.rowX);
  const Vec3 z = normalized(cross(x, m.rowY));
  return {x, cross(z, x), z};
}

}  // namespace nerida
