#pragma once

#include <array>
#include <cmath>

namespace nerida {

struct Vec2 {
  float x = 0, y = 0;
};

struct Vec3 {
  float x = 0, y = 0, z = 0;
};

constexpr Vec3 operator+(Vec3 a, Vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
constexpr Vec3 operator-(Vec3 a, Vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
constexpr Vec3 operator-(Vec3 a) { return {-a.x, -a.y, -a.z}; }
constexpr Vec3 operator*(Vec3 a, float s) { return {a.x * s, a.y * s, a.z * s}; }
/// Component by component, as colours are filtered.
constexpr Vec3 operator*(Vec3 a, Vec3 b) { return {a.x * b.x, a.y * b.y, a.z * b.z}; }
constexpr float dot(Vec3 a, Vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
constexpr Vec3 cross(Vec3 a, Vec3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
constexpr Vec3 mix(Vec3 a, Vec3 b, float t) { return a + (b - a) * t; }
inline float length(Vec3 a) { return std::sqrt(dot(a, a)); }

/// A vector without a direction stays as it is.
inline Vec3 normalized(Vec3 a) {
  const float size = length(a);
  return size > 0 ? a * (1.0F / size) : a;
}

inline bool isFinite(Vec3 a) { return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z); }

/// Rotation (and scale) as three rows.
struct Mat3 {
  Vec3 rowX{1, 0, 0}, rowY{0, 1, 0}, rowZ{0, 0, 1};

  [[nodiscard]] constexpr Mat3 transposed() const {
    return {{rowX.x, rowY.x, rowZ.x}, {rowX.y, rowY.y, rowZ.y}, {rowX.z, rowY.z, rowZ.z}};
  }
};

constexpr Vec3 operator*(const Mat3& m, Vec3 v) { return {dot(m.rowX, v), dot(m.rowY, v), dot(m.rowZ, v)}; }
constexpr Mat3 operator*(const Mat3& a, const Mat3& b) {
  const Mat3 columns = b.transposed();
  return {columns * a.rowX, columns * a.rowY, columns * a.rowZ};
}

/// An affine map: linear part, then offset.
struct Affine {
  Mat3 linear;
  Vec3 offset;
};

constexpr Vec3 operator*(const Affine& m, Vec3 v) { return m.linear * v + m.offset; }
constexpr Affine operator*(const Affine& a, const Affine& b) { return {a.linear * b.linear, a * b.offset}; }

}  // namespace nerida
