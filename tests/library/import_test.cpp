#include "host/library/model_import.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/library/description.h"
#include "host/library/fields.h"
#include "host/library/glb_fit.h"
#include "host/library/glb_writer.h"
#include "host/scene/model.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

Model modelOf(const std::string& bytes) {
  return Model::parse({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

constexpr const char* squareObj =
    "mtllib square.mtl\nv 10 10 0\nv 14 10 0\nv 14 14 0\nv 10 14 0\nvt 0 0\nvt 1 0\nvt 1 1\nvt 0 1\n"
    "usemtl red\nf 1/1 2/2 3/3 4/4\n";

class Import : public testing::Test {
 protected:
  std::string refusal(const std::string& name, const std::string& content) const {
    try {
      importModel(folder.write(name, content));
    } catch (const LibraryError& error) {
      return std::string(error.what()).substr(folder.path().string().size() + 1);
    }
    return "accepted";
  }

  TemporaryFolder folder;
};

TEST_F(Import, ObjIsCentredAndScaled) {
  folder.write("square.mtl", "newmtl red\nKd 1 0 0\n");
  const ImportedModel imported = importModel(folder.write("square.obj", squareObj));
  EXPECT_EQ(imported.triangles, 2U);
  EXPECT_TRUE(imported.remarks.empty());
  Model model = modelOf(imported.bytes);
  EXPECT_NEAR(model.extent().radius, 1, 1e-4);
  EXPECT_NEAR(length(model.extent().middle), 0, 1e-4);
  const nerida::Mesh& mesh = model.meshAt(0);
  EXPECT_FLOAT_EQ(mesh.materials[mesh.triangles[0].material].color.x, 1);
  EXPECT_FLOAT_EQ(mesh.materials[mesh.triangles[0].material].color.y, 0);
}

TEST_F(Import, ObjWithoutItsMaterialsIsPlainAndSaysSo) {
  const ImportedModel imported = importModel(folder.write("square.obj", squareObj));
  ASSERT_EQ(imported.remarks.size(), 1U);
  EXPECT_EQ(imported.remarks[0], "the materials square.mtl cannot be found; what they describe gets a plain colour");
}

TEST_F(Import, ObjWithoutNormalsGetsThem) {
  const ImportedModel imported = importModel(folder.write("square.obj", squareObj));
  Model model = modelOf(imported.bytes);
  for (const Vec3& normal : model.meshAt(0).normals) EXPECT_NEAR(std::abs(normal.z), 1, 1e-4);
}

TEST_F(Import, ObjKeepsItsPicture) {
  // The smallest PNG: one pixel.
  const std::string png(
      "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\10\2\0\0\0\x90wS\xde\0\0\0\x0cIDATx\x9c"
      "c\xf8\xcf\xc0\0\0\3\1\1\0\xc9\xfe\x92\xef\0\0\0\0IEND\xae"
      "B`\x82",
      69);
  folder.write("red.png", png);
  folder.write("square.mtl", "newmtl red\nKd 1 1 1\nmap_Kd red.png\n");
  const ImportedModel imported = importModel(folder.write("square.obj", squareObj));
  EXPECT_TRUE(imported.remarks.empty()) << imported.remarks[0];
  EXPECT_NE(imported.bytes.find("TEXCOORD_0"), std::string::npos);
  EXPECT_NE(imported.bytes.find(png), std::string::npos);
}

TEST_F(Import, ObjWithAMissingPictureSaysSo) {
  folder.write("square.mtl", "newmtl red\nKd 1 1 1\nmap_Kd gone.png\n");
  const ImportedModel imported = importModel(folder.write("square.obj", squareObj));
  ASSERT_EQ(imported.remarks.size(), 1U);
  EXPECT_EQ(imported.remarks[0], "the picture gone.png cannot be used; its colour is left out");
}

TEST_F(Import, GlbThatFitsIsTakenAsItIs) {
  const std::string box =
      writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\nbox 1,2,3 #808080\n", "box", {}), "box"));
  EXPECT_EQ(importModel(folder.write("box.glb", box)).bytes, box);
}

TEST_F(Import, GlbElsewhereIsBroughtIntoTheUnitSphere) {
  const std::string box =
      writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\nbox 1,2,3 #808080\n", "box", {}), "box"));
  // As if the file itself were large and far away.
  const std::string far = fittedGlb(box, {{0.5F, -3, 2}, 0.01F});
  EXPECT_NEAR(modelOf(far).extent().radius, 100, 0.1);
  const std::string bytes = importModel(folder.write("far.GLB", far)).bytes;
  EXPECT_NEAR(modelOf(bytes).extent().radius, 1, 1e-3);
  EXPECT_NEAR(length(modelOf(bytes).extent().middle), 0, 1e-3);
}

TEST_F(Import, WhatLiesBehindTheEndOfAGlbIsDropped) {
  const std::string box =
      writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\nbox 1,2,3 #808080\n", "box", {}), "box"));
  const std::string far = fittedGlb(box, {{0.5F, -3, 2}, 0.01F});
  const std::string bytes = importModel(folder.write("far.glb", far + "padding of a careless program")).bytes;
  EXPECT_EQ(bytes, importModel(folder.write("clean.glb", far)).bytes);
}

TEST_F(Import, PicturesInOtherFilesAreNamed) {
  std::string box =
      writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\nbox 1,2,3 #808080\n", "box", {}), "box"));
  const std::size_t at = box.find(R"("asset":{)");
  ASSERT_NE(at, std::string::npos);
  const std::size_t size = box.find('}', at) + 1 - at;
  std::string asset = R"("asset":{"version":"2.0"},"images":[{"uri":"a"}])";
  ASSERT_LE(asset.size(), size);
  asset.resize(size, ' ');
  box.replace(at, size, asset);
  EXPECT_EQ(importModel(folder.write("box.glb", box)).remarks,
            std::vector<std::string>{"the picture a lies in another file; its colour is left out"});
}

TEST_F(Import, AnimationIsNoticed) {
  const std::string recipe = "model 1 Box\nin C, S\nwords a\nframes 8\nbox 1,2,3 #808080 spin y\n";
  const std::string spinning = writeGlb(buildModel(readRecipe(recipe, "box", {}), "box"));
  EXPECT_TRUE(importModel(folder.write("box.glb", spinning)).animated);
}

TEST_F(Import, WhatCannotBeReadIsRefusedWithItsReason) {
  EXPECT_EQ(refusal("a.stl", "solid"), "a.stl: only .glb and .obj files can be added");
  EXPECT_EQ(refusal("a.gltf", "{}"), "a.gltf: is glTF in several files; export it as one binary file (.glb)");
  EXPECT_EQ(refusal("a.glb", ""), "a.glb: The model file is empty.");
  EXPECT_EQ(refusal("a.glb", "no model at all"), "a.glb: This is not a model file.");
  EXPECT_EQ(refusal("a.obj", "# nothing\n"), "a.obj: the model is empty");
  EXPECT_EQ(refusal("a.obj", "v 0 0 0\nv 1 0 0\nf 1 2 9\n").substr(0, 7), "a.obj: ");
  EXPECT_THROW(importModel(folder.path() / "none.glb"), LibraryError);
  EXPECT_THROW(importModel(folder.path()), LibraryError);
}

}  // namespace
}  // namespace nerida::library
