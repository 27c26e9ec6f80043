#include "host/library/obj_import.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/obj_file.h"
#include "host/library/obj_materials.h"
#include "host/library/polygon.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr double defaultCrease = 50;
constexpr std::size_t mostTriangles = 1'000'000;

/// Screens show a number's 2.2nd power, more or less; the file has the numbers.
std::array<float, 3> lightOf(const std::array<double, 3>& colour) {
  std::array<float, 3> light{};
  for (std::size_t i = 0; i < 3; ++i) {
    constexpr double linearEnd = 0.04045, slope = 12.92, offset = 0.055, exponent = 2.4;
    const double value = colour[i];
    light[i] =
        static_cast<float>(value <= linearEnd ? value / slope : std::pow((value + offset) / (1 + offset), exponent));
  }
  return light;
}

/// Brings the places into about the unit cube: what follows compares places, and points far from the origin or tiny
/// models would all be one.
void bringNear(std::vector<Vec>& points) {
  constexpr double most = std::numeric_limits<double>::max();
  Vec low{most, most, most}, high{-most, -most, -most};
  for (const Vec& p : points) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
  }
  const Vec size = high - low;
  const double largest = std::max({size.x, size.y, size.z});
  if (!std::isfinite(largest)) throw LibraryError("a point is infinitely far away");
  if (!std::isfinite(1 / largest)) return;  // all in one place
  for (Vec& p : points) p = (p - low) * (1 / largest);
}

/// Cuts the faces into triangles and sorts these by their paints.
class Collector {
 public:
  Collector(const ObjFile& from, const ObjMaterials& materials, BuiltModel& into) : source(from), model(into) {
    for (const std::string& name : source.materialNames) paintNumbers.push_back(materials.paintOf(name));
    takeUsedPoints();
    for (const ObjFace& face : source.faces) cut(face);
    smooth();
    for (std::size_t face = 0; face < mesh.triangles.size(); ++face) emit(face);
  }

 private:
  struct Corner {
    ObjCorner place;
    Vec normal;
  };
  using Key = std::tuple<int, int, long long, long long, long long, std::size_t>;

  /// Stray points that no face touches must not decide how large the model is.
  void takeUsedPoints() {
    numbers.assign(source.points.size(), -1);
    for (const ObjFace& face : source.faces) {
      for (std::size_t i = face.firstCorner; i < face.firstCorner + face.cornerCount; ++i) {
        int& number = numbers[static_cast<std::size_t>(source.corners[i].point)];
        if (number >= 0) continue;
        number = static_cast<int>(mesh.points.size());
        mesh.points.push_back(source.points[static_cast<std::size_t>(source.corners[i].point)]);
      }
    }
    bringNear(mesh.points);
  }

  [[nodiscard]] std::uint32_t pointOf(const ObjCorner& corner) const {
    return static_cast<std::uint32_t>(numbers[static_cast<std::size_t>(corner.point)]);
  }

  void cut(const ObjFace& face) {
    std::vector<Vec> outline;
    for (std::size_t i = 0; i < face.cornerCount; ++i) {
      outline.push_back(mesh.points[pointOf(source.corners[face.firstCorner + i])]);
    }
    for (const auto& triangle : trianglesOfPolygon(outline)) {
      const auto at = [&](std::size_t i) -> const ObjCorner& { return source.corners[face.firstCorner + triangle[i]]; };
      const Vec &a = outline[triangle[0]], &b = outline[triangle[1]], &c = outline[triangle[2]];
      if (length(cross(b - a, c - a)) <= 0) continue;
      if (mesh.triangles.size() == mostTriangles) throw LibraryError("the model has more than a million triangles");
      mesh.triangles.push_back({pointOf(at(0)), pointOf(at(1)), pointOf(at(2))});
      for (std::size_t i = 0; i < 3; ++i) corners.push_back({at(i), {}});
      paints.push_back(face.material < 0 ? 0 : paintNumbers[static_cast<std::size_t>(face.material)]);
    }
  }

  /// The file's own normals, unless they are missing or no directions.
  void smooth() {
    const std::vector<Vec> made = cornerNormals(mesh, defaultCrease);
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const int own = corners[i].place.normal;
      corners[i].normal = own < 0 ? Vec{} : source.normals[static_cast<std::size_t>(own)];
      if (length(corners[i].normal) <= 0) corners[i].normal = made[i];
    }
  }

  void emit(std::size_t face) {
    Surface& surface = model.root.surfaces[paints[face]];
    const bool pictured = !model.paints[paints[face]].image.empty();
    for (std::size_t i = face * 3; i < face * 3 + 3; ++i) {
      const auto& [place, normal] = corners[i];
      constexpr double grid = 1e4;
      const Key key{place.point,
                    pictured ? place.image : -1,
                    std::llround(normal.x * grid),
                    std::llround(normal.y * grid),
                    std::llround(normal.z * grid),
                    paints[face]};
      const auto next = static_cast<std::uint32_t>(surface.points.size());
      const auto [found, isNew] = seen.try_emplace(key, next);
      if (isNew) {
        surface.points.push_back(mesh.points[mesh.triangles[face][i % 3]]);
        surface.normals.push_back(length(normal) > 0 ? normal : Vec{0, 1, 0});
        if (pictured) surface.imagePlaces.push_back(imagePlace(place.image));
        if (!source.colours.empty()) {
          surface.colours.push_back(lightOf(source.colours[static_cast<std::size_t>(place.point)]));
        }
      }
      surface.indices.push_back(found->second);
    }
  }

  [[nodiscard]] std::array<float, 2> imagePlace(int index) const {
    return index < 0 ? std::array<float, 2>{} : source.imagePlaces[static_cast<std::size_t>(index)];
  }

  const ObjFile& source;
  BuiltModel& model;
  std::vector<std::size_t> paintNumbers;  ///< of the file's materials
  std::vector<int> numbers;               ///< of the file's points within the mesh; -1 = not used
  Mesh mesh;
  std::vector<Corner> corners;
  std::vector<std::size_t> paints;
  std::map<Key, std::uint32_t> seen;
};

BuiltModel builtFrom(const std::string& text, const fs::path& folder, std::vector<std::string>& remarks) {
  const ObjFile source = readObj(text);
  if (source.faces.empty()) throw LibraryError("the model is empty");
  ObjMaterials materials(folder, remarks);
  for (const std::string& names : source.materialFiles) materials.readFiles(names);
  BuiltModel model;
  model.paints = materials.paints;
  Paint& plain = model.paints.front();
  if (!source.colours.empty()) plain.red = plain.green = plain.blue = 1;  // the points' colours are seen through it
  const Collector collector(source, materials, model);
  if (triangleCount(model.root) == 0) throw LibraryError("the model is empty");
  fitIntoUnitSphere(model);
  return model;
}

}  // namespace

BuiltModel importObj(const fs::path& file, std::vector<std::string>& remarks) {
  const std::optional<std::string> text = readWhole(file);
  if (!text) throw LibraryError(file.string() + ": cannot be read");
  try {
    return builtFrom(*text, file.parent_path(), remarks);
  } catch (const LibraryError& error) {
    throw LibraryError(file.string() + ": " + error.what());
  }
}

}  // namespace nerida::library
