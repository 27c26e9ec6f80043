#pragma once

#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/scene/model.h"

namespace nerida {

using Bytes = std::vector<std::uint8_t>;

/// A model file in the making: change the description before asking for the bytes.
class GlbBuilder {
 public:
  nlohmann::json description;

  GlbBuilder();

  /// Each adds an accessor and gives its number.
  int addFloats(const std::vector<float>& values, const std::string& type, int components);
  int addIndices(const std::vector<std::uint16_t>& values);
  /// Bytes in a buffer view, for images.
  int addView(const Bytes& content);

  [[nodiscard]] Bytes bytes() const;

 private:
  Bytes data;
};

/// The container around a description and its data.
Bytes glbOf(const std::string& description, const Bytes& data);

/// A triangle in the plane z = 0, with normals, in node 0.
GlbBuilder triangleFile();

/// The same, and node 0 goes from x = 0 to x = 2 in one second.
GlbBuilder movingTriangleFile();

/// Writes a file into the test's own folder.
std::filesystem::path saved(const Bytes& bytes, const std::string& name);

inline Model parse(const GlbBuilder& file) { return Model::parse(file.bytes()); }

}  // namespace nerida
