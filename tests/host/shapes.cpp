#include "tests/host/shapes.h"

#include <functional>
#include <numbers>

namespace nerida {
namespace {

constexpr float fullTurn = 2 * std::numbers::pi_v<float>;

struct Corner {
  Vec3 position, normal;
};

/// A surface over a grid that closes in itself along the columns.
Mesh gridSurface(int rows, int columns, Vec3 color, const std::function<Corner(float, float)>& at) {
  Mesh mesh;
  mesh.materials.push_back({color, false, nullptr});
  for (int row = 0; row <= rows; ++row) {
    for (int column = 0; column <= columns; ++column) {
      const Corner corner = at(static_cast<float>(row) / static_cast<float>(rows),
                               static_cast<float>(column % columns) / static_cast<float>(columns));
      mesh.positions.push_back(corner.position);
      mesh.normals.push_back(corner.normal);
    }
  }
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const auto a = static_cast<std::uint32_t>(row * (columns + 1) + column), b = a + 1;
      const std::uint32_t c = a + static_cast<std::uint32_t>(columns) + 1, d = c + 1;
      mesh.triangles.push_back({{a, c, d}, 0});
      mesh.triangles.push_back({{a, d, b}, 0});
    }
  }
  return mesh;
}

void addSide(Mesh& mesh, Vec3 normal, Vec3 right, Vec3 up) {
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (const Vec3 p : {normal - right - up, normal + right - up, normal + right + up, normal - right + up}) {
    mesh.positions.push_back(p);
    mesh.normals.push_back(normalized(normal));
  }
  mesh.triangles.push_back({{first, first + 1, first + 2}, 0});
  mesh.triangles.push_back({{first, first + 2, first + 3}, 0});
}

}  // namespace

Mesh box(Vec3 half, Vec3 color) {
  Mesh mesh;
  mesh.materials.push_back({color, false, nullptr});
  const Vec3 x{half.x, 0, 0}, y{0, half.y, 0}, z{0, 0, half.z};
  addSide(mesh, z, x, y);
  addSide(mesh, -z, -x, y);
  addSide(mesh, x, -z, y);
  addSide(mesh, -x, z, y);
  addSide(mesh, y, x, -z);
  addSide(mesh, -y, x, z);
  findEdges(mesh);
  return mesh;
}

Mesh ball(float radius, Vec3 color) {
  Mesh mesh = gridSurface(24, 32, color, [&](float v, float u) {
    const float down = v * fullTurn / 2, around = u * fullTurn;
    const Vec3 n{std::sin(down) * std::sin(around), std::cos(down), std::sin(down) * std::cos(around)};
    return Corner{n * radius, n};
  });
  findEdges(mesh);
  return mesh;
}

Mesh ring(float radius, float thickness, Vec3 color) {
  Mesh mesh = gridSurface(32, 20, color, [&](float v, float u) {
    const float along = v * fullTurn, around = u * fullTurn;
    const Vec3 outwards{std::cos(along), 0, std::sin(along)};
    const Vec3 n = outwards * std::cos(around) + Vec3{0, -std::sin(around), 0};
    return Corner{outwards * radius + n * thickness, n};
  });
  findEdges(mesh);
  return mesh;
}

void append(Mesh& mesh, const Mesh& part, Vec3 by) {
  const auto offset = static_cast<std::uint32_t>(mesh.positions.size());
  const auto materials = static_cast<std::uint32_t>(mesh.materials.size());
  for (const Vec3 p : part.positions) mesh.positions.push_back(p + by);
  mesh.normals.insert(mesh.normals.end(), part.normals.begin(), part.normals.end());
  mesh.materials.insert(mesh.materials.end(), part.materials.begin(), part.materials.end());
  for (const Triangle& t : part.triangles) {
    mesh.triangles.push_back(
        {{t.corners[0] + offset, t.corners[1] + offset, t.corners[2] + offset}, t.material + materials});
  }
}

Mesh stillLife() {
  Mesh mesh;
  append(mesh, box({0.35F, 0.35F, 0.35F}, {0.65F, 0.06F, 0.05F}), {-0.35F, -0.1F, 0});
  append(mesh, ball(0.4F, {0.08F, 0.45F, 0.12F}), {0.3F, 0.1F, 0.2F});
  append(mesh, ring(0.75F, 0.08F, {0.05F, 0.2F, 0.7F}), {0, -0.3F, 0});
  findEdges(mesh);
  return mesh;
}

}  // namespace nerida
