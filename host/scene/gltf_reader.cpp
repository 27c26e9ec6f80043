#include "host/scene/gltf_reader.h"

#include <algorithm>

#include "host/scene/gltf_values.h"

namespace nerida {
namespace {

Vec3 vec3Of(const std::vector<double>& v, Vec3 otherwise) {
  if (v.size() != 3) return otherwise;
  return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

Affine affineOf(const std::vector<double>& columns) {
  const auto at = [&](std::size_t i) { return static_cast<float>(columns[i]); };
  return {{{at(0), at(4), at(8)}, {at(1), at(5), at(9)}, {at(2), at(6), at(10)}}, {at(12), at(13), at(14)}};
}

Node nodeOf(const tinygltf::Node& source, int parent) {
  Node node;
  node.parent = parent;
  if (source.matrix.size() == 16) node.matrix = affineOf(source.matrix);
  node.translation = vec3Of(source.translation, {});
  node.scale = vec3Of(source.scale, {1, 1, 1});
  if (source.rotation.size() == 4) {
    const auto at = [&](std::size_t i) { return static_cast<float>(source.rotation[i]); };
    node.rotation = {at(0), at(1), at(2), at(3)};
  }
  return node;
}

std::vector<int> rootNodes(const tinygltf::Model& source) {
  if (!source.scenes.empty()) return elementAt(source.scenes, std::max(0, source.defaultScene)).nodes;
  std::vector<bool> isChild(source.nodes.size());
  for (const tinygltf::Node& node : source.nodes) {
    for (const int child : node.children) {
      if (child >= 0 && static_cast<std::size_t>(child) < isChild.size())
        isChild[static_cast<std::size_t>(child)] = true;
    }
  }
  std::vector<int> roots;
  for (std::size_t i = 0; i < isChild.size(); ++i) {
    if (!isChild[i]) roots.push_back(static_cast<int>(i));
  }
  return roots;
}

}  // namespace

std::vector<int> readNodes(const tinygltf::Model& source, ModelContent& content) {
  struct Visit {
    int node, parent;
  };
  std::vector<int> numbers(source.nodes.size(), -1);
  std::vector<Visit> waiting;
  for (const int root : rootNodes(source)) waiting.push_back({root, -1});
  for (std::size_t next = 0; next < waiting.size(); ++next) {
    const auto [index, parent] = waiting[next];
    const tinygltf::Node& node = elementAt(source.nodes, index);
    int& number = numbers[static_cast<std::size_t>(index)];
    if (number >= 0) throw ModelError("A part of the model stands in two places at once.");
    number = static_cast<int>(content.nodes.size());
    content.nodes.push_back(nodeOf(node, parent));
    for (const int child : node.children) waiting.push_back({child, number});
  }
  return numbers;
}

ModelContent readContent(const tinygltf::Model& source) {
  ModelContent content;
  const std::vector<int> nodeNumbers = readNodes(source, content);
  readMaterials(source, content);
  readParts(source, nodeNumbers, content);
  readAnimation(source, nodeNumbers, content);
  return content;
}

}  // namespace nerida
