// The system's services as the library sees them: settings, registry, message boxes, screen and help.

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/desktop.h"
#include "platform/win32/prompts.h"
#include "platform/win32/registry.h"
#include "platform/win32/registry_handle.h"
#include "platform/win32/settings.h"
#include "platform/win32/shell.h"
#include "platform/win32/text.h"
#include "tests/windows/com/box_watcher.h"

namespace nerida {
namespace {

TEST(Text, RoundTripsAndSurvivesDamage) {
  EXPECT_EQ(utf8(wide("\xc3\x84hre \xf0\x9f\xa6\x86")), "\xc3\x84hre \xf0\x9f\xa6\x86");
  EXPECT_EQ(wide(""), L"");
  EXPECT_FALSE(wide("\xff broken").empty());
}

class SettingsStore : public testing::Test {
 protected:
  static constexpr const wchar_t* path = L"Software\\VB and VBA Program Settings\\Zephra\\TestSection";
  ~SettingsStore() override { RegDeleteKeyW(HKEY_CURRENT_USER, path); }

  SystemSettings settings;
};

TEST_F(SettingsStore, AMissingSettingIsTheFallbackAndAnEmptyOneIsEmpty) {
  EXPECT_EQ(settings.read("TestSection", "Color", "none"), "none");
  settings.write("TestSection", "Color", "");
  EXPECT_EQ(settings.read("TestSection", "Color", "none"), "");
}

TEST_F(SettingsStore, KeepsTextsInTheUsersRegistry) {
  settings.write("TestSection", "Color", "\xc3\x84pfel 16777215");
  EXPECT_EQ(settings.read("TestSection", "Color", ""), "\xc3\x84pfel 16777215");
  wchar_t text[32] = {};
  DWORD size = sizeof text;
  EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, path, L"Color", RRF_RT_REG_SZ, nullptr, text, &size), ERROR_SUCCESS);
  EXPECT_STREQ(text, L"\x00c4pfel 16777215");
}

class MachineRegistry : public testing::Test {
 protected:
  static constexpr const wchar_t* path = L"Software\\NeridaRegistryTest";

  MachineRegistry() {
    remove();
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, written.put(),
                    nullptr);
  }
  ~MachineRegistry() override {
    written = RegistryHandle();
    remove();
  }
  static void remove() { RegDeleteKeyExW(HKEY_LOCAL_MACHINE, path, KEY_WOW64_32KEY, 0); }

  void writeText(const wchar_t* name, const std::wstring& text) { written.setText(name, text); }
  void writeBytes(const wchar_t* name, const std::string& bytes) {
    RegSetValueExW(written.get(), name, 0, REG_BINARY, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
  }

  // The only value of the key.
  std::optional<RegistryValue> value() {
    const auto key = registry.openLocalMachine()->open("Software", status)->open("NeridaRegistryTest", status);
    return key->value(0, status);
  }

  SystemRegistry registry;
  long status = -1;
  RegistryHandle written;
};

TEST_F(MachineRegistry, AMissingKeyGivesTheSystemsStatus) {
  EXPECT_EQ(registry.openLocalMachine()->open("NoSuchKeyAnywhere", status), nullptr);
  EXPECT_EQ(status, ERROR_FILE_NOT_FOUND);
}

TEST_F(MachineRegistry, EnumerationEndsWithTheSystemsStatus) {
  EXPECT_FALSE(value());
  EXPECT_EQ(status, ERROR_NO_MORE_ITEMS);
}

TEST_F(MachineRegistry, ReadsTextAndBytesUpToTheFirstNul) {
  writeText(L"Dictionary", L"C:\\Caf\x00e9");
  ASSERT_TRUE(value());
  EXPECT_EQ(value()->name, "Dictionary");
  EXPECT_EQ(value()->data, "C:\\Caf\xc3\xa9");
  EXPECT_EQ(status, 0);
  writeBytes(L"Dictionary", std::string("C:\\Bytes\0rest", 13));
  EXPECT_EQ(value()->data, "C:\\Bytes");
  writeBytes(L"Dictionary", "C:\\NoNul");
  EXPECT_EQ(value()->data, "C:\\NoNul");
}

TEST_F(MachineRegistry, TheBuffersHold256) {
  writeText(L"Dictionary", std::wstring(255, L'x'));
  ASSERT_TRUE(value());
  EXPECT_EQ(value()->data.size(), 255U);
  writeText(L"Dictionary", std::wstring(256, L'x'));
  EXPECT_FALSE(value());
  EXPECT_EQ(status, ERROR_MORE_DATA);
  writeBytes(L"Dictionary", std::string(256, 'x'));
  EXPECT_TRUE(value());
  writeBytes(L"Dictionary", std::string(257, 'x'));
  EXPECT_FALSE(value());
  EXPECT_EQ(status, ERROR_MORE_DATA);
}

// What somebody has installed for himself alone.
class UserRegistry : public MachineRegistry {
 protected:
  UserRegistry() {
    RegistryHandle key;
    RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, key.put(), nullptr);
    key.setText(L"Dictionary", L"C:\\Mine");
  }
  ~UserRegistry() override { RegDeleteKeyW(HKEY_CURRENT_USER, path); }
};

TEST_F(UserRegistry, IsReadWhereTheMachineHasNoSuchKey) {
  remove();
  ASSERT_TRUE(value());
  EXPECT_EQ(value()->data, "C:\\Mine");
  EXPECT_EQ(status, 0);
}

TEST_F(UserRegistry, IsHiddenByTheMachines) {
  writeText(L"Dictionary", L"C:\\Everybodys");
  ASSERT_TRUE(value());
  EXPECT_EQ(value()->data, "C:\\Everybodys");
}

TEST(MessageBoxes, ShowTextAndTitleAndGiveTheAnswer) {
  SystemPrompts prompts;
  BoxWatcher retrying(IDRETRY);
  EXPECT_EQ(prompts.messageBox("Insert the disc.", PromptButtons::retryCancel, "Zephra Catalog"), PromptAnswer::retry);
  EXPECT_EQ(retrying.seen(), std::vector<std::string>{"Zephra Catalog: Insert the disc."});
}

TEST(MessageBoxes, AnEmptyTitleIsTheLibrarysName) {
  SystemPrompts prompts;
  BoxWatcher cancelling(IDCANCEL);
  EXPECT_EQ(prompts.messageBox("No title", PromptButtons::retryCancel, ""), PromptAnswer::cancel);
  EXPECT_EQ(prompts.messageBox("Fine", PromptButtons::ok, ""), PromptAnswer::ok);
  EXPECT_EQ(cancelling.seen(),
            (std::vector<std::string>{"ActiveNeridaToolbar: No title", "ActiveNeridaToolbar: Fine"}));
}

TEST(Desktop, ConvertsScreenPoints) {
  SystemDesktop desktop;
  EXPECT_EQ(desktop.screenToClient(12345, {10, 20}), (Point{0, 0}));
  HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 100, 50, 20, 20, nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(desktop.screenToClient(reinterpret_cast<WindowHandle>(window), {0, 0}), (Point{-100, -50}));
  DestroyWindow(window);
}

TEST(Desktop, KnowsTheScreen) {
  SystemDesktop desktop;
  HDC screen = GetDC(nullptr);
  EXPECT_EQ(desktop.twipsPerPixelX(), 1440.0 / GetDeviceCaps(screen, LOGPIXELSX));
  EXPECT_EQ(desktop.twipsPerPixelY(), 1440.0 / GetDeviceCaps(screen, LOGPIXELSY));
  ReleaseDC(nullptr, screen);
  EXPECT_EQ(desktop.screenSize().width, GetSystemMetrics(SM_CXSCREEN));
}

TEST(Help, AMissingFileOpensNothingAndDoesNotWait) {
  SystemShell shell;
  const DWORD start = GetTickCount();
  shell.openHelp(0, "C:\\Nowhere\\Zephra.hlp");
  shell.openHelp(0, "\\Zephra.hlp");
  shell.openHelp(0, "");
  EXPECT_LT(GetTickCount() - start, 1000U);
}

}  // namespace
}  // namespace nerida
