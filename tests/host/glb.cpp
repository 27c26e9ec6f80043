#include "tests/host/glb.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

namespace nerida {
namespace {

using nlohmann::json;

void append(Bytes& bytes, std::uint32_t word) {
  for (unsigned shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::uint8_t>(word >> shift));
}

template <class T>
Bytes bytesOf(const std::vector<T>& values) {
  Bytes bytes(values.size() * sizeof(T));
  if (!bytes.empty()) std::memcpy(bytes.data(), values.data(), bytes.size());
  return bytes;
}

}  // namespace

GlbBuilder::GlbBuilder() {
  description = {{"asset", {{"version", "2.0"}}},
                 {"scene", 0},
                 {"scenes", {{{"nodes", {0}}}}},
                 {"accessors", json::array()},
                 {"bufferViews", json::array()}};
}

int GlbBuilder::addView(const Bytes& content) {
  while (data.size() % 4 != 0) data.push_back(0);
  description["bufferViews"].push_back({{"buffer", 0}, {"byteOffset", data.size()}, {"byteLength", content.size()}});
  data.insert(data.end(), content.begin(), content.end());
  description["buffers"] = {{{"byteLength", data.size()}}};
  return static_cast<int>(description["bufferViews"].size()) - 1;
}

int GlbBuilder::addFloats(const std::vector<float>& values, const std::string& type, int components) {
  description["accessors"].push_back({{"bufferView", addView(bytesOf(values))},
                                      {"componentType", 5126},
                                      {"count", values.size() / static_cast<std::size_t>(components)},
                                      {"type", type}});
  return static_cast<int>(description["accessors"].size()) - 1;
}

int GlbBuilder::addIndices(const std::vector<std::uint16_t>& values) {
  description["accessors"].push_back({{"bufferView", addView(bytesOf(values))},
                                      {"componentType", 5123},
                                      {"count", values.size()},
                                      {"type", "SCALAR"}});
  return static_cast<int>(description["accessors"].size()) - 1;
}

Bytes GlbBuilder::bytes() const { return glbOf(description.dump(), data); }

Bytes glbOf(const std::string& description, const Bytes& data) {
  std::string text = description;
  while (text.size() % 4 != 0) text += ' ';
  Bytes padded = data;
  while (padded.size() % 4 != 0) padded.push_back(0);
  Bytes bytes;
  append(bytes, 0x46546C67);
  append(bytes, 2);
  append(bytes, static_cast<std::uint32_t>(12 + 8 + text.size() + 8 + padded.size()));
  append(bytes, static_cast<std::uint32_t>(text.size()));
  append(bytes, 0x4E4F534A);
  bytes.insert(bytes.end(), text.begin(), text.end());
  append(bytes, static_cast<std::uint32_t>(padded.size()));
  append(bytes, 0x004E4942);
  bytes.insert(bytes.end(), padded.begin(), padded.end());
  return bytes;
}

GlbBuilder triangleFile() {
  GlbBuilder file;
  const int positions = file.addFloats({0, 0, 0, 3, 0, 0, 0, 3, 0}, "VEC3", 3);
  const int normals = file.addFloats({0, 0, 1, 0, 0, 1, 0, 0, 1}, "VEC3", 3);
  const int indices = file.addIndices({0, 1, 2});
  file.description["materials"] = {{{"pbrMetallicRoughness", {{"baseColorFactor", {1.0, 0.25, 0.0, 1.0}}}}}};
  file.description["meshes"] = {
      {{"primitives",
        {{{"attributes", {{"POSITION", positions}, {"NORMAL", normals}}}, {"indices", indices}, {"material", 0}}}}}};
  file.description["nodes"] = {{{"mesh", 0}}};
  return file;
}

GlbBuilder movingTriangleFile() {
  GlbBuilder file = triangleFile();
  const int times = file.addFloats({0, 1}, "SCALAR", 1);
  const int places = file.addFloats({0, 0, 0, 2, 0, 0}, "VEC3", 3);
  file.description["animations"] = {
      {{"samplers", {{{"input", times}, {"output", places}, {"interpolation", "LINEAR"}}}},
       {"channels", {{{"sampler", 0}, {"target", {{"node", 0}, {"path", "translation"}}}}}}}};
  return file;
}

std::filesystem::path saved(const Bytes& bytes, const std::string& name) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const auto folder = std::filesystem::path(testing::TempDir()) / "nerida_host" / test->name();
  std::filesystem::create_directories(folder);
  std::ofstream out(folder / name, std::ios::binary);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return folder / name;
}

}  // namespace nerida
