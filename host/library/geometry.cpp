#include "host/library/geometry.h"

#include <cmath>
#include <numbers>

namespace nerida::library {

double length(const Vec& a) { return std::sqrt(dot(a, a)); }

Vec normalized(const Vec& a) {
  const double size = length(a);
  return size > 0 ? a * (1 / size) : a;
}

Quaternion operator*(const Quaternion& a, const Quaternion& b) {
  return {a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y, a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x,
          a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w, a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z};
}

Quaternion quaternionOfTurn(const Vec& degrees) {
  const Vec half = degrees * (std::numbers::pi / 360);
  const Quaternion x{std::sin(half.x), 0, 0, std::cos(half.x)};
  const Quaternion y{0, std::sin(half.y), 0, std::cos(half.y)};
  const Quaternion z{0, 0, std::sin(half.z), std::cos(half.z)};
  return z * (y * x);
}

Transform Transform::shift(const Vec& by) {
  Transform result;
  result.rows[0][3] = by.x;
  result.rows[1][3] = by.y;
  result.rows[2][3] = by.z;
  return result;
}

Transform Transform::scale(const Vec& by) {
  Transform result;
  result.rows[0][0] = by.x;
  result.rows[1][1] = by.y;
  result.rows[2][2] = by.z;
  return result;
}

Transform Transform::turn(const Quaternion& by) {
  const auto [x, y, z, w] = by;
  Transform result;
  result.rows[0] = {1 - 2 * (y * y + z * z), 2 * (x * y - z * w), 2 * (x * z + y * w), 0};
  result.rows[1] = {2 * (x * y + z * w), 1 - 2 * (x * x + z * z), 2 * (y * z - x * w), 0};
  result.rows[2] = {2 * (x * z - y * w), 2 * (y * z + x * w), 1 - 2 * (x * x + y * y), 0};
  return result;
}

Vec Transform::apply(const Vec& point) const {
  const auto row = [&](const std::array<double, 4>& r) {
    return r[0] * point.x + r[1] * point.y + r[2] * point.z + r[3];
  };
  return {row(rows[0]), row(rows[1]), row(rows[2])};
}

bool Transform::mirrors() const {
  const auto axis = [&](std::size_t row) { return Vec{rows[row][0], rows[row][1], rows[row][2]}; };
  return dot(axis(0), cross(axis(1), axis(2))) < 0;
}

bool Transform::isIdentity() const { return rows == Transform{}.rows; }

Transform operator*(const Transform& outer, const Transform& inner) {
  Transform result;
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      double sum = column == 3 ? outer.rows[row][3] : 0;
      for (std::size_t k = 0; k < 3; ++k) sum += outer.rows[row][k] * inner.rows[k][column];
      result.rows[row][column] = sum;
    }
  }
  return result;
}

std::uint32_t Mesh::add(const Vec& point) {
  points.push_back(point);
  return static_cast<std::uint32_t>(points.size() - 1);
}

void Mesh::addTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  constexpr double leastArea = 1e-10;
  if (length(cross(points[b] - points[a], points[c] - points[a])) > leastArea) triangles.push_back({a, b, c});
}

void Mesh::addQuad(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  addTriangle(a, b, c);
  addTriangle(a, c, d);
}

void Mesh::map(const Transform& by) {
  for (Vec& point : points) point = by.apply(point);
  if (!by.mirrors()) return;
  for (auto& triangle : triangles) std::swap(triangle[1], triangle[2]);
}

}  // namespace nerida::library
