#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

#include "host/library/description.h"
#include "host/library/library.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

std::vector<BuiltModel> samples() {
  std::vector<BuiltModel> models;
  for (const fs::directory_entry& entry : fs::directory_iterator(SAMPLE_MODELS)) {
    models.push_back(buildModelFile(entry.path()));
  }
  return models;
}

void checkSurfaces(const Node& node) {
  for (const auto& [paint, surface] : node.surfaces) {
    for (const Vec& normal : surface.normals) ASSERT_NEAR(length(normal), 1, 1e-6);
    for (const Vec& point : surface.points) ASSERT_TRUE(std::isfinite(point.x + point.y + point.z));
  }
  for (const Node& child : node.children) checkSurfaces(child);
}

TEST(Samples, AreEnoughAndSomeMove) {
  const std::vector<BuiltModel> models = samples();
  EXPECT_GE(models.size(), 6U);
  EXPECT_GE(std::ranges::count_if(models, [](const BuiltModel& m) { return m.card.animated; }), 2);
}

TEST(Samples, AreLightAndDetailed) {
  for (const BuiltModel& model : samples()) {
    SCOPED_TRACE(model.card.name);
    EXPECT_GE(triangleCount(model.root), 1000U);
    EXPECT_LE(triangleCount(model.root), 6500U);
    EXPECT_FALSE(model.card.keywords.empty());
    checkSurfaces(model.root);
  }
}

TEST(Samples, LieInTheUnitSphereInAllFrames) {
  for (const BuiltModel& model : samples()) {
    double farthest = 0;
    for (int frame = 0; frame < std::max(model.frames, 1); ++frame) {
      std::vector<Vec> points;
      collectPoints(model.root, {}, static_cast<std::size_t>(frame), points);
      for (const Vec& point : points) farthest = std::max(farthest, length(point));
    }
    EXPECT_NEAR(farthest, 1, 1e-6) << model.card.name;
  }
}

TEST(Samples, AnimatedOnesLookDifferentInTheirFrames) {
  for (const BuiltModel& model : samples()) {
    if (!model.card.animated) continue;
    std::vector<Vec> first, middle;
    collectPoints(model.root, {}, 0, first);
    collectPoints(model.root, {}, static_cast<std::size_t>(model.frames) / 4, middle);
    double farthest = 0;
    for (std::size_t i = 0; i < first.size(); ++i) farthest = std::max(farthest, length(first[i] - middle[i]));
    EXPECT_GT(farthest, 0.05) << model.card.name;
  }
}

int run(const std::string& arguments) {
  return std::system((std::string("'") + LIBRARY_TOOL + "' " + arguments + " >/dev/null 2>&1").c_str());
}

TEST(Tool, BuildsTheSamplesTwiceAlikeAndFindsThemWhole) {
  const TemporaryFolder folder;
  const std::string one = (folder.path() / "one").string(), two = (folder.path() / "two").string();
  ASSERT_EQ(run("build '" SAMPLE_MODELS "' '" + one + "'"), 0);
  ASSERT_EQ(run("build '" SAMPLE_MODELS "' '" + two + "'"), 0);
  EXPECT_EQ(run("check '" + one + "'"), 0);
  EXPECT_EQ(run("list '" + one + "'"), 0);
  std::set<fs::path> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(one)) {
    if (entry.is_regular_file()) files.insert(entry.path().lexically_relative(one));
  }
  EXPECT_GE(files.size(), 7U);
  for (const fs::path& file : files) EXPECT_EQ(contentOf(one / file), contentOf(two / file)) << file;
}

TEST(Tool, FailsForWrongUse) {
  EXPECT_NE(run(""), 0);
  EXPECT_NE(run("build"), 0);
  EXPECT_NE(run("sing /tmp"), 0);
  EXPECT_NE(run("check '/no such folder'"), 0);
}

}  // namespace
}  // namespace nerida::library
