// The typed wrapper over the embedded object: names, argument forms, errors, the list of styles.
#include "core/model_object.h"

#include "tests/unit/desk.h"
#include "tests/unit/error_of.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ModelObjectTest : public DeskTest {
 protected:
  ModelObjectTest() { library.state.gModelObject = model; }

  ModelObject wrapper{library.state};
};

TEST_F(ModelObjectTest, PassesEveryArgumentInItsForm) {
  wrapper.setIsToolbarShowing(true);
  wrapper.setIsCatalogShowing(false);
  wrapper.setDoneShowingModelCatalog();
  wrapper.MoveX(1);
  wrapper.MoveY(-1);
  wrapper.RotateX(2);
  wrapper.RotateY(-2);
  wrapper.RotateZ(2);
  wrapper.ScaleModel(-1);
  wrapper.ResetHome();
  wrapper.SetOrientation(0, 27000, 0);
  wrapper.setLookStyle("");
  wrapper.setAnimationState(false);
  wrapper.StopTimer();
  wrapper.StartTimer();
  wrapper.RefreshDisplay();
  EXPECT_THAT(take(), ElementsAre("model: IsToolbarShowing = True", "model: IsCatalogShowing = False",
                                  "model: DoneShowingModelCatalog = True", "model: MoveX 1%", "model: MoveY -1%",
                                  "model: RotateX 2%", "model: RotateY -2%", "model: RotateZ 2%",
                                  "model: ScaleModel -1%", "model: ResetHome", "model: SetOrientation 0%, 27000%, 0%",
                                  "model: LookStyle = \"\"", "model: AnimationState = False", "model: StopTimer",
                                  "model: StartTimer", "model: RefreshDisplay"));
}

TEST_F(ModelObjectTest, WithoutAnObjectEveryUseIsError91) {
  library.state.gModelObject.reset();
  EXPECT_FALSE(wrapper.exists());
  EXPECT_EQ(errorOf([&] { wrapper.ModelName(); }), 91);
  EXPECT_EQ(errorOf([&] { wrapper.setLookStyle("x"); }), 91);
  EXPECT_EQ(errorOf([&] { wrapper.MoveX(1); }), 91);
  EXPECT_EQ(errorOf([&] { wrapper.GetLookStyleList(); }), 91);
}

TEST_F(ModelObjectTest, AMissingMemberIsError438AndTheOthersWork) {
  model->values.erase("ModelName");
  model->values.erase("LookStyle");
  model->functions.erase("MoveX");
  EXPECT_EQ(errorOf([&] { wrapper.ModelName(); }), 438);
  EXPECT_EQ(errorOf([&] { wrapper.setLookStyle("x"); }), 438);
  EXPECT_EQ(errorOf([&] { wrapper.MoveX(1); }), 438);
  EXPECT_EQ(errorOf([&] { wrapper.MoveY(1); }), 0);
}

TEST_F(ModelObjectTest, WhatTheObjectRaisesArrivesUnchanged) {
  model->failures.emplace("ModelName", Error(-2147467259, "Unspecified"));
  try {
    wrapper.ModelName();
    FAIL();
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, -2147467259);
    EXPECT_EQ(failure.description, "Unspecified");
  }
}

TEST_F(ModelObjectTest, LooksAtTheObjectOfTheMoment) {
  const auto other = std::make_shared<headless::ScriptedObject>(platform.transcript);
  other->values["ModelName"] = std::string("Other");
  library.state.gModelObject = other;
  EXPECT_EQ(wrapper.ModelName(), "Other");
}

TEST_F(ModelObjectTest, HoldsTheObjectDuringACall) {
  std::weak_ptr<headless::ScriptedObject> watched = model;
  bool alive = false;
  model->hooks["StopTimer"] = [&] {
    library.state.gModelObject.reset();
    alive = !watched.expired();
  };
  model.reset();
  wrapper.StopTimer();
  EXPECT_TRUE(alive);
  EXPECT_TRUE(watched.expired());
}

TEST_F(ModelObjectTest, PassesThreeEmptyVariablesForTheStyles) {
  EXPECT_THAT(wrapper.GetLookStyleList(), ElementsAre("Shaded", "Ink Outline"));
  EXPECT_THAT(take(), ElementsAre("model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty"));
}

class StyleVariable : public testing::TestWithParam<std::size_t>, protected Desk {};

TEST_P(StyleVariable, MayBeAnyOfTheThree) {
  library.state.gModelObject = model;
  model->functions["GetLookStyleList"] = [](std::span<Argument> arguments) {
    *arguments[GetParam()].variable = textArray({"One"}, 1);
    return Value();
  };
  EXPECT_THAT(ModelObject(library.state).GetLookStyleList(), ElementsAre("One"));
}

INSTANTIATE_TEST_SUITE_P(Positions, StyleVariable, testing::Values(0U, 1U, 2U));

TEST_F(ModelObjectTest, TakesAnArrayThatIsReturnedWhenNoVariableHoldsOne) {
  model->functions["GetLookStyleList"] = [](std::span<Argument>) { return textArray({"Returned"}); };
  EXPECT_THAT(wrapper.GetLookStyleList(), ElementsAre("Returned"));
}

TEST_F(ModelObjectTest, TakesAScriptsArrayObject) {
  model->functions["GetLookStyleList"] = [this](std::span<Argument> arguments) {
    const auto array = std::make_shared<headless::ScriptedObject>(platform.transcript);
    array->values = {{"length", std::int32_t{2}}, {"0", std::string("One")}, {"1", std::string("Two")}};
    *arguments[0].variable = Value(ObjectRef(array));
    return Value();
  };
  EXPECT_THAT(wrapper.GetLookStyleList(), ElementsAre("One", "Two"));
}

TEST_F(ModelObjectTest, NoArrayAnywhereIsATypeMismatch) {
  for (const Value& value : {Value(), Value(std::string("One")), Value(std::int32_t{1}), Value(ObjectRef())}) {
    model->functions["GetLookStyleList"] = [value](std::span<Argument> arguments) {
      for (Argument& argument : arguments) *argument.variable = value;
      return Value();
    };
    EXPECT_EQ(errorOf([&] { wrapper.GetLookStyleList(); }), error::typeMismatch);
  }
}

TEST_F(ModelObjectTest, AnEmptyArrayIsAListOfNoStyles) {
  setStyles({});
  EXPECT_THAT(wrapper.GetLookStyleList(), IsEmpty());
}

}  // namespace
}  // namespace nerida
