#pragma once

#include <string>

namespace nerida {

inline constexpr int standardPictureWidth = 23;
inline constexpr int standardPictureHeight = 22;

// What a button shows: its kind, and a rectangle of a named bitmap in pixels at 96 dpi.
struct BitmapSpec {
  int kind = 0;
  std::string file;
  int left = 0;
  int top = 0;
  int width = standardPictureWidth;
  int height = standardPictureHeight;
  friend bool operator==(const BitmapSpec&, const BitmapSpec&) = default;
};

// Reads "kind, file, left, top[, width, height]". Blanks around the fields do not count; a missing, unreadable or
// impossible place or size is the standard one. Error 5 when there is no numeric kind.
BitmapSpec parseBitmapSpec(const std::string& text);

}  // namespace nerida
