#include <gtest/gtest.h>

#include <cstring>

#include "host/library/description.h"
#include "host/library/glb_check.h"
#include "host/library/glb_writer.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

using nlohmann::json;

BuiltModel wheelOnAxle() {
  return buildModel(json::parse(R"({"number": 1, "name": "Wheel", "category": "c", "subcategory": "s", "keywords": [],
    "frames": 12, "framesPerSecond": 6, "materials": {"a": "#808080", "b": "#ff8000"},
    "parts": [{"box": [1, 1, 1]}, {"name": "wheel", "material": "b", "torus": 1, "tube": 0.2, "at": [0, 1, 1],
               "animate": {"turn": [[0, [0, 0, 0]], [12, [0, 360, 0]]]}}]})"),
                    "wheel.json");
}

std::uint32_t wordAt(const std::string& bytes, std::size_t at) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes.data() + at, sizeof word);
  return word;
}

json documentOf(const std::string& glb) { return json::parse(glb.substr(20, wordAt(glb, 12))); }

TEST(Glb, ContainerIsWellFormed) {
  const std::string glb = writeGlb(wheelOnAxle());
  EXPECT_EQ(glb.substr(0, 4), "glTF");
  EXPECT_EQ(wordAt(glb, 4), 2U);
  EXPECT_EQ(wordAt(glb, 8), glb.size());
  EXPECT_EQ(wordAt(glb, 12) % 4, 0U);
  EXPECT_EQ(documentOf(glb)["buffers"][0]["byteLength"], wordAt(glb, 20 + wordAt(glb, 12)));
}

TEST(Glb, ViewsStartAtMultiplesOfFour) {
  const json document = documentOf(writeGlb(wheelOnAxle()));
  for (const json& view : document["bufferViews"]) {
    EXPECT_EQ(view["byteOffset"].get<int>() % 4, 0);
  }
}

TEST(Glb, AnimationHasOneKeyForEachFrame) {
  const json document = documentOf(writeGlb(wheelOnAxle()));
  EXPECT_EQ(document["asset"]["extras"]["framesPerSecond"], 6.0);
  const json& animation = document["animations"][0];
  ASSERT_EQ(animation["channels"].size(), 2U);
  const json& times = document["accessors"][animation["samplers"][0]["input"].get<std::size_t>()];
  EXPECT_EQ(times["count"], 12);
  EXPECT_NEAR(times["max"][0].get<double>(), 11.0 / 6, 1e-6);
  const json& node = document["nodes"][animation["channels"][0]["target"]["node"].get<std::size_t>()];
  EXPECT_FALSE(node.contains("matrix")) << "a node with a matrix must not move";
  EXPECT_EQ(node["name"], "wheel");
}

TEST(Glb, SameModelGivesTheSameBytes) { EXPECT_EQ(writeGlb(wheelOnAxle()), writeGlb(wheelOnAxle())); }

TEST(GlbCheck, WholeFileIsRight) {
  const TemporaryFolder folder;
  EXPECT_EQ(whatIsWrongWith(folder.write("a.twe", writeGlb(wheelOnAxle()))), "");
}

TEST(GlbCheck, EveryTruncationIsNoticed) {
  const TemporaryFolder folder;
  const std::string glb = writeGlb(wheelOnAxle());
  for (std::size_t size = 0; size < glb.size(); size += glb.size() / 40) {
    EXPECT_NE(whatIsWrongWith(folder.write("a.twe", glb.substr(0, size))), "") << size;
  }
  EXPECT_NE(whatIsWrongWith(folder.write("a.twe", glb.substr(0, glb.size() - 1))), "");
}

std::string replaced(std::string glb, const std::string& from, const std::string& to) {
  const std::size_t at = glb.find(from);
  EXPECT_NE(at, std::string::npos);
  return glb.replace(at, from.size(), to);
}

TEST(GlbCheck, AccessorBeyondItsViewIsNoticed) {
  const TemporaryFolder folder;
  const std::string glb = replaced(writeGlb(wheelOnAxle()), "\"count\":24,", "\"count\":99,");
  EXPECT_NE(whatIsWrongWith(folder.write("a.twe", glb)), "");
}

TEST(GlbCheck, ForeignAndMissingFilesAreNoticed) {
  const TemporaryFolder folder;
  EXPECT_NE(whatIsWrongWith(folder.path() / "none.twe"), "");
  EXPECT_NE(whatIsWrongWith(folder.write("b.twe", "GIF89a, not a model at all")), "");
}

}  // namespace
}  // namespace nerida::library
