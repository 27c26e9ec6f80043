#include <vector>

#include "tools/ui_probe/probe.h"

namespace probe {

std::string utf8(const wchar_t* text, int length) {
  if (!text) return {};
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, length, result.data(), size, nullptr, nullptr);
  if (length < 0 && !result.empty()) result.pop_back();
  return result;
}

std::string classOf(HWND window) {
  wchar_t name[256] = L"";
  GetClassNameW(window, name, 256);
  return utf8(name);
}

Json describeWindow(HWND window) {
  wchar_t title[512] = L"";
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(title), SMTO_ABORTIFHUNG, 2000, &ignored);
  RECT place{};
  GetWindowRect(window, &place);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return {{"window", reinterpret_cast<std::intptr_t>(window)},
          {"process", process},
          {"class", classOf(window)},
          {"title", utf8(title)},
          {"rect", {place.left, place.top, place.right, place.bottom}},
          {"visible", IsWindowVisible(window) != 0},
          {"enabled", IsWindowEnabled(window) != 0},
          {"topmost", (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0},
          {"procedure", GetWindowLongPtrW(window, GWLP_WNDPROC)}};
}

static BOOL CALLBACK addToList(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

// Only those that are meant are asked for their title: it takes an answer of their program.
Json topLevelWindows(bool onlyVisible, const std::string& className) {
  std::vector<HWND> windows;
  EnumWindows(addToList, reinterpret_cast<LPARAM>(&windows));
  Json result = Json::array();
  for (HWND window : windows) {
    if (onlyVisible && !IsWindowVisible(window)) continue;
    if (!className.empty() && classOf(window) != className) continue;
    result.push_back(describeWindow(window));
  }
  return result;
}

}  // namespace probe
