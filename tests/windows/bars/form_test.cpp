// Forms as windows: lists, hooks, modal loops, menus, and what is left when they are gone.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/win32/window_class.h"
#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

class Forms : public ToolbarOnScreen {};

TEST_F(Forms, RaiseClickOfAListWhenItsSelectionChanges) {
  ComboBox& styles = form->comboBox("cmbStyles");
  std::vector<int> clicks;
  styles.click = [&] { clicks.push_back(styles.selected()); };
  styles.addItem("Basic Draw");
  styles.addItem("Tusche \xC3\xBC");
  styles.select(1);
  styles.select(1);
  styles.select(-1);
  styles.select(0);
  styles.clear();
  EXPECT_EQ(clicks, (std::vector<int>{1, -1, 0}));
  EXPECT_EQ(styles.selected(), -1);
  EXPECT_EQ(styles.count(), 0);
  EXPECT_EQ(errorOf([&] { styles.select(0); }), error::subscriptOutOfRange);
}

TEST_F(Forms, RaiseClickOfAListForTheUser) {
  ComboBox& styles = form->comboBox("cmbStyles");
  for (const char* style : {"a", "b", "\xC3\xA9"}) styles.addItem(style);
  styles.select(0);
  std::vector<std::string> clicks;
  styles.click = [&] { clicks.push_back(styles.item(styles.selected())); };
  const HWND list = windowOf(styles);
  for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_DOWN, VK_UP}) SendMessageW(list, WM_KEYDOWN, key, 1);
  EXPECT_EQ(clicks, (std::vector<std::string>{"b", "\xC3\xA9", "b"}));
  EXPECT_EQ(errorOf([&] { styles.item(3); }), error::subscriptOutOfRange);
  EXPECT_EQ(errorOf([&] { styles.item(-1); }), error::subscriptOutOfRange);
}

TEST_F(Forms, KeepTheTextOfAField) {
  TextBox& amount = form->textBox("txtNudgeAmt");
  EXPECT_EQ(amount.text(), "100");
  amount.setText("z\xC3\xBC");
  EXPECT_EQ(amount.text(), "z\xC3\xBC");
}

TEST_F(Forms, FoldWithoutMoving) {
  const Point before = form->position();
  const int width = form->sizeInPixels().width;
  form->setHeight(foldedHeight);
  EXPECT_EQ(form->position(), before);
  EXPECT_EQ(form->sizeInPixels(),
            (Size{width, static_cast<int>(std::nearbyint(foldedHeight.value * screenDpi() / 1440))}));
}

BOOL CALLBACK collectPlace(HWND child, LPARAM places) {
  RECT place = {};
  GetWindowRect(child, &place);
  MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&place), 2);
  reinterpret_cast<std::vector<RECT>*>(places)->push_back(place);
  return TRUE;
}

// How many controls begin in the client area. Each of them must end there.
int controlsInSight(const Window& shown) {
  const HWND window = reinterpret_cast<HWND>(shown.handle());
  RECT client = {};
  GetClientRect(window, &client);
  std::vector<RECT> places;
  EnumChildWindows(window, collectPlace, reinterpret_cast<LPARAM>(&places));
  int count = 0;
  for (const RECT& place : places) {
    if (place.top >= client.bottom) continue;
    ++count;
    EXPECT_LE(place.bottom, client.bottom);
    EXPECT_GE(place.bottom - place.top, 16);
  }
  return count;
}

// A caption that is seven pixels higher takes as much from the controls as a form that is so much lower.
TEST_F(Forms, ShowWholeRowsUnderAHighCaption) {
  constexpr Twips lost = {7 * 15};
  FormLayout tight = toolbarLayout;
  tight.height = foldedHeight - lost;
  const std::shared_ptr<Window> pressedTogether = factory.create(tight);
  EXPECT_EQ(controlsInSight(*pressedTogether), 13);
  pressedTogether->setHeight(unfoldedHeight - lost);
  EXPECT_EQ(controlsInSight(*pressedTogether), static_cast<int>(tight.controls.size()));
}

BOOL CALLBACK countMirrored(HWND window, LPARAM count) {
  *reinterpret_cast<int*>(count) += (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0 ? 1 : 0;
  return TRUE;
}

// What is left and right on them is so in space.
TEST_F(Forms, AreNotMirroredWithTheirProgram) {
  SetProcessDefaultLayout(LAYOUT_RTL);
  const std::shared_ptr<Window> other = makeToolbarSample(factory, folder);
  other->showTopmostAt({40, 60});
  SetProcessDefaultLayout(0);
  const HWND mirrored = reinterpret_cast<HWND>(other->handle());
  RECT frame = {};
  GetWindowRect(mirrored, &frame);
  POINT origin = {};
  ClientToScreen(mirrored, &origin);
  EXPECT_LT(origin.x, (frame.left + frame.right) / 2);
  int count = 0;
  EnumChildWindows(mirrored, countMirrored, reinterpret_cast<LPARAM>(&count));
  EXPECT_EQ(count, 0);
}

TEST_F(Forms, KeepLettersThatTheirLayoutHasRoomFor) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const LONG usual = std::exchange(metrics.lfMessageFont.lfHeight, -40);
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const std::shared_ptr<Window> other = makeToolbarSample(factory, folder);
  const HWND field = FindWindowExW(reinterpret_cast<HWND>(other->handle()), nullptr, L"EDIT", nullptr);
  metrics.lfMessageFont.lfHeight = usual;
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  LOGFONTW font = {};
  ASSERT_NE(GetObjectW(reinterpret_cast<HFONT>(SendMessageW(field, WM_GETFONT, 0, 0)), sizeof font, &font), 0);
  EXPECT_EQ(std::abs(font.lfHeight), std::lround(12 * screenDpi() / 96));
}

TEST_F(Forms, HookOnceAndUnhookOnce) {
  const auto procedure = [&] { return GetWindowLongPtrW(window(), GWLP_WNDPROC); };
  const LONG_PTR own = procedure();
  int first = 0;
  int second = 0;
  form->hook([&](const Message& message) {
    ++first;
    return form->callPrevious(message);
  });
  EXPECT_NE(procedure(), own);
  form->hook([&](const Message& message) {
    ++second;
    return form->callPrevious(message);
  });
  SendMessageW(window(), WM_NULL, 0, 0);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0);
  form->unhook();
  form->unhook();
  EXPECT_EQ(procedure(), own);
  EXPECT_FALSE(form->isHooked());
  SendMessageW(window(), WM_NULL, 0, 0);
  EXPECT_EQ(first, 1);
}

TEST_F(Forms, LetAHookTakeItselfOffAndStillPassOn) {
  bool closed = false;
  form->closeRequested = [&] { closed = true; };
  form->hook([&](const Message& message) -> std::intptr_t {
    form->unhook();
    return form->callPrevious(message);
  });
  SendMessageW(window(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(closed);
  EXPECT_FALSE(form->isHooked());
}

WNDPROC behindStranger = nullptr;

LRESULT CALLBACK strangersProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcW(behindStranger, window, message, wParam, lParam);
}

WNDPROC setProcedure(HWND window, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

// A stranger that came after the first hook calls us: a second place in front of it would send messages in a circle.
TEST_F(Forms, HookAgainBehindAStrangerThatCameBetween) {
  int seen = 0;
  const auto count = [&](const Message& message) {
    ++seen;
    return form->callPrevious(message);
  };
  form->hook(count);
  behindStranger = setProcedure(window(), strangersProcedure);
  form->unhook();
  form->hook(count);
  SendMessageW(window(), WM_NULL, 0, 0);
  EXPECT_EQ(seen, 1);
  form->unhook();
  setProcedure(window(), behindStranger);
  SendMessageW(window(), WM_NULL, 0, 0);
  EXPECT_EQ(seen, 1);
}

// A stranger that came before the hook takes the hook off with itself when it leaves by what it had found.
TEST_F(Forms, HookAgainAfterAStrangerHasCutTheHookOff) {
  int seen = 0;
  const auto count = [&](const Message& message) {
    ++seen;
    return form->callPrevious(message);
  };
  const auto own = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window(), GWLP_WNDPROC));
  form->hook(count);
  setProcedure(window(), own);
  form->unhook();
  form->hook(count);
  SendMessageW(window(), WM_NULL, 0, 0);
  EXPECT_EQ(seen, 1);
}

TEST_F(Forms, KnowWhileTheApplicationLosesTheFocus) {
  std::vector<bool> seen;
  form->hook([&](const Message& message) -> std::intptr_t {
    seen.push_back(applicationIsLosingFocus());
    return message.number == WM_NULL ? 7 : 0;
  });
  EXPECT_EQ(SendMessageW(window(), WM_NULL, 0, 0), 7);
  SendMessageW(window(), WM_ACTIVATEAPP, TRUE, 0);
  SendMessageW(window(), WM_ACTIVATEAPP, FALSE, 0);
  EXPECT_EQ(seen, (std::vector<bool>{false, false, true}));
  EXPECT_FALSE(applicationIsLosingFocus());
}

TEST_F(Forms, KeepAnExceptionOfAHookInside) {
  form->hook([](const Message&) -> std::intptr_t { throw Error(error::overflow); });
  EXPECT_EQ(SendMessageW(window(), WM_NULL, 0, 0), 0);
  form->unhook();
}

TEST_F(Forms, StayWhenTheCloseBoxIsPressed) {
  int requests = 0;
  form->closeRequested = [&] { ++requests; };
  SendMessageW(window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_EQ(requests, 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Forms, AreClickedAlsoThroughPicturesAndNowhereElse) {
  int clicks = 0;
  form->clicked = [&] { ++clicks; };
  const auto click = [](HWND where) {
    SendMessageW(where, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    SendMessageW(where, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  };
  click(window());
  form->pictureBox("picAni").setVisible(true);
  click(windowOf(form->pictureBox("picAni")));
  EXPECT_EQ(clicks, 2);
  click(bar("barWorld", 2));
  EXPECT_EQ(clicks, 2);
}

TEST_F(Forms, AreClickedWithAnyButton) {
  int clicks = 0;
  form->clicked = [&] { ++clicks; };
  form->pictureBox("picAni").setVisible(true);
  for (const HWND where : {window(), windowOf(form->pictureBox("picAni"))}) {
    for (const UINT down : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN}) {
      SendMessageW(where, down, 0, MAKELPARAM(3, 3));
      SendMessageW(where, down + 1, 0, MAKELPARAM(3, 3));
    }
  }
  EXPECT_EQ(clicks, 6);
}

void CALLBACK onTimer(HWND window, UINT, UINT_PTR timer, DWORD) {
  KillTimer(window, timer);
  (*reinterpret_cast<std::function<void()>*>(timer))();
}

void later(HWND window, std::function<void()>& action) {
  SetTimer(window, reinterpret_cast<UINT_PTR>(&action), 50, onTimer);
}

TEST_F(Forms, ReturnFromModalWhenHidden) {
  const std::shared_ptr<Window> asked = factory.create(toolbarLayout);
  bool toolbarTookInput = true;
  std::function<void()> action = [&] {
    toolbarTookInput = IsWindowEnabled(window()) != FALSE;
    asked->hide();
  };
  later(reinterpret_cast<HWND>(asked->handle()), action);
  asked->showModal();
  EXPECT_FALSE(toolbarTookInput);
  EXPECT_TRUE(IsWindowEnabled(window()));
  EXPECT_FALSE(asked->isVisible());
}

TEST_F(Forms, ReturnFromModalWhenLetGo) {
  std::shared_ptr<Window> asked = factory.create(toolbarLayout);
  const HWND gone = reinterpret_cast<HWND>(asked->handle());
  std::function<void()> action = [&] { asked.reset(); };
  later(gone, action);
  asked->showModal();
  EXPECT_FALSE(IsWindow(gone));
  EXPECT_TRUE(IsWindowEnabled(window()));
}

TEST_F(Forms, PassTheEndOfTheProgramOn) {
  const std::shared_ptr<Window> asked = factory.create(toolbarLayout);
  std::function<void()> action = [] { PostQuitMessage(3); };
  later(reinterpret_cast<HWND>(asked->handle()), action);
  asked->showModal();
  MSG message = {};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 3U);
}

TEST_F(Forms, CloseAMenuWithoutAChoiceWhenTheyGo) {
  static constexpr const char* captions[] = {"Reset &Model", "-", "to &Front", "to &Back "};
  std::function<void()> hide = [&] { form->hide(); };
  later(window(), hide);
  EXPECT_EQ(form->popUpMenuRightAligned(captions, {600}, {600}), -1);
  form->showTopmost();
  std::function<void()> letGo = [&] { form.reset(); };
  later(window(), letGo);
  EXPECT_EQ(form->popUpMenuRightAligned(captions, {600}, {600}), -1);
}

TEST_F(Forms, ReturnTheChoiceOfAMenu) {
  static constexpr const char* captions[] = {"Reset &Model", "-", "to &Front", "to &Back "};
  SetForegroundWindow(window());
  std::function<void()> choose = [&] {
    for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN}) PostMessageW(window(), WM_KEYDOWN, key, 1);
  };
  later(window(), choose);
  EXPECT_EQ(form->popUpMenuRightAligned(captions, {600}, {600}), 2) << "the separator is passed over and counted";
}

TEST_F(Forms, RefuseNamesThatTheyDoNotHave) {
  EXPECT_THROW(form->buttonBar("barMove", 4), std::logic_error);
  EXPECT_THROW(form->label("barMove"), std::logic_error);
}

TEST_F(Forms, LeaveNothingBehind) {
  const HINSTANCE module = moduleInstance();
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  EXPECT_TRUE(GetClassInfoExW(module, formClass, &description));
  form.reset();
  for (const wchar_t* name : {formClass, buttonBarClass, pictureBoxClass}) {
    EXPECT_FALSE(GetClassInfoExW(module, name, &description));
  }
  EXPECT_EQ(moduleLocks(), 0);
}

// The highest slots of the system's handle tables that fresh objects get: what is never freed pushes them up.
int highestDrawingSlot() {
  std::vector<HBRUSH> brushes;
  int highest = 0;
  for (COLORREF i = 0; i < 32; ++i) {
    brushes.push_back(CreateSolidBrush(0x010203 + i));
    highest = std::max<int>(highest, LOWORD(reinterpret_cast<UINT_PTR>(brushes.back())));
  }
  for (const HBRUSH brush : brushes) DeleteObject(brush);
  return highest;
}

int highestWindowSlot() {
  std::vector<HMENU> menus;
  int highest = 0;
  for (int i = 0; i < 32; ++i) {
    menus.push_back(CreateMenu());
    highest = std::max<int>(highest, LOWORD(reinterpret_cast<UINT_PTR>(menus.back())));
  }
  for (const HMENU menu : menus) DestroyMenu(menu);
  return highest;
}

TEST_F(Forms, DoNotGrowTheProcess) {
  const auto once = [&] {
    const std::shared_ptr<Window> made = makeToolbarSample(factory, folder);
    made->showTopmostAt({40, 60});
    pump();
    made->hide();
  };
  for (int i = 0; i < 5; ++i) once();
  const int drawing = highestDrawingSlot();
  const int windows = highestWindowSlot();
  for (int i = 0; i < 60; ++i) once();
  EXPECT_LT(highestDrawingSlot(), drawing + 30);
  EXPECT_LT(highestWindowSlot(), windows + 30);
}

}  // namespace
}  // namespace nerida
