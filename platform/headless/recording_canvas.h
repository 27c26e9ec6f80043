#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"

namespace nerida::headless {

// Writes down what is drawn.
class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(bool drawsFocus) : drawsFocus(drawsFocus) {}
  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void focusBox(Twips x1, Twips y1, Twips x2, Twips y2) override;

  std::vector<std::string> lines;

 private:
  bool drawsFocus;
};

}  // namespace nerida::headless
