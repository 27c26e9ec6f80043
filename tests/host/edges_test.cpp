#include <gtest/gtest.h>

#include <algorithm>

#include "tests/host/shapes.h"

namespace nerida {
namespace {

TEST(Edges, aBoxHasTwelveCreasesAndSixFlatDiagonals) {
  const Mesh mesh = box({0.5F, 0.4F, 0.3F}, {1, 1, 1});
  EXPECT_EQ(mesh.edges.size(), 18U);
  EXPECT_EQ(std::count_if(mesh.edges.begin(), mesh.edges.end(), [](const Edge& e) { return e.crease; }), 12);
  EXPECT_EQ(std::count_if(mesh.edges.begin(), mesh.edges.end(), [](const Edge& e) { return e.flat; }), 6);
}

TEST(Edges, aSmoothBallHasNoCreaseAndNoBoundary) {
  const Mesh mesh = ball(0.7F, {1, 1, 1});
  for (const Edge& edge : mesh.edges) {
    EXPECT_FALSE(edge.crease);
    EXPECT_NE(edge.secondFace, Edge::none);
  }
}

TEST(Edges, anOpenSheetEndsInBoundaries) {
  Mesh mesh;
  mesh.materials.push_back({});
  mesh.positions = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
  mesh.normals.assign(4, {0, 0, 1});
  mesh.triangles = {{{0, 1, 2}, 0}, {{0, 2, 3}, 0}};
  findEdges(mesh);
  ASSERT_EQ(mesh.edges.size(), 5U);
  EXPECT_EQ(
      std::count_if(mesh.edges.begin(), mesh.edges.end(), [](const Edge& e) { return e.secondFace == Edge::none; }), 4);
}

TEST(Edges, trianglesWithoutExtentAreIgnored) {
  Mesh mesh;
  mesh.materials.push_back({});
  mesh.positions = {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}};
  mesh.normals.assign(3, {0, 0, 1});
  mesh.triangles = {{{0, 1, 2}, 0}};
  findEdges(mesh);
  EXPECT_TRUE(mesh.edges.empty());
}

}  // namespace
}  // namespace nerida
