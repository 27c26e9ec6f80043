#include <olectl.h>

#include <algorithm>
#include <vector>

#include "host/win32/server.h"

namespace nerida::host {
namespace {

struct Entry {
  std::wstring key;  // below the classes
  std::wstring text;
  std::wstring name = {};  // empty: the key's own value
};

std::wstring braced(const GUID& id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

std::wstring classKey(const ServerClass& of) { return L"CLSID\\" + braced(of.id); }

// Parents stand before their children.
std::vector<Entry> namesOf(const ServerClass& of) {
  const std::wstring name = of.name;
  const std::wstring versioned = of.versioned;
  const std::wstring id = braced(of.id);
  return {{name, of.title},
          {name + L"\\CLSID", id},
          {name + L"\\CurVer", versioned},
          {versioned, of.title},
          {versioned + L"\\CLSID", id}};
}

std::vector<Entry> entriesOf(const ServerClass& of) {
  const std::wstring key = classKey(of);
  std::vector<Entry> entries = {{key, of.title},
                                {key + L"\\InprocServer32", modulePath()},
                                {key + L"\\InprocServer32", L"Apartment", L"ThreadingModel"},
                                {key + L"\\ProgID", of.versioned},
                                {key + L"\\VersionIndependentProgID", of.name},
                                {key + L"\\Programmable", L""}};
  if (of.isControl) entries.push_back({key + L"\\Control", L""});
  return entries;
}

std::wstring libraryKey(const ServerInterface& of) { return L"TypeLib\\" + braced(of.library); }

// A type library is one for both bitnesses, each of which adds its file.
std::vector<Entry> libraryNamesOf(const ServerInterface& of) {
  const std::wstring key = libraryKey(of);
  return {{key, L""}, {key + L"\\1.0", of.libraryTitle}, {key + L"\\1.0\\0", L""}, {key + L"\\1.0\\FLAGS", L"0"}};
}

std::vector<Entry> entriesOf(const ServerInterface& of) {
  // The system's marshaller that works from type libraries.
  constexpr const wchar_t* automationMarshaller = L"{00020424-0000-0000-C000-000000000046}";
  const std::wstring key = L"Interface\\" + braced(of.id);
  return {{key, of.name},
          {key + L"\\ProxyStubClsid32", automationMarshaller},
          {key + L"\\TypeLib", braced(of.library)},
          {key + L"\\TypeLib", L"1.0", L"Version"},
          {libraryKey(of) + L"\\1.0\\0\\" + (sizeof(void*) == 8 ? L"win64" : L"win32"), modulePath()}};
}

std::wstring pathOf(const Entry& entry) { return L"Software\\Classes\\" + entry.key; }

LONG write(HKEY root, const Entry& entry) {
  const std::size_t bytes = (entry.text.size() + 1) * sizeof(wchar_t);
  return RegSetKeyValueW(root, pathOf(entry).c_str(), entry.name.c_str(), REG_SZ, entry.text.c_str(),
                         static_cast<DWORD>(bytes));
}

// Takes a value away, and its key when nothing else is left in it.
void remove(HKEY root, const Entry& entry) {
  const std::wstring path = pathOf(entry);
  RegDeleteKeyValueW(root, path.c_str(), entry.name.c_str());
  HKEY key = nullptr;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  DWORD keys = 0;
  DWORD values = 0;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr, nullptr,
                   nullptr);
  RegCloseKey(key);
  if (keys == 0 && values == 0) RegDeleteKeyW(root, path.c_str());
}

void remove(HKEY root, const std::vector<Entry>& entries) {
  std::for_each(entries.rbegin(), entries.rend(), [root](const Entry& entry) { remove(root, entry); });
}

bool isRegistered(HKEY root, const ServerClass& of, REGSAM view) {
  HKEY key = nullptr;
  const std::wstring path = L"Software\\Classes\\" + classKey(of);
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

constexpr REGSAM otherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

}  // namespace

HRESULT registerClasses(HKEY root) {
  for (const ServerClass& each : serverClasses()) {
    std::vector<Entry> entries = namesOf(each);
    for (const Entry& own : entriesOf(each)) entries.push_back(own);
    if (each.dual != nullptr) {
      for (const Entry& entry : libraryNamesOf(*each.dual)) entries.push_back(entry);
      for (const Entry& entry : entriesOf(*each.dual)) entries.push_back(entry);
    }
    for (const Entry& entry : entries) {
      if (const LONG status = write(root, entry); status != ERROR_SUCCESS) {
        unregisterClasses(root);
        return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
      }
    }
  }
  return S_OK;
}

// The names, and those of a type library, serve both bitnesses: the last one to go takes them away.
HRESULT unregisterClasses(HKEY root) {
  bool left = false;
  for (const ServerClass& each : serverClasses()) {
    remove(root, entriesOf(each));
    if (each.dual != nullptr) remove(root, entriesOf(*each.dual));
    if (!isRegistered(root, each, otherBitness)) {
      remove(root, namesOf(each));
      if (each.dual != nullptr) remove(root, libraryNamesOf(*each.dual));
    }
    left = left || isRegistered(root, each, 0);
  }
  return left ? SELFREG_E_CLASS : S_OK;
}

}  // namespace nerida::host
