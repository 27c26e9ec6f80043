#include "host/scene/glb_check.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "host/scene/model.h"

namespace nerida {
namespace {

using nlohmann::json;

constexpr std::size_t headerSize = 12, chunkHeaderSize = 8;
constexpr std::uint32_t glbMagic = 0x46546C67, jsonChunk = 0x4E4F534A;

std::uint32_t wordAt(std::span<const std::uint8_t> bytes, std::size_t at) {
  return static_cast<std::uint32_t>(bytes[at]) | static_cast<std::uint32_t>(bytes[at + 1]) << 8U |
         static_cast<std::uint32_t>(bytes[at + 2]) << 16U | static_cast<std::uint32_t>(bytes[at + 3]) << 24U;
}

void checkHeader(std::span<const std::uint8_t> bytes) {
  if (bytes.empty()) throw ModelError("The model file is empty.");
  if (bytes.size() < 4 || wordAt(bytes, 0) != glbMagic) throw ModelError("This is not a model file.");
  if (bytes.size() < headerSize + chunkHeaderSize) throw ModelError("The model file is cut off.");
  if (wordAt(bytes, 4) != 2) throw ModelError("The model file is of a version that cannot be read.");
  if (wordAt(bytes, 8) > bytes.size()) throw ModelError("The model file is cut off.");
}

/// Walks the chunks; gives the description, which has to come first.
std::span<const std::uint8_t> checkChunks(std::span<const std::uint8_t> bytes) {
  std::size_t at = headerSize;
  while (at < bytes.size()) {
    if (bytes.size() - at < chunkHeaderSize) throw ModelError("The model file is cut off.");
    if (wordAt(bytes, at) > bytes.size() - at - chunkHeaderSize) throw ModelError("The model file is cut off.");
    at += chunkHeaderSize + wordAt(bytes, at);
  }
  if (wordAt(bytes, headerSize + 4) != jsonChunk)
    throw ModelError("The model file has no description of its contents.");
  return bytes.subspan(headerSize + chunkHeaderSize, wordAt(bytes, headerSize));
}

json parseDescription(std::span<const std::uint8_t> text) {
  constexpr int deepest = 64;
  const auto limitDepth = [](int depth, json::parse_event_t, json&) {
    if (depth > deepest) throw ModelError("The model file's description is nested too deeply.");
    return true;
  };
  try {
    return json::parse(text.begin(), text.end(), limitDepth);
  } catch (const json::exception&) {
    throw ModelError("The model file's description is damaged.");
  }
}

std::size_t countOf(const json& description, const char* what) {
  const auto found = description.find(what);
  return found != description.end() && found->is_array() ? found->size() : 0;
}

void checkCounts(const json& description) {
  if (!description.is_object()) throw ModelError("The model file's description is damaged.");
  constexpr std::size_t mostBuffers = 8, mostImages = 256, mostOthers = 200'000;
  if (countOf(description, "buffers") > mostBuffers || countOf(description, "images") > mostImages) {
    throw ModelError("The model file has more pieces of data than can be read.");
  }
  for (const char* what : {"nodes", "meshes", "accessors", "bufferViews", "materials", "skins", "animations"}) {
    if (countOf(description, what) > mostOthers) throw ModelError("The model has more parts than can be read.");
  }
}

bool isReadable(const std::string& extension) {
  constexpr std::string_view materialFamily = "KHR_materials_";
  return extension.starts_with(materialFamily) || extension == "KHR_mesh_quantization" ||
         extension == "KHR_texture_transform" || extension == "KHR_lights_punctual";
}

void checkExtensions(const json& description) {
  const auto required = description.find("extensionsRequired");
  if (required == description.end() || !required->is_array()) return;
  for (const json& extension : *required) {
    if (extension.is_string() && !isReadable(extension.get<std::string>())) {
      throw ModelError("The model file needs " + extension.get<std::string>().substr(0, 60) +
                       ", which cannot be read.");
    }
  }
}

/// A whole number of the description; what is not there counts as `otherwise`.
std::uint64_t wholeOf(const json& object, const char* name, std::uint64_t otherwise) {
  const auto found = object.find(name);
  if (found == object.end()) return otherwise;
  if (!found->is_number_unsigned()) throw ModelError("The model file's description is damaged.");
  return found->get<std::uint64_t>();
}

/// The library takes an image's place in the data on trust.
void checkViews(const json& description) {
  const auto views = description.find("bufferViews");
  if (views == description.end()) return;
  const json none = json::array();
  const json& buffers = description.contains("buffers") ? description["buffers"] : none;
  for (const json& view : *views) {
    if (!view.is_object()) throw ModelError("The model file's description is damaged.");
    const std::uint64_t absent = buffers.size();
    const auto buffer = static_cast<std::size_t>(std::min(wholeOf(view, "buffer", absent), absent));
    if (!buffers.is_array() || buffer >= buffers.size() || !buffers[buffer].is_object()) {
      throw ModelError("The model file refers to something that it does not contain.");
    }
    const std::uint64_t size = wholeOf(buffers[buffer], "byteLength", 0), offset = wholeOf(view, "byteOffset", 0);
    if (offset > size || wholeOf(view, "byteLength", 0) > size - offset) {
      throw ModelError("The model file refers to data beyond its end.");
    }
  }
}

/// A model is one file: data elsewhere would have to be guessed at.
void checkBuffers(const json& description) {
  const auto buffers = description.find("buffers");
  if (buffers == description.end() || !buffers->is_array()) return;
  for (const json& buffer : *buffers) {
    if (!buffer.is_object() || !buffer.contains("uri") || !buffer["uri"].is_string()) continue;
    const auto place = buffer["uri"].get<std::string>();
    if (!place.starts_with("data:")) {
      throw ModelError("The model's data lie in another file, " + place.substr(0, 60) + ".");
    }
  }
}

}  // namespace

void checkGlb(std::span<const std::uint8_t> bytes) {
  checkHeader(bytes);
  const json description = parseDescription(checkChunks(bytes.first(wordAt(bytes, 8))));
  checkCounts(description);
  checkExtensions(description);
  checkBuffers(description);
  checkViews(description);
}

}  // namespace nerida
