#include "popups/color_table.h"

#include <cmath>
#include <string>

#include "platform/value.h"

namespace nerida {

const std::array<NamedColor, namedColorCount> namedColors{{
    {"Black", rgb(0, 0, 0)},
    {"Brown", rgb(153, 51, 0)},
    {"Olive Green", rgb(51, 51, 0)},
    {"Dark Green", rgb(0, 51, 0)},
    {"Dark Teal", rgb(0, 51, 102)},
    {"Dark Blue", rgb(0, 0, 128)},
    {"Indigo", rgb(51, 51, 153)},
    {"Gray-80%", rgb(51, 51, 51)},
    {"Dark Red", rgb(128, 0, 0)},
    {"Orange", rgb(255, 102, 0)},
    {"Dark Yellow", rgb(128, 128, 0)},
    {"Green", rgb(0, 128, 0)},
    {"Teal", rgb(0, 128, 128)},
    {"Blue", rgb(0, 0, 255)},
    {"Blue-Gray", rgb(102, 102, 153)},
    {"Gray-50%", rgb(128, 128, 128)},
    {"Red", rgb(255, 0, 0)},
    {"Light Orange", rgb(255, 153, 0)},
    {"Lime", rgb(153, 204, 0)},
    {"Sea Green", rgb(51, 153, 102)},
    {"Aqua", rgb(51, 204, 204)},
    {"Light Blue", rgb(51, 102, 255)},
    {"Violet", rgb(128, 0, 128)},
    {"Gray-40%", rgb(150, 150, 150)},
    {"Pink", rgb(255, 0, 255)},
    {"Gold", rgb(255, 204, 0)},
    {"Yellow", rgb(255, 255, 0)},
    {"Bright Green", rgb(0, 255, 0)},
    {"Turquoise", rgb(0, 255, 255)},
    {"Sky Blue", rgb(0, 204, 255)},
    {"Plum", rgb(153, 51, 102)},
    {"Gray-25%", rgb(192, 192, 192)},
    {"Rose", rgb(255, 153, 204)},
    {"Tan", rgb(255, 204, 153)},
    {"Light Yellow", rgb(255, 255, 153)},
    {"Light Green", rgb(204, 255, 204)},
    {"Light Turquoise", rgb(204, 255, 255)},
    {"Pale Blue", rgb(153, 204, 255)},
    {"Lavender", rgb(204, 153, 255)},
    {"White", rgb(255, 255, 255)},
}};

namespace {

constexpr const char* section = "Toolbar";

std::string slotKey(std::size_t slot) { return "PrevColor" + std::to_string(slot); }

// Settings are texts that anybody can edit: what is no number, or no 32-bit one, counts as 0.
std::int32_t storedNumber(const std::string& text) {
  const double number = std::nearbyint(leadingNumber(text));
  return number >= -2147483648.0 && number <= 2147483647.0 ? static_cast<std::int32_t>(number) : 0;
}

std::int16_t storedSlot(const std::string& text) {
  const std::int32_t slot = text.empty() ? -1 : storedNumber(text);
  return static_cast<std::int16_t>(slot >= 0 && slot < recentColorCount ? slot : -1);
}

}  // namespace

RecentColors InitColorTable(Settings& settings) {
  RecentColors recent;
  for (std::size_t slot = 0; slot < recent.PrevColor.size(); ++slot) {
    const std::string text = settings.read(section, slotKey(slot), "");
    if (text.empty()) break;
    recent.PrevColor[slot] = storedNumber(text);
  }
  recent.LastColor = storedSlot(settings.read(section, "LastColor", "-1"));
  return recent;
}

void saveRecentColors(const RecentColors& recent, Settings& settings) {
  for (std::size_t slot = 0; slot < recent.PrevColor.size(); ++slot) {
    settings.write(section, slotKey(slot), std::to_string(recent.PrevColor[slot]));
  }
  settings.write(section, "LastColor", std::to_string(recent.LastColor));
}

}  // namespace nerida
