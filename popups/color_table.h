#pragma once

#include <array>
#include <cstdint>

#include "platform/canvas.h"
#include "platform/settings.h"

namespace nerida {

constexpr Rgb rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

struct NamedColor {
  const char* name;
  Rgb color;
};

inline constexpr int namedColorCount = 40;
inline constexpr int recentColorCount = 8;

// The palette's 40 colours, eight to a row.
extern const std::array<NamedColor, namedColorCount> namedColors;

// The ring of custom colours that were chosen last, shared by the three palettes and kept in the user's settings.
struct RecentColors {
  std::array<Rgb, recentColorCount> PrevColor{};
  std::int16_t LastColor = -1;  // the slot most recently written, or -1
};

// What the settings hold. Reading stops at the first slot without a text; a text that is no number is 0.
RecentColors InitColorTable(Settings& settings);

// Writes all slots. Error 5 when the settings cannot be written.
void saveRecentColors(const RecentColors& recent, Settings& settings);

}  // namespace nerida
