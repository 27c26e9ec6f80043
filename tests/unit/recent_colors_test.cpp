// The ring of recent colours in the user's settings, and the palette's table.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/headless/settings.h"
#include "popups/color_table.h"

namespace nerida {
namespace {

using testing::Each;
using testing::ElementsAre;

class RecentColorsTest : public testing::Test {
 protected:
  void set(const std::string& key, const std::string& text) { settings.texts[{"Toolbar", key}] = text; }
  headless::MemorySettings settings;
};

TEST_F(RecentColorsTest, AreBlackAndUnwrittenWithoutSettings) {
  const RecentColors recent = InitColorTable(settings);
  EXPECT_THAT(recent.PrevColor, Each(0));
  EXPECT_EQ(recent.LastColor, -1);
}

TEST_F(RecentColorsTest, AreReadSlotBySlot) {
  for (int i = 0; i < 8; ++i) set("PrevColor" + std::to_string(i), std::to_string(i + 100));
  set("LastColor", "7");
  const RecentColors recent = InitColorTable(settings);
  EXPECT_THAT(recent.PrevColor, ElementsAre(100, 101, 102, 103, 104, 105, 106, 107));
  EXPECT_EQ(recent.LastColor, 7);
}

TEST_F(RecentColorsTest, EndAtTheFirstMissingOrEmptySlot) {
  for (const int i : {0, 1, 2, 4}) set("PrevColor" + std::to_string(i), "9");
  EXPECT_THAT(InitColorTable(settings).PrevColor, ElementsAre(9, 9, 9, 0, 0, 0, 0, 0));
  set("PrevColor1", "");
  EXPECT_THAT(InitColorTable(settings).PrevColor, ElementsAre(9, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(RecentColorsTest, WithoutTheFirstSlotNoneIsReadButTheLastOneIs) {
  set("PrevColor1", "9");
  set("LastColor", "3");
  const RecentColors recent = InitColorTable(settings);
  EXPECT_THAT(recent.PrevColor, Each(0));
  EXPECT_EQ(recent.LastColor, 3);
}

struct TextCase {
  const char* text;
  std::int32_t number;
};

class StoredColor : public testing::TestWithParam<TextCase> {};

TEST_P(StoredColor, IsTheNumberAtTheStartOfItsText) {
  headless::MemorySettings settings;
  settings.texts[{"Toolbar", "PrevColor0"}] = GetParam().text;
  EXPECT_EQ(InitColorTable(settings).PrevColor[0], GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Texts, StoredColor,
                         testing::Values(TextCase{"255", 255}, TextCase{" 16711680 ", 16711680}, TextCase{"12abc", 12},
                                         TextCase{"abc", 0}, TextCase{"&HFF", 255}, TextCase{"1 2", 12},
                                         TextCase{"2.5", 2}, TextCase{"3.5", 4}, TextCase{"-1", -1},
                                         TextCase{"1e3", 1000}, TextCase{"2147483647", 2147483647},
                                         TextCase{"2147483648", 0}, TextCase{"-2147483648", -2147483647 - 1},
                                         TextCase{"-2147483649", 0}, TextCase{"1e400", 0}, TextCase{" ", 0}));

class StoredSlot : public testing::TestWithParam<TextCase> {};

TEST_P(StoredSlot, OutsideTheRingCountsAsNone) {
  headless::MemorySettings settings;
  settings.texts[{"Toolbar", "LastColor"}] = GetParam().text;
  EXPECT_EQ(InitColorTable(settings).LastColor, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Texts, StoredSlot,
                         testing::Values(TextCase{"0", 0}, TextCase{"7", 7}, TextCase{"8", -1}, TextCase{"-1", -1},
                                         TextCase{"-2", -1}, TextCase{"", -1}, TextCase{"99999999999", 0},
                                         TextCase{"2.5", 2}, TextCase{"abc", 0}, TextCase{" 3 ", 3},
                                         TextCase{"7.5", -1}, TextCase{"-0.5", 0}));

TEST_F(RecentColorsTest, AreWrittenWholeAndComeBack) {
  RecentColors recent;
  recent.PrevColor = {1, 2, 3, 4, 5, 6, 7, 16777215};
  recent.LastColor = 2;
  saveRecentColors(recent, settings);
  EXPECT_EQ(settings.texts.size(), 9U);
  const RecentColors back = InitColorTable(settings);
  EXPECT_EQ(back.PrevColor, recent.PrevColor);
  EXPECT_EQ(back.LastColor, 2);
}

// Eight to a row, as they lie in the grid.
constexpr struct {
  const char* name;
  int red, green, blue;
} paletteRows[] = {
    {"Black", 0, 0, 0},
    {"Brown", 153, 51, 0},
    {"Olive Green", 51, 51, 0},
    {"Dark Green", 0, 51, 0},
    {"Dark Teal", 0, 51, 102},
    {"Dark Blue", 0, 0, 128},
    {"Indigo", 51, 51, 153},
    {"Gray-80%", 51, 51, 51},
    {"Dark Red", 128, 0, 0},
    {"Orange", 255, 102, 0},
    {"Dark Yellow", 128, 128, 0},
    {"Green", 0, 128, 0},
    {"Teal", 0, 128, 128},
    {"Blue", 0, 0, 255},
    {"Blue-Gray", 102, 102, 153},
    {"Gray-50%", 128, 128, 128},
    {"Red", 255, 0, 0},
    {"Light Orange", 255, 153, 0},
    {"Lime", 153, 204, 0},
    {"Sea Green", 51, 153, 102},
    {"Aqua", 51, 204, 204},
    {"Light Blue", 51, 102, 255},
    {"Violet", 128, 0, 128},
    {"Gray-40%", 150, 150, 150},
    {"Pink", 255, 0, 255},
    {"Gold", 255, 204, 0},
    {"Yellow", 255, 255, 0},
    {"Bright Green", 0, 255, 0},
    {"Turquoise", 0, 255, 255},
    {"Sky Blue", 0, 204, 255},
    {"Plum", 153, 51, 102},
    {"Gray-25%", 192, 192, 192},
    {"Rose", 255, 153, 204},
    {"Tan", 255, 204, 153},
    {"Light Yellow", 255, 255, 153},
    {"Light Green", 204, 255, 204},
    {"Light Turquoise", 204, 255, 255},
    {"Pale Blue", 153, 204, 255},
    {"Lavender", 204, 153, 255},
    {"White", 255, 255, 255},
};

TEST(NamedColors, AreFortyInTheirOrder) {
  ASSERT_EQ(namedColors.size(), std::size(paletteRows));
  for (std::size_t i = 0; i < namedColors.size(); ++i) {
    EXPECT_STREQ(namedColors[i].name, paletteRows[i].name);
    EXPECT_EQ(namedColors[i].color, paletteRows[i].red + 256 * paletteRows[i].green + 65536 * paletteRows[i].blue) << i;
  }
}

}  // namespace
}  // namespace nerida
