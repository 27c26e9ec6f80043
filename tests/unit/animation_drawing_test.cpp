// What the playback bar draws itself: the play and pause button, and the placeholders of the step buttons.
#include "popups/animation_drawing.h"
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::Not;

// Counts what is drawn in each colour, and notes what leaves the box.
class Sketch : public Canvas {
 public:
  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override {
    ++lines[static_cast<int>(color)];
    note(x1, y1, x2, y2);
  }
  void line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override {
    ++glyphLines[color];
    columns[x1.value] = {y1.value, y2.value};
    note(x1, y1, x2, y2);
  }
  void box(Twips, Twips, Twips, Twips, SystemColor) override { ++others; }
  void filledBox(Twips, Twips, Twips, Twips, SystemColor) override { ++others; }
  void filledBox(Twips, Twips, Twips, Twips, Rgb) override { ++others; }
  void focusBox(Twips, Twips, Twips, Twips) override { ++focusBoxes; }

  int count(SystemColor color) { return lines[static_cast<int>(color)]; }

  std::map<int, int> lines;
  std::map<Rgb, int> glyphLines;
  std::map<std::int32_t, std::pair<std::int32_t, std::int32_t>> columns;  // of the glyph: from where to where
  std::string strokes;
  std::int32_t extent = 0;
  int others = 0;
  int focusBoxes = 0;

 private:
  void note(Twips x1, Twips y1, Twips x2, Twips y2) {
    for (const Twips t : {x1, y1, x2, y2}) {
      extent = std::max(extent, t.value);
      strokes += std::to_string(t.value) + " ";
    }
  }
};

class AnimationDrawing : public DeskTest {
 protected:
  void SetUp() override { createInitAndShow(); }

  void open(bool playing = false) {
    model->values["AnimationState"] = playing;
    library.animation.ShowSelf(1, 1);
  }
  headless::FormWindow& window() const { return form("frmAnimation"); }
  headless::Picture& button() const { return window().picture("picPlayPause"); }
  Sketch drawn(const headless::Picture& picture) {
    Sketch sketch;
    picture.paint(sketch);
    return sketch;
  }
};

TEST_F(AnimationDrawing, TheGlyphIsNavyAndTellsWhatAClickDoes) {
  open();
  Sketch paused = drawn(button());
  EXPECT_EQ(paused.glyphLines.size(), 1u);
  EXPECT_GT(paused.glyphLines[128 * 65536], 4);
  EXPECT_EQ(paused.others, 0);
  library.animation.SetPlay();
  EXPECT_NE(drawn(button()).strokes, paused.strokes);
}

TEST(PlayGlyph, IsEvenAtEveryFinenessOfTheScreen) {
  for (const std::int32_t pixel : {15, 12, 10, 8}) {
    Sketch play;
    paintPlayPause(play, {375, 375, pixel, pixel}, {false, false, false, false, 0});
    const std::int32_t middle = (375 / pixel - 1) / 2 * pixel;
    std::int32_t reach = play.columns.begin()->second.second - middle;
    for (const auto& [x, ends] : play.columns) {
      EXPECT_EQ(middle - ends.first, ends.second - middle) << "column " << x << " of pixels of " << pixel;
      EXPECT_LE(ends.second - middle, reach);
      reach = ends.second - middle;
    }
    EXPECT_EQ(reach, 0) << "no tip";
  }
}

TEST(PauseGlyph, StandsInTheMiddleAtEveryFinenessOfTheScreen) {
  for (const std::int32_t pixel : {15, 12, 10, 8}) {
    Sketch pause;
    paintPlayPause(pause, {375, 375, pixel, pixel}, {true, false, false, false, 0});
    const std::int32_t left = pause.columns.begin()->first / pixel;
    const std::int32_t right = 375 / pixel - 1 - pause.columns.rbegin()->first / pixel;
    EXPECT_EQ(left, right) << "pixels of " << pixel;
    EXPECT_EQ(pause.columns.begin()->second, pause.columns.rbegin()->second);
  }
}

TEST_F(AnimationDrawing, TheEdgeTellsHotFromPressedFromNeither) {
  open();
  Sketch normal = drawn(button());
  const int outline = normal.count(SystemColor::buttonHighlight);
  EXPECT_GT(outline, normal.glyphLines[128 * 65536]) << "the glyph is lost on a dark desktop";
  EXPECT_EQ(normal.count(SystemColor::buttonShadow), 0);
  button().movePointer({1}, {1});
  Sketch hot = drawn(button());
  EXPECT_EQ(hot.count(SystemColor::buttonHighlight), outline + 2);
  EXPECT_EQ(hot.count(SystemColor::buttonShadow), 2);
  button().pressAt({1}, {1});
  Sketch pressed = drawn(button());
  EXPECT_EQ(pressed.count(SystemColor::buttonHighlight), outline + 2);
  EXPECT_NE(pressed.strokes, hot.strokes);
  EXPECT_LE(pressed.extent, button().bounds().width.value);
}

TEST_F(AnimationDrawing, TheFocusIsShownOnlyWhileTheButtonHasTheKeyboard) {
  open();
  button().loseFocus();
  take();
  button().setFocus();
  EXPECT_THAT(take(), Contains("picPlayPause: repaint"));
  EXPECT_EQ(drawn(button()).focusBoxes, 1);
  button().loseFocus();
  EXPECT_THAT(take(), Contains("picPlayPause: repaint"));
  EXPECT_EQ(drawn(button()).focusBoxes, 0);
}

TEST_F(AnimationDrawing, PlaceholdersAreFourEtchedGlyphsOfLinesInTheSystemsColours) {
  open(true);
  std::vector<std::string> strokes;
  for (int i = 0; i < 4; ++i) {
    Sketch sketch = drawn(window().picture("picAniFrame", i));
    EXPECT_GT(sketch.count(SystemColor::buttonFace), 0);
    EXPECT_GT(sketch.count(SystemColor::buttonShadow), 0);
    EXPECT_EQ(sketch.count(SystemColor::buttonHighlight), sketch.count(SystemColor::buttonShadow));
    EXPECT_TRUE(sketch.glyphLines.empty());
    EXPECT_EQ(sketch.others, 0);
    EXPECT_LE(sketch.extent, window().picture("picAniFrame", i).bounds().width.value);
    EXPECT_THAT(strokes, Not(Contains(sketch.strokes)));
    strokes.push_back(sketch.strokes);
  }
}

}  // namespace
}  // namespace nerida
