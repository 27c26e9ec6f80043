#include "host/library/glb_fit.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <set>

namespace nerida::library {
namespace {

using nlohmann::json;

constexpr std::size_t headerSize = 12, chunkHeaderSize = 8;

std::uint32_t wordAt(const std::string& bytes, std::size_t at) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes.data() + at, sizeof word);
  return word;
}

void putWord(std::string& bytes, std::size_t value) {
  const auto word = static_cast<std::uint32_t>(value);
  bytes.append(reinterpret_cast<const char*>(&word), sizeof word);
}

/// The nodes that are no other node's children: the scene of a file that describes none.
json rootNodes(const json& document) {
  std::set<std::size_t> children;
  for (const json& node : document.at("nodes")) {
    if (!node.contains("children")) continue;
    for (const json& child : node["children"]) children.insert(child.get<std::size_t>());
  }
  json roots = json::array();
  for (std::size_t i = 0; i < document["nodes"].size(); ++i) {
    if (!children.contains(i)) roots.push_back(i);
  }
  return roots;
}

void wrapScene(json& document, const Model::Extent& extent) {
  if (!document.contains("scenes") || document["scenes"].empty()) {
    document["scenes"] = json::array({{{"nodes", rootNodes(document)}}});
    document["scene"] = 0;
  }
  json& scene = document["scenes"][document.value("scene", std::size_t{0})];
  const double scale = 1.0 / static_cast<double>(extent.radius);
  const auto moved = [&](float middle) { return -static_cast<double>(middle) * scale; };
  document["nodes"].push_back(
      {{"name", "fit"},
       {"scale", {scale, scale, scale}},
       {"translation", {moved(extent.middle.x), moved(extent.middle.y), moved(extent.middle.z)}},
       {"children", scene["nodes"]}});
  scene["nodes"] = json::array({document["nodes"].size() - 1});
}

std::size_t descriptionEnd(const std::string& bytes) {
  return headerSize + chunkHeaderSize + wordAt(bytes, headerSize);
}

}  // namespace

json descriptionOf(const std::string& bytes) {
  return json::parse(bytes.begin() + headerSize + chunkHeaderSize,
                     bytes.begin() + static_cast<std::ptrdiff_t>(descriptionEnd(bytes)));
}

std::string fittedGlb(const std::string& file, const Model::Extent& extent) {
  std::string bytes = file.substr(0, wordAt(file, 8));  // what lies behind the end belongs to nobody
  constexpr float unnoticeable = 1e-3F;
  if (length(extent.middle) < unnoticeable && std::abs(extent.radius - 1) < unnoticeable) return bytes;
  const std::size_t rest = descriptionEnd(bytes);
  json document = descriptionOf(bytes);
  wrapScene(document, extent);
  std::string text = document.dump(-1, ' ', false, json::error_handler_t::replace);
  text.resize((text.size() + 3) / 4 * 4, ' ');
  std::string result = bytes.substr(0, 8);
  putWord(result, headerSize + chunkHeaderSize + text.size() + (bytes.size() - rest));
  putWord(result, text.size());
  result += bytes.substr(headerSize + 4, 4);
  return result + text + bytes.substr(rest);
}

}  // namespace nerida::library
