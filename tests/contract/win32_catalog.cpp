#include "tests/contract/win32_catalog.h"

#include <array>
#include <fstream>
#include <vector>

#include "platform/win32/com.h"
#include "platform/win32/form_menu.h"
#include "platform/win32/text.h"
#include "tests/windows/catalog/prepared_search.h"

namespace nerida {
namespace {

std::wstring captionAt(HMENU menu, int position) {
  std::array<wchar_t, 256> text{};
  const int length =
      GetMenuStringW(menu, static_cast<UINT>(position), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
  return {text.data(), static_cast<std::size_t>(length)};
}

std::wstring withoutMarks(std::wstring text) {
  std::erase(text, L'&');
  return text;
}

// The position of an entry in the menu that shows it; -1 when it cannot be seen or is grey.
int positionOf(HMENU menu, const MenuEntry& entry) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    if (withoutMarks(captionAt(menu, i)) != withoutMarks(wide(entry.caption)) || entry.caption.empty()) continue;
    const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
    return (state & (MF_GRAYED | MF_DISABLED | MF_SEPARATOR)) == 0 ? i : -1;
  }
  return -1;
}

IUnknown* newSearch() { return createPreparedSearch(); }

// One white pixel.
constexpr std::array<unsigned char, 58> picture = {
    'B', 'M', 58, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0,   1,   0,   24,
    0,   0,   0,  0, 0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255, 255, 0};

void write(const std::wstring& path, const void* content, std::size_t size) {
  std::ofstream(utf8(path), std::ios::binary)
      .write(static_cast<const char*>(content), static_cast<std::streamsize>(size));
}

constexpr const wchar_t* fileNames[] = {L"plain.txt", L"picture.bmp", L"hidden.txt"};

}  // namespace

bool chooseMenuEntry(HWND form, const FormMenu& menu, const std::string& name, int index) {
  if (!IsWindowVisible(form)) return false;
  const MenuEntry& chosen = dynamic_cast<const SystemFormMenu&>(menu).content().at(name, index);
  std::vector<const MenuEntry*> way;
  for (const MenuEntry* entry = &chosen; entry->parent != nullptr; entry = entry->parent)
    way.insert(way.begin(), entry);
  HMENU current = GetMenu(form);
  for (const MenuEntry* entry : way) {
    const int position = positionOf(current, *entry);
    if (position < 0) return false;
    if (entry == &chosen) {
      SendMessageW(form, WM_MENUCOMMAND, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(current));
      return true;
    }
    current = GetSubMenu(current, position);
    SendMessageW(form, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(current), MAKELPARAM(position, FALSE));
  }
  return false;
}

ScratchFolder::ScratchFolder() {
  std::array<wchar_t, MAX_PATH> temporary{};
  GetTempPathW(MAX_PATH, temporary.data());
  folder = std::wstring(temporary.data()) + L"nerida-contract-" + std::to_wstring(GetCurrentProcessId()) + L"\\";
  CreateDirectoryW(folder.c_str(), nullptr);
  CreateDirectoryW((folder + L"below").c_str(), nullptr);
  write(folder + fileNames[0], "text", 4);
  write(folder + fileNames[1], picture.data(), picture.size());
  write(folder + fileNames[2], "text", 4);
  SetFileAttributesW((folder + fileNames[2]).c_str(), FILE_ATTRIBUTE_HIDDEN);
}

ScratchFolder::~ScratchFolder() {
  for (const wchar_t* name : fileNames) DeleteFileW((folder + name).c_str());
  RemoveDirectoryW((folder + L"below").c_str());
  RemoveDirectoryW(folder.c_str());
}

std::string ScratchFolder::path() const { return utf8(folder); }

SearchRegistration::SearchRegistration() : registered(classSearch, newSearch) {}

void SearchRegistration::setPresent(bool present) { registered.setPresent(present); }

}  // namespace nerida
