// Window handles cross the interface in numbers of 32 bits, also to and from hosts of 64 bits: the system's handles
// fit, when their sign is kept on the way back.

#include <gtest/gtest.h>

#include <array>

#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/model.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

constexpr int hostLeft = 140;
constexpr int hostTop = 90;

class Handles : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  void SetUp() override {
    control = module.create();
    ASSERT_TRUE(control);
    host = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Host", WS_POPUP | WS_VISIBLE, hostLeft, hostTop, 300, 200,
                           nullptr, nullptr, nullptr, nullptr);
    IDispatch* object = &model;
    LONG window = HandleToLong(host);
    LONG number = -1;
    ASSERT_EQ(control->ToolbarInit(&object, &window, &number), S_OK);
  }
  void TearDown() override {
    LONG number = -1;
    EXPECT_EQ(control->ToolbarDispose(&number), S_OK);
    DestroyWindow(host);
    EXPECT_EQ(boxes.seen(), std::vector<std::string>());
  }

  LONG showToolbar(SHORT x, SHORT y) {
    LONG window = 0;
    EXPECT_EQ(control->ToolbarShow(&x, &y, &window), S_OK);
    return window;
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  Model model;
  const ControlModule module;
  ComPtr<_NeridaWindow> control;
  HWND host = nullptr;
};

bool isTitled(HWND window, const wchar_t* start) {
  wchar_t title[64] = {};
  GetWindowTextW(window, title, 64);
  return std::wstring_view(title).starts_with(start);
}

bool isOurs(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process == GetCurrentProcessId();
}

void expectWindowOfOurs(LONG number, const wchar_t* title) {
  const auto window = static_cast<HWND>(LongToHandle(number));
  EXPECT_TRUE(IsWindow(window));
  EXPECT_EQ(GetAncestor(window, GA_ROOT), window) << "the whole handle";
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_TRUE(isOurs(window));
  EXPECT_TRUE(isTitled(window, title));
}

TEST_F(Handles, OfTheToolbarNamesItsWindow) { expectWindowOfOurs(showToolbar(50, 60), L"Zephra Toolbar"); }

TEST_F(Handles, OfTheCatalogNamesItsWindow) {
  LONG number = 0;
  ASSERT_EQ(control->ShowCatalog(&number), S_OK);
  expectWindowOfOurs(number, L"Zephra Catalog");
}

TEST_F(Handles, FromLateBindingIsTheSameNumber) {
  const LONG early = showToolbar(50, 60);
  auto* name = const_cast<LPOLESTR>(L"ToolbarShow");
  DISPID id = DISPID_UNKNOWN;
  ASSERT_EQ(control->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
  std::array<VARIANT, 2> place = {};
  for (VARIANT& each : place) {
    each.vt = VT_I2;
    each.iVal = 50;
  }
  DISPPARAMS parameters = {place.data(), nullptr, 2, 0};
  VARIANT late = {};
  ASSERT_EQ(control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &late, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(late.vt, VT_I4);
  EXPECT_EQ(late.lVal, early);
}

// Where the toolbar appears shows that the host's window was understood: 0 is its corner.
TEST_F(Handles, OfTheHostIsFoundAgain) {
  const auto window = static_cast<HWND>(LongToHandle(showToolbar(0, 0)));
  RECT place = {};
  ASSERT_TRUE(GetWindowRect(window, &place));
  EXPECT_EQ(place.left, hostLeft);
  EXPECT_GE(place.top, hostTop);
}

}  // namespace
}  // namespace nerida
