#include "popups/lighting_table.h"

#include <algorithm>

namespace nerida {
namespace {

// clang-format off
constexpr LampButton enabled[] = {
    {0, "LightUL",  "6, lamp1.bmp, 0,0"},
    {0, "LightT",   "6, lamp2.bmp, 26, 0"},
    {1, "LightUR",  "6, lamp3.bmp, 0,0"},
    {1, "LightR",   "6, lamp6.bmp, 0, 26"},
    {2, "LightB",   "6, lamp8.bmp, 0,0"},
    {2, "LightBR",  "6, lamp9.bmp, 26, 0"},
    {3, "LightL",   "6, lamp4.bmp, 0,0"},
    {3, "LightBL",  "6, lamp7.bmp, 0, 26"},
};

constexpr LampButton disabled[] = {
    {0, "LightULD", "4, lamp1_disabled.bmp, 0,0"},
    {0, "LightTD",  "4, lamp2_disabled.bmp, 26, 0"},
    {1, "LightURD", "4, lamp3_disabled.bmp, 0,0"},
    {1, "LightRD",  "4, lamp6_disabled.bmp, 0, 26"},
    {2, "LightBD",  "4, lamp8_disabled.bmp, 0,0"},
    {2, "LightBRD", "4, lamp9_disabled.bmp, 26, 0"},
    {3, "LightLD",  "4, lamp4_disabled.bmp, 0,0"},
    {3, "LightBLD", "4, lamp7_disabled.bmp, 0, 26"},
};
// clang-format on

int sign(std::int32_t number) { return (number > 0) - (number < 0); }

}  // namespace

// clang-format off
const std::array<Lamp, 9> lamps{{
    {"LightUL", 0, {-100, -100, 50}, "Light from upper left",  "LightUL", "UL", "6, lightCube1.bmp, 0,0"},
    {"LightT",  0, {0, -100, 0},     "Light from above",       "LightT",  "T",  "6, lightCube2.bmp, 0,0"},
    {"LightUR", 1, {100, -100, 50},  "Light from upper right", "LightUR", "UR", "6, lightCube3.bmp, 0,0"},
    {"LightR",  1, {100, 0, 0},      "Light from right",       "LightR",  "R",  "6, lightCube6.bmp, 0,0"},
    {"LightBR", 2, {100, 100, 50},   "Light from lower right", "LightBR", "BR", "6, lightCube9.bmp, 0,0"},
    {"LightB",  2, {0, 100, 0},      "Light from below",       "LightB",  "B",  "6, lightCube8.bmp, 0,0"},
    {"LightBL", 3, {-100, 100, 50},  "Light from lower left",  "LightBL", "BL", "6, lightCube7.bmp, 0,0"},
    {"LightL",  3, {-100, 0, 0},     "Light from left",        "LightL",  "L",  "6, lightCube4.bmp, 0,0"},
    {"M", centreBar, {0, 0, 100},    "Light from front",       "LightM",  "M",  "6, lightCube5.bmp, 0,0"},
}};
// clang-format on

std::span<const LampButton> enabledLamps() { return enabled; }

std::span<const LampButton> disabledLamps() { return disabled; }

const Lamp* lampOf(const std::string& key) {
  const auto found = std::find_if(lamps.begin(), lamps.end(), [&](const Lamp& lamp) { return key == lamp.key; });
  return found == lamps.end() ? nullptr : &*found;
}

const Lamp& lampToward(std::int32_t x, std::int32_t y) {
  return *std::find_if(lamps.begin(), lamps.end(), [&](const Lamp& lamp) {
    return sign(lamp.direction.x) == sign(x) && sign(lamp.direction.y) == sign(y);
  });
}

}  // namespace nerida
