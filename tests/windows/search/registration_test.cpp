// What registering the component writes, and takes back.
#include <gtest/gtest.h>

#include <memory>

#include "tests/windows/search/search_files.h"

namespace nerida::host {
namespace {

constexpr const wchar_t* classKey = L"Software\\Classes\\CLSID\\{44B2C29A-F4A2-11D1-AD82-006097046DBB}";
constexpr const wchar_t* interfaceKey = L"Software\\Classes\\Interface\\{44B2C299-F4A2-11D1-AD82-006097046DBB}";

std::wstring valueOf(const std::wstring& key, const wchar_t* name = L"") {
  wchar_t text[1024] = {};
  DWORD bytes = sizeof text;
  RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &bytes);
  return text;
}

bool exists(const std::wstring& key) {
  HKEY handle = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) return false;
  RegCloseKey(handle);
  return true;
}

/// The component that was registered before is registered again in the end.
class SearchRegistration : public testing::Test {
 protected:
  void SetUp() override {
    CoInitialize(nullptr);
    previous = valueOf(std::wstring(classKey) + L"\\InprocServer32");
    if (!previous.empty()) module.call("DllUnregisterServer");
  }
  void TearDown() override {
    module.call("DllUnregisterServer");
    CoUninitialize();
    if (!previous.empty() && std::filesystem::exists(previous)) Module(previous).call("DllRegisterServer");
  }

  const SearchFiles files;
  const Module module{componentFile()};
  std::wstring previous;
};

TEST_F(SearchRegistration, LetsClientsMakeTheComponentByItsClass) {
  ASSERT_EQ(module.call("DllRegisterServer"), S_OK);
  ComRef<IKeywordSearch> search;
  ASSERT_EQ(CoCreateInstance(CLSID_KeywordSearch, nullptr, CLSCTX_INPROC_SERVER, IID_IKeywordSearch, search.out()),
            S_OK);
  long result = 0;
  EXPECT_EQ(search->TestEngine(1, &result), S_OK);
  EXPECT_EQ(result, 2);
  CLSID byName = {};
  EXPECT_EQ(CLSIDFromProgID(L"ZephraSearch.KeywordSearch", &byName), S_OK);
  EXPECT_EQ(byName, CLSID_KeywordSearch);
}

TEST_F(SearchRegistration, NamesTheFileAndTheTypeLibrary) {
  ASSERT_EQ(module.call("DllRegisterServer"), S_OK);
  const std::wstring server = std::wstring(classKey) + L"\\InprocServer32";
  EXPECT_TRUE(std::filesystem::equivalent(valueOf(server), componentFile()));
  EXPECT_EQ(valueOf(server, L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(valueOf(interfaceKey), L"IKeywordSearch");
  ComRef<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(LIBID_ZephraSearch, 1, 0, 0, reinterpret_cast<ITypeLib**>(library.out())), S_OK);
}

TEST_F(SearchRegistration, IsTakenBackWhole) {
  ASSERT_EQ(module.call("DllRegisterServer"), S_OK);
  ASSERT_EQ(module.call("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(exists(classKey));
  EXPECT_FALSE(exists(interfaceKey));
  EXPECT_EQ(module.call("DllUnregisterServer"), S_OK) << "a second time does no harm";
}

}  // namespace
}  // namespace nerida::host
