#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "host/render/mesh.h"

namespace nerida {
namespace {

constexpr float weldGrid = 50'000.0F;  // places per unit of length

using GridPoint = std::array<long, 3>;

GridPoint gridPoint(Vec3 p) {
  return {std::lround(p.x * weldGrid), std::lround(p.y * weldGrid), std::lround(p.z * weldGrid)};
}

/// For each vertex the number of its place; vertices at one place share it.
std::vector<std::uint32_t> weld(const std::vector<Vec3>& positions) {
  std::vector<GridPoint> places(positions.size());
  std::transform(positions.begin(), positions.end(), places.begin(), gridPoint);
  std::vector<std::uint32_t> order(positions.size());
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(), [&](auto a, auto b) { return places[a] < places[b]; });
  std::vector<std::uint32_t> numbers(positions.size());
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0 && places[order[i]] != places[order[i - 1]]) ++number;
    numbers[order[i]] = number;
  }
  return numbers;
}

struct Side {
  std::uint32_t lowPlace, highPlace;
  std::uint32_t low, high;  // the vertices there
  std::uint32_t face;
};

/// As it happens at the poles of a globe: two corners at one place, nothing to see.
bool isSliver(const std::uint32_t (&corners)[3], const std::vector<std::uint32_t>& places) {
  const std::uint32_t a = places[corners[0]], b = places[corners[1]], c = places[corners[2]];
  return a == b || b == c || c == a;
}

std::vector<Side> sidesOf(const Mesh& mesh, const std::vector<std::uint32_t>& places) {
  std::vector<Side> sides;
  sides.reserve(mesh.triangles.size() * 3);
  for (std::uint32_t face = 0; face < mesh.triangles.size(); ++face) {
    const auto& corners = mesh.triangles[face].corners;
    if (isSliver(corners, places)) continue;
    for (int i = 0; i < 3; ++i) {
      std::uint32_t low = corners[i], high = corners[(i + 1) % 3];
      if (places[low] > places[high]) std::swap(low, high);
      sides.push_back({places[low], places[high], low, high, face});
    }
  }
  std::sort(sides.begin(), sides.end(), [](const Side& a, const Side& b) {
    return std::tie(a.lowPlace, a.highPlace, a.face) < std::tie(b.lowPlace, b.highPlace, b.face);
  });
  return sides;
}

bool sameEdge(const Side& a, const Side& b) { return a.lowPlace == b.lowPlace && a.highPlace == b.highPlace; }

Vec3 faceNormal(const Mesh& mesh, std::uint32_t face) {
  const auto& corners = mesh.triangles[face].corners;
  const Vec3 a = mesh.positions[corners[0]];
  return normalized(cross(mesh.positions[corners[1]] - a, mesh.positions[corners[2]] - a));
}

/// Whether the modeller let the shading run smoothly over the edge.
bool shadedSmooth(const Mesh& mesh, const Side& a, const Side& b) {
  constexpr float alike = 0.97F;
  return dot(mesh.normals[a.low], mesh.normals[b.low]) > alike &&
         dot(mesh.normals[a.high], mesh.normals[b.high]) > alike;
}

Edge pairUp(const Mesh& mesh, const Side& a, const Side& b) {
  constexpr float cosOfHardEdge = 0.978F;  // 12 degrees
  constexpr float cosOfSharpBend = 0.5F;   // 60 degrees: a line there even when shaded smoothly
  constexpr float cosOfFlat = 0.99995F;
  const float bend = dot(faceNormal(mesh, a.face), faceNormal(mesh, b.face));
  Edge edge{a.low, a.high, a.face, b.face};
  edge.crease = bend < (shadedSmooth(mesh, a, b) ? cosOfSharpBend : cosOfHardEdge);
  edge.flat = bend > cosOfFlat;
  return edge;
}

}  // namespace

void findEdges(Mesh& mesh) {
  const auto sides = sidesOf(mesh, weld(mesh.positions));
  mesh.edges.clear();
  for (std::size_t first = 0; first < sides.size();) {
    std::size_t next = first + 1;
    while (next < sides.size() && sameEdge(sides[first], sides[next])) ++next;
    if (next - first == 2) {
      mesh.edges.push_back(pairUp(mesh, sides[first], sides[first + 1]));
    } else {
      mesh.edges.push_back({sides[first].low, sides[first].high, sides[first].face, Edge::none});
    }
    first = next;
  }
}

}  // namespace nerida
