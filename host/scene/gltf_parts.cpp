#include <algorithm>

#include "host/scene/gltf_colour.h"
#include "host/scene/gltf_reader.h"
#include "host/scene/gltf_values.h"

namespace nerida {
namespace {

constexpr std::size_t mostVertices = 6'000'000, mostTriangles = 2'000'000;

using Corners = std::array<std::uint32_t, 3>;

int attributeOf(const tinygltf::Primitive& primitive, const char* name) {
  const auto found = primitive.attributes.find(name);
  return found == primitive.attributes.end() ? -1 : found->second;
}

/// The vertices in the order in which the primitive uses them.
std::vector<std::uint32_t> vertexOrder(const tinygltf::Model& source, const tinygltf::Primitive& primitive,
                                       std::size_t vertexCount) {
  std::vector<std::uint32_t> order;
  if (primitive.indices < 0) {
    order.resize(vertexCount);
    for (std::size_t i = 0; i < vertexCount; ++i) order[i] = static_cast<std::uint32_t>(i);
    return order;
  }
  const Values indices(source, primitive.indices, 1);
  if (indices.count() > mostTriangles * 3) throw ModelError("The model is too large.");
  order.resize(indices.count());
  for (std::size_t i = 0; i < order.size(); ++i) {
    order[i] = indices.whole(i, 0);
    if (order[i] >= vertexCount) throw ModelError("The model file refers to a corner that it does not contain.");
  }
  return order;
}

std::vector<Corners> trianglesOf(const std::vector<std::uint32_t>& order, int mode) {
  std::vector<Corners> triangles;
  if (mode == TINYGLTF_MODE_TRIANGLES || mode < 0) {
    for (std::size_t i = 0; i + 2 < order.size(); i += 3) triangles.push_back({order[i], order[i + 1], order[i + 2]});
  } else if (mode == TINYGLTF_MODE_TRIANGLE_STRIP) {
    for (std::size_t i = 0; i + 2 < order.size(); ++i) {
      const std::size_t odd = i % 2;
      triangles.push_back({order[i], order[i + 1 + odd], order[i + 2 - odd]});
    }
  } else if (mode == TINYGLTF_MODE_TRIANGLE_FAN) {
    for (std::size_t i = 1; i + 1 < order.size(); ++i) triangles.push_back({order[0], order[i], order[i + 1]});
  }
  return triangles;
}

/// A primitive on its way into the mesh.
struct Surface {
  std::vector<Vec3> positions, normals, colors;
  std::vector<Vec2> textureCoordinates;
  std::vector<Pull> pulls;
  std::vector<Corners> triangles;
};

template <class Element, class Get>
std::vector<Element> column(const tinygltf::Model& source, int accessor, int components, std::size_t count, Get get) {
  std::vector<Element> result;
  if (accessor < 0) return result;
  const Values values(source, accessor, components);
  if (values.count() < count) throw ModelError("The model file is missing data for some of its corners.");
  result.reserve(count);
  for (std::size_t i = 0; i < count; ++i) result.push_back(get(values, i));
  return result;
}

std::vector<Pull> readPulls(const tinygltf::Model& source, const tinygltf::Primitive& primitive, std::size_t count,
                            std::size_t jointCount) {
  const int joints = attributeOf(primitive, "JOINTS_0"), weights = attributeOf(primitive, "WEIGHTS_0");
  if (jointCount == 0 || joints < 0 || weights < 0) return {};
  auto pulls = column<Pull>(source, joints, 4, count, [&](const Values& v, std::size_t i) {
    Pull pull;
    for (int c = 0; c < 4; ++c) {
      if (v.whole(i, c) >= jointCount) throw ModelError("The model file refers to a joint that it does not contain.");
      pull.joints[static_cast<std::size_t>(c)] = static_cast<std::uint16_t>(v.whole(i, c));
    }
    return pull;
  });
  const Values strengths(source, weights, 4);
  if (strengths.count() < count) throw ModelError("The model file is missing data for some of its corners.");
  for (std::size_t i = 0; i < count; ++i) {
    float sum = 0;
    for (int c = 0; c < 4; ++c) sum += pulls[i].weights[static_cast<std::size_t>(c)] = strengths.number(i, c);
    if (!(sum > 0)) pulls[i].weights = {1, 0, 0, 0};
    if (sum > 0) std::for_each(pulls[i].weights.begin(), pulls[i].weights.end(), [&](float& w) { w /= sum; });
  }
  return pulls;
}

Surface readSurface(const tinygltf::Model& source, const tinygltf::Primitive& primitive, std::size_t jointCount) {
  Surface surface;
  const int positions = attributeOf(primitive, "POSITION");
  if (positions < 0) return surface;
  const auto vec3 = [](const Values& v, std::size_t i) { return v.vec3(i); };
  const std::size_t count = Values(source, positions, 3).count();
  if (count > mostVertices) throw ModelError("The model is too large.");
  surface.positions = column<Vec3>(source, positions, 3, count, vec3);
  surface.normals = column<Vec3>(source, attributeOf(primitive, "NORMAL"), 3, count, vec3);
  surface.colors = column<Vec3>(source, attributeOf(primitive, "COLOR_0"), 3, count, vec3);
  surface.textureCoordinates = readTextureCoordinates(source, primitive, count);
  surface.pulls = readPulls(source, primitive, count, jointCount);
  surface.triangles = trianglesOf(vertexOrder(source, primitive, count), primitive.mode);
  return surface;
}

template <class Element>
void unshare(std::vector<Element>& list, const std::vector<Corners>& triangles) {
  if (list.empty()) return;
  std::vector<Element> result;
  result.reserve(triangles.size() * 3);
  for (const Corners& triangle : triangles) {
    for (const std::uint32_t corner : triangle) result.push_back(list[corner]);
  }
  list = std::move(result);
}

/// Without normals a surface is meant to look faceted: each triangle gets corners of its own.
void makeFaceted(Surface& surface) {
  unshare(surface.positions, surface.triangles);
  unshare(surface.colors, surface.triangles);
  unshare(surface.textureCoordinates, surface.triangles);
  unshare(surface.pulls, surface.triangles);
  std::uint32_t next = 0;
  for (Corners& triangle : surface.triangles) {
    for (std::uint32_t& corner : triangle) corner = next++;
  }
}

bool isDirection(Vec3 v) { return isFinite(v) && length(v) > 1e-6F; }

/// Fills in the normals that are missing or no directions, from the triangles around them.
void mendNormals(Surface& surface) {
  std::vector<Vec3> sums(surface.positions.size());
  for (const Corners& t : surface.triangles) {
    const Vec3 a = surface.positions[t[0]];
    const Vec3 normal = cross(surface.positions[t[1]] - a, surface.positions[t[2]] - a);
    for (const std::uint32_t corner : t) sums[corner] = sums[corner] + normal;
  }
  surface.normals.resize(surface.positions.size());
  for (std::size_t i = 0; i < sums.size(); ++i) {
    Vec3& normal = surface.normals[i];
    if (!isDirection(normal)) normal = normalized(sums[i]);
    if (!isDirection(normal)) normal = {0, 0, 1};
  }
}

void checkPositions(const Surface& surface) {
  if (!std::all_of(surface.positions.begin(), surface.positions.end(), [](Vec3 p) { return isFinite(p); })) {
    throw ModelError("The model has corners at places that are no numbers.");
  }
}

/// Lists that only some surfaces have are filled up for the others.
template <class Element>
void append(std::vector<Element>& all, const std::vector<Element>& some, std::size_t before, std::size_t count,
            Element otherwise) {
  if (all.empty() && some.empty()) return;
  all.resize(before, otherwise);
  all.insert(all.end(), some.begin(), some.end());
  all.resize(before + count, otherwise);
}

std::uint32_t materialNumber(const tinygltf::Primitive& primitive, const ModelContent& content) {
  const int number = primitive.material + 1;  // 0 is the one for surfaces without
  if (number < 0 || static_cast<std::size_t>(number) >= content.mesh.materials.size()) {
    throw ModelError("The model file refers to a material that it does not contain.");
  }
  return static_cast<std::uint32_t>(number);
}

void addSurface(const Surface& surface, Part part, std::uint32_t material, ModelContent& content) {
  Mesh& mesh = content.mesh;
  const std::size_t before = content.positions.size(), count = surface.positions.size();
  if (before + count > mostVertices || mesh.triangles.size() + surface.triangles.size() > mostTriangles) {
    throw ModelError("The model is too large.");
  }
  part.first = before;
  part.count = count;
  part.firstTriangle = mesh.triangles.size();
  part.triangleCount = surface.triangles.size();
  part.firstPull = content.pulls.size();
  if (surface.pulls.empty()) part.skin = -1;
  content.parts.push_back(part);
  content.positions.insert(content.positions.end(), surface.positions.begin(), surface.positions.end());
  content.normals.insert(content.normals.end(), surface.normals.begin(), surface.normals.end());
  content.pulls.insert(content.pulls.end(), surface.pulls.begin(), surface.pulls.end());
  append(mesh.colors, surface.colors, before, count, {1, 1, 1});
  append(mesh.textureCoordinates, surface.textureCoordinates, before, count, {});
  const auto offset = static_cast<std::uint32_t>(before);
  for (const Corners& t : surface.triangles) {
    mesh.triangles.push_back({{t[0] + offset, t[1] + offset, t[2] + offset}, material});
  }
}

void addMesh(const tinygltf::Model& source, int meshIndex, const Part& part, ModelContent& content) {
  const std::size_t joints = part.skin < 0 ? 0 : content.skins[static_cast<std::size_t>(part.skin)].joints.size();
  for (const tinygltf::Primitive& primitive : elementAt(source.meshes, meshIndex).primitives) {
    Surface surface = readSurface(source, primitive, joints);
    if (surface.triangles.empty()) continue;
    checkPositions(surface);
    if (surface.normals.empty()) makeFaceted(surface);
    mendNormals(surface);
    addSurface(surface, part, materialNumber(primitive, content), content);
  }
}

Affine affineAt(const Values& values, std::size_t i) {
  const auto at = [&](int c) { return values.number(i, c); };
  return {{{at(0), at(4), at(8)}, {at(1), at(5), at(9)}, {at(2), at(6), at(10)}}, {at(12), at(13), at(14)}};
}

Skin skinOf(const tinygltf::Model& source, const tinygltf::Skin& from, const std::vector<int>& nodeNumbers) {
  Skin skin;
  for (const int joint : from.joints) {
    const int number = elementAt(nodeNumbers, joint);
    if (number < 0) return {};  // not in the scene: what would hang on it stays rigid
    skin.joints.push_back(number);
  }
  skin.inverseBinds.resize(skin.joints.size());
  if (from.inverseBindMatrices < 0) return skin;
  const Values matrices(source, from.inverseBindMatrices, 16);
  if (matrices.count() < skin.joints.size()) throw ModelError("The model file is missing data for some of its joints.");
  for (std::size_t i = 0; i < skin.joints.size(); ++i) skin.inverseBinds[i] = affineAt(matrices, i);
  return skin;
}

}  // namespace

void readParts(const tinygltf::Model& source, const std::vector<int>& nodeNumbers, ModelContent& content) {
  for (const tinygltf::Skin& skin : source.skins) content.skins.push_back(skinOf(source, skin, nodeNumbers));
  for (std::size_t i = 0; i < source.nodes.size(); ++i) {
    const tinygltf::Node& node = source.nodes[i];
    if (node.mesh < 0 || nodeNumbers[i] < 0) continue;
    if (node.skin >= 0) elementAt(content.skins, node.skin);
    Part part;
    part.node = nodeNumbers[i];
    part.skin = std::max(-1, node.skin);
    addMesh(source, node.mesh, part, content);
  }
  if (content.mesh.triangles.empty()) throw ModelError("The model has no surfaces that could be drawn.");
}

}  // namespace nerida
