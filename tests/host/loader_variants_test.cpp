// The less common ways in which files describe what is drawn.
#include <gtest/gtest.h>

#include <cmath>

#include "host/scene/model.h"
#include "tests/host/glb.h"

namespace nerida {
namespace {

using nlohmann::json;

json& attributesOf(GlbBuilder& file) { return file.description["meshes"][0]["primitives"][0]["attributes"]; }

json& colourTexture(GlbBuilder& file) {
  return file.description["materials"][0]["pbrMetallicRoughness"]["baseColorTexture"];
}

/// A triangle whose corners lie on a texture, in the first or second set of coordinates.
GlbBuilder texturedFile(const std::string& set) {
  GlbBuilder file = triangleFile();
  attributesOf(file)[set] = file.addFloats({0, 0, 1, 0, 0, 1}, "VEC2", 2);
  file.description["images"] = {{{"bufferView", file.addView({1, 2, 3})}, {"mimeType", "image/png"}}};
  file.description["textures"] = {{{"source", 0}}};
  colourTexture(file)["index"] = 0;
  return file;
}

void expectPlace(const Vec2& place, float x, float y) {
  EXPECT_NEAR(place.x, x, 1e-5);
  EXPECT_NEAR(place.y, y, 1e-5);
}

TEST(LoaderVariants, sparseDataReplaceSomeOfTheirBase) {
  GlbBuilder file = triangleFile();
  const int places = file.addIndices({1, 2});
  const int values = file.addFloats({6, 0, 0, 0, 6, 0}, "VEC3", 3);
  const auto viewOf = [&](int accessor) { return file.description["accessors"][accessor]["bufferView"]; };
  file.description["accessors"][0]["sparse"] = {{"count", 2},
                                                {"indices", {{"bufferView", viewOf(places)}, {"componentType", 5123}}},
                                                {"values", {{"bufferView", viewOf(values)}}}};
  EXPECT_NEAR(parse(file).extent().middle.x, 3, 1e-4);   // 1.5 without
  file.description["accessors"][0].erase("bufferView");  // what is not replaced is zero
  EXPECT_NEAR(parse(file).extent().middle.y, 3, 1e-4);
}

TEST(LoaderVariants, texturesUseTheSetOfCoordinatesThatTheirMaterialNames) {
  GlbBuilder file = texturedFile("TEXCOORD_1");
  EXPECT_TRUE(parse(file).meshAt(0).textureCoordinates.empty());
  colourTexture(file)["texCoord"] = 1;
  Model model = parse(file);
  ASSERT_EQ(model.meshAt(0).textureCoordinates.size(), 3U);
  expectPlace(model.meshAt(0).textureCoordinates[1], 1, 0);
}

TEST(LoaderVariants, texturesAreShiftedScaledAndTurned) {
  GlbBuilder file = texturedFile("TEXCOORD_0");
  colourTexture(file)["extensions"]["KHR_texture_transform"] = {
      {"offset", {0.25, 0.5}}, {"scale", {2, 3}}, {"rotation", std::acos(-1.0) / 2}};
  Model model = parse(file);
  const std::vector<Vec2>& places = model.meshAt(0).textureCoordinates;
  ASSERT_EQ(places.size(), 3U);
  expectPlace(places[0], 0.25F, 0.5F);
  expectPlace(places[1], 0.25F, 0.5F - 2);
  expectPlace(places[2], 0.25F + 3, 0.5F);
}

TEST(LoaderVariants, transformMayNameAnotherSetOfCoordinates) {
  GlbBuilder file = texturedFile("TEXCOORD_1");
  colourTexture(file)["extensions"]["KHR_texture_transform"]["texCoord"] = 1;
  EXPECT_EQ(parse(file).meshAt(0).textureCoordinates.size(), 3U);
}

TEST(LoaderVariants, nonsenseInATransformIsPassedOver) {
  GlbBuilder file = texturedFile("TEXCOORD_0");
  colourTexture(file)["extensions"]["KHR_texture_transform"] = {
      {"offset", "left"}, {"scale", {nullptr}}, {"rotation", {1}}, {"texCoord", "x"}};
  Model model = parse(file);
  expectPlace(model.meshAt(0).textureCoordinates.at(2), 0, 1);
}

TEST(LoaderVariants, colourMayBeCalledDiffuse) {
  GlbBuilder file = triangleFile();
  file.description["materials"][0] = {
      {"extensions", {{"KHR_materials_pbrSpecularGlossiness", {{"diffuseFactor", {0.5, 0.25, 0, 1}}}}}}};
  Model model = parse(file);
  EXPECT_FLOAT_EQ(model.meshAt(0).materials.back().color.x, 0.5F);
  EXPECT_FLOAT_EQ(model.meshAt(0).materials.back().color.y, 0.25F);
}

TEST(LoaderVariants, theFirstAnimationThatMovesANodeIsPlayed) {
  GlbBuilder file = movingTriangleFile();
  json weights = file.description["animations"][0];
  weights["channels"][0]["target"]["path"] = "weights";
  file.description["animations"] = {weights, file.description["animations"][0]};
  EXPECT_EQ(parse(file).frameCount(), 25);
}

TEST(LoaderVariants, aSingleKeyIsNoMovement) {
  GlbBuilder file = movingTriangleFile();
  json& sampler = file.description["animations"][0]["samplers"][0];
  sampler["input"] = file.addFloats({0}, "SCALAR", 1);
  EXPECT_EQ(parse(file).frameCount(), 0);
}

TEST(LoaderVariants, whatIsShrunkToNothingDoesNotMakeTheRestSmall) {
  GlbBuilder file = triangleFile();
  file.description["nodes"].push_back({{"mesh", 0}, {"scale", {0, 0, 0}}, {"translation", {500, 0, 0}}});
  file.description["scenes"][0]["nodes"] = {0, 1};
  EXPECT_LT(parse(file).extent().radius, 3);
}

}  // namespace
}  // namespace nerida
