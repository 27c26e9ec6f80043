#include "platform/picture_scale.h"

#include <gtest/gtest.h>

namespace nerida {
namespace {

constexpr std::uint32_t black = 0xFF000000, white = 0xFFFFFFFF, red = 0xFFFF0000;

TEST(PictureScale, KeepsAPictureOfTheSameSize) {
  EXPECT_EQ(scaled({2, 1, {red, white}}, 2, 1).pixels, (std::vector<std::uint32_t>{red, white}));
}

TEST(PictureScale, MakesTheAverageOfWhatAPixelCovers) {
  const Picture small = scaled({2, 2, {black, white, white, black}}, 1, 1);
  EXPECT_EQ(small.pixels, (std::vector<std::uint32_t>{0xFF808080}));
}

TEST(PictureScale, WeighsPixelsThatAreCoveredInPart) {
  const Picture small = scaled({3, 1, {black, white, black}}, 2, 1);  // one and a half pixels each
  EXPECT_EQ(small.pixels, (std::vector<std::uint32_t>{0xFF555555, 0xFF555555}));
}

TEST(PictureScale, RepeatsPixelsOfALargerPicture) {
  const Picture large = scaled({2, 1, {red, white}}, 4, 2);
  EXPECT_EQ(large.pixels, (std::vector<std::uint32_t>{red, red, white, white, red, red, white, white}));
}

TEST(PictureScale, AveragesTransparencyToo) {
  EXPECT_EQ(scaled({2, 1, {0x00000000, white}}, 1, 1).pixels, (std::vector<std::uint32_t>{0x80808080}));
}

TEST(PictureScale, GivesNothingForNothing) {
  EXPECT_TRUE(scaled({}, 4, 4).pixels.empty());
  EXPECT_TRUE(scaled({1, 1, {red}}, 0, 4).pixels.empty());
}

}  // namespace
}  // namespace nerida
