// What a popup is made of: a drawn panel with parts, a label and a picture on it, an upright bar, a text box.
#include <array>
#include <set>
#include <thread>

#include "platform/win32/canvas.h"
#include "platform/win32/desktop.h"
#include "platform/win32/prompts.h"
#include "tests/windows/bars/accessible_client.h"
#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

constexpr std::array controls{
    ControlLayout{"label", 0, ControlKind::label, {{1500}, {0}, {600}, {300}}, "More"},
    ControlLayout{"bar", 0, ControlKind::buttonBar, {{0}, {900}, {375}, {1125}}, "", "Steps"},
    ControlLayout{"text", 0, ControlKind::textBox, {{600}, {900}, {600}, {315}}, "1"},
    ControlLayout{"panel", 0, ControlKind::pictureBox, {{0}, {0}, {2400}, {2400}}, "", "Cells"},
};
const FormLayout layout{"sample", "", FormFrame::popup, {2700}, {2600}, controls};

class DrawnControls : public testing::Test {
 protected:
  void SetUp() override {
    CoInitialize(nullptr);
    form = factory.create(layout);
    PictureBox& panel = form->pictureBox("panel");
    panel.parts = [this] { return cells; };
    panel.pressPart = [this](std::size_t part) { note("part " + std::to_string(part)); };
    panel.gotFocus = [this] { note("focus"); };
    panel.lostFocus = [this] { note(desktop.activeWindow() == form->handle() ? "left inside" : "left outside"); };
    fillBar();
    form->showTopmostAt({200, 200});
    panel.setFocus();
    pump();
    heard.clear();
  }
  void TearDown() override {
    form.reset();
    CoUninitialize();
  }

  void fillBar() {
    ButtonBar& bar = form->buttonBar("bar");
    bar.setEnabled(true);
    bar.setResourceFile("Toolbar.res");
    bar.openLayout("Default");
    for (const char* key : {"c", "a", "b"}) bar.addButton(key, "3, none.bmp, 0,0");
    bar.recomputeLayout("a;b;c");
    bar.showLayout("Default");
  }

  void note(const std::string& what) { heard.push_back(what); }
  HWND window() const { return reinterpret_cast<HWND>(form->handle()); }
  HWND at(int x, int y) const { return ChildWindowFromPointEx(window(), {x, y}, CWP_SKIPINVISIBLE); }
  HWND panelWindow() const { return at(10, 10); }
  HWND barWindow() const { return at(5, 70); }
  static void send(HWND target, UINT message, int x, int y) { SendMessageW(target, message, 0, MAKELPARAM(x, y)); }
  static void key(HWND target, WPARAM code) { SendMessageW(target, WM_KEYDOWN, code, 1); }

  SystemWindowFactory factory;
  SystemDesktop desktop;
  std::shared_ptr<Window> form;
  std::vector<DrawnPart> cells{{"Red", {{0}, {0}, {300}, {300}}}, {"Blue", {{300}, {0}, {300}, {300}}, true, true}};
  std::vector<std::string> heard;
};

TEST_F(DrawnControls, AreReallyActiveWhenShown) {
  EXPECT_EQ(desktop.activeWindow(), form->handle());
  EXPECT_EQ(GetFocus(), panelWindow());
}

TEST_F(DrawnControls, TellWhereTheFocusWent) {
  SetFocus(barWindow());
  SetFocus(panelWindow());
  form->hide();
  EXPECT_EQ(heard, (Keys{"left inside", "focus", "left outside"}));
}

TEST_F(DrawnControls, HoldTheMouseFromPressToRelease) {
  PictureBox& panel = form->pictureBox("panel");
  panel.mouseMove = [this](Twips x, Twips y) {
    note("move " + std::to_string(x.value) + " " + std::to_string(y.value));
  };
  panel.mouseDown = [this](Twips, Twips) { note("down"); };
  panel.mouseUp = [this](Twips, Twips) { note("up"); };
  const HWND target = panelWindow();
  const double twipsPerPixel = desktop.twipsPerPixelX();
  const std::string place = std::to_string(static_cast<int>(20 * twipsPerPixel));
  send(target, WM_MOUSEMOVE, 20, 20);
  send(target, WM_MOUSEMOVE, 20, 20);  // a pointer that rests
  send(target, WM_RBUTTONDOWN, 20, 20);
  EXPECT_EQ(GetCapture(), target);
  send(target, WM_RBUTTONUP, 20, 20);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(heard, (Keys{"move " + place + " " + place, "down", "up"}));
}

TEST_F(DrawnControls, LetGoOfTheMouseWhenTheyHideInAPress) {
  form->pictureBox("panel").mouseDown = [this](Twips, Twips) { form->hide(); };
  send(panelWindow(), WM_LBUTTONDOWN, 20, 20);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(DrawnControls, HearTheirKeys) {
  form->pictureBox("panel").keyDown = [this](Key pressed) {
    note("key " + std::to_string(static_cast<int>(pressed)));
    return true;
  };
  form->closeRequested = [this] { note("close"); };
  for (const WPARAM code : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_RETURN, VK_SPACE, VK_ESCAPE}) {
    key(panelWindow(), code);
  }
  EXPECT_EQ(heard, (Keys{"key 0", "key 1", "key 2", "key 3", "key 4", "key 4", "close"}));
  key(panelWindow(), VK_TAB);
  EXPECT_NE(GetFocus(), panelWindow());
}

TEST_F(DrawnControls, ShowTheirPartsToTools) {
  const Accessible panel(panelWindow());
  LONG count = 0;
  ASSERT_EQ(panel->get_accChildCount(&count), S_OK);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(panel.name(0), "Cells");
  EXPECT_EQ(panel.name(2), "Blue");
  EXPECT_EQ(panel.role(1), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(panel.action(1), "Press");
  EXPECT_EQ(panel.state(1) & (STATE_SYSTEM_PRESSED | STATE_SYSTEM_FOCUSED), 0);
  EXPECT_EQ(panel.state(2) & (STATE_SYSTEM_PRESSED | STATE_SYSTEM_FOCUSED),
            STATE_SYSTEM_PRESSED | STATE_SYSTEM_FOCUSED);
  RECT outer = {};
  GetWindowRect(panelWindow(), &outer);
  LONG left = 0, top = 0, width = 0, height = 0;
  ASSERT_EQ(panel->accLocation(&left, &top, &width, &height, Accessible::child(2)), S_OK);
  EXPECT_EQ(left, outer.left + width);
  EXPECT_EQ(panel.press(2), S_OK);
  EXPECT_EQ(heard, Keys{"part 1"});
  cells.pop_back();
  EXPECT_NE(panel.press(2), S_OK) << "a part that is gone";
}

TEST_F(DrawnControls, LieInTheOrderOfTheirLayout) {
  std::set<HWND> different = {at(110, 5), barWindow(), at(50, 70), panelWindow()};
  EXPECT_EQ(different.size(), 4U) << "the panel must lie behind the others";
}

TEST_F(DrawnControls, PassALabelsMouseOn) {
  Label& label = form->label("label");
  label.mouseMove = [this] { note("over"); };
  label.mouseDown = [this] { note("down"); };
  label.mouseUp = [this] { note("up"); };
  label.click = [this] { note("click"); };
  const HWND target = at(110, 5);
  EXPECT_EQ(SendMessageW(target, WM_NCHITTEST, 0, 0), HTCLIENT);
  send(target, WM_MOUSEMOVE, 5, 5);
  send(target, WM_LBUTTONDOWN, 5, 5);
  send(target, WM_LBUTTONUP, 5, 5);
  send(target, WM_LBUTTONDOWN, 5, 5);
  send(target, WM_LBUTTONUP, -50, 5);
  EXPECT_EQ(heard, (Keys{"over", "down", "up", "click", "down", "up"}));
}

TEST_F(DrawnControls, TakeEveryButtonOfTheMouseAlikeOnThePictureAndOnItsLabel) {
  Label& label = form->label("label");
  label.mouseDown = [this] { note("down"); };
  label.mouseUp = [this] { note("up"); };
  label.click = [this] { note("click"); };
  PictureBox& panel = form->pictureBox("panel");
  panel.mouseDown = [this](Twips, Twips) { note("panel down"); };
  panel.mouseUp = [this](Twips, Twips) { note("panel up"); };
  constexpr std::array<UINT, 2> buttons[] = {
      {WM_LBUTTONDOWN, WM_LBUTTONUP}, {WM_RBUTTONDOWN, WM_RBUTTONUP}, {WM_MBUTTONDOWN, WM_MBUTTONUP}};
  for (const auto& [down, up] : buttons) {
    heard.clear();
    send(panelWindow(), down, 5, 5);
    send(panelWindow(), up, 5, 5);
    send(at(110, 5), down, 5, 5);
    send(at(110, 5), up, 5, 5);
    EXPECT_EQ(heard, (Keys{"panel down", "panel up", "down", "up", "click"})) << down;
  }
  heard.clear();
  send(at(110, 5), WM_RBUTTONDBLCLK, 5, 5);
  EXPECT_EQ(heard, Keys{"down"}) << "the second of two quick presses";
}

TEST_F(DrawnControls, LayAnUprightBarOutFromTopToBottomInTheGivenOrder) {
  ButtonBar& bar = form->buttonBar("bar");
  bar.buttonPress = [this](const std::string& pressed) { note(pressed); };
  bar.buttonMouseMove = [this](const std::string& under) { note("over " + under); };
  RECT area = {};
  GetClientRect(barWindow(), &area);
  for (int i = 0; i < 3; ++i) {
    const int y = area.bottom * (2 * i + 1) / 6;
    send(barWindow(), WM_MOUSEMOVE, 5, y);
    send(barWindow(), WM_LBUTTONDOWN, 5, y);
    send(barWindow(), WM_LBUTTONUP, 5, y);
  }
  EXPECT_EQ(heard, (Keys{"over a", "a", "over b", "b", "over c", "c"}));
}

TEST_F(DrawnControls, ShowABarsValueLikeALatchedButton) {
  const Accessible bar(barWindow());
  form->buttonBar("bar").setValue("b", 1);
  EXPECT_NE(bar.state(2) & STATE_SYSTEM_PRESSED, 0);
  form->buttonBar("bar").setValue("b", 0);
  EXPECT_EQ(bar.state(2) & STATE_SYSTEM_PRESSED, 0);
}

TEST_F(DrawnControls, WriteATextInTheMiddleOfItsBox) {
  const HWND text = at(50, 70);
  RECT box = {};
  RECT line = {};
  GetWindowRect(text, &box);
  GetClientRect(text, &line);
  MapWindowPoints(text, nullptr, reinterpret_cast<POINT*>(&line), 2);
  const LONG above = line.top - box.top;
  const LONG below = box.bottom - line.bottom;
  EXPECT_GT(above, GetSystemMetrics(SM_CYEDGE)) << "the box is higher than its line";
  EXPECT_LE(below - above, 1);
  EXPECT_GE(below, above);
  EXPECT_EQ(SendMessageW(text, WM_NCHITTEST, 0, MAKELPARAM(line.left, box.top + 3)), HTCLIENT) << "beside the line";
}

TEST_F(DrawnControls, KeepEvenDistancesWhereAPixelIsNoWholeNumberOfTwips) {
  const Scale fine(144, 144);
  BackBuffer buffer;
  SystemCanvas canvas(buffer, {10, 200}, fine, 0, false);
  canvas.clear();
  std::vector<int> drawn;
  for (const int twips : {535, 805, 1075, 1345}) canvas.line({0}, {twips}, {50}, {twips}, Rgb{255});
  for (int y = 0; y < 200; ++y) {
    if (GetPixel(buffer.context(), 0, y) == 255) drawn.push_back(y);
  }
  EXPECT_EQ(drawn, (std::vector<int>{54, 81, 108, 135}));
}

TEST_F(DrawnControls, HearEnterInATextBox) {
  form->textBox("text").enterPressed = [this] { note("enter"); };
  key(at(50, 70), VK_RETURN);
  key(at(50, 70), 'A');
  EXPECT_EQ(heard, Keys{"enter"});
}

TEST_F(DrawnControls, PaintInColoursOfTheirOwn) {
  form->pictureBox("panel").paint = [](Canvas& canvas) {
    canvas.filledBox({0}, {0}, {600}, {600}, Rgb{0x010203});
    canvas.line({0}, {300}, {600}, {300}, Rgb{0x00FF00});
  };
  form->pictureBox("panel").repaint();
  UpdateWindow(panelWindow());
  const HDC dc = GetDC(panelWindow());
  EXPECT_EQ(GetPixel(dc, 10, 10), 0x010203U);
  EXPECT_EQ(GetPixel(dc, 10, static_cast<int>(300 / desktop.twipsPerPixelY())), 0x00FF00U);
  ReleaseDC(panelWindow(), dc);
}

// Answers the colour dialog from another thread, as a user would while the caller waits.
HWND awaitDialog() {
  for (int tries = 0; tries < 400; ++tries, Sleep(10)) {
    DWORD process = 0;
    const HWND found = FindWindowW(L"#32770", nullptr);
    if (found && IsWindowVisible(found) && GetWindowThreadProcessId(found, &process) &&
        process == GetCurrentProcessId()) {
      return found;
    }
  }
  return nullptr;
}

TEST_F(DrawnControls, ChooseAColourInTheSystemsDialog) {
  SystemPrompts prompts;
  for (const WPARAM answer : {IDOK, IDCANCEL}) {
    std::thread user([answer] { PostMessageW(awaitDialog(), WM_COMMAND, answer, 0); });
    const std::optional<Rgb> chosen = prompts.chooseColor(form->handle(), 0x0040FF);
    user.join();
    EXPECT_EQ(chosen, answer == IDOK ? std::optional<Rgb>(0x0040FF) : std::nullopt);
  }
}

void CALLBACK closeOwner(HWND owner, UINT, UINT_PTR timer, DWORD) {
  KillTimer(owner, timer);
  PostMessageW(owner, WM_CLOSE, 0, 0);
}

TEST_F(DrawnControls, CloseTheColourDialogWhenItsOwnerHides) {
  SystemPrompts prompts;
  ASSERT_NE(SetTimer(window(), 1, 300, closeOwner), 0U);
  form->closeRequested = [this] { form->hide(); };
  EXPECT_EQ(prompts.chooseColor(form->handle(), 0), std::nullopt);
  EXPECT_FALSE(form->isVisible());
}

}  // namespace
}  // namespace nerida
