#include "tests/windows/com/box_watcher.h"

#include <windows.h>

#include <set>

#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr const wchar_t* boxClass = L"#32770";
constexpr int textControl = 0xFFFF;

std::string textOf(HWND window) {
  std::wstring text(512, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return utf8(text);
}

BOOL CALLBACK collectBox(HWND window, LPARAM found) {
  wchar_t name[16] = {};
  DWORD process = 0;
  GetClassNameW(window, name, 16);
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId() && lstrcmpW(name, boxClass) == 0 && IsWindowVisible(window)) {
    reinterpret_cast<std::set<HWND>*>(found)->insert(window);
  }
  return TRUE;
}

}  // namespace

BoxWatcher::BoxWatcher(int answer) : answer(answer), thread([this](const std::stop_token& stop) { watch(stop); }) {}

BoxWatcher::~BoxWatcher() {
  thread.request_stop();
  thread.join();
}

std::vector<std::string> BoxWatcher::seen() {
  const std::lock_guard lock(mutex);
  return boxes;
}

void BoxWatcher::watch(const std::stop_token& stop) {
  while (!stop.stop_requested()) {
    answerBoxes();
    Sleep(20);
  }
}

void BoxWatcher::answerBoxes() {
  std::set<HWND> found;
  EnumWindows(collectBox, reinterpret_cast<LPARAM>(&found));
  for (HWND box : found) {
    {  // before the answer, after which the program goes on
      const std::lock_guard lock(mutex);
      boxes.push_back(textOf(box) + ": " + textOf(GetDlgItem(box, textControl)));
    }
    SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
  }
}

}  // namespace nerida
