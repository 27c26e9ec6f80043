#pragma once

#include <algorithm>
#include <array>

#include "tests/unit/desk.h"

namespace nerida {

// One of the three palettes, and what it uses of the toolbar and the model.
struct RoleCase {
  const char* form;
  std::size_t index;
  int bar;
  const char* key;
  const char* isDefault;
  const char* color;
  const char* restore;
  ColorPalette& (*palette)(Library&);
};

inline void PrintTo(const RoleCase& role, std::ostream* out) { *out << role.form; }

inline const RoleCase roles[] = {
    {"frmBackgroundColors", 6, 3, "Background", "IsBackgroundDefault", "BackgroundColor",
     "RestoreDefaultBackgroundColor", [](Library& l) -> ColorPalette& { return l.backgroundColors; }},
    {"frmLineColors", 2, 1, "LineColorFill", "IsLineColorDefault", "LineColor", "RestoreDefaultLineColor",
     [](Library& l) -> ColorPalette& { return l.lineColors; }},
    {"frmSurfaceColors", 4, 2, "SurfaceColorFill", "IsSurfaceColorDefault", "SurfaceColor",
     "RestoreDefaultSurfaceColor", [](Library& l) -> ColorPalette& { return l.surfaceColors; }},
};

// A drawing as lines of text, colours of the program's own in decimal.
class ColorPad : public Canvas {
 public:
  using Canvas::filledBox;
  using Canvas::line;
  void line(Twips, Twips, Twips, Twips, SystemColor) override {}
  void box(Twips, Twips, Twips, Twips, SystemColor) override {}
  void filledBox(Twips, Twips, Twips, Twips, SystemColor) override {}
  void line(Twips, Twips, Twips, Twips, Rgb) override {}
  void filledBox(Twips, Twips, Twips, Twips, Rgb color) override { fills.push_back(color); }
  void focusBox(Twips x1, Twips y1, Twips, Twips) override { focusBoxes.push_back({x1.value, y1.value}); }

  std::vector<Rgb> fills;
  std::vector<Point> focusBoxes;
};

// The four lines of the selection frame, as one rectangle of their corners.
class FramePad : public ColorPad {
 public:
  using ColorPad::line;
  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor) override {
    lines.push_back({x1.value, y1.value, x2.value, y2.value});
  }
  std::vector<std::array<std::int32_t, 4>> lines;
};

inline std::string withoutRepaints(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (!line.ends_with("repaint")) text += line + "\n";
  }
  return text;
}

class PaletteDesk : protected Desk {
 protected:
  void showPalette(const RoleCase& which) {
    role = &which;
    enableStyleButtons();
    createInitAndShow();
    palette().load();
    take();
  }
  ColorPalette& palette() { return role->palette(library); }
  headless::FormWindow& window() { return form(role->form); }
  ColorRole colorRole() const {
    return role->index == 6 ? ColorRole::background : role->index == 2 ? ColorRole::line : ColorRole::surface;
  }
  headless::Picture& panel() { return window().picture("pnlColor"); }
  void explicitColor(Rgb color) {
    model->values[role->isDefault] = false;
    model->values[role->color] = color;
  }
  // Opens it with the toolbar's button.
  void open() {
    bar("barLS", role->bar).press(role->key);
    take();
  }
  void moveTo(std::int32_t x, std::int32_t y) { panel().movePointer({x}, {y}); }
  void moveToCell(int column, int row) { moveTo(120 + column * 270 + 100, 525 + row * 270 + 100); }
  void choose(int column, int row) {
    moveToCell(column, row);
    panel().pressAt({0}, {0});
  }
  // left, top, right, bottom; nothing while it is hidden.
  std::vector<std::int32_t> frame() {
    FramePad pad;
    panel().paint(pad);
    if (pad.lines.empty()) return {};
    EXPECT_EQ(pad.lines.size(), 4U);
    std::array<std::int32_t, 4> all = pad.lines.front();
    for (const auto& line : pad.lines) {
      all = {std::min(all[0], line[0]), std::min(all[1], line[1]), std::max(all[2], line[2]),
             std::max(all[3], line[3])};
    }
    return {all.begin(), all.end()};
  }
  std::string events() { return withoutRepaints(take()); }
  std::string closing() const {
    return std::string(role->form) + ": hide\n" + foregroundLine() + "\nbarLS(" + std::to_string(role->bar) +
           "): " + role->key + " state 0\n";
  }
  std::string let(const std::string& value) const {
    return std::string("model: ") + role->color + " = " + value + "\n";
  }

  const RoleCase* role = nullptr;
};

}  // namespace nerida
