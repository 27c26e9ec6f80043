#include <gtest/gtest.h>

#include "host/scene/model.h"
#include "tests/host/glb.h"

namespace nerida {
namespace {

using nlohmann::json;

float widthOf(const Mesh& mesh) {
  float low = 1e9F, high = -1e9F;
  for (const Vec3 p : mesh.positions) {
    low = std::min(low, p.x);
    high = std::max(high, p.x);
  }
  return high - low;
}

TEST(Loader, aTriangleArrivesCentredInTheUnitSphere) {
  Model model = parse(triangleFile());
  EXPECT_EQ(model.frameCount(), 0);
  const Mesh& mesh = model.meshAt(0);
  ASSERT_EQ(mesh.triangles.size(), 1U);
  float farthest = 0;
  for (const Vec3 p : mesh.positions) farthest = std::max(farthest, length(p));
  EXPECT_NEAR(farthest, 1, 1e-4);
  EXPECT_EQ(mesh.edges.size(), 3U);
  EXPECT_FLOAT_EQ(mesh.materials[mesh.triangles[0].material].color.y, 0.25F);
}

TEST(Loader, nodesCarryTheirChildren) {
  GlbBuilder file = triangleFile();
  file.description["nodes"] = {{{"children", {1, 2}}, {"scale", {2, 1, 1}}},
                               {{"mesh", 0}},
                               {{"mesh", 0}, {"matrix", {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 6, 0, 0, 1}}}};
  Model model = parse(file);
  const Mesh& mesh = model.meshAt(0);
  ASSERT_EQ(mesh.positions.size(), 6U);
  const float side = length(mesh.positions[1] - mesh.positions[0]);
  EXPECT_NEAR(side / length(mesh.positions[2] - mesh.positions[0]), 2, 1e-4);
  EXPECT_NEAR(length(mesh.positions[3] - mesh.positions[0]) / side, 2, 1e-4);
}

TEST(Loader, rotationsTurnPositionsAndNormals) {
  GlbBuilder file = triangleFile();
  const double half = std::sqrt(0.5);
  file.description["nodes"][0]["rotation"] = {0, half, 0, half};  // a quarter turn about y
  Model model = parse(file);
  EXPECT_NEAR(model.meshAt(0).normals[0].x, 1, 1e-5);
  EXPECT_NEAR(widthOf(model.meshAt(0)), 0, 1e-5);
}

TEST(Loader, mirroredPartsKeepTheirOutside) {
  GlbBuilder file = triangleFile();
  file.description["nodes"][0]["scale"] = {-1, 1, 1};
  Model model = parse(file);
  const Mesh& mesh = model.meshAt(0);
  const auto& corners = mesh.triangles[0].corners;
  const Vec3 facing = cross(mesh.positions[corners[1]] - mesh.positions[corners[0]],
                            mesh.positions[corners[2]] - mesh.positions[corners[0]]);
  EXPECT_GT(facing.z, 0);
  EXPECT_NEAR(mesh.normals[0].z, 1, 1e-5);
}

TEST(Loader, missingAndBadNormalsAreMadeUp) {
  GlbBuilder without = triangleFile();
  without.description["meshes"][0]["primitives"][0]["attributes"].erase("NORMAL");
  EXPECT_NEAR(parse(without).meshAt(0).normals[0].z, 1, 1e-5);
  GlbBuilder bad = triangleFile();
  const float nan = std::nanf("");
  bad.description["meshes"][0]["primitives"][0]["attributes"]["NORMAL"] =
      bad.addFloats({0, 0, 0, nan, nan, nan, 0, 0, -1}, "VEC3", 3);
  Model model = parse(bad);
  EXPECT_NEAR(model.meshAt(0).normals[0].z, 1, 1e-5);
  EXPECT_NEAR(model.meshAt(0).normals[1].z, 1, 1e-5);
  EXPECT_NEAR(model.meshAt(0).normals[2].z, -1, 1e-5);
}

TEST(Loader, stripsAndFansAreTakenApart) {
  for (const auto& [mode, indices] : {std::pair{5, std::vector<std::uint16_t>{0, 1, 2, 1}}, {6, {0, 1, 2, 0}}}) {
    GlbBuilder file = triangleFile();
    json& primitive = file.description["meshes"][0]["primitives"][0];
    primitive["mode"] = mode;
    primitive["indices"] = file.addIndices(indices);
    EXPECT_EQ(parse(file).meshAt(0).triangles.size(), 2U) << mode;
  }
}

TEST(Loader, surfacesWithoutAndWithVertexColorsMix) {
  GlbBuilder file = triangleFile();
  json colored = file.description["meshes"][0]["primitives"][0];
  colored["attributes"]["COLOR_0"] = file.addFloats({1, 0, 0, 1, 0, 0, 1, 0, 0}, "VEC3", 3);
  file.description["meshes"][0]["primitives"].push_back(colored);
  Model model = parse(file);
  const Mesh& mesh = model.meshAt(0);
  ASSERT_EQ(mesh.colors.size(), 6U);
  EXPECT_FLOAT_EQ(mesh.colors[0].y, 1);
  EXPECT_FLOAT_EQ(mesh.colors[3].y, 0);
}

TEST(Loader, keyFramesBecomeWholeFrames) {
  Model model = parse(movingTriangleFile());
  EXPECT_EQ(model.frameCount(), 25);  // one second at 24 frames, both ends included
  const Vec3 start = model.meshAt(0).positions[0], middle = model.meshAt(12).positions[0],
             end = model.meshAt(24).positions[0];
  EXPECT_GT(end.x, start.x + 0.1F);
  EXPECT_NEAR(middle.x, (start.x + end.x) / 2, 1e-4);
}

TEST(Loader, theFileCanSayItsFrameRate) {
  GlbBuilder file = movingTriangleFile();
  file.description["asset"]["extras"] = {{"framesPerSecond", 10}};
  const Model model = parse(file);
  EXPECT_EQ(model.frameCount(), 11);
  EXPECT_DOUBLE_EQ(model.frameRate(), 10);
}

TEST(Loader, stepsHoldTheirValue) {
  GlbBuilder file = movingTriangleFile();
  file.description["animations"][0]["samplers"][0]["interpolation"] = "STEP";
  Model model = parse(file);
  const float start = model.meshAt(0).positions[0].x;
  EXPECT_FLOAT_EQ(model.meshAt(23).positions[0].x, start);
  EXPECT_GT(model.meshAt(24).positions[0].x, start);
}

TEST(Loader, splinesPassThroughTheirKeys) {
  GlbBuilder file = movingTriangleFile();
  json& sampler = file.description["animations"][0]["samplers"][0];
  sampler["interpolation"] = "CUBICSPLINE";
  sampler["output"] = file.addFloats({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0}, "VEC3", 3);
  Model model = parse(file);
  const float start = model.meshAt(0).positions[0].x, early = model.meshAt(3).positions[0].x,
              middle = model.meshAt(12).positions[0].x, end = model.meshAt(24).positions[0].x;
  EXPECT_NEAR(middle, (start + end) / 2, 1e-4);
  EXPECT_LT(early, start + (end - start) / 8);  // it starts slowly
}

TEST(Loader, rotationsTakeTheShorterWay) {
  GlbBuilder file = triangleFile();
  const auto half = static_cast<float>(std::sqrt(0.5));
  const int times = file.addFloats({0, 1}, "SCALAR", 1);
  const int turns = file.addFloats({0, 0, 0, 1, 0, 0, -half, -half}, "VEC4", 4);  // a quarter turn about z
  file.description["animations"] = {
      {{"samplers", {{{"input", times}, {"output", turns}}}},
       {"channels", {{{"sampler", 0}, {"target", {{"node", 0}, {"path", "rotation"}}}}}}}};
  Model model = parse(file);
  const Vec3 side = normalized(model.meshAt(12).positions[1] - model.meshAt(12).positions[0]);
  EXPECT_NEAR(side.x, half, 0.01);
  EXPECT_NEAR(side.y, half, 0.01);
}

TEST(Loader, jointsPullTheSkin) {
  GlbBuilder file = triangleFile();
  const int weights = file.addFloats({1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0}, "VEC4", 4);
  const int joints = file.addIndices({0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0});
  file.description["accessors"][static_cast<std::size_t>(joints)]["type"] = "VEC4";
  file.description["accessors"][static_cast<std::size_t>(joints)]["count"] = 3;
  json& attributes = file.description["meshes"][0]["primitives"][0]["attributes"];
  attributes["JOINTS_0"] = joints;
  attributes["WEIGHTS_0"] = weights;
  file.description["skins"] = {{{"joints", {1, 2}}}};
  file.description["nodes"] = {{{"mesh", 0}, {"skin", 0}}, json::object(), {{"translation", {3, 0, 0}}}};
  file.description["scenes"][0]["nodes"] = {0, 1, 2};
  Model model = parse(file);
  const Mesh& mesh = model.meshAt(0);
  EXPECT_NEAR(length(mesh.positions[1] - mesh.positions[0]) / length(mesh.positions[2] - mesh.positions[0]), 2, 1e-4);
}

TEST(Loader, realWorldModelsAreRead) {
  const std::filesystem::path folder = NERIDA_EXTRA_MODELS;
  if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no folder of real-world models (NERIDA_EXTRA_MODELS)";
  int read = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".glb") continue;
    Model model = Model::load(entry.path());
    EXPECT_FALSE(model.meshAt(0).triangles.empty()) << entry.path();
    ++read;
  }
  EXPECT_GT(read, 0);
}

TEST(Loader, realWorldDamageIsReadOrNamed) {
  const std::filesystem::path folder = std::filesystem::path(NERIDA_EXTRA_MODELS) / "damaged";
  if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no folder of damaged models (NERIDA_EXTRA_MODELS)";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    try {
      Model model = Model::load(entry.path());
      for (const Vec3 p : model.meshAt(0).positions) EXPECT_TRUE(isFinite(p)) << entry.path();
    } catch (const ModelError& error) {
      EXPECT_STRNE(error.what(), "") << entry.path();
    }
  }
}

}  // namespace
}  // namespace nerida
