#include "host/library/glb_writer.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <nlohmann/json.hpp>

namespace nerida::library {
namespace {

using nlohmann::json;

static_assert(std::endian::native == std::endian::little, "glTF stores little-endian numbers");

enum ComponentType { unsignedShort = 5123, unsignedInt = 5125, floating = 5126 };
enum Target { vertexData = 34962, indexData = 34963, otherData = 0 };

double onGrid(double value) {
  constexpr double grid = 65536;
  return std::nearbyint(value * grid) / grid + 0.0;  // never -0
}

double turnOnGrid(double value) {
  constexpr double grid = 1 << 20;
  return std::nearbyint(value * grid) / grid + 0.0;
}

template <typename T>
void put(std::string& bytes, T value) {
  const auto raw = std::bit_cast<std::array<char, sizeof(T)>>(value);
  bytes.append(raw.begin(), raw.end());
}

class Writer {
 public:
  explicit Writer(const BuiltModel& source) : model(source) {
    document["asset"] = {{"version", "2.0"}, {"generator", "zephra-library"}};
    if (model.frames > 0) document["asset"]["extras"] = {{"framesPerSecond", model.framesPerSecond}};
  }

  std::string write() {
    for (const Paint& paint : model.paints) addPaint(paint);
    const std::size_t root = addNode(model.root);
    document["scenes"] = json::array({{{"nodes", {root}}}});
    document["scene"] = 0;
    if (!channels.empty()) {
      document["animations"] = json::array({{{"name", "motion"}, {"samplers", samplers}, {"channels", channels}}});
    }
    document["buffers"] = json::array({{{"byteLength", binary.size()}}});
    return file();
  }

 private:
  void addPaint(const Paint& paint) {
    const auto rounded = [](double v) { return std::nearbyint(v * 1e4) / 1e4; };
    json material{{"name", paint.name},
                  {"pbrMetallicRoughness",
                   {{"baseColorFactor", {rounded(paint.red), rounded(paint.green), rounded(paint.blue), 1}},
                    {"metallicFactor", 0},
                    {"roughnessFactor", 0.8}}}};
    if (paint.doubleSided) material["doubleSided"] = true;
    if (!paint.image.empty()) material["pbrMetallicRoughness"]["baseColorTexture"]["index"] = addImage(paint);
    document["materials"].push_back(std::move(material));
  }

  std::size_t addImage(const Paint& paint) {
    const std::size_t start = binary.size();
    binary += paint.image;
    const std::size_t view = addView(start, otherData);
    document["images"].push_back({{"bufferView", view}, {"mimeType", paint.imageType}});
    document["textures"].push_back({{"source", document["images"].size() - 1}});
    return document["textures"].size() - 1;
  }

  std::size_t reserveNode() {
    document["nodes"].push_back(json::object());
    return document["nodes"].size() - 1;
  }

  /// A moving node becomes two: an outer one that holds its frame of reference and an inner one that moves in it.
  std::size_t addNode(const Node& node) {
    const std::size_t outer = reserveNode();
    std::size_t inner = outer;
    if (!node.placement.isIdentity()) {
      document["nodes"][outer]["matrix"] = matrixOf(node.placement);
      if (!node.motion.places.empty()) {
        inner = reserveNode();
        document["nodes"][outer]["children"] = {inner};
      }
    }
    document["nodes"][inner]["name"] = node.name;
    if (!node.motion.places.empty()) addMotion(node.motion, inner);
    if (!node.surfaces.empty()) document["nodes"][inner]["mesh"] = addMesh(node);
    std::vector<std::size_t> children;
    for (const Node& child : node.children) children.push_back(addNode(child));
    if (!children.empty()) document["nodes"][inner]["children"] = children;
    return outer;
  }

  static json matrixOf(const Transform& transform) {
    json values = json::array();
    for (std::size_t column = 0; column < 4; ++column) {
      for (const auto& row : transform.rows) values.push_back(onGrid(row[column]));
      values.push_back(column == 3 ? 1 : 0);
    }
    return values;
  }

  std::size_t addMesh(const Node& node) {
    json primitives = json::array();
    for (const auto& [paint, surface] : node.surfaces) {
      const std::size_t positions = addVectors(surface.points, vertexData);
      setBounds(positions, surface.points);
      json attributes{{"POSITION", positions}, {"NORMAL", addVectors(surface.normals, vertexData)}};
      if (!surface.imagePlaces.empty()) attributes["TEXCOORD_0"] = addNumbers(surface.imagePlaces, "VEC2");
      if (!surface.colours.empty()) attributes["COLOR_0"] = addNumbers(surface.colours, "VEC3");
      primitives.push_back({{"attributes", attributes}, {"indices", addIndices(surface)}, {"material", paint}});
    }
    document["meshes"].push_back({{"name", node.name}, {"primitives", primitives}});
    return document["meshes"].size() - 1;
  }

  std::size_t addView(std::size_t start, Target target) {
    json view{{"buffer", 0}, {"byteOffset", start}, {"byteLength", binary.size() - start}};
    if (target != otherData) view["target"] = static_cast<int>(target);
    while (binary.size() % 4 != 0) binary.push_back('\0');
    document["bufferViews"].push_back(std::move(view));
    return document["bufferViews"].size() - 1;
  }

  template <std::size_t Count>
  std::size_t addNumbers(const std::vector<std::array<float, Count>>& rows, const char* shape) {
    const std::size_t start = binary.size();
    for (const auto& row : rows) {
      for (const float number : row) put(binary, number);
    }
    return addAccessor(start, vertexData, floating, rows.size(), shape);
  }

  std::size_t addAccessor(std::size_t start, Target target, ComponentType type, std::size_t count, const char* shape) {
    const std::size_t view = addView(start, target);
    document["accessors"].push_back(
        {{"bufferView", view}, {"componentType", static_cast<int>(type)}, {"count", count}, {"type", shape}});
    return document["accessors"].size() - 1;
  }

  void putVector(const Vec& v) {
    for (const double value : {v.x, v.y, v.z}) put(binary, static_cast<float>(onGrid(value)));
  }

  std::size_t addVectors(const std::vector<Vec>& vectors, Target target) {
    const std::size_t start = binary.size();
    for (const Vec& v : vectors) putVector(v);
    return addAccessor(start, target, floating, vectors.size(), "VEC3");
  }

  void setBounds(std::size_t accessor, const std::vector<Vec>& points) {
    const auto bounds = [&](double Vec::*axis) {
      const auto [low, high] =
          std::ranges::minmax_element(points, [&](const Vec& a, const Vec& b) { return a.*axis < b.*axis; });
      document["accessors"][accessor]["min"].push_back(onGrid((*low).*axis));
      document["accessors"][accessor]["max"].push_back(onGrid((*high).*axis));
    };
    bounds(&Vec::x);
    bounds(&Vec::y);
    bounds(&Vec::z);
  }

  std::size_t addIndices(const Surface& surface) {
    const std::size_t start = binary.size();
    const bool small = surface.points.size() < 65535;
    for (const std::uint32_t index : surface.indices) {
      small ? put(binary, static_cast<std::uint16_t>(index)) : put(binary, index);
    }
    return addAccessor(start, indexData, small ? unsignedShort : unsignedInt, surface.indices.size(), "SCALAR");
  }

  std::size_t frameTimes() {
    if (times != none) return times;
    const std::size_t start = binary.size();
    for (int frame = 0; frame < model.frames; ++frame) put(binary, static_cast<float>(frame / model.framesPerSecond));
    times = addAccessor(start, otherData, floating, static_cast<std::size_t>(model.frames), "SCALAR");
    document["accessors"][times]["min"] = {0.0F};
    document["accessors"][times]["max"] = {static_cast<float>((model.frames - 1) / model.framesPerSecond)};
    return times;
  }

  void addMotion(const Motion& motion, std::size_t node) {
    const Vec& place = motion.places.front();
    const Quaternion& turn = motion.turns.front();
    document["nodes"][node]["translation"] = {onGrid(place.x), onGrid(place.y), onGrid(place.z)};
    document["nodes"][node]["rotation"] = {turnOnGrid(turn.x), turnOnGrid(turn.y), turnOnGrid(turn.z),
                                           turnOnGrid(turn.w)};
    addChannel(node, "translation", addVectors(motion.places, otherData));
    const std::size_t start = binary.size();
    for (const Quaternion& q : motion.turns) {
      for (const double value : {q.x, q.y, q.z, q.w}) put(binary, static_cast<float>(turnOnGrid(value)));
    }
    addChannel(node, "rotation", addAccessor(start, otherData, floating, motion.turns.size(), "VEC4"));
  }

  void addChannel(std::size_t node, const char* path, std::size_t values) {
    channels.push_back({{"sampler", samplers.size()}, {"target", {{"node", node}, {"path", path}}}});
    samplers.push_back({{"input", frameTimes()}, {"output", values}, {"interpolation", "LINEAR"}});
  }

  [[nodiscard]] std::string file() const {
    std::string text = document.dump();
    text.resize((text.size() + 3) / 4 * 4, ' ');
    std::string bytes;
    put(bytes, std::uint32_t{0x46546C67});  // "glTF"
    put(bytes, std::uint32_t{2});
    put(bytes, static_cast<std::uint32_t>(12 + 8 + text.size() + 8 + binary.size()));
    put(bytes, static_cast<std::uint32_t>(text.size()));
    put(bytes, std::uint32_t{0x4E4F534A});  // "JSON"
    bytes += text;
    put(bytes, static_cast<std::uint32_t>(binary.size()));
    put(bytes, std::uint32_t{0x004E4942});  // "BIN"
    return bytes + binary;
  }

  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  const BuiltModel& model;
  json document;
  json samplers = json::array(), channels = json::array();
  std::string binary;
  std::size_t times = none;
};

}  // namespace

std::string writeGlb(const BuiltModel& model) { return Writer(model).write(); }

}  // namespace nerida::library
