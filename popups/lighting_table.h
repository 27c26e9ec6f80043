#pragma once

#include <array>
#include <span>
#include <string>

#include "core/model_object.h"

namespace nerida {

inline constexpr int lampBarCount = 4;
inline constexpr int centreBar = 4;  // its index in the array of lamp bars

// One direction of the light. The centre bar has a layout for each, with a cube lit from there.
struct Lamp {
  const char* key;
  int bar;
  LightDirection direction;  // an edge's light grazes the model, a corner's does not
  const char* accessibleName;
  const char* centreLayout;
  const char* centreKey;
  const char* centreBitmap;
};

extern const std::array<Lamp, 9> lamps;

// In the layouts "Enabled" and "Disabled" of the lamp bars, in the order in which they are added.
struct LampButton {
  int bar;
  const char* key;
  const char* bitmapSpec;
};

std::span<const LampButton> enabledLamps();
std::span<const LampButton> disabledLamps();

// Null for a key that is no direction.
const Lamp* lampOf(const std::string& key);
// The lamp on the side that the light comes from. Only the signs of x and y count.
const Lamp& lampToward(std::int32_t x, std::int32_t y);

}  // namespace nerida
