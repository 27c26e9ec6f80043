#include "host/library/obj_import.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <tuple>

#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/obj_reader.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr double defaultCrease = 50;
constexpr std::size_t mostTriangles = 1'000'000;

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

/// Finds the material files that lie beside the model, and remembers those that do not.
class MaterialsBeside : public tinyobj::MaterialReader {
 public:
  MaterialsBeside(fs::path folder, std::vector<std::string>& missing) : beside(std::move(folder)), remarks(missing) {}

  bool operator()(const std::string& name, std::vector<tinyobj::material_t>* materials,
                  std::map<std::string, int>* numbers, std::string* warning, std::string* error) override {
    const std::optional<std::string> text = readWhole(beside / pathOf(name));
    if (!text) {
      remarks.push_back("the materials " + name + " cannot be found; the model gets a plain colour");
      return false;
    }
    std::istringstream stream(*text);
    tinyobj::LoadMtl(numbers, materials, &stream, warning, error);
    return true;
  }

 private:
  fs::path beside;
  std::vector<std::string>& remarks;
};

struct Source {
  tinyobj::attrib_t points;
  std::vector<tinyobj::shape_t> shapes;
  std::vector<tinyobj::material_t> materials;
};

Source parse(const fs::path& file, std::vector<std::string>& remarks) {
  const std::optional<std::string> text = readWhole(file);
  if (!text) throw LibraryError(file.string() + ": cannot be read");
  Source source;
  std::istringstream stream(*text);
  MaterialsBeside reader(file.parent_path(), remarks);
  std::string warning, error;
  constexpr bool intoTriangles = true, withDefaultColors = false;
  const bool done = tinyobj::LoadObj(&source.points, &source.shapes, &source.materials, &warning, &error, &stream,
                                     &reader, intoTriangles, withDefaultColors);
  if (!done) throw LibraryError(file.string() + ": is not an OBJ file that can be read");
  return source;
}

std::string imageTypeOf(const std::string& bytes) {
  if (bytes.rfind("\x89PNG", 0) == 0) return "image/png";
  if (bytes.rfind("\xFF\xD8\xFF", 0) == 0) return "image/jpeg";
  return {};
}

Paint paintOf(const tinyobj::material_t& material, const fs::path& folder, std::vector<std::string>& remarks) {
  Paint paint;
  paint.name = material.name;
  paint.red = std::clamp<double>(material.diffuse[0], 0, 1);
  paint.green = std::clamp<double>(material.diffuse[1], 0, 1);
  paint.blue = std::clamp<double>(material.diffuse[2], 0, 1);
  paint.doubleSided = true;  // OBJ files do not say which side is meant
  if (material.diffuse_texname.empty()) return paint;
  std::string name = material.diffuse_texname;
  std::ranges::replace(name, '\\', '/');
  paint.image = readWhole(folder / pathOf(name)).value_or("");
  paint.imageType = imageTypeOf(paint.image);
  if (paint.imageType.empty()) {
    remarks.push_back("the picture " + material.diffuse_texname + " cannot be used; its colour is left out");
    paint.image.clear();
  }
  return paint;
}

/// Brings the triangles of one shape into the surfaces of their paints.
class Collector {
 public:
  Collector(const Source& from, BuiltModel& into) : source(from), model(into) {}

  void add(const tinyobj::mesh_t& shape) {
    const std::size_t faces = shape.indices.size() / 3;
    count += faces;
    if (count > mostTriangles) throw LibraryError("the model has more than a million triangles");
    for (std::size_t face = 0; face < faces; ++face) collect(shape, face);
    smooth();
    for (std::size_t face = 0; face < corners.size() / 3; ++face) emit(face);
    mesh = {};
    corners.clear();
    paints.clear();
    seen.clear();
  }

 private:
  struct Corner {
    tinyobj::index_t index;
    Vec normal;
  };
  using Key = std::tuple<int, int, long long, long long, long long, std::size_t>;

  void collect(const tinyobj::mesh_t& shape, std::size_t face) {
    std::array<std::uint32_t, 3> triangle{};
    for (std::size_t i = 0; i < 3; ++i) {
      const tinyobj::index_t index = shape.indices[face * 3 + i];
      triangle[i] = mesh.add(pointAt(index.vertex_index));
      corners.push_back({index, {}});
    }
    mesh.triangles.push_back(triangle);
    const int material = face < shape.material_ids.size() ? shape.material_ids[face] : -1;
    const bool known = material >= 0 && static_cast<std::size_t>(material) < source.materials.size();
    paints.push_back(known ? static_cast<std::size_t>(material) : source.materials.size());
  }

  [[nodiscard]] Vec pointAt(int index) const {
    const std::size_t at = static_cast<std::size_t>(index) * 3;
    if (index < 0 || at + 2 >= source.points.vertices.size())
      throw LibraryError("a face names a point that is not there");
    const auto& values = source.points.vertices;
    const Vec point{values[at], values[at + 1], values[at + 2]};
    if (!std::isfinite(point.x + point.y + point.z)) throw LibraryError("a point is infinitely far away");
    return point;
  }

  /// The file's own normal, unless it is missing or no direction.
  [[nodiscard]] Vec normalAt(int index) const {
    const std::size_t at = static_cast<std::size_t>(std::max(index, 0)) * 3;
    if (index < 0 || at + 2 >= source.points.normals.size()) return {};
    const auto& values = source.points.normals;
    const Vec normal = normalized({values[at], values[at + 1], values[at + 2]});
    return std::isfinite(normal.x + normal.y + normal.z) ? normal : Vec{};
  }

  void smooth() {
    const std::vector<Vec> made = cornerNormals(mesh, defaultCrease);
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const Vec own = normalAt(corners[i].index.normal_index);
      corners[i].normal = length(own) > 0 ? own : made[i];
    }
  }

  void emit(std::size_t face) {
    Surface& surface = model.root.surfaces[paints[face]];
    const bool pictured = !model.paints[paints[face]].image.empty();
    for (std::size_t i = face * 3; i < face * 3 + 3; ++i) {
      const auto& [index, normal] = corners[i];
      constexpr double grid = 1e4;
      const Key key{index.vertex_index,
                    index.texcoord_index,
                    std::llround(normal.x * grid),
                    std::llround(normal.y * grid),
                    std::llround(normal.z * grid),
                    paints[face]};
      const auto next = static_cast<std::uint32_t>(surface.points.size());
      const auto [found, isNew] = seen.try_emplace(key, next);
      if (isNew) {
        surface.points.push_back(mesh.points[i]);
        surface.normals.push_back(length(normal) > 0 ? normal : Vec{0, 1, 0});
        if (pictured) surface.imagePlaces.push_back(imagePlace(index.texcoord_index));
      }
      surface.indices.push_back(found->second);
    }
  }

  [[nodiscard]] std::array<float, 2> imagePlace(int index) const {
    const std::size_t at = static_cast<std::size_t>(std::max(index, 0)) * 2;
    const auto& values = source.points.texcoords;
    if (index < 0 || at + 1 >= values.size()) return {0, 0};
    const auto sane = [](float v) { return std::isfinite(v) ? v : 0.0F; };
    return {sane(values[at]), 1 - sane(values[at + 1])};  // OBJ counts from the lower edge
  }

  const Source& source;
  BuiltModel& model;
  Mesh mesh;
  std::vector<Corner> corners;
  std::vector<std::size_t> paints;
  std::map<Key, std::uint32_t> seen;
  std::size_t count = 0;
};

}  // namespace

BuiltModel importObj(const fs::path& file, std::vector<std::string>& remarks) {
  const Source source = parse(file, remarks);
  BuiltModel model;
  for (const tinyobj::material_t& material : source.materials) {
    model.paints.push_back(paintOf(material, file.parent_path(), remarks));
  }
  model.paints.push_back({.name = "plain", .doubleSided = true, .image = {}, .imageType = {}});
  try {
    Collector collector(source, model);
    for (const tinyobj::shape_t& shape : source.shapes) collector.add(shape.mesh);
  } catch (const LibraryError& error) {
    throw LibraryError(file.string() + ": " + error.what());
  }
  if (triangleCount(model.root) == 0) throw LibraryError(file.string() + ": the model is empty");
  fitIntoUnitSphere(model);
  return model;
}

}  // namespace nerida::library
