// Pictures as they should look. After a change that is meant to change them:
//   NERIDA_UPDATE_REFERENCES=1 host_tests --gtest_filter='*Reference*'
// then look at what changed under tests/host/reference before committing it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "host/scene/orientation.h"
#include "tests/host/pictures.h"
#include "tests/host/shapes.h"

namespace nerida {
namespace {

const std::filesystem::path references = NERIDA_REFERENCES;

bool updating() { return std::getenv("NERIDA_UPDATE_REFERENCES") != nullptr; }

std::string fileName(std::string style) {
  std::replace(style.begin(), style.end(), ' ', '-');
  std::transform(style.begin(), style.end(), style.begin(), [](unsigned char c) { return std::tolower(c); });
  return style + ".png";
}

std::vector<std::string> everyStyle() {
  std::vector<std::string> names{std::string(basicDraw().name)};
  for (const LookStyle& style : lookStyles()) names.emplace_back(style.name);
  return names;
}

Picture drawStillLife(const std::string& style) {
  Picture picture(240, 180);
  Look look;
  look.style = findLookStyle(style);
  Renderer().draw(stillLife(), {rotationOf({34'200, 3'000, 0})}, look, picture);
  return picture;
}

class ReferencePicture : public testing::TestWithParam<std::string> {};

TEST_P(ReferencePicture, isDrawnAgain) {
  const Picture picture = drawStillLife(GetParam());
  const auto file = references / fileName(GetParam());
  if (updating()) writePng(file, picture);
  const auto reference = readPng(file);
  ASSERT_TRUE(reference) << file << " is missing";
  ASSERT_EQ(reference->width, picture.width);
  ASSERT_EQ(reference->height, picture.height);
  // Other compilers round a little differently; along an edge that can tip a sample.
  constexpr int slight = 12;
  const long different = differences(picture, *reference, slight);
  if (different > 0) writePng(std::filesystem::path(testing::TempDir()) / fileName(GetParam()), picture);
  EXPECT_LE(different, 240 * 180 / 1000) << "what was drawn is in " << testing::TempDir();
}

INSTANTIATE_TEST_SUITE_P(Style, ReferencePicture, testing::ValuesIn(everyStyle()), [](const auto& entry) {
  std::string name = entry.param;
  name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
  return name;
});

TEST(ReferencePictures, noTwoStylesLookAlike) {
  const auto names = everyStyle();
  for (std::size_t i = 0; i < names.size(); ++i) {
    for (std::size_t j = i + 1; j < names.size(); ++j) {
      EXPECT_GT(differences(drawStillLife(names[i]), drawStillLife(names[j]), 16), 240 * 180 / 40)
          << names[i] << " and " << names[j];
    }
  }
}

}  // namespace
}  // namespace nerida
