#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "host/library/description.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

/// Built once: there are many.
const std::vector<BuiltModel>& samples() {
  static const std::vector<BuiltModel> models = [] {
    std::vector<BuiltModel> built;
    const Shared shared = readSharedFile(SAMPLE_MODELS);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(SAMPLE_MODELS)) {
      if (entry.path().extension() == ".model") built.push_back(buildModelFile(entry.path(), shared));
    }
    return built;
  }();
  return models;
}

void checkSurfaces(const Node& node) {
  for (const auto& [paint, surface] : node.surfaces) {
    for (const Vec& normal : surface.normals) ASSERT_NEAR(length(normal), 1, 1e-6);
    for (const Vec& point : surface.points) ASSERT_TRUE(std::isfinite(point.x + point.y + point.z));
  }
  for (const Node& child : node.children) checkSurfaces(child);
}

TEST(Samples, AreEnoughInManyCategoriesAndSomeMove) {
  std::map<std::string, std::set<std::string>> subcategories;
  std::set<std::string> names;
  for (const BuiltModel& model : samples()) {
    subcategories[model.card.category].insert(model.card.subcategory);
    EXPECT_TRUE(names.insert(model.card.name).second) << model.card.name << " is there twice";
  }
  EXPECT_GE(samples().size(), 120U);
  EXPECT_GE(std::ranges::count_if(samples(), [](const BuiltModel& m) { return m.card.animated; }), 12);
  EXPECT_GE(subcategories.size(), 8U);
  EXPECT_LE(subcategories.size(), 15U) << "the catalog's menu has no room for more";
  for (const auto& [category, below] : subcategories) EXPECT_GE(below.size(), 2U) << category;
}

TEST(Samples, SubcategoriesHaveNamesOfTheirOwn) {
  // A category search names the sub-category alone.
  std::map<std::string, std::string> categoryOf;
  for (const BuiltModel& model : samples()) {
    const auto [found, isNew] = categoryOf.emplace(model.card.subcategory, model.card.category);
    EXPECT_EQ(found->second, model.card.category) << model.card.subcategory;
  }
}

TEST(Samples, AreLightAndCanBeFound) {
  for (const BuiltModel& model : samples()) {
    SCOPED_TRACE(model.card.name);
    EXPECT_GE(triangleCount(model.root), 60U);
    EXPECT_LE(triangleCount(model.root), 13000U);
    EXPECT_GE(model.card.keywords.size(), 5U);
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
    EXPECT_GT(farthest, 0.03) << model.card.name;
  }
}

}  // namespace
}  // namespace nerida::library
