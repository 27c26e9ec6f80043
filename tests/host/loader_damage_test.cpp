#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>

#include "host/scene/model.h"
#include "tests/host/glb.h"

namespace nerida {
namespace {

using nlohmann::json;

/// The message with which the file is refused; empty when it is not.
std::string refusal(const Bytes& bytes) {
  try {
    Model::parse(bytes);
    return {};
  } catch (const ModelError& error) {
    return error.what();
  }
}

TEST(DamagedFiles, areNamedClearly) {
  EXPECT_EQ(refusal({}), "The model file is empty.");
  EXPECT_EQ(refusal({'h', 'e', 'l', 'l', 'o', '!'}), "This is not a model file.");
  Bytes cut = triangleFile().bytes();
  cut.resize(cut.size() / 2);
  EXPECT_EQ(refusal(cut), "The model file is cut off.");
  Bytes old = triangleFile().bytes();
  old[4] = 1;
  EXPECT_EQ(refusal(old), "The model file is of a version that cannot be read.");
  EXPECT_EQ(refusal(glbOf("{\"asset\":", {0, 0, 0, 0})), "The model file's description is damaged.");
  EXPECT_EQ(refusal(glbOf("[1,2,3]", {0, 0, 0, 0})), "The model file's description is damaged.");
}

TEST(DamagedFiles, everyTruncationIsRefused) {
  const Bytes whole = movingTriangleFile().bytes();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_NE(refusal(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))), "") << size;
  }
}

TEST(DamagedFiles, descriptionsNestedWithoutEndAreRefused) {
  const std::string deep = std::string(200'000, '[');
  EXPECT_NE(refusal(glbOf(deep, {})), "");
  const std::string extras = std::string(5'000, '[') + std::string(5'000, ']');
  EXPECT_EQ(refusal(glbOf("{\"asset\":{\"version\":\"2.0\",\"extras\":" + extras + "}}", {0, 0, 0, 0})),
            "The model file's description is nested too deeply.");
}

TEST(DamagedFiles, aFileMayNotNameAnotherFile) {
  GlbBuilder file = triangleFile();
  file.description["buffers"][0]["uri"] = "secret.bin";
  EXPECT_NE(refusal(file.bytes()), "");
}

struct Harm {
  const char* name;
  std::function<void(GlbBuilder&)> act;
};

void PrintTo(const Harm& harm, std::ostream* out) { *out << harm.name; }

json& primitiveOf(GlbBuilder& file) { return file.description["meshes"][0]["primitives"][0]; }

const float notANumber = std::numeric_limits<float>::quiet_NaN();
const float infinite = std::numeric_limits<float>::infinity();

const std::vector<Harm> harms{
    {"noMeshes", [](auto& f) { f.description.erase("meshes"); }},
    {"noNodes", [](auto& f) { f.description.erase("nodes"); }},
    {"noPrimitives", [](auto& f) { f.description["meshes"][0]["primitives"] = json::array(); }},
    {"noPositions", [](auto& f) { primitiveOf(f)["attributes"].erase("POSITION"); }},
    {"onlyPoints", [](auto& f) { primitiveOf(f)["mode"] = 0; }},
    {"indexBeyondTheCorners",
     [](auto& f) {
       primitiveOf(f)["indices"] = f.addIndices({0, 1, 3});
     }},
    {"indicesAreFloats",
     [](auto& f) {
       primitiveOf(f)["indices"] = f.addFloats({0, 1, 2}, "SCALAR", 1);
     }},
    {"accessorThatIsNotThere", [](auto& f) { primitiveOf(f)["attributes"]["POSITION"] = 999; }},
    {"materialThatIsNotThere", [](auto& f) { primitiveOf(f)["material"] = 7; }},
    {"sceneThatIsNotThere", [](auto& f) { f.description["scene"] = 5; }},
    {"nodeThatIsNotThere",
     [](auto& f) {
       f.description["scenes"][0]["nodes"] = {0, 12};
     }},
    {"meshThatIsNotThere", [](auto& f) { f.description["nodes"][0]["mesh"] = 3; }},
    {"skinThatIsNotThere", [](auto& f) { f.description["nodes"][0]["skin"] = 3; }},
    {"nodeIsItsOwnChild", [](auto& f) { f.description["nodes"][0]["children"] = {0}; }},
    {"nodesInACircle",
     [](auto& f) {
       f.description["nodes"] = {{{"mesh", 0}, {"children", {1}}}, {{"children", {0}}}};
     }},
    {"countBeyondTheData", [](auto& f) { f.description["accessors"][0]["count"] = 4'000'000; }},
    {"countBeyondAllData", [](auto& f) { f.description["accessors"][0]["count"] = 4'000'000'000'000LL; }},
    {"offsetBeyondTheData", [](auto& f) { f.description["accessors"][0]["byteOffset"] = 1'000'000; }},
    {"viewBeyondTheData", [](auto& f) { f.description["bufferViews"][0]["byteOffset"] = 1'000'000; }},
    {"bufferBeyondTheData", [](auto& f) { f.description["buffers"][0]["byteLength"] = 1'000'000; }},
    {"bufferThatIsNotThere", [](auto& f) { f.description["bufferViews"][0]["buffer"] = 2; }},
    {"emptyBuffer", [](auto& f) { f.description["buffers"][0]["byteLength"] = 0; }},
    {"strideBeyondTheData", [](auto& f) { f.description["bufferViews"][0]["byteStride"] = 252; }},
    {"positionsAreScalars", [](auto& f) { f.description["accessors"][0]["type"] = "SCALAR"; }},
    {"unknownNumbers", [](auto& f) { f.description["accessors"][0]["componentType"] = 77; }},
    {"tooFewNormals",
     [](auto& f) {
       primitiveOf(f)["attributes"]["NORMAL"] = f.addFloats({0, 0, 1}, "VEC3", 3);
     }},
    {"positionsWithoutNumbers",
     [](auto& f) {
       primitiveOf(f)["attributes"]["POSITION"] = f.addFloats({0, 0, 0, notANumber, 0, 0, 0, 1, 0}, "VEC3", 3);
     }},
    {"infinitePositions",
     [](auto& f) {
       primitiveOf(f)["attributes"]["POSITION"] = f.addFloats({0, 0, 0, infinite, 0, 0, 0, 1, 0}, "VEC3", 3);
     }},
    {"hugePositions",
     [](auto& f) {
       primitiveOf(f)["attributes"]["POSITION"] = f.addFloats({-3e38F, 0, 0, 3e38F, 0, 0, 0, 3e38F, 0}, "VEC3", 3);
     }},
    {"noExtent",
     [](auto& f) {
       f.description.erase("animations");
       primitiveOf(f)["attributes"]["POSITION"] = f.addFloats({1, 1, 1, 1, 1, 1, 1, 1, 1}, "VEC3", 3);
     }},
    {"infiniteScale",
     [](auto& f) {
       f.description["nodes"][0]["scale"] = {1e300, 1, 1};
     }},
    {"sparseDataElsewhere",
     [](auto& f) {
       f.description["accessors"][0]["sparse"] = {
           {"count", 1}, {"indices", {{"bufferView", 77}, {"componentType", 5123}}}, {"values", {{"bufferView", 0}}}};
     }},
    {"sparseDataForNobody",
     [](auto& f) {
       const int places = f.addIndices({3});
       f.description["accessors"][0]["sparse"] = {
           {"count", 1},
           {"indices", {{"bufferView", f.description["accessors"][places]["bufferView"]}, {"componentType", 5123}}},
           {"values", {{"bufferView", 0}}}};
     }},
    {"sparseDataBeyondTheEnd",
     [](auto& f) {
       const int places = f.addIndices({0});
       f.description["accessors"][0]["sparse"] = {
           {"count", 4000},
           {"indices", {{"bufferView", f.description["accessors"][places]["bufferView"]}, {"componentType", 5123}}},
           {"values", {{"bufferView", 0}}}};
     }},
    {"bufferInAnotherFile", [](auto& f) { f.description["buffers"][0]["uri"] = "model.bin"; }},
    {"unreadableExtension", [](auto& f) { f.description["extensionsRequired"] = {"KHR_draco_mesh_compression"}; }},
    {"manyBuffers",
     [](auto& f) {
       for (int i = 0; i < 1000; ++i) f.description["buffers"].push_back(f.description["buffers"][0]);
     }},
    {"animationRunsBackwards",
     [](auto& f) {
       f.description["animations"][0]["samplers"][0]["input"] = f.addFloats({1, 0}, "SCALAR", 1);
     }},
    {"animationWithoutNumbers",
     [](auto& f) {
       f.description["animations"][0]["samplers"][0]["output"] = f.addFloats({0, 0, 0, notANumber, 0, 0}, "VEC3", 3);
     }},
    {"animationMissesSteps",
     [](auto& f) {
       f.description["animations"][0]["samplers"][0]["output"] = f.addFloats({0, 0, 0}, "VEC3", 3);
     }},
    {"animationOfNoNode", [](auto& f) { f.description["animations"][0]["channels"][0]["target"]["node"] = 44; }},
    {"animationWithoutSampler", [](auto& f) { f.description["animations"][0]["channels"][0]["sampler"] = 9; }},
};

class HarmedFile : public testing::TestWithParam<Harm> {};

TEST_P(HarmedFile, isRefusedWithASentence) {
  GlbBuilder file = movingTriangleFile();
  ASSERT_EQ(refusal(file.bytes()), "");
  GetParam().act(file);
  const std::string message = refusal(file.bytes());
  ASSERT_NE(message, "");
  EXPECT_EQ(message.back(), '.');
}

INSTANTIATE_TEST_SUITE_P(Kind, HarmedFile, testing::ValuesIn(harms),
                         [](const auto& entry) { return std::string(entry.param.name); });

TEST(DamagedFiles, anEndlessAnimationIsShownInFewerFrames) {
  GlbBuilder file = movingTriangleFile();
  file.description["animations"][0]["samplers"][0]["input"] = file.addFloats({0, 1e30F}, "SCALAR", 1);
  Model model = Model::parse(file.bytes());
  EXPECT_EQ(model.frameCount(), 32'767);
  EXPECT_TRUE(isFinite(model.meshAt(32'766).positions[0]));
}

TEST(DamagedFiles, aBrokenTextureIsLeftOut) {
  GlbBuilder file = triangleFile();
  const int view = file.addView({0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0});
  file.description["images"] = {{{"bufferView", view}, {"mimeType", "image/png"}}};
  file.description["textures"] = {{{"source", 0}}};
  file.description["materials"][0]["pbrMetallicRoughness"]["baseColorTexture"] = {{"index", 0}};
  Model model = Model::parse(file.bytes());
  EXPECT_EQ(model.meshAt(0).materials.back().texture, nullptr);
}

TEST(DamagedFiles, anImageBeyondTheDataIsRefused) {
  GlbBuilder file = triangleFile();
  const int view = file.addView({0x89, 'P', 'N', 'G'});
  file.description["images"] = {{{"bufferView", view}, {"mimeType", "image/png"}}};
  file.description["bufferViews"][static_cast<std::size_t>(view)]["byteLength"] = 1'000'000;
  EXPECT_EQ(refusal(file.bytes()), "The model file refers to data beyond its end.");
}

/// One of everything that a reader could trip over.
GlbBuilder richFile() {
  GlbBuilder file = movingTriangleFile();
  const int view = file.addView({0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D', 'R'});
  file.description["images"] = {{{"bufferView", view}, {"mimeType", "image/png"}}};
  file.description["textures"] = {{{"source", 0}}};
  file.description["materials"][0]["pbrMetallicRoughness"]["baseColorTexture"] = {{"index", 0}};
  primitiveOf(file)["attributes"]["TEXCOORD_0"] = file.addFloats({0, 0, 1, 0, 0, 1}, "VEC2", 2);
  primitiveOf(file)["attributes"]["COLOR_0"] = file.addFloats({1, 0, 0, 0, 1, 0, 0, 0, 1}, "VEC3", 3);
  return file;
}

TEST(DamagedFiles, changedBytesNeverBreakTheReader) {
  const Bytes whole = richFile().bytes();
  std::mt19937 random(20'260'101);
  int refused = 0;
  constexpr int rounds = 3'000;
  for (int round = 0; round < rounds; ++round) {
    Bytes bytes = whole;
    const auto changes = 1 + random() % 4;
    for (unsigned i = 0; i < changes; ++i) bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
    try {
      Model model = Model::parse(bytes);
      for (const Vec3 p : model.meshAt(model.frameCount() / 2).positions) ASSERT_TRUE(isFinite(p));
    } catch (const ModelError&) {
      ++refused;
    }
  }
  EXPECT_GT(refused, rounds / 4);
  EXPECT_LT(refused, rounds);
}

TEST(DamagedFiles, filesThatAreNotThereAreNamed) {
  EXPECT_THROW(Model::load("no/such/file.twe"), ModelError);
  EXPECT_THROW(Model::load(testing::TempDir()), ModelError);
}

}  // namespace
}  // namespace nerida
