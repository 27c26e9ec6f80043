#include "host/library/shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>

#include "host/library/curves.h"

namespace nerida::library {
namespace {

double volumeOf(const Mesh& mesh) {
  double volume = 0;
  for (const auto& [a, b, c] : mesh.triangles) {
    volume += dot(mesh.points[a], cross(mesh.points[b], mesh.points[c])) / 6;
  }
  return volume;
}

/// A solid's surface has each edge once in each direction, points at one place counting as one.
bool isClosed(const Mesh& mesh) {
  std::map<std::array<long long, 3>, std::size_t> places;
  const auto place = [&](std::uint32_t i) {
    const Vec p = mesh.points[i] * 1e6;
    return places.try_emplace({std::llround(p.x), std::llround(p.y), std::llround(p.z)}, places.size()).first->second;
  };
  std::map<std::pair<std::size_t, std::size_t>, int> edges;
  for (const auto& triangle : mesh.triangles) {
    for (std::size_t i = 0; i < 3; ++i) ++edges[{place(triangle[i]), place(triangle[(i + 1) % 3])}];
  }
  for (const auto& [edge, count] : edges) {
    const auto opposite = edges.find({edge.second, edge.first});
    if (count != 1 || opposite == edges.end() || opposite->second != 1) return false;
  }
  return !edges.empty();
}

TEST(Shapes, BoxIsASolidThatStandsOnTheOrigin) {
  const Mesh box = makeBox({2, 3, 4}, 0);
  EXPECT_TRUE(isClosed(box));
  EXPECT_NEAR(volumeOf(box), 24, 1e-9);
  for (const Vec& point : box.points) EXPECT_TRUE(point.y == 0 || point.y == 3);
}

TEST(Shapes, RoundedBoxIsASolidOfAlmostTheSameVolume) {
  const Mesh box = makeBox({2, 3, 4}, 0.3);
  EXPECT_TRUE(isClosed(box));
  EXPECT_LT(volumeOf(box), 24);
  EXPECT_GT(volumeOf(box), 23);
}

TEST(Shapes, BoxRoundedToTheMiddleStaysASolid) { EXPECT_TRUE(isClosed(makeBox({1, 1, 1}, 5))); }

TEST(Shapes, SphereFacesOutwards) {
  const Mesh sphere = makeSphere(2, 48);
  EXPECT_TRUE(isClosed(sphere));
  EXPECT_NEAR(volumeOf(sphere), 4.0 / 3 * std::numbers::pi * 8, 0.4);
}

TEST(Shapes, CylinderAndConeFaceOutwards) {
  EXPECT_TRUE(isClosed(makeCylinder(1, 1, 2, 0, 32)));
  EXPECT_NEAR(volumeOf(makeCylinder(1, 1, 2, 0, 96)), 2 * std::numbers::pi, 0.02);
  EXPECT_TRUE(isClosed(makeCylinder(1, 0.5, 2, 0.2, 32)));
  EXPECT_TRUE(isClosed(makeCylinder(1, 0, 3, 0, 32)));
  EXPECT_NEAR(volumeOf(makeCylinder(1, 0, 3, 0, 96)), std::numbers::pi, 0.02);
}

TEST(Shapes, TorusFacesOutwards) {
  const Mesh torus = makeTorus(2, 0.5, 64, 32);
  EXPECT_TRUE(isClosed(torus));
  EXPECT_NEAR(volumeOf(torus), 2 * std::numbers::pi * std::numbers::pi * 2 * 0.25, 0.2);
}

TEST(Shapes, ExtrusionTakesEitherSenseAndHollowOutlines) {
  const std::vector<Vec> corner{{0, 0}, {2, 0}, {2, 1}, {1, 1}, {1, 2}, {0, 2}};
  const std::vector<Vec> backwards(corner.rbegin(), corner.rend());
  for (const auto& outline : {corner, backwards}) {
    const Mesh mesh = makeExtrusion(outline, 2, 0);
    EXPECT_TRUE(isClosed(mesh));
    EXPECT_NEAR(volumeOf(mesh), 6, 1e-9);
  }
}

TEST(Shapes, BevelTakesALittleAway) {
  const Mesh mesh = makeExtrusion({{0, 0}, {2, 0}, {2, 2}, {0, 2}}, 1, 0.1);
  EXPECT_TRUE(isClosed(mesh));
  EXPECT_LT(volumeOf(mesh), 4);
  EXPECT_GT(volumeOf(mesh), 3.9);
}

TEST(Shapes, TubeHasRoundEnds) {
  const Mesh tube = makeTube({{0, 0, 0}, {0, 3, 0}}, {1, 1}, false, 48);
  EXPECT_TRUE(isClosed(tube));
  const double straight = 3 * std::numbers::pi, ends = 4.0 / 3 * std::numbers::pi;
  EXPECT_GT(volumeOf(tube), straight + 0.7 * ends);
  EXPECT_LT(volumeOf(tube), straight + ends);
}

TEST(Shapes, ClosedTubeIsASolid) {
  const std::vector<Vec> path = smoothCurve({{2, 0, 0}, {0, 2, 0}, {-2, 0, 0}, {0, -2, 0}}, 6, true);
  EXPECT_TRUE(isClosed(makeTube(path, std::vector<double>(path.size(), 0.3), true, 10)));
}

TEST(Shapes, MirroringKeepsTheOutsideOut) {
  Mesh box = makeBox({1, 1, 1}, 0);
  box.map(Transform::scale({-1, 1, 1}));
  EXPECT_NEAR(volumeOf(box), 1, 1e-9);
}

TEST(Normals, BoxKeepsItsEdges) {
  const Surface surface = withNormals(makeBox({1, 1, 1}, 0), 40);
  EXPECT_EQ(surface.points.size(), 24U);
  for (const Vec& n : surface.normals) EXPECT_NEAR(std::abs(n.x) + std::abs(n.y) + std::abs(n.z), 1, 1e-9);
}

TEST(Normals, SphereIsSmooth) {
  const Surface surface = withNormals(makeSphere(1, 24), 40);
  for (std::size_t i = 0; i < surface.points.size(); ++i) {
    EXPECT_GT(dot(surface.normals[i], normalized(surface.points[i])), 0.99);
  }
}

TEST(Curves, SmoothCurvePassesThroughItsPoints) {
  const std::vector<Vec> points{{0, 0}, {1, 2}, {3, 1}, {4, 4}};
  const std::vector<Vec> curve = smoothCurve(points, 4, false);
  ASSERT_EQ(curve.size(), 13U);
  for (std::size_t i = 0; i < points.size(); ++i) EXPECT_LT(length(curve[i * 4] - points[i]), 1e-12);
}

TEST(Curves, CrossingOutlineIsRefused) {
  EXPECT_THROW(triangulate({{0, 0}, {4, 4}, {4, 0}, {0, 3}, {-3, 1}}), std::invalid_argument);
}

}  // namespace
}  // namespace nerida::library
