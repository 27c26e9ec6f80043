#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <tuple>

#include "host/library/geometry.h"

namespace nerida::library {
namespace {

using Place = std::tuple<long long, long long, long long>;

Place placeOf(const Vec& point) {
  constexpr double grid = 1e6;
  return {std::llround(point.x * grid), std::llround(point.y * grid), std::llround(point.z * grid)};
}

struct Corner {
  std::size_t face = 0;
  Vec weighted;  ///< the face's normal times the angle that the face takes up at this corner
};

double angleAt(const Vec& corner, const Vec& left, const Vec& right) {
  const double cosine = dot(normalized(left - corner), normalized(right - corner));
  return std::acos(std::clamp(cosine, -1.0, 1.0));
}

class Smoother {
 public:
  Smoother(const Mesh& shape, double creaseDegrees)
      : mesh(shape), leastCosine(std::cos(creaseDegrees * std::numbers::pi / 180)) {
    weldPoints();
    for (std::size_t face = 0; face < mesh.triangles.size(); ++face) addFace(face);
  }

  [[nodiscard]] std::vector<Vec> ofCorners() const {
    std::vector<Vec> normals;
    for (std::size_t face = 0; face < mesh.triangles.size(); ++face) {
      for (const std::uint32_t point : mesh.triangles[face]) normals.push_back(normalAt(point, face));
    }
    return normals;
  }

  Surface smoothed() {
    for (std::size_t face = 0; face < mesh.triangles.size(); ++face) {
      for (const std::uint32_t point : mesh.triangles[face]) emit(point, normalAt(point, face));
    }
    return std::move(surface);
  }

 private:
  void weldPoints() {
    std::map<Place, std::size_t> seen;
    for (const Vec& point : mesh.points) {
      welded.push_back(seen.try_emplace(placeOf(point), seen.size()).first->second);
    }
    corners.resize(seen.size());
  }

  void addFace(std::size_t face) {
    const auto& triangle = mesh.triangles[face];
    const Vec points[3] = {mesh.points[triangle[0]], mesh.points[triangle[1]], mesh.points[triangle[2]]};
    faceNormals.push_back(normalized(cross(points[1] - points[0], points[2] - points[0])));
    for (std::size_t i = 0; i < 3; ++i) {
      const double angle = angleAt(points[i], points[(i + 1) % 3], points[(i + 2) % 3]);
      corners[welded[triangle[i]]].push_back({face, faceNormals.back() * angle});
    }
  }

  Vec normalAt(std::uint32_t point, std::size_t face) const {
    Vec sum;
    for (const Corner& corner : corners[welded[point]]) {
      if (dot(faceNormals[corner.face], faceNormals[face]) >= leastCosine) sum = sum + corner.weighted;
    }
    const Vec normal = normalized(sum);
    return length(normal) > 0 ? normal : faceNormals[face];
  }

  void emit(std::uint32_t point, const Vec& normal) {
    const auto key = std::make_pair(welded[point], placeOf(normal));
    const auto next = static_cast<std::uint32_t>(surface.points.size());
    const auto [found, isNew] = emitted.try_emplace(key, next);
    if (isNew) {
      surface.points.push_back(mesh.points[point]);
      surface.normals.push_back(normal);
    }
    surface.indices.push_back(found->second);
  }

  const Mesh& mesh;
  double leastCosine;
  std::vector<std::size_t> welded;
  std::vector<std::vector<Corner>> corners;
  std::vector<Vec> faceNormals;
  std::map<std::pair<std::size_t, Place>, std::uint32_t> emitted;
  Surface surface;
};

}  // namespace

void Surface::append(const Surface& other) {
  const auto base = static_cast<std::uint32_t>(points.size());
  points.insert(points.end(), other.points.begin(), other.points.end());
  normals.insert(normals.end(), other.normals.begin(), other.normals.end());
  for (const std::uint32_t index : other.indices) indices.push_back(base + index);
}

std::vector<Vec> cornerNormals(const Mesh& mesh, double creaseDegrees) {
  return Smoother(mesh, creaseDegrees).ofCorners();
}

Surface withNormals(const Mesh& mesh, double creaseDegrees) { return Smoother(mesh, creaseDegrees).smoothed(); }

}  // namespace nerida::library
