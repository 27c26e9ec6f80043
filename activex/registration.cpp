#include "activex/registration.h"

#include <ActiveNeridaToolbar_h.h>
#include <olectl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "activex/ole_face.h"
#include "activex/type_library.h"
#include "platform/win32/registry_handle.h"

namespace nerida {
namespace {

constexpr bool is64Bit = sizeof(void*) == 8;
constexpr const wchar_t* classes = L"Software\\Classes\\";
constexpr const wchar_t* programId = L"ActiveNeridaToolbar.NeridaWindow";
constexpr const wchar_t* versionedProgramId = L"ActiveNeridaToolbar.NeridaWindow.1";
constexpr const wchar_t* libraryTitle = L"ActiveNeridaToolbar 1.0 Type Library";
// The system's marshaller that works from type libraries.
constexpr const wchar_t* automationMarshaller = L"{00020424-0000-0000-C000-000000000046}";

// A key and its value without, or with, a name.
struct Entry {
  std::wstring key;
  std::wstring text;
  std::wstring name = {};
};
using Entries = std::vector<Entry>;

std::wstring braced(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

HKEY root(Scope scope) { return scope == Scope::machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

std::wstring typeLibraryKey() { return L"TypeLib\\" + braced(LIBID_ActiveNeridaToolbar); }

std::wstring classKey() { return L"CLSID\\" + braced(CLSID_NeridaWindow); }

// Both bitnesses read the names and the type library's common keys; the last one to go takes them away. In all tables
// parents stand before their children.
Entries nameEntries() {
  const std::wstring id = braced(CLSID_NeridaWindow);
  const std::wstring unversioned = programId;
  const std::wstring versioned = versionedProgramId;
  return {
      {unversioned, controlTitle}, {unversioned + L"\\CLSID", id}, {unversioned + L"\\CurVer", versioned},
      {versioned, controlTitle},   {versioned + L"\\CLSID", id},
  };
}

Entries libraryEntries() {
  const std::wstring library = typeLibraryKey();
  return {
      {library, L""},
      {library + L"\\1.0", libraryTitle},
      {library + L"\\1.0\\0", L""},
      {library + L"\\1.0\\FLAGS", L"0"},
  };
}

Entries ownEntries() {
  const std::wstring id = classKey();
  const std::wstring interfaceId = L"Interface\\" + braced(IID__NeridaWindow);
  const std::wstring library = braced(LIBID_ActiveNeridaToolbar);
  return {
      {id, controlTitle},
      {id + L"\\Control", L""},
      {id + L"\\InprocServer32", modulePath()},
      {id + L"\\InprocServer32", L"Apartment", L"ThreadingModel"},
      {id + L"\\MiscStatus", L"0"},
      {id + L"\\MiscStatus\\1", std::to_wstring(miscStatus)},
      {id + L"\\ProgID", versionedProgramId},
      {id + L"\\Programmable", L""},
      {id + L"\\TypeLib", library},
      {id + L"\\Version", L"1.0"},
      {id + L"\\VersionIndependentProgID", programId},
      {interfaceId, L"_NeridaWindow"},
      {interfaceId + L"\\ProxyStubClsid32", automationMarshaller},
      {interfaceId + L"\\TypeLib", library},
      {interfaceId + L"\\TypeLib", L"1.0", L"Version"},
      {typeLibraryKey() + L"\\1.0\\0\\" + (is64Bit ? L"win64" : L"win32"), modulePath()},
  };
}

LONG write(HKEY base, const Entry& entry) {
  RegistryHandle key;
  LONG status = RegCreateKeyExW(base, (classes + entry.key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE,
                                nullptr, key.put(), nullptr);
  if (status != ERROR_SUCCESS || (entry.text.empty() && entry.name.empty())) return status;
  return key.setText(entry.name, entry.text);
}

struct Contents {
  DWORD keys = 0;
  DWORD values = 0;
};

Contents contents(HKEY base, const std::wstring& key) {
  Contents result;
  RegistryHandle handle;
  if (RegOpenKeyExW(base, (classes + key).c_str(), 0, KEY_READ, handle.put()) != ERROR_SUCCESS) return result;
  RegQueryInfoKeyW(handle.get(), nullptr, nullptr, nullptr, &result.keys, nullptr, nullptr, &result.values, nullptr,
                   nullptr, nullptr, nullptr);
  return result;
}

bool isEmpty(HKEY base, const std::wstring& key) {
  const Contents left = contents(base, key);
  return left.keys == 0 && left.values == 0;
}

// Removes a value of ours, and its key when nothing is left in it.
void remove(HKEY base, const Entry& entry) {
  const std::wstring path = classes + entry.key;
  {
    RegistryHandle key;
    if (RegOpenKeyExW(base, path.c_str(), 0, KEY_SET_VALUE, key.put()) != ERROR_SUCCESS) return;
    RegDeleteValueW(key.get(), entry.name.c_str());
  }
  if (isEmpty(base, entry.key)) RegDeleteKeyW(base, path.c_str());
}

void remove(HKEY base, const Entries& entries) {
  std::for_each(entries.rbegin(), entries.rend(), [base](const Entry& entry) { remove(base, entry); });
}

// A user has these common keys only from the first registration on.
void removeEmptyParents(HKEY base) {
  for (const wchar_t* parent : {L"CLSID", L"Interface", L"TypeLib"}) {
    if (isEmpty(base, parent)) RegDeleteKeyW(base, (std::wstring(classes) + parent).c_str());
  }
}

LONG write(HKEY base, const Entries& entries) {
  for (const Entry& entry : entries) {
    if (const LONG status = write(base, entry); status != ERROR_SUCCESS) return status;
  }
  return ERROR_SUCCESS;
}

// Classes of the other bitness stand in another view of the registry.
bool otherBitnessHasClass(HKEY base) {
  RegistryHandle key;
  const REGSAM otherView = is64Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  return RegOpenKeyExW(base, (classes + classKey()).c_str(), 0, KEY_READ | otherView, key.put()) == ERROR_SUCCESS;
}

bool namesServer(HKEY base) {
  const std::wstring key = classes + classKey() + L"\\InprocServer32";
  return RegGetValueW(base, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

bool otherBitnessHasLibrary(HKEY base) { return contents(base, typeLibraryKey() + L"\\1.0\\0").keys > 0; }

}  // namespace

HRESULT registerServer(Scope scope) {
  LONG status = ERROR_SUCCESS;
  for (const Entries& entries : {nameEntries(), libraryEntries(), ownEntries()}) {
    if (status == ERROR_SUCCESS) status = write(root(scope), entries);
  }
  if (status != ERROR_SUCCESS) unregisterServer(scope);
  return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
}

HRESULT unregisterServer(Scope scope) {
  const HKEY base = root(scope);
  remove(base, ownEntries());
  if (!otherBitnessHasLibrary(base)) remove(base, libraryEntries());
  if (!otherBitnessHasClass(base)) remove(base, nameEntries());
  if (scope == Scope::user) removeEmptyParents(base);
  return namesServer(base) ? SELFREG_E_CLASS : S_OK;
}

}  // namespace nerida
