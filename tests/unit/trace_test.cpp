// The trace for host developers: its exact lines, whatever is called from inside of what.
#include "core/trace.h"

#include "control/traced_window.h"
#include "core/model_object.h"
#include "core/trace_text.h"
#include "core/traced_object.h"
#include "platform/headless/trace_file.h"
#include "tests/unit/desk.h"
#include "tests/unit/error_of.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class TraceTest : public DeskTest {
 protected:
  // The complete lines of the trace so far, and the beginning of one that is not.
  Lines lines() const {
    Lines result;
    std::string rest = *contents;
    for (std::size_t end = 0; (end = rest.find("\r\n")) != std::string::npos; rest.erase(0, end + 2)) {
      result.push_back(rest.substr(0, end));
    }
    if (!rest.empty()) result.push_back(rest);
    return result;
  }

  // A watched model in the place of the model.
  ModelObject watchedModel() {
    library.state.gModelObject = watched(model, trace);
    return ModelObject(library.state);
  }

  std::int64_t now = 5000;
  std::shared_ptr<std::string> contents = std::make_shared<std::string>();
  std::shared_ptr<Trace> trace =
      std::make_shared<Trace>(std::make_unique<headless::MemoryTraceFile>(contents), [this] { return now; });
};

TEST_F(TraceTest, GivesEachAccessToTheModelALine) {
  model->values["LightIsOn"] = false;
  model->functions["SetLightDirection"] = {};
  ModelObject wrapper = watchedModel();
  now += 7;
  EXPECT_EQ(wrapper.ModelName(), "Windmill");
  now += 1000;
  wrapper.setLightIsOn(true);
  wrapper.MoveX(-1);
  wrapper.RefreshDisplay();
  wrapper.SetLightDirection({0, -50, 100});
  EXPECT_THAT(lines(), ElementsAre("       7  get ModelName -> \"Windmill\"",   //
                                   "    1007  let LightIsOn = True -> done",    //
                                   "    1007  call MoveX(-1%) -> Empty",        //
                                   "    1007  call RefreshDisplay() -> Empty",  //
                                   "    1007  call SetLightDirection(0&, -50&, 100&) -> Empty"));
}

TEST_F(TraceTest, TellsWhatTheModelLeftInVariables) {
  model->functions["GetLookStyleList"] = [](std::span<Argument> arguments) {
    *arguments[1].variable = textArray({"Clay", "Ink"});
    return Value(std::int16_t{2});
  };
  EXPECT_THAT(watchedModel().GetLookStyleList(), ElementsAre("Clay", "Ink"));
  EXPECT_THAT(lines(),
              ElementsAre("       0  call GetLookStyleList(ByRef Empty, ByRef Empty, ByRef Empty) -> 2% leaving "
                          "Empty, Array(\"Clay\", \"Ink\"), Empty"));
}

TEST_F(TraceTest, TellsErrorsAndHandsThemOn) {
  model->values.erase("ModelName");
  model->failures.emplace("LightIsOn", Error(-2147467259, "first\nsecond"));
  model->functions.erase("MoveY");
  ModelObject wrapper = watchedModel();
  EXPECT_EQ(errorOf([&] { wrapper.ModelName(); }), 438);
  EXPECT_EQ(errorOf([&] { wrapper.setLightIsOn(false); }), -2147467259);
  EXPECT_EQ(errorOf([&] { wrapper.MoveY(1); }), 438);
  EXPECT_THAT(lines(),
              ElementsAre("       0  get ModelName -> error 438: \"Object doesn't support this property or method\"",
                          "       0  let LightIsOn = False -> error -2147467259: \"first\\nsecond\"",
                          "       0  call MoveY(1%) -> error 438: \"Object doesn't support this property or method\""));
}

// Whoever reads the trace of a host that hangs finds the culprit at its end.
TEST_F(TraceTest, NamesACallBeforeItReturns) {
  ModelObject wrapper = watchedModel();
  Lines inside;
  model->hooks["StopTimer"] = [&] { inside = lines(); };
  wrapper.StopTimer();
  EXPECT_THAT(inside, ElementsAre("       0  call StopTimer() ->"));
}

TEST_F(TraceTest, IndentsWhatIsCalledFromInside) {
  ModelObject wrapper = watchedModel();
  model->hooks["RotateX"] = [&] {
    now += 3;
    wrapper.ModelName();
    trace->note("a note");
  };
  wrapper.RotateX(2);
  wrapper.RefreshDisplay();
  EXPECT_THAT(lines(), ElementsAre("       0  call RotateX(2%) ->",              //
                                   "       3    get ModelName -> \"Windmill\"",  //
                                   "       3    a note",                         //
                                   "       3  call RotateX -> Empty",            //
                                   "       3  call RefreshDisplay() -> Empty"));
}

TEST_F(TraceTest, IndentsLessAgainAfterAnErrorInside) {
  ModelObject wrapper = watchedModel();
  model->hooks["RotateX"] = [&] { wrapper.RestoreDefaultLineColor(); };
  model->failures.emplace("RestoreDefaultLineColor", Error(5));
  EXPECT_EQ(errorOf([&] { wrapper.RotateX(2); }), 5);
  wrapper.RefreshDisplay();
  EXPECT_THAT(
      lines(),
      ElementsAre("       0  call RotateX(2%) ->",
                  "       0    call RestoreDefaultLineColor() -> error 5: \"Invalid procedure call or argument\"",
                  "       0  call RotateX -> error 5: \"Invalid procedure call or argument\"",
                  "       0  call RefreshDisplay() -> Empty"));
}

TEST_F(TraceTest, RecordsTheControlsOwnCalls) {
  auto window = std::make_unique<TracedWindow>(library, trace);
  EXPECT_EQ(window->ToolbarInit(model, 7), 0);
  contents->clear();
  std::int16_t x = 10;
  std::int16_t y = 20;
  const WindowHandle shown = window->ToolbarShow(x, y);
  EXPECT_TRUE(window->IsToolbarVisible());
  EXPECT_FALSE(window->IsCatalogVisible());
  EXPECT_EQ(window->ToolbarHide(), 0);
  const std::string handle = std::to_string(shown) + "&";
  EXPECT_THAT(lines(), ElementsAre("       0  ToolbarShow(ByRef 10%, ByRef 20%) ->",
                                   "       0    let IsToolbarShowing = True -> done",
                                   "       0  ToolbarShow -> " + handle + " leaving 10%, 20%",
                                   "       0  IsToolbarVisible() -> True",   //
                                   "       0  IsCatalogVisible() -> False",  //
                                   "       0  ToolbarHide() ->",             //
                                   "       0    let IsToolbarShowing = False -> done", "       0  ToolbarHide -> 0&"));
}

TEST_F(TraceTest, RecordsTheControlsLife) {
  auto window = std::make_unique<TracedWindow>(library, trace);
  EXPECT_EQ(window->ToolbarInit(model, 7), 0);
  const Lines begun = lines();
  EXPECT_EQ(begun.at(0), "       0  create NeridaWindow -> done");
  EXPECT_EQ(begun.at(1), "       0  ToolbarInit(Object, 7&) ->");
  EXPECT_THAT(begun.at(2), StartsWith("       0    call GetLookStyleList("));
  EXPECT_EQ(begun.back(), "       0  ToolbarInit -> 0&");
  contents->clear();
  window->ShowHelp();
  EXPECT_EQ(window->ToolbarDispose(), 0);
  window.reset();
  EXPECT_THAT(lines(), ElementsAre("       0  ShowHelp() -> Empty", "       0  ToolbarDispose() ->",
                                   "       0    let IsToolbarShowing = False -> done",
                                   "       0    let DoneShowingModelCatalog = True -> done",
                                   "       0  ToolbarDispose -> 0&", "       0  release NeridaWindow -> done"));
}

TEST_F(TraceTest, RecordsThePlaceThatWasComputed) {
  TracedWindow window(library, trace);
  window.ToolbarInit(model, 7);
  platform.screen.hostClientCorner = {200, 300};
  std::int16_t x = 0;
  std::int16_t y = 250;
  window.ToolbarShow(x, y);
  EXPECT_THAT(lines().back(), EndsWith(" leaving 200%, 300%"));
}

TEST_F(TraceTest, RecordsTheMissingModel) {
  TracedWindow window(library, trace);
  answerBoxes(1);
  std::int16_t x = 10;
  std::int16_t y = 20;
  EXPECT_EQ(window.ToolbarShow(x, y), -1);
  EXPECT_THAT(lines().back(), HasSubstr("ToolbarShow(ByRef 10%, ByRef 20%) -> -1& leaving 10%, 20%"));
}

TEST_F(TraceTest, WithoutATraceTheModelItselfIsUsedAndNothingIsWritten) {
  EXPECT_EQ(watched(model, nullptr), model);
  EXPECT_EQ(watched(nullptr, trace), nullptr);
  TracedWindow window(library, nullptr);
  window.ToolbarInit(model, 7);
  EXPECT_EQ(library.state.gModelObject, model);
  std::int16_t x = 10;
  std::int16_t y = 20;
  EXPECT_NE(window.ToolbarShow(x, y), -1);
  EXPECT_EQ(x, 10);
  EXPECT_EQ(window.ToolbarHide(), 0);
  EXPECT_THAT(*contents, IsEmpty());
}

// The trace ends with the last control, which the model may let go of from inside one of its members.
TEST_F(TraceTest, LivesUntilTheLastCallReturns) {
  library.state.gModelObject = watched(model, std::exchange(trace, nullptr));
  model->hooks["StopTimer"] = [&] { library.state.gModelObject.reset(); };
  ModelObject(library.state).StopTimer();
  EXPECT_THAT(lines(), ElementsAre("       0  call StopTimer() -> Empty"));
}

TEST(TraceText, KeepsTextsOnOneLine) {
  EXPECT_EQ(traceText(Value(std::string("a\r\n\tb\"c\\d\x1b\x7f"))), R"("a\r\n\tb\"c\\d\x1b\x7f")");
  EXPECT_EQ(traceText(Value(std::string())), R"("")");
}

TEST(TraceText, CutsLongTextsBetweenCharacters) {
  const std::string umlaut = "\xc3\xa4";
  std::string text;
  for (int i = 0; i < 200; ++i) text += umlaut;
  EXPECT_EQ(traceText(Value(text)), '"' + text + '"');
  EXPECT_EQ(traceText(Value(text + umlaut + "b")), '"' + text + "\" and 2 more");
}

TEST(TraceText, CutsLongArrays) {
  const std::string fifty = traceText(textArray(std::vector<std::string>(50, "a")));
  EXPECT_THAT(fifty, EndsWith("\"a\")"));
  EXPECT_EQ(traceText(textArray(std::vector<std::string>(53, "a"))), fifty + " and 3 more");
  EXPECT_EQ(traceText(textArray({})), "Array()");
}

TEST(TraceText, TellsTypesApart) {
  EXPECT_EQ(traceText(Value()), "Empty");
  EXPECT_EQ(traceText(Value(Null{})), "Null");
  EXPECT_EQ(traceText(Value(true)), "True");
  EXPECT_EQ(traceText(Value(std::int16_t{-1})), "-1%");
  EXPECT_EQ(traceText(Value(std::int32_t{70000})), "70000&");
  EXPECT_EQ(traceText(Value(2.5)), "2.5#");
  EXPECT_EQ(traceText(Value(ObjectRef())), "Nothing");
}

}  // namespace
}  // namespace nerida
