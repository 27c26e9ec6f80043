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
                                         TextCase{"2.5", 2}));

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

TEST(NamedColors, AreFortyInRowsOfEight) {
  EXPECT_EQ(namedColors.size(), 40U);
  EXPECT_STREQ(namedColors[0].name, "Black");
  EXPECT_EQ(namedColors[1].color, 153 + 256 * 51);
  EXPECT_STREQ(namedColors[23].name, "Gray-40%");
  EXPECT_EQ(namedColors[23].color, 150 + 256 * 150 + 65536 * 150);
  EXPECT_STREQ(namedColors[39].name, "White");
  EXPECT_EQ(namedColors[39].color, 16777215);
}

}  // namespace
}  // namespace nerida
