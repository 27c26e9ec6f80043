// What popups need of bars, text boxes, forms and the colour dialog.
#include "platform/desktop.h"
#include "platform/prompts.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

class BarUseContract : public ContractTest {
 protected:
  BarUseContract() {
    bar().gotFocus = [this] { events.push_back("got it"); };
    bar().lostFocus = [this] { events.push_back("lost it"); };
    bar().buttonMouseMove = [this](const std::string& key) { events.push_back("over " + key); };
  }
  std::string buttons() { return subject->buttonsOf(*form, "bar"); }
  void key(Key key) { subject->keyInBar(*form, "bar", key); }
};

TEST_F(BarUseContract, ButtonsLieInTheGivenOrder) {
  bar().openLayout("Default");
  bar().recomputeLayout("Latch;One;Two");
  EXPECT_EQ(buttons(), "LatchOneTwo");
}

TEST_F(BarUseContract, TheButtonJustAddedIsNamed) {
  bar().openLayout("Default");
  bar().addButton("Three", "5, Missing.bmp, 0, 0");
  bar().setAccessibleName("Number three");
  EXPECT_EQ(buttons(), "OneTwoLatchNumber three");
}

TEST_F(BarUseContract, AValueIsShownLikeALatch) {
  show();
  bar().setValue("Two", 1);
  EXPECT_EQ(buttons(), "One[Two]Latch");
  bar().setValue("One", 0);
  bar().setValue("Nobody", 1);
  EXPECT_EQ(buttons(), "One[Two]Latch");
  bar().setValue("Two", 0);
  EXPECT_EQ(buttons(), "OneTwoLatch");
  bar().setState("Latch", buttonDown, true);
  bar().setValue("Latch", 0);
  EXPECT_EQ(buttons(), "OneTwoLatch");
  EXPECT_EQ(take(), Events{});
}

TEST_F(BarUseContract, ThePointerOverAButtonIsTold) {
  show();
  subject->pointAt(*form, "bar", "Two");
  EXPECT_EQ(take(), Events{"over Two"});
}

TEST_F(BarUseContract, TheFocusComesToAButtonAndGoes) {
  show();
  bar().focusButton("Nobody");
  EXPECT_EQ(take(), Events{});
  bar().focusButton("Two");
  EXPECT_TRUE(form->showsFocus());
  bar().focusButton("One");
  EXPECT_EQ(take(), Events{"got it"});
  key(Key::choose);
  EXPECT_EQ(take(), Events{"press One"});
  form->hide();
  EXPECT_EQ(take(), (Events{"deactivated", "lost it"}));
}

TEST_F(BarUseContract, TheFocusGoesFromAPictureToTheBar) {
  form->pictureBox("picture").lostFocus = [this] { events.push_back("picture lost it"); };
  show();
  form->pictureBox("picture").setFocus();
  bar().focusButton("Two");
  EXPECT_EQ(take(), (Events{"picture lost it", "got it"}));
}

TEST_F(BarUseContract, ArrowsThatTheFormDoesNotUseMoveAlongTheBar) {
  show();
  bar().focusButton("One");
  key(Key::right);
  key(Key::down);
  key(Key::choose);
  key(Key::right);
  key(Key::choose);
  key(Key::left);
  key(Key::choose);
  EXPECT_EQ(take(), (Events{"got it", "press Latch", "press One", "press Latch"}));
}

TEST_F(BarUseContract, TheFormMayUseTheArrows) {
  show();
  bar().arrowKey = [this](const std::string& key, Key arrow) {
    events.push_back("arrow " + std::to_string(static_cast<int>(arrow)) + " in " + key);
    return arrow == Key::up;
  };
  bar().focusButton("Two");
  key(Key::up);
  key(Key::choose);
  key(Key::left);
  key(Key::choose);
  EXPECT_EQ(take(), (Events{"got it", "arrow 2 in Two", "press Two", "arrow 0 in Two", "press One"}));
}

class FormUseContract : public ContractTest {};

TEST_F(FormUseContract, EnterInATextBoxIsRaisedWithTheTextInIt) {
  show();
  TextBox& field = form->textBox("field");
  field.enterPressed = [&] { events.push_back("enter at " + field.text()); };
  subject->enter(*form, "field", "42");
  EXPECT_EQ(take(), Events{"enter at 42"});
  EXPECT_EQ(field.text(), "42");
}

TEST_F(FormUseContract, ThePointerOverTheFormIsTold) {
  show();
  form->mouseMoved = [this] { events.push_back("moved"); };
  subject->pointAtForm(*form);
  EXPECT_EQ(take(), Events{"moved"});
}

TEST_F(FormUseContract, TheActiveWindowIsTheOneThatWasShown) {
  Desktop& desktop = subject->services().desktop;
  EXPECT_NE(desktop.activeWindow(), form->handle());
  show();
  EXPECT_EQ(desktop.activeWindow(), form->handle());
  form->hide();
  EXPECT_NE(desktop.activeWindow(), form->handle());
}

TEST_F(FormUseContract, TheColourDialogGivesItsChoiceOrNothing) {
  show();
  Prompts& prompts = subject->services().prompts;
  subject->answerColorDialog(ColorAnswer::own, 0);
  EXPECT_EQ(prompts.chooseColor(form->handle(), 0x0040FF), 0x0040FF);
  subject->answerColorDialog(ColorAnswer::typed, 0x563412);
  EXPECT_EQ(prompts.chooseColor(form->handle(), 0x0040FF), 0x563412);
  subject->answerColorDialog(ColorAnswer::cancel, 0);
  EXPECT_EQ(prompts.chooseColor(form->handle(), 0x0040FF), std::nullopt);
}

}  // namespace
}  // namespace nerida
