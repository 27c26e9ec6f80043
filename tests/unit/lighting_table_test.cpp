// The nine directions of the light: what each sends, and which one a direction of the model is taken for.
#include "popups/lighting_table.h"

#include <gtest/gtest.h>

#include <string>

namespace nerida {
namespace {

TEST(LightingTable, HasTheDirectionOfEveryLamp) {
  const struct {
    const char* key;
    int bar;
    std::int32_t x, y, z;
    const char* name;
  } rows[] = {{"LightUL", 0, -100, -100, 50, "Light from upper left"},
              {"LightT", 0, 0, -100, 0, "Light from above"},
              {"LightUR", 1, 100, -100, 50, "Light from upper right"},
              {"LightL", 3, -100, 0, 0, "Light from left"},
              {"M", 4, 0, 0, 100, "Light from front"},
              {"LightR", 1, 100, 0, 0, "Light from right"},
              {"LightBL", 3, -100, 100, 50, "Light from lower left"},
              {"LightB", 2, 0, 100, 0, "Light from below"},
              {"LightBR", 2, 100, 100, 50, "Light from lower right"}};
  for (const auto& row : rows) {
    const Lamp* lamp = lampOf(row.key);
    ASSERT_NE(lamp, nullptr) << row.key;
    EXPECT_EQ(lamp->bar, row.bar) << row.key;
    EXPECT_EQ(lamp->direction.x, row.x) << row.key;
    EXPECT_EQ(lamp->direction.y, row.y) << row.key;
    EXPECT_EQ(lamp->direction.z, row.z) << row.key;
    EXPECT_STREQ(lamp->accessibleName, row.name);
  }
}

TEST(LightingTable, KnowsNoOtherKeys) {
  for (const char* key : {"", "UL", "LightM", "LightULD", "LightNone", "lightul", "m"}) {
    EXPECT_EQ(lampOf(key), nullptr) << key;
  }
}

TEST(LightingTable, TakesADirectionByItsSignsOnly) {
  const struct {
    std::int32_t x, y;
    const char* key;
  } rows[] = {{-1, -1, "LightUL"},
              {0, -1, "LightT"},
              {1, -1, "LightUR"},
              {-1, 0, "LightL"},
              {0, 0, "M"},
              {1, 0, "LightR"},
              {-1, 1, "LightBL"},
              {0, 1, "LightB"},
              {1, 1, "LightBR"},
              {30, -5, "LightUR"},
              {-2147483647, 2147483647, "LightBL"}};
  for (const auto& row : rows) EXPECT_STREQ(lampToward(row.x, row.y).key, row.key);
}

TEST(LightingTable, EveryLampIsTakenForItself) {
  for (const Lamp& lamp : lamps) EXPECT_EQ(&lampToward(lamp.direction.x, lamp.direction.y), &lamp);
}

}  // namespace
}  // namespace nerida
