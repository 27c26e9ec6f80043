// What registering writes, and that unregistering leaves the registry as it was.

#include <gtest/gtest.h>

#include <map>

#include "tests/windows/com/installation.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

constexpr const wchar_t* root = L"Software\\Classes";
using Snapshot = std::map<std::wstring, std::wstring>;

void collect(HKEY parent, const std::wstring& path, Snapshot& into) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  if (path != root) into[path] = L"";
  wchar_t name[512];
  for (DWORD i = 0;; ++i) {
    DWORD length = 512;
    BYTE data[1024] = {};
    DWORD size = sizeof data - 2;
    DWORD type = 0;
    if (RegEnumValueW(key, i, name, &length, nullptr, &type, data, &size) == ERROR_NO_MORE_ITEMS) break;
    into[path + L" @" + name] = type == REG_SZ ? reinterpret_cast<wchar_t*>(data) : L"?";
  }
  for (DWORD i = 0;; ++i) {
    DWORD length = 512;
    if (RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    collect(parent, path + L"\\" + name, into);
  }
  RegCloseKey(key);
}

Snapshot classes(HKEY scope) {
  Snapshot result;
  collect(scope, root, result);
  return result;
}

std::wstring braced(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

// Stands in for a registration of the other bitness.
class OtherRegistration {
 public:
  OtherRegistration() {
    create(library, 0);
    create(classKey, otherView);
  }
  ~OtherRegistration() { clear(); }
  OtherRegistration(const OtherRegistration&) = delete;
  OtherRegistration& operator=(const OtherRegistration&) = delete;

  // Removes this stand-in, or a real one.
  static void clear() {
    remove(library, 0);
    remove(classKey, otherView);
  }

  static constexpr REGSAM otherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  static inline const std::wstring classKey = L"CLSID\\" + braced(CLSID_NeridaWindow);
  static inline const std::wstring library =
      L"TypeLib\\" + braced(LIBID_ActiveNeridaToolbar) + L"\\1.0\\0\\" + (sizeof(void*) == 8 ? L"win32" : L"win64");

 private:
  static std::wstring path(const std::wstring& key) { return std::wstring(root) + L"\\" + key; }
  static void create(const std::wstring& key, REGSAM view) {
    HKEY handle = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, path(key).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | view, nullptr, &handle,
                    nullptr);
    RegCloseKey(handle);
  }
  static void remove(const std::wstring& key, REGSAM view) {
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path(key).c_str(), 0, KEY_ALL_ACCESS | view, &handle) != ERROR_SUCCESS)
      return;
    RegDeleteTreeW(handle, nullptr);
    RegCloseKey(handle);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, path(key).c_str(), view, 0);
  }
};

class Registration : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  // A registration that an earlier, broken run has left would hide what is tested here.
  Registration() {
    OtherRegistration::clear();
    module.call("DllUnregisterServer");
    machine = classes(HKEY_LOCAL_MACHINE);
    user = classes(HKEY_CURRENT_USER);
  }
  ~Registration() override { module.call("DllUnregisterServer"); }

  static bool canBeCreated(const wchar_t* name) {
    CLSID id;
    ComPtr<IDispatch> control;
    if (FAILED(CLSIDFromProgID(name, &id))) return false;
    return SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, control.putVoid()));
  }

  const Installation installation;
  const ControlModule module;
  Snapshot machine;
  Snapshot user;
};

TEST_F(Registration, ForTheMachineWritesAndRemovesExactlyItsOwn) {
  EXPECT_EQ(module.call("DllRegisterServer"), S_OK);
  EXPECT_GT(classes(HKEY_LOCAL_MACHINE).size(), machine.size() + 20);
  EXPECT_EQ(classes(HKEY_CURRENT_USER), user);
  EXPECT_TRUE(canBeCreated(L"ActiveNeridaToolbar.NeridaWindow"));
  EXPECT_TRUE(canBeCreated(L"ActiveNeridaToolbar.NeridaWindow.1"));
  EXPECT_EQ(module.call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), machine);
}

TEST_F(Registration, ForTheUserLeavesTheMachineAlone) {
  EXPECT_EQ(module.install(true, L"user"), S_OK);
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), machine);
  EXPECT_GT(classes(HKEY_CURRENT_USER).size(), user.size() + 20);
  EXPECT_EQ(module.install(false, L"user"), S_OK);
  EXPECT_EQ(classes(HKEY_CURRENT_USER), user);
}

TEST_F(Registration, FallsBackToTheUserWhereTheMachineIsRefused) {
  // A deleted key in the place of the machine's part refuses every access.
  HKEY gone = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\NeridaGone", 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                  &gone, nullptr);
  RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\NeridaGone");
  ASSERT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, gone), ERROR_SUCCESS);
  const HRESULT status = module.call("DllRegisterServer");
  RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
  RegCloseKey(gone);
  EXPECT_EQ(status, S_OK);
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), machine);
  EXPECT_GT(classes(HKEY_CURRENT_USER).size(), user.size() + 20);
  EXPECT_EQ(module.call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(classes(HKEY_CURRENT_USER), user);
}

bool exists(const std::wstring& key, REGSAM view = 0) {
  HKEY handle = nullptr;
  const std::wstring path = std::wstring(root) + L"\\" + key;
  const bool found = RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ | view, &handle) == ERROR_SUCCESS;
  if (found) RegCloseKey(handle);
  return found;
}

TEST_F(Registration, LeavesTheOtherBitnessAlone) {
  const std::wstring name = L"ActiveNeridaToolbar.NeridaWindow\\CLSID";
  ASSERT_EQ(module.call("DllRegisterServer"), S_OK);
  {
    const OtherRegistration other;
    EXPECT_EQ(module.call("DllUnregisterServer"), S_OK);
    EXPECT_TRUE(exists(name));
    EXPECT_TRUE(exists(OtherRegistration::library));
    EXPECT_TRUE(exists(OtherRegistration::classKey, OtherRegistration::otherView));
    EXPECT_FALSE(exists(OtherRegistration::classKey));
  }
  EXPECT_EQ(module.call("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(exists(name));
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), machine);
}

TEST_F(Registration, IsNotMarkedSafeForBrowsers) {
  ASSERT_EQ(module.call("DllRegisterServer"), S_OK);
  const std::wstring key = L"CLSID\\" + braced(CLSID_NeridaWindow);
  EXPECT_TRUE(exists(key + L"\\Control"));
  EXPECT_FALSE(exists(key + L"\\Implemented Categories"));
}

}  // namespace
}  // namespace nerida
