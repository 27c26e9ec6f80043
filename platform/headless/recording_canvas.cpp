#include "platform/headless/recording_canvas.h"

#include <array>
#include <cstdio>

namespace nerida::headless {
namespace {

std::string placed(const char* what, Twips x1, Twips y1, Twips x2, Twips y2) {
  const auto point = [](Twips x, Twips y) { return std::to_string(x.value) + "," + std::to_string(y.value); };
  return std::string(what) + " " + point(x1, y1) + " to " + point(x2, y2);
}

std::string named(SystemColor color) { return " in system " + std::to_string(static_cast<int>(color)); }

std::string named(Rgb color) {
  const auto part = [&](int shift) { return (static_cast<unsigned>(color) >> shift) & 0xFF; };
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), " in #%02X%02X%02X", part(0), part(8), part(16));
  return text.data();
}

}  // namespace

void RecordingCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  lines.push_back(placed("line", x1, y1, x2, y2) + named(color));
}

void RecordingCanvas::box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  lines.push_back(placed("box", x1, y1, x2, y2) + named(color));
}

void RecordingCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  lines.push_back(placed("fill", x1, y1, x2, y2) + named(color));
}

void RecordingCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  lines.push_back(placed("line", x1, y1, x2, y2) + named(color));
}

void RecordingCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  lines.push_back(placed("fill", x1, y1, x2, y2) + named(color));
}

void RecordingCanvas::focusBox(Twips x1, Twips y1, Twips x2, Twips y2) {
  if (drawsFocus) lines.push_back(placed("focus", x1, y1, x2, y2));
}

}  // namespace nerida::headless
