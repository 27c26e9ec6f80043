// After the last release the module can go, and nothing of it stays behind.

#include <gtest/gtest.h>
#include <windows.h>

#include <tlhelp32.h>

#include <optional>

#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/model.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

int threadCount() {
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry = {};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == GetCurrentProcessId()) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

BOOL CALLBACK countOurs(HWND window, LPARAM counter) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  if (std::wstring(name).starts_with(L"Nerida")) ++*reinterpret_cast<int*>(counter);
  return TRUE;
}

int windowCount() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), countOurs, reinterpret_cast<LPARAM>(&count));
  return count;
}

bool classExists(HMODULE module, const wchar_t* name) {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  return GetClassInfoExW(module, name, &description) != FALSE;
}

class Unloading : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  void useControl(bool dispose) {
    const auto control = module->create();
    IDispatch* object = &model;
    LONG number = 0;
    LONG window = 0;
    SHORT x = 20;
    SHORT y = 20;
    control->ToolbarInit(&object, &window, &number);
    ASSERT_EQ(control->ToolbarShow(&x, &y, &window), S_OK);
    ASSERT_NE(window, -1);
    EXPECT_GT(windowCount(), 0);
    EXPECT_TRUE(classExists(loaded(), L"NeridaToolbarForm"));
    EXPECT_EQ(module->call("DllCanUnloadNow"), S_FALSE);
    if (dispose) control->ToolbarDispose(&number);
  }

  static HMODULE loaded() { return GetModuleHandleW(L"ActiveNeridaToolbar.ocx"); }

  void expectNothingLeft() {
    EXPECT_EQ(module->call("DllCanUnloadNow"), S_OK);
    EXPECT_EQ(windowCount(), 0);
    for (const wchar_t* name : {L"NeridaToolbarForm", L"NeridaButtonBar", L"NeridaPictureBox"}) {
      EXPECT_FALSE(classExists(loaded(), name)) << utf8(name);
    }
    module.reset();
    EXPECT_EQ(loaded(), nullptr);
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  Model model;
  std::optional<ControlModule> module{std::in_place};
};

TEST_F(Unloading, NothingStaysAfterAnOrderlyEnd) {
  const int threads = threadCount();
  useControl(true);
  expectNothingLeft();
  EXPECT_EQ(threadCount(), threads);
  EXPECT_EQ(model.references, 1U);
}

TEST_F(Unloading, NothingStaysWhenTheClientJustLetsGo) {
  useControl(false);
  expectNothingLeft();
  EXPECT_EQ(model.references, 1U);
}

TEST_F(Unloading, AServerLockAndAFactoryKeepTheModule) {
  EXPECT_EQ(module->call("DllCanUnloadNow"), S_OK);
  {
    const auto factory = module->factory();
    EXPECT_EQ(module->call("DllCanUnloadNow"), S_FALSE);
    factory->LockServer(TRUE);
  }
  EXPECT_EQ(module->call("DllCanUnloadNow"), S_FALSE);
  module->factory()->LockServer(FALSE);
  EXPECT_EQ(module->call("DllCanUnloadNow"), S_OK);
}

TEST_F(Unloading, TheModuleCanBeLoadedAgain) {
  useControl(true);
  module.reset();
  EXPECT_EQ(loaded(), nullptr);
  module.emplace();
  useControl(true);
  EXPECT_EQ(boxes.seen(), std::vector<std::string>());
}

}  // namespace
}  // namespace nerida
