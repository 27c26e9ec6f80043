#include "tests/windows/com/process_state.h"

#include <windows.h>

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <clocale>
#include <vector>

#include "platform/win32/text.h"

namespace nerida {
namespace {

std::string number(std::uintptr_t value) { return std::to_string(value); }

std::string number(const void* value) { return number(reinterpret_cast<std::uintptr_t>(value)); }

std::string currentFolder() {
  wchar_t path[MAX_PATH] = {};
  GetCurrentDirectoryW(MAX_PATH, path);
  return utf8(path);
}

// A function that not every system has.
template <class Function>
Function systemFunction(const wchar_t* module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(module), name)));
}

std::string processAwareness() {
  int value = -1;
  const auto ask = systemFunction<HRESULT(WINAPI*)(HANDLE, int*)>(L"shcore.dll", "GetProcessDpiAwareness");
  if (ask != nullptr) ask(nullptr, &value);
  return std::to_string(value);
}

std::string threadAwareness() {
  const auto context = systemFunction<HANDLE(WINAPI*)()>(L"user32.dll", "GetThreadDpiAwarenessContext");
  return context != nullptr ? number(context()) : "none";
}

std::string exceptionFilter() {
  const auto filter = SetUnhandledExceptionFilter(nullptr);
  SetUnhandledExceptionFilter(filter);
  return number(reinterpret_cast<const void*>(filter));
}

// New handles take the free places first, so the highest of very many new ones tells how many places are taken.
template <class Make, class Drop>
long placesTaken(Make make, Drop drop) {
  constexpr int many = 3000;
  std::vector<decltype(make())> made;
  long highest = 0;
  for (int i = 0; i < many; ++i) {
    made.push_back(make());
    highest = std::max(highest, static_cast<long>(reinterpret_cast<std::uintptr_t>(made.back()) & 0xFFFFU));
  }
  for (const auto handle : made) drop(handle);
  return highest;
}

long userHandles() {
  const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  return counted != 0 ? static_cast<long>(counted) : placesTaken(CreateMenu, DestroyMenu) / 2;
}

long drawingHandles() {
  const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  const auto makePen = [] { return CreatePen(PS_SOLID, 3, 0x123456); };
  return counted != 0 ? static_cast<long>(counted) : placesTaken(makePen, DeleteObject);
}

}  // namespace

std::map<std::string, std::string> processState() {
  return {
      {"current folder", currentFolder()},
      {"locale of the C library", std::setlocale(LC_ALL, nullptr)},
      {"locale of the thread", number(GetThreadLocale())},
      {"languages of the thread", number(GetThreadUILanguage())},
      {"arithmetic", number(_controlfp(0, 0))},
      {"rounding", std::to_string(std::fegetround())},
      {"filter of unhandled exceptions", exceptionFilter()},
      {"error mode", number(GetErrorMode())},
      {"awareness of the process", processAwareness()},
      {"process is aware", std::to_string(IsProcessDPIAware())},
      {"awareness of the thread", threadAwareness()},
      {"priority", std::to_string(GetThreadPriority(GetCurrentThread()))},
      {"focus", number(GetFocus())},
      {"active window", number(GetActiveWindow())},
      {"captured mouse", number(GetCapture())},
  };
}

HandleCounts handleCounts() { return {userHandles(), drawingHandles()}; }

}  // namespace nerida
