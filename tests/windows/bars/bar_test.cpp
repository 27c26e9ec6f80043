// Button bars under mouse and keyboard messages as the system sends them.
#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

class Bars : public ToolbarOnScreen {
 protected:
  static void send(HWND window, UINT message, int x = 10, int y = 10) {
    SendMessageW(window, message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(x, y));
  }
  static void key(HWND window, WPARAM code) { SendMessageW(window, WM_KEYDOWN, code, 1); }
};

TEST_F(Bars, PressOnReleaseInsideTheSameButton) {
  const HWND nudge = bar("barMove", 1);
  send(nudge, WM_LBUTTONDOWN);
  EXPECT_TRUE(pressed.empty());
  EXPECT_EQ(GetCapture(), nudge);
  send(nudge, WM_LBUTTONUP);
  EXPECT_EQ(pressed, Keys{"NudgeUp"});
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Bars, DoNotPressWhenReleasedElsewhereOrRobbedOfTheMouse) {
  const HWND nudge = bar("barMove", 1);
  const int nextButton = static_cast<int>(40 * screenDpi() / 96);
  send(nudge, WM_LBUTTONDOWN);
  send(nudge, WM_MOUSEMOVE, nextButton);
  send(nudge, WM_LBUTTONUP, nextButton);
  send(nudge, WM_LBUTTONDOWN);
  SetCapture(window());
  ReleaseCapture();
  send(nudge, WM_LBUTTONUP);
  send(nudge, WM_LBUTTONUP);  // never went down
  send(nudge, WM_RBUTTONDOWN);
  send(nudge, WM_RBUTTONUP);
  EXPECT_TRUE(pressed.empty());
}

TEST_F(Bars, PressOnceWithAnyNumberOfOtherMouseButtons) {
  const HWND nudge = bar("barMove", 1);
  send(nudge, WM_LBUTTONDOWN);
  send(nudge, WM_RBUTTONDOWN);
  send(nudge, WM_RBUTTONUP);
  send(nudge, WM_LBUTTONUP);
  EXPECT_EQ(pressed, Keys{"NudgeUp"});
}

TEST_F(Bars, ForgetThePointerWhenHidden) {
  const HWND nudge = bar("barMove", 1);
  send(nudge, WM_LBUTTONDOWN);
  form->hide();
  EXPECT_EQ(GetCapture(), nullptr);
  form->showTopmost();
  send(nudge, WM_LBUTTONUP);
  EXPECT_TRUE(pressed.empty());
}

TEST_F(Bars, DoNotPressWhileDisabled) {
  form->buttonBar("barMove", 1).setEnabled(false);
  const HWND nudge = bar("barMove", 1);
  send(nudge, WM_LBUTTONDOWN);
  send(nudge, WM_LBUTTONUP);
  EXPECT_TRUE(pressed.empty());
}

TEST_F(Bars, AreReachedAndPressedByKeyboard) {
  SetFocus(window());
  key(window(), VK_TAB);
  EXPECT_EQ(GetFocus(), bar("barMB"));
  key(GetFocus(), VK_RETURN);
  key(GetFocus(), VK_TAB);
  EXPECT_EQ(GetFocus(), bar("barLS", 0));
  for (int i = 0; i < 5; ++i) key(GetFocus(), VK_TAB);
  EXPECT_EQ(GetFocus(), bar("barWorld", 0)) << "the style list lies between";
  key(GetFocus(), VK_RIGHT);
  key(GetFocus(), VK_SPACE);
  key(GetFocus(), VK_HOME);
  key(GetFocus(), VK_SPACE);
  key(GetFocus(), VK_LEFT);
  key(GetFocus(), VK_SPACE);
  EXPECT_EQ(pressed, (Keys{"Model", "Lighting", "Move", "Lighting"}));
}

TEST_F(Bars, LetTheKeyboardPassWhatIsFoldedAwayOrCovered) {
  form->setHeight(foldedHeight);
  form->pictureBox("picAni").setVisible(true);
  SetFocus(bar("barWorld", 0));
  key(GetFocus(), VK_TAB);
  EXPECT_EQ(GetFocus(), bar("barWorld", 2));
  key(GetFocus(), VK_TAB);
  EXPECT_EQ(GetFocus(), bar("barMB"));
}

TEST_F(Bars, GiveTheFocusUpWhenTheyAreFoldedAway) {
  SetFocus(bar("barMove", 1));
  form->setHeight(foldedHeight);
  EXPECT_EQ(GetFocus(), window());
}

TEST_F(Bars, RefuseWhatCannotBeAdded) {
  ButtonBar& help = form->buttonBar("barWorld", 2);
  EXPECT_EQ(errorOf([&] { help.addButton("Help", "5, x.bmp, 0, 0"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { help.addButton("New", "push, x.bmp, 0, 0"); }), error::invalidCall);
  EXPECT_EQ(errorOf([&] { help.showLayout("Nowhere"); }), error::invalidCall);
  help.setState("Nobody", buttonDown, true);
  EXPECT_TRUE(pressed.empty());
}

TEST_F(Bars, ShowOneLayoutAtATime) {
  ButtonBar& help = form->buttonBar("barWorld", 2);
  help.openLayout("Other");
  help.addButton("Second", "5, x.bmp, 0, 0");
  help.recomputeLayout();
  help.showLayout("Other");
  send(bar("barWorld", 2), WM_LBUTTONDOWN);
  send(bar("barWorld", 2), WM_LBUTTONUP);
  help.showLayout("Default");
  send(bar("barWorld", 2), WM_LBUTTONDOWN);
  send(bar("barWorld", 2), WM_LBUTTONUP);
  EXPECT_EQ(pressed, (Keys{"Second", "Help"}));
}

TEST_F(Bars, MayDestroyTheirFormInAPress) {
  const HWND top = window();
  const HWND help = bar("barWorld", 2);
  form->buttonBar("barWorld", 2).buttonPress = [this](const std::string&) { form.reset(); };
  send(help, WM_LBUTTONDOWN);
  send(help, WM_LBUTTONUP);
  EXPECT_FALSE(IsWindow(top));
  EXPECT_FALSE(IsWindow(help));
}

TEST_F(Bars, KeepAnExceptionOfAHandlerInside) {
  form->buttonBar("barWorld", 2).buttonPress = [](const std::string&) { throw Error(error::overflow); };
  send(bar("barWorld", 2), WM_LBUTTONDOWN);
  send(bar("barWorld", 2), WM_LBUTTONUP);
  EXPECT_TRUE(IsWindow(window()));
  EXPECT_EQ(moduleLocks(), 0);
}

}  // namespace
}  // namespace nerida
