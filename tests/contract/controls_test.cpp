#include "platform/canvas.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

class BarContract : public ContractTest {
 protected:
  bool press(const char* key) { return subject->press(*form, "bar", key); }
};

TEST_F(BarContract, APressIsRaisedOnce) {
  show();
  EXPECT_TRUE(press("Two"));
  EXPECT_EQ(take(), Events{"press Two"});
}

TEST_F(BarContract, KindSixDoesNotLatchByItself) {
  show();
  EXPECT_TRUE(press("Latch"));
  EXPECT_TRUE(press("Latch"));
  EXPECT_EQ(take(), (Events{"press Latch", "press Latch"}));
}

TEST_F(BarContract, StatesRaiseNothing) {
  show();
  bar().setState("Latch", buttonDown, true);
  bar().setState("Latch", buttonUp, false);
  EXPECT_EQ(take(), Events{});
}

TEST_F(BarContract, ALatchedButtonCanBePressed) {
  show();
  bar().setState("Latch", buttonDown, true);
  EXPECT_TRUE(press("Latch"));
  EXPECT_EQ(take(), Events{"press Latch"});
}

TEST_F(BarContract, AnUnknownKeyChangesNothing) {
  EXPECT_EQ(errorOf([&] { bar().setState("Nobody", buttonDown, true); }), std::nullopt);
}

TEST_F(BarContract, OutOfSightNothingCanBePressed) {
  EXPECT_FALSE(press("One"));
  show();
  bar().setVisible(false);
  EXPECT_FALSE(press("One"));
  bar().setVisible(true);
  EXPECT_TRUE(press("One"));
  EXPECT_EQ(take(), Events{"press One"});
}

TEST_F(BarContract, DisabledNothingCanBePressed) {
  show();
  bar().setEnabled(false);
  EXPECT_FALSE(press("One"));
  bar().setEnabled(true);
  EXPECT_TRUE(press("One"));
  EXPECT_EQ(take(), Events{"press One"});
}

TEST_F(BarContract, KeysAreUniqueInALayout) {
  EXPECT_EQ(errorOf([&] { bar().addButton("One", "5, Missing.bmp, 0, 0"); }), error::invalidCall);
  bar().openLayout("Enabled");
  EXPECT_EQ(errorOf([&] { bar().addButton("One", "5, Missing.bmp, 0, 0"); }), std::nullopt);
}

TEST_F(BarContract, ASpecNeedsAKind) {
  EXPECT_EQ(errorOf([&] { bar().addButton("Three", "Missing.bmp, 0, 0"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { bar().addButton("Three", ""); }), error::invalidCall);
}

TEST_F(BarContract, ShowsOneLayoutAtATime) {
  show();
  bar().openLayout("Enabled");
  bar().addButton("Three", "5, Missing.bmp, 0, 0");
  bar().recomputeLayout();
  EXPECT_FALSE(press("Three"));
  bar().showLayout("Enabled");
  EXPECT_TRUE(press("Three"));
  EXPECT_FALSE(press("One"));
  EXPECT_EQ(take(), Events{"press Three"});
}

TEST_F(BarContract, OpeningAKnownLayoutKeepsItsButtons) {
  show();
  bar().openLayout("Default");
  EXPECT_TRUE(press("One"));
}

TEST_F(BarContract, NoLayoutOfThatName) {
  EXPECT_EQ(errorOf([&] { bar().showLayout("Nobody"); }), error::invalidCall);
}

TEST_F(BarContract, WithoutAnOpenLayoutThereIsNothingToAddTo) {
  const auto fresh = subject->services().windows.create(formLayout);
  EXPECT_EQ(errorOf([&] { fresh->buttonBar("bar").addButton("One", "5, Missing.bmp, 0, 0"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { fresh->buttonBar("bar").setCaption("One"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { fresh->buttonBar("bar").setTooltip("One"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { fresh->buttonBar("bar").recomputeLayout(); }), std::nullopt);
}

TEST_F(BarContract, KnowsItsPlace) { EXPECT_EQ(bar().bounds(), formControls[0].bounds); }

class ComboContract : public ContractTest {
 protected:
  bool choose(const char* entry) { return subject->choose(*form, "list", entry); }
};

TEST_F(ComboContract, StartsWithoutASelection) {
  EXPECT_EQ(list().count(), 3);
  EXPECT_EQ(list().selected(), -1);
  EXPECT_EQ(list().item(2), "Gamma");
  EXPECT_EQ(take(), Events{});
}

TEST_F(ComboContract, SelectingByCodeClicksInsideTheCall) {
  list().select(1);
  EXPECT_EQ(list().selected(), 1);
  EXPECT_EQ(take(), Events{"click 1"});
}

TEST_F(ComboContract, SelectingTheSameAgainDoesNotClick) {
  list().select(1);
  take();
  list().select(1);
  EXPECT_EQ(take(), Events{});
}

TEST_F(ComboContract, SelectingNothingIsAChangeToo) {
  list().select(-1);
  EXPECT_EQ(take(), Events{});
  list().select(0);
  list().select(-1);
  EXPECT_EQ(list().selected(), -1);
  EXPECT_EQ(take(), (Events{"click 0", "click -1"}));
}

TEST_F(ComboContract, ClearingRaisesNothing) {
  list().select(2);
  take();
  list().clear();
  EXPECT_EQ(list().count(), 0);
  EXPECT_EQ(list().selected(), -1);
  EXPECT_EQ(take(), Events{});
  list().addItem("Delta");
  EXPECT_EQ(list().selected(), -1);
  list().select(0);
  EXPECT_EQ(take(), Events{"click 0"});
}

TEST_F(ComboContract, OutsideTheList) {
  for (const int index : {-2, 3, 1000}) {
    EXPECT_EQ(errorOf([&] { list().select(index); }), error::subscriptOutOfRange) << index;
  }
  for (const int index : {-1, 3}) {
    EXPECT_EQ(errorOf([&] { (void)list().item(index); }), error::subscriptOutOfRange) << index;
  }
  EXPECT_EQ(list().selected(), -1);
  EXPECT_EQ(take(), Events{});
}

TEST_F(ComboContract, TheUsersChoiceClicksOnce) {
  show();
  EXPECT_TRUE(choose("Beta"));
  EXPECT_EQ(list().selected(), 1);
  EXPECT_EQ(take(), Events{"click 1"});
  EXPECT_TRUE(choose("Beta"));
  EXPECT_EQ(take(), Events{});
}

TEST_F(ComboContract, MayBeRefilledInsideItsClick) {
  list().click = [this] {
    events.push_back("click");
    list().clear();
    list().addItem("Delta");
  };
  show();
  EXPECT_TRUE(choose("Gamma"));
  EXPECT_EQ(list().count(), 1);
  EXPECT_EQ(list().selected(), -1);
  EXPECT_EQ(take(), Events{"click"});
}

TEST_F(ComboContract, KeepsAnyText) {
  list().addItem("");
  list().addItem("\xC3\x84pfel & Birnen");
  EXPECT_EQ(list().item(3), "");
  EXPECT_EQ(list().item(4), "\xC3\x84pfel & Birnen");
}

using FieldContract = ContractTest;

TEST_F(FieldContract, StartsWithTheTextOfItsLayout) { EXPECT_EQ(form->textBox("field").text(), "100"); }

TEST_F(FieldContract, KeepsWhatIsWritten) {
  for (const char* text : {"abc", "", "\xE2\x82\xAC 5"}) {
    form->textBox("field").setText(text);
    EXPECT_EQ(form->textBox("field").text(), text);
  }
}

TEST_F(FieldContract, TheVisibleFlagIsTheControlsOwn) {
  Control* const controls[] = {&bar(), &list(), &form->textBox("field"), &form->pictureBox("picture", 1),
                               &form->label("title")};
  for (Control* control : controls) {
    EXPECT_TRUE(control->isVisible());  // although the form is hidden
    control->setVisible(false);
    EXPECT_FALSE(control->isVisible());
  }
  form->showTopmost();
  for (Control* control : controls) {
    EXPECT_FALSE(control->isVisible());
    control->setVisible(true);
    EXPECT_TRUE(control->isVisible());
  }
  EXPECT_TRUE(form->pictureBox("picture", 0).isVisible());
}

TEST_F(FieldContract, PlacesAreThoseOfTheLayout) {
  EXPECT_EQ(list().bounds(), formControls[1].bounds);
  EXPECT_EQ(form->textBox("field").bounds(), formControls[2].bounds);
  EXPECT_EQ(form->pictureBox("picture", 1).bounds(), formControls[4].bounds);
  EXPECT_EQ(form->label("title").bounds(), formControls[5].bounds);
}

}  // namespace
}  // namespace nerida
