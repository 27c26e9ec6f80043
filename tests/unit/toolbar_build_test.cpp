// How the toolbar is built: every call on its button bars, in order, and the buttons that come of it.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

struct Row {
  const char* bar;  // as the transcript names it
  const char* key;
  const char* spec;
  const char* tooltip;
  const char* caption;
  int kind;
  const char* file;
  int left;
};

// clang-format off
const std::vector<Row> rows = {
    {"barMB",       "Model",            "5, Model.bmp, 0,0",                      "Replace Zephra",         "",          5, "Model.bmp",                    0},
    {"barLS(0)",    "LineThickness",    "6,LineThickness.bmp,0,0,23,22",          "Line Thickness",         "",          6, "LineThickness.bmp",            0},
    {"barLS(1)",    "LineColorFill",    "6,LineColor.bmp,0,0,23,22",              "Line Color",             "",          6, "LineColor.bmp",                0},
    {"barLS(2)",    "SurfaceColorFill", "6,SurfColor.bmp,0,0,23,22",              "Fill Color",             "",          6, "SurfColor.bmp",                0},
    {"barLS(3)",    "Background",       "6,Background.bmp,0,0,23,22",             "Background Options",     "",          6, "Background.bmp",               0},
    {"barWorld(0)", "Move",             "6,Move.bmp,0,0,23,22",                   "Model Orientation",      "Move",      6, "Move.bmp",                     0},
    {"barWorld(0)", "Lighting",         "6,Lighting.bmp,23,0,23,22",              "Lighting",               "Lighting",  6, "Lighting.bmp",                23},
    {"barWorld(1)", "Animation",        "5,Animation.bmp,0,0,23,22",              "Animation Playback",     "Animation", 5, "Animation.bmp",                0},
    {"barWorld(2)", "Help",             "5, Help_toolbar.bmp, 0, 0",              "Zephra Help",            "",          5, "Help_toolbar.bmp",             0},
    {"barMove(0)",  "ResetModel",       "5, movereset.bmp, 0,0",                  "Reset Model",            "",          5, "movereset.bmp",                0},
    {"barMove(0)",  "PresetDropdown",   "5, downarrow.bmp, 23,0",                 "",                       "",          5, "downarrow.bmp",               23},
    {"barMove(1)",  "NudgeUp",          "5, moveup.bmp, 0,0",                     "Nudge up",               "",          5, "moveup.bmp",                   0},
    {"barMove(1)",  "NudgeDown",        "5, movedown.bmp, 23,0",                  "Nudge Down",             "",          5, "movedown.bmp",                23},
    {"barMove(1)",  "NudgeLeft",        "5, moveleft.bmp, 46, 0",                 "Nudge Left",             "",          5, "moveleft.bmp",                46},
    {"barMove(1)",  "NudgeRight",       "5, moveright.bmp, 69,0",                 "Nudge Right",            "",          5, "moveright.bmp",               69},
    {"barMove(2)",  "RotateUp",         "5, rotate_up.bmp, 0,0",                  "Tilt Up",                "",          5, "rotate_up.bmp",                0},
    {"barMove(2)",  "RotateDown",       "5, rotate_down.bmp, 23, 0",              "Tilt Down",              "",          5, "rotate_down.bmp",             23},
    {"barMove(2)",  "RotateLeft",       "5, rotate_left.bmp, 46, 0",              "Tilt Left",              "",          5, "rotate_left.bmp",             46},
    {"barMove(2)",  "RotateRight",      "5, rotate_right.bmp, 69, 0",             "Tilt Right",             "",          5, "rotate_right.bmp",            69},
    {"barMove(2)",  "RotateClockwise",  "5, rotate_clockwise.bmp, 92, 0",         "Tilt Clockwise",         "",          5, "rotate_clockwise.bmp",        92},
    {"barMove(2)",  "RotateCounter",    "5, rotate_counterclockwise.bmp, 115, 0", "Tilt Counter-clockwise", "",          5, "rotate_counterclockwise.bmp", 115},
    {"barMove(3)",  "Shrink",           "5, scale_down.bmp, 0,0",                 "Decrease Model Size",    "Shrink",    5, "scale_down.bmp",               0},
    {"barMove(3)",  "Enlarge",          "5, scale_up.bmp, 23, 0",                 "Increase Model Size",    "Enlarge",   5, "scale_up.bmp",                23},
};
// clang-format on

Lines barNames(const std::string& array, int count) {
  if (count == 1) return {array};
  Lines names;
  for (int i = 0; i < count; ++i) names.push_back(array + "(" + std::to_string(i) + ")");
  return names;
}

void settings(Lines& lines, const std::string& bar) {
  for (const char* call : {"enabled", "folder C:\\Zephra\\System", "tooltips on", "file Toolbar.res"}) {
    lines.push_back(bar + ": " + call);
  }
}

// The captions of the world group stand before their tooltips, those of the movement groups after.
void buttons(Lines& lines, const std::string& bar) {
  lines.push_back(bar + ": open Default");
  for (const Row& row : rows) {
    if (bar != row.bar) continue;
    lines.push_back(bar + ": add " + row.key);
    const std::string caption = *row.caption ? bar + ": caption " + row.caption : "";
    const std::string tooltip = *row.tooltip ? bar + ": tooltip " + row.tooltip : "";
    const bool captionFirst = bar.starts_with("barWorld");
    for (const std::string& line : captionFirst ? Lines{caption, tooltip} : Lines{tooltip, caption}) {
      if (!line.empty()) lines.push_back(line);
    }
  }
  lines.push_back(bar + ": lay out");
}

Lines expectedBuilding() {
  Lines lines;
  for (const Lines& group : {barNames("barMB", 1), barNames("barLS", 4), barNames("barWorld", 3)}) {
    for (const std::string& bar : group) settings(lines, bar);
    for (const std::string& bar : group) buttons(lines, bar);
    for (const std::string& bar : group) lines.push_back(bar + ": show Default");
  }
  const Lines movement = barNames("barMove", 4);
  for (const std::string& bar : movement) settings(lines, bar);
  for (const std::string& bar : movement) {
    buttons(lines, bar);
    lines.push_back(bar + ": show Default");
  }
  return lines;
}

class ToolbarBuild : public DeskTest {
 protected:
  void SetUp() override { create(); }

  headless::Bar& barOf(const Row& row) const {
    const std::string name = row.bar;
    const auto bracket = name.find('(');
    const int index = bracket == std::string::npos ? 0 : name[bracket + 1] - '0';
    return bar(name.substr(0, bracket), index);
  }
};

TEST_F(ToolbarBuild, MakesEveryCallInItsOrder) {
  Lines lines = take();
  // The popups have bars of their own.
  std::erase_if(lines, [](const std::string& line) {
    return !line.starts_with("barM") && !line.starts_with("barLS(") && !line.starts_with("barWorld(");
  });
  EXPECT_THAT(lines, ElementsAreArray(expectedBuilding()));
}

TEST_F(ToolbarBuild, GivesEveryButtonItsPictureTooltipAndCaptionAndLeavesItUp) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    const headless::Bar::Button& button = barOf(row).button(row.key);
    EXPECT_EQ(button.bitmapSpec, row.spec);
    EXPECT_EQ(button.tooltip, row.tooltip);
    EXPECT_EQ(button.caption, row.caption);
    EXPECT_EQ(button.state, buttonUp);
    EXPECT_EQ(button.bitmap, (BitmapSpec{row.kind, row.file, row.left, 0, 23, 22}));
  }
}

TEST_F(ToolbarBuild, AddsNoOtherButtons) {
  std::size_t count = 0;
  const std::pair<const char*, int> bars[] = {{"barMB", 1}, {"barLS", 4}, {"barWorld", 3}, {"barMove", 4}};
  for (const auto& [name, instances] : bars) {
    for (int i = 0; i < instances; ++i) count += bar(name, i).keys().size();
  }
  EXPECT_EQ(count, rows.size());
  EXPECT_EQ(count, 23U);
}

TEST_F(ToolbarBuild, OnlyTheArrowOfThePresetsHasNoTooltip) {
  for (const Row& row : rows) {
    EXPECT_EQ(barOf(row).button(row.key).tooltip.empty(), std::string_view(row.key) == "PresetDropdown") << row.key;
  }
}

TEST_F(ToolbarBuild, StartsFoldedHiddenAndWithItsFields) {
  EXPECT_EQ(toolbar().height.value, 735);
  EXPECT_FALSE(toolbar().isVisible());
  EXPECT_EQ(toolbar().textBox("txtNudgeAmt").text(), "100");
  EXPECT_TRUE(styles().entries.empty());
  EXPECT_EQ(styles().selected(), -1);
}

TEST_F(ToolbarBuild, LaysTheMovementGroupsBelowTheOthers) {
  Twips lowest{0};
  Twips highest{100000};
  for (const ControlLayout& control : toolbar().layout.controls) {
    const bool movement =
        std::string_view(control.name) == "barMove" || std::string_view(control.name) == "txtNudgeAmt";
    if (movement) {
      highest = std::min(highest, control.bounds.top);
    } else {
      lowest = std::max(lowest, control.bounds.top + control.bounds.height);
    }
    EXPECT_GE(control.bounds.left.value, 0);
    EXPECT_LE((control.bounds.left + control.bounds.width).value, toolbar().layout.width.value);
  }
  EXPECT_LE(lowest, highest);
}

TEST_F(ToolbarBuild, NamesTheFieldsByTheirTooltips) {
  std::map<std::string, std::string> tooltips;
  for (const ControlLayout& control : toolbar().layout.controls) tooltips[control.name] = control.tooltip;
  EXPECT_EQ(tooltips["cmbStyles"], "Select a new LookStyle");
  EXPECT_EQ(tooltips["txtNudgeAmt"], "Enter Nudge Amount");
}

TEST_F(ToolbarBuild, NamesEverySwatchLikeTheButtonsThatItReplaces) {
  for (const ControlLayout& swatch : toolbar().layout.controls) {
    if (swatch.kind != ControlKind::pictureBox) continue;
    const auto isReplaced = [&](const ControlLayout& other) {
      return other.kind == ControlKind::buttonBar && other.bounds.left == swatch.bounds.left &&
             other.bounds.top == swatch.bounds.top;
    };
    const auto bar = std::ranges::find_if(toolbar().layout.controls, isReplaced);
    ASSERT_NE(bar, toolbar().layout.controls.end()) << swatch.name;
    EXPECT_STREQ(swatch.tooltip, bar->tooltip) << swatch.name;
    EXPECT_STRNE(swatch.tooltip, "") << swatch.name;
  }
}

// Everything that a glyph draws, as text.
class SketchPad : public Canvas {
 public:
  // The glyphs use no colours of their own and take no focus.
  void line(Twips, Twips, Twips, Twips, Rgb) override { ADD_FAILURE(); }
  void filledBox(Twips, Twips, Twips, Twips, Rgb) override { ADD_FAILURE(); }
  void focusBox(Twips, Twips, Twips, Twips) override { ADD_FAILURE(); }
  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override { add("line", x1, y1, x2, y2, color); }
  void box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override { add("box", x1, y1, x2, y2, color); }
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override {
    add("filled", x1, y1, x2, y2, color);
  }
  struct Stroke {
    std::string kind;
    std::array<std::int32_t, 4> at;
    SystemColor color;
    friend bool operator==(const Stroke&, const Stroke&) = default;
  };
  std::vector<Stroke> strokes;

 private:
  void add(const char* kind, Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
    strokes.push_back({kind, {x1.value, y1.value, x2.value, y2.value}, color});
  }
};

TEST_F(ToolbarBuild, DrawsThreeLineWeightsInTheirOrder) {
  constexpr SystemColor shadow = SystemColor::buttonShadow;
  constexpr SystemColor highlight = SystemColor::buttonHighlight;
  SketchPad pad;
  toolbar().pictureBox("picLineThick", 0).paint(pad);
  EXPECT_THAT(pad.strokes, ElementsAre(SketchPad::Stroke{"line", {60, 90, 285, 90}, shadow},
                                       SketchPad::Stroke{"line", {75, 105, 300, 105}, highlight},
                                       SketchPad::Stroke{"box", {75, 150, 285, 165}, highlight},
                                       SketchPad::Stroke{"box", {60, 135, 270, 150}, shadow},
                                       SketchPad::Stroke{"box", {75, 210, 285, 255}, highlight},
                                       SketchPad::Stroke{"filled", {60, 195, 270, 240}, shadow}));
}

TEST_F(ToolbarBuild, EtchesTheOtherGlyphsWithATwinForEveryShadowStroke) {
  for (const char* name : {"picSurface", "picLine", "picAni"}) {
    SCOPED_TRACE(name);
    SketchPad pad;
    toolbar().pictureBox(name, 0).paint(pad);
    std::size_t shadows = 0;
    for (const SketchPad::Stroke& stroke : pad.strokes) {
      EXPECT_EQ(stroke.kind, "line");
      if (stroke.color != SystemColor::buttonShadow) continue;
      ++shadows;
      SketchPad::Stroke twin = stroke;
      for (std::int32_t& coordinate : twin.at) {
        EXPECT_GE(coordinate, 30);
        EXPECT_LE(coordinate, 300);
        coordinate += 15;
      }
      twin.color = SystemColor::buttonHighlight;
      EXPECT_THAT(pad.strokes, testing::Contains(twin));
    }
    EXPECT_GT(shadows, 10U);
    EXPECT_EQ(pad.strokes.size(), 2 * shadows);
  }
}

}  // namespace
}  // namespace nerida
