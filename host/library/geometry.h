#pragma once

#include <array>
#include <cstdint>
#include <numbers>
#include <vector>

namespace nerida::library {

inline constexpr double pi = std::numbers::pi;

struct Vec {
  double x = 0, y = 0, z = 0;
};

inline Vec operator+(const Vec& a, const Vec& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vec operator-(const Vec& a, const Vec& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vec operator*(const Vec& a, double factor) { return {a.x * factor, a.y * factor, a.z * factor}; }
inline double dot(const Vec& a, const Vec& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec cross(const Vec& a, const Vec& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double length(const Vec& a);
Vec normalized(const Vec& a);  ///< the null vector stays

struct Quaternion {
  double x = 0, y = 0, z = 0, w = 1;
};

Quaternion operator*(const Quaternion& a, const Quaternion& b);
/// Turns by degrees about x, then y, then z.
Quaternion quaternionOfTurn(const Vec& degrees);

/// An affine map: three rows of four columns, the last column is the shift.
struct Transform {
  std::array<std::array<double, 4>, 3> rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}};

  static Transform shift(const Vec& by);
  static Transform scale(const Vec& by);
  static Transform turn(const Quaternion& by);

  [[nodiscard]] Vec apply(const Vec& point) const;
  [[nodiscard]] bool mirrors() const;
  [[nodiscard]] bool isIdentity() const;
};

Transform operator*(const Transform& outer, const Transform& inner);

/// Triangles run counter-clockwise seen from outside.
struct Mesh {
  std::vector<Vec> points;
  std::vector<std::array<std::uint32_t, 3>> triangles;

  std::uint32_t add(const Vec& point);
  /// Leaves out triangles that have no area.
  void addTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c);
  void addQuad(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d);
  void map(const Transform& by);
};

/// A mesh ready for drawing: one normal for each point.
struct Surface {
  std::vector<Vec> points;
  std::vector<Vec> normals;
  std::vector<std::uint32_t> indices;
  std::vector<std::array<float, 2>> imagePlaces;  ///< where each point lies on its paint's picture; or empty
  std::vector<std::array<float, 3>> colours;      ///< of each point, linear light; or empty

  void append(const Surface& other);
};

/// The normals of all triangles' corners, three for each triangle.
std::vector<Vec> cornerNormals(const Mesh& mesh, double creaseDegrees);

/// Neighbouring faces that meet at less than `creaseDegrees` share their normals; sharper edges stay edges.
Surface withNormals(const Mesh& mesh, double creaseDegrees);

}  // namespace nerida::library
