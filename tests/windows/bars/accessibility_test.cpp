// The toolbar as assistive tools see it: the same way by which they find and press its buttons.
#include "tests/windows/bars/accessible_client.h"
#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

class Accessibility : public ToolbarOnScreen {
 protected:
  void SetUp() override {
    CoInitialize(nullptr);
    ToolbarOnScreen::SetUp();
  }
  void TearDown() override {
    form.reset();
    CoUninitialize();
  }
};

TEST_F(Accessibility, NamesABarAndItsButtons) {
  const Accessible tilt(bar("barMove", 2));
  ASSERT_TRUE(tilt);
  LONG count = 0;
  EXPECT_EQ(tilt->get_accChildCount(&count), S_OK);
  EXPECT_EQ(count, 6);
  EXPECT_EQ(tilt.role(0), ROLE_SYSTEM_TOOLBAR);
  EXPECT_EQ(tilt.name(1), "Tilt Up");
  EXPECT_EQ(tilt.name(6), "Tilt Counter-clockwise");
  EXPECT_EQ(tilt.role(1), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(tilt.action(1), "Press");
  EXPECT_EQ(tilt.action(0), "(none)");
}

TEST_F(Accessibility, CallsAButtonWithoutTooltipByItsKey) {
  EXPECT_EQ(Accessible(bar("barMove", 0)).name(2), "PresetDropdown");
}

TEST_F(Accessibility, RefusesChildrenThatAreNotThere) {
  const Accessible help(bar("barWorld", 2));
  BSTR text = nullptr;
  EXPECT_EQ(help->get_accName(Accessible::child(2), &text), E_INVALIDARG);
  EXPECT_EQ(help->accDoDefaultAction(Accessible::child(-1)), E_INVALIDARG);
  EXPECT_TRUE(pressed.empty());
}

TEST_F(Accessibility, PlacesButtonsWhereTheyAreOnTheScreen) {
  const HWND window = bar("barWorld", 0);
  const Accessible world(window);
  RECT outer = {};
  GetWindowRect(window, &outer);
  LONG left = 0, top = 0, width = 0, height = 0;
  ASSERT_EQ(world->accLocation(&left, &top, &width, &height, Accessible::child(2)), S_OK);
  EXPECT_GT(left, outer.left);
  EXPECT_LE(left + width, outer.right);
  EXPECT_EQ(top, outer.top);
  VARIANT hit = {};
  ASSERT_EQ(world->accHitTest(left + width / 2, top + height / 2, &hit), S_OK);
  EXPECT_EQ(hit.lVal, 2);
  VARIANT next = {};
  EXPECT_EQ(world->accNavigate(NAVDIR_NEXT, Accessible::child(1), &next), S_OK);
  EXPECT_EQ(next.lVal, 2);
  EXPECT_EQ(world->accNavigate(NAVDIR_NEXT, Accessible::child(2), &next), S_FALSE);
}

TEST_F(Accessibility, PressesLikeAClick) {
  const Accessible world(bar("barWorld", 0));
  EXPECT_EQ(world.press(2), S_OK);
  EXPECT_EQ(world.press(1), S_OK);
  EXPECT_EQ(pressed, (Keys{"Lighting", "Move"}));
  EXPECT_EQ(world.state(2) & STATE_SYSTEM_PRESSED, 0) << "a press alone does not latch";
}

TEST_F(Accessibility, TellsStates) {
  ButtonBar& world = form->buttonBar("barWorld", 0);
  const Accessible seen(bar("barWorld", 0));
  world.setState("Lighting", buttonDown, true);
  EXPECT_NE(seen.state(2) & STATE_SYSTEM_PRESSED, 0);
  EXPECT_EQ(seen.state(1) & STATE_SYSTEM_PRESSED, 0);
  world.setState("Lighting", buttonUp, true);
  EXPECT_EQ(seen.state(2) & (STATE_SYSTEM_PRESSED | STATE_SYSTEM_UNAVAILABLE), 0);
  world.setEnabled(false);
  EXPECT_NE(seen.state(2) & STATE_SYSTEM_UNAVAILABLE, 0);
  EXPECT_NE(seen.state(0) & STATE_SYSTEM_UNAVAILABLE, 0);
  EXPECT_NE(seen.press(2), S_OK);
  world.setEnabled(true);
  EXPECT_EQ(seen.state(0), 0);
  form->hide();
  EXPECT_NE(seen.state(2) & STATE_SYSTEM_INVISIBLE, 0);
  EXPECT_NE(seen.press(2), S_OK);
  EXPECT_TRUE(pressed.empty());
}

std::vector<LONG> stateChanges;

void CALLBACK noteStateChange(HWINEVENTHOOK, DWORD, HWND, LONG, LONG child, DWORD, DWORD) {
  stateChanges.push_back(child);
}

TEST_F(Accessibility, AnnouncesStatesThatChange) {
  ButtonBar& world = form->buttonBar("barWorld", 0);
  stateChanges.clear();
  HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, moduleInstance(),
                                       noteStateChange, GetCurrentProcessId(), 0, WINEVENT_INCONTEXT);
  ASSERT_NE(hook, nullptr);
  world.setState("Lighting", buttonDown, true);
  world.setState("Lighting", buttonDown, true);
  world.setEnabled(false);
  UnhookWinEvent(hook);
  EXPECT_EQ(stateChanges, (std::vector<LONG>{2, CHILDID_SELF}));
}

TEST_F(Accessibility, RefusesWhatAPictureCovers) {
  const Accessible animation(bar("barWorld", 1));
  EXPECT_EQ(animation.press(1), S_OK);
  form->pictureBox("picAni").setVisible(true);
  EXPECT_NE(animation.state(1) & STATE_SYSTEM_UNAVAILABLE, 0);
  EXPECT_NE(animation.press(1), S_OK);
  EXPECT_EQ(pressed, Keys{"Animation"});
}

TEST_F(Accessibility, RefusesWhatIsFoldedAway) {
  const Accessible size(bar("barMove", 3));
  form->setHeight(foldedHeight);
  EXPECT_NE(size.press(1), S_OK);
  EXPECT_NE(size.state(1) & STATE_SYSTEM_INVISIBLE, 0);
  form->setHeight(unfoldedHeight);
  EXPECT_EQ(size.press(1), S_OK);
  EXPECT_EQ(pressed, Keys{"Shrink"});
}

TEST_F(Accessibility, NamesTheSystemsOwnControls) {
  EXPECT_EQ(Accessible(windowOf(form->comboBox("cmbStyles"))).name(0), "Select a new LookStyle");
  EXPECT_EQ(Accessible(windowOf(form->textBox("txtNudgeAmt"))).name(0), "Enter Nudge Amount");
}

TEST_F(Accessibility, OutlivesTheBar) {
  const Accessible help(bar("barWorld", 2));
  form.reset();
  LONG count = 0;
  EXPECT_NE(help->get_accChildCount(&count), S_OK);
  EXPECT_NE(help.press(1), S_OK);
}

TEST_F(Accessibility, AnswersLateBoundCalls) {
  const Accessible help(bar("barWorld", 2));
  LPOLESTR name = const_cast<wchar_t*>(L"accChildCount");
  DISPID member = 0;
  ASSERT_EQ(help->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &member), S_OK);
  DISPPARAMS none = {};
  VARIANT result = {};
  ASSERT_EQ(help->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &result, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(result.lVal, 1);
}

// A press may end the toolbar; the object that delivered it must come back in one piece.
TEST_F(Accessibility, SurvivesAPressThatDestroysTheForm) {
  const Accessible help(bar("barWorld", 2));
  form->buttonBar("barWorld", 2).buttonPress = [this](const std::string&) { form.reset(); };
  EXPECT_EQ(help.press(1), S_OK);
  EXPECT_NE(help.press(1), S_OK);
}

}  // namespace
}  // namespace nerida
