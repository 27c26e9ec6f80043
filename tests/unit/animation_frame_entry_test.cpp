// The frame field of the playback bar: which texts are numbers, and what Enter does with them.
#include "popups/frame_number.h"
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FrameNumber, UnderstandsNumbersAsPeopleWriteThem) {
  const struct {
    const char* text;
    std::int16_t number;
  } rows[] = {{"7", 7},       {"0", 0},           {"1e3", 1000},  {"1E+3", 1000},     {"1d3", 1000},
              {" 7 ", 7},     {"\t7", 7},         {"&H10", 16},   {"&hfF", 255},      {"&O17", 15},
              {"&HFFFF", -1}, {"&H8000", -32768}, {" &H10 ", 16}, {"1,000", 1000},    {"1,0,0,0", 1000},
              {"(5)", -5},    {"( 5 )", -5},      {"5-", -5},     {"-5", -5},         {"+5", 5},
              {"$5", 5},      {"-$5", -5},        {"1.", 1},      {".6", 1},          {"007", 7},
              {"2.5", 2},     {"3.5", 4},         {"-2.5", -2},   {"32767.4", 32767}, {"-32768.5", -32768},
              {"1e-400", 0}};
  for (const auto& row : rows) EXPECT_EQ(frameNumberIn(row.text), row.number) << row.text;
}

TEST(FrameNumber, TakesNothingElse) {
  for (const char* text : {"",     "  ", "abc", " -- ", "5%",    "0x10", "1e",    "1e+",         "1 000", "1.5.2",
                           "True", ".",  "-",   "$",    "(5",    "5)",   "(-5)",  "--5",         "-5-",   "7a",
                           "a7",   "&H", "&HG", "&O8",  "&H1.5", "&",    "1.5,0", "\xEF\xBC\x97"}) {
    EXPECT_EQ(frameNumberIn(text), std::nullopt) << text;
  }
}

TEST(FrameNumber, TakesNothingOutOfRange) {
  for (const char* text : {"32768", "32767.5", "-32769", "1e400", "-1e400", "&H10000", "&HFFFFFFFF", "99999999999"}) {
    EXPECT_EQ(frameNumberIn(text), std::nullopt) << text;
  }
}

class FrameEntry : public DeskTest {
 protected:
  void SetUp() override {
    model->values["AnimationFrameCount"] = std::int32_t{10};
    createInitAndShow();
    library.animation.ShowSelf(1, 1);
    take();
  }

  headless::Text& txtFrame() const { return form("frmAnimation").text("txtFrame"); }
  void typeAndEnter(const std::string& text) {
    txtFrame().content = text;
    txtFrame().enterPressed();
  }
};

TEST_F(FrameEntry, ANumberIsTheFramesIndexAndIsShownAsItIs) {
  typeAndEnter("7");
  EXPECT_THAT(take(),
              ElementsAre("model: AnimationCurrentFrame = 7%", "model: AnimationCurrentFrame", "txtFrame: text 7"));
}

TEST_F(FrameEntry, ShowsWhatTheModelMakesOfTheNumber) {
  model->hooks["AnimationCurrentFrame"] = [this] { model->values["AnimationCurrentFrame"] = std::int32_t{9}; };
  model->values["AnimationCurrentFrame"] = std::int32_t{9};
  typeAndEnter("5000");
  EXPECT_EQ(txtFrame().content, "9");
}

TEST_F(FrameEntry, NegativeNumbersAreSent) {
  typeAndEnter("(3)");
  EXPECT_EQ(take().front(), "model: AnimationCurrentFrame = -3%");
}

TEST_F(FrameEntry, ATextThatIsNoNumberInRangeChangesNothing) {
  for (const char* text : {"abc", " -- ", "", "32768"}) {
    typeAndEnter(text);
    EXPECT_THAT(take(), IsEmpty()) << text;
    EXPECT_EQ(txtFrame().content, text);
  }
}

TEST_F(FrameEntry, WithoutEnterNothingHappens) {
  txtFrame().content = "7";
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(FrameEntry, DoesNotPauseAPlayingModel) {
  form("frmAnimation").picture("picPlayPause").pressPart(0);
  take();
  typeAndEnter("2");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: AnimationCurrentFrame = 2%", "model: AnimationCurrentFrame"));
}

TEST_F(FrameEntry, AFailingModelEndsItSilently) {
  model->failures.emplace("AnimationCurrentFrame", Error(error::outOfMemory));
  typeAndEnter("7");
  EXPECT_THAT(take(), ElementsAre("model: AnimationCurrentFrame = 7%"));
  EXPECT_EQ(txtFrame().content, "7");
}

}  // namespace
}  // namespace nerida
