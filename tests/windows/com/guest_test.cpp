// The control is a guest in its host's process: what it found there, it leaves.

#include <gtest/gtest.h>

#include <cfloat>

#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/model.h"
#include "tests/windows/com/module_file.h"
#include "tests/windows/com/process_state.h"

namespace nerida {
namespace {

LRESULT CALLBACK passOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto before = reinterpret_cast<WNDPROC>(GetPropW(window, L"before"));
  return CallWindowProcW(before, window, message, wParam, lParam);
}

// Puts a procedure of the host's in front of a window's own.
void subclass(HWND window) {
  SetPropW(window, L"before", reinterpret_cast<HANDLE>(GetWindowLongPtrW(window, GWLP_WNDPROC)));
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(passOn));
}

WNDPROC procedureOf(HWND window) { return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)); }

HWND toWindow(LONG handle) { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle)); }

class Guest : public testing::Test {
 protected:
  static void SetUpTestSuite() { OleInitialize(nullptr); }
  static void TearDownTestSuite() { OleUninitialize(); }

  void SetUp() override { SetForegroundWindow(host); }
  void TearDown() override {
    DestroyWindow(host);
    EXPECT_EQ(boxes.seen(), std::vector<std::string>());
  }

  static void bind(_NeridaWindow& control, Model& model, HWND window) {
    IDispatch* object = &model;
    LONG handle = HandleToLong(window);
    LONG number = -1;
    EXPECT_EQ(control.ToolbarInit(&object, &handle, &number), S_OK);
    EXPECT_EQ(number, 0);
  }

  static HWND show(_NeridaWindow& control, SHORT x = 30, SHORT y = 40) {
    LONG window = -1;
    EXPECT_EQ(control.ToolbarShow(&x, &y, &window), S_OK);
    return window == -1 ? nullptr : toWindow(window);
  }

  static bool isVisible(_NeridaWindow& control) {
    VARIANT_BOOL visible = VARIANT_FALSE;
    EXPECT_EQ(control.IsToolbarVisible(&visible), S_OK);
    return visible != VARIANT_FALSE;
  }

  // Everything that needs nobody in front of the screen, from the creation to the release.
  void wholeLife() {
    const auto control = module.create();
    ASSERT_TRUE(control);
    bind(*control.get(), model, host);
    EXPECT_NE(show(*control.get()), nullptr);
    LONG number = 0;
    LONG catalog = -1;
    EXPECT_EQ(control->ShowCatalog(&catalog), S_OK);
    EXPECT_NE(catalog, -1);
    EXPECT_EQ(control->ToolbarHide(&number), S_OK);
    EXPECT_NE(show(*control.get(), 0, 0), nullptr);
    EXPECT_EQ(control->ToolbarHide(&number), S_OK);
    EXPECT_EQ(control->ToolbarDispose(&number), S_OK);
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  Model model;
  const ControlModule module;
  HWND host = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 200, 200, 300, 200, nullptr, nullptr,
                              nullptr, nullptr);
  HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, host, nullptr, nullptr, nullptr);
};

// The first test: what a guest changes at its first visit it need not change again.
TEST_F(Guest, LeavesTheProcessAsItFoundIt) {
  ASSERT_EQ(GetFocus(), host);
  const auto before = processState();
  wholeLife();
  EXPECT_EQ(processState(), before);
}

TEST_F(Guest, NeverChangesTheAwarenessOfTheResolution) {
  const auto before = processState();
  const auto unchanged = [&] {
    const auto now = processState();
    for (const char* name : {"awareness of the process", "process is aware", "awareness of the thread"}) {
      EXPECT_EQ(now.at(name), before.at(name)) << name;
    }
  };
  const auto control = module.create();
  unchanged();
  bind(*control.get(), model, host);
  show(*control.get());
  unchanged();
}

// Many hosts compute in another precision than the C library starts with.
TEST_F(Guest, LeavesTheHostsArithmeticAlone) {
  const unsigned before = _controlfp(0, 0);
  _controlfp(_RC_UP, _MCW_RC);
  const unsigned own = _controlfp(0, 0);
  wholeLife();
  EXPECT_EQ(_controlfp(0, 0), own);
  _controlfp(before, _MCW_RC);
}

TEST_F(Guest, LeavesTheHostsProceduresAndMessagesAlone) {
  subclass(host);
  subclass(edit);
  PostMessageW(host, WM_APP, 1, 2);
  PostThreadMessageW(GetCurrentThreadId(), WM_APP + 1, 3, 4);
  wholeLife();
  EXPECT_EQ(procedureOf(host), passOn);
  EXPECT_EQ(procedureOf(edit), passOn);
  MSG message;
  EXPECT_TRUE(PeekMessageW(&message, host, WM_APP, WM_APP, PM_REMOVE)) << "it belongs to the host's own loop";
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_APP + 1, WM_APP + 1, PM_REMOVE));
  EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE));
}

// A host that watches the toolbar's window stays in place when the toolbar takes its own watcher off.
TEST_F(Guest, LeavesAHostsProcedureOnTheToolbarAlone) {
  const auto control = module.create();
  bind(*control.get(), model, host);
  const HWND toolbar = show(*control.get());
  ASSERT_NE(toolbar, nullptr);
  subclass(toolbar);
  LONG number = 0;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(control->ToolbarHide(&number), S_OK);
    EXPECT_EQ(procedureOf(toolbar), passOn);
    EXPECT_EQ(show(*control.get()), toolbar);
    EXPECT_EQ(procedureOf(toolbar), passOn);
  }
  EXPECT_EQ(control->ToolbarDispose(&number), S_OK);
  EXPECT_FALSE(IsWindow(toolbar));
}

TEST_F(Guest, KeepsItsWindowClassesToItself) {
  const auto control = module.create();
  bind(*control.get(), model, host);
  const HWND toolbar = show(*control.get());
  wchar_t name[64] = {};
  ASSERT_GT(GetClassNameW(toolbar, name, 64), 0);
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  EXPECT_FALSE(GetClassInfoExW(GetModuleHandleW(nullptr), name, &description)) << utf8(name);
  EXPECT_FALSE(GetClassInfoExW(nullptr, name, &description)) << utf8(name);
  EXPECT_EQ(GetClassLongPtrW(toolbar, GCL_STYLE) & CS_GLOBALCLASS, 0U);
}

TEST_F(Guest, LosesNoHandlesHoweverOftenItComesAndGoes) {
  wholeLife();
  wholeLife();
  const HandleCounts before = handleCounts();
  constexpr int lives = 12;
  for (int i = 0; i < lives; ++i) wholeLife();
  const HandleCounts after = handleCounts();
  // Other programs on the desktop may make a handle meanwhile; one that were lost each time would show.
  EXPECT_LT(after.user - before.user, lives / 2) << "of " << before.user;
  EXPECT_LT(after.drawing - before.drawing, lives / 2) << "of " << before.drawing;
}

TEST_F(Guest, ServesOneObjectAfterTheOther) {
  Model second;
  const auto first = module.create();
  bind(*first.get(), model, host);
  EXPECT_NE(show(*first.get()), nullptr);
  LONG number = 0;
  EXPECT_EQ(first->ToolbarDispose(&number), S_OK);
  const auto control = module.create();
  bind(*control.get(), second, host);
  EXPECT_NE(show(*control.get()), nullptr);
  EXPECT_TRUE(isVisible(*control.get()));
  EXPECT_EQ(model.references, 1U);
  EXPECT_EQ(second.values[L"IsToolbarShowing"].boolVal, VARIANT_TRUE);
}

// There is one toolbar in a process. A control that is created while another one lives takes it over; when either goes,
// the toolbar goes, and the other one has it again after its next binding.
TEST_F(Guest, SharesTheToolbarWithAnotherControl) {
  Model second;
  auto first = module.create();
  bind(*first.get(), model, host);
  const HWND toolbar = show(*first.get());
  const auto control = module.create();
  ASSERT_TRUE(control);
  bind(*control.get(), second, host);
  EXPECT_EQ(show(*control.get()), toolbar);
  EXPECT_TRUE(isVisible(*first.get()));
  EXPECT_EQ(model.references, 1U);
  first = {};
  EXPECT_FALSE(isVisible(*control.get()));
  EXPECT_EQ(second.references, 1U);
  bind(*control.get(), second, host);
  EXPECT_NE(show(*control.get()), nullptr);
  EXPECT_TRUE(isVisible(*control.get()));
  LONG number = 0;
  EXPECT_EQ(control->ToolbarDispose(&number), S_OK);
}

}  // namespace
}  // namespace nerida
