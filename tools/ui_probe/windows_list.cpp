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

Json describeWindow(HWND window) {
  wchar_t className[256] = L"";
  GetClassNameW(window, className, 256);
  wchar_t title[512] = L"";
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(title), SMTO_ABORTIFHUNG, 2000, &ignored);
  RECT place{};
  GetWindowRect(window, &place);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return {{"window", reinterpret_cast<std::intptr_t>(window)},
          {"process", process},
          {"class", utf8(className)},
          {"title", utf8(title)},
          {"rect", {place.left, place.top, place.right, place.bottom}},
          {"visible", IsWindowVisible(window) != 0},
          {"enabled", IsWindowEnabled(window) != 0},
          {"topmost", (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0},
          {"procedure", GetWindowLongPtrW(window, GWLP_WNDPROC)}};
}

static BOOL CALLBACK addToList(HWND window, LPARAM list) {
  reinterpret_cast<Json*>(list)->push_back(describeWindow(window));
  return TRUE;
}

Json topLevelWindows() {
  Json result = Json::array();
  EnumWindows(addToList, reinterpret_cast<LPARAM>(&result));
  return result;
}

}  // namespace probe
