// Looks at the desktop's windows as an assistive tool does. Reads one command a line from the standard input and
// answers each with one line of JSON:
//   windows ONLY_VISIBLE [CLASS] | window HANDLE | foreground | post HANDLE MESSAGE WPARAM LPARAM
//   elements HANDLE | element ROOT HANDLE CHILD | find HANDLE ROLE NAME | marked HANDLE ROLE STATE
//   press HANDLE CHILD | focus HANDLE CHILD
#include <iostream>
#include <sstream>
#include <tuple>

#include "tools/ui_probe/probe.h"

namespace {

using probe::Json;

HWND handle(std::istringstream& words) {
  std::intptr_t number = 0;
  words >> number;
  return reinterpret_cast<HWND>(number);
}

Json post(std::istringstream& words) {
  const HWND window = handle(words);
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  words >> message >> wParam >> lParam;
  return PostMessageW(window, message, wParam, lParam) != 0;
}

long number(std::istringstream& words) {
  long value = 0;
  words >> value;
  return value;
}

Json find(std::istringstream& words) {
  const HWND window = handle(words);
  const long role = number(words);
  std::string name;
  std::getline(words >> std::ws, name);
  return probe::findElement(window, role, name);
}

Json windows(std::istringstream& words) {
  const bool onlyVisible = number(words) != 0;
  std::string className;
  words >> className;
  return probe::topLevelWindows(onlyVisible, className);
}

// An initializer's parts are evaluated from left to right, as the words stand.
template <class... Arguments, class Function>
Json call(Function function, const std::tuple<Arguments...>& arguments) {
  return std::apply(function, arguments);
}

Json answer(const std::string& line) {
  std::istringstream words(line);
  std::string command;
  words >> command;
  if (command == "windows") return windows(words);
  if (command == "window") return probe::describeWindow(handle(words));
  if (command == "foreground") return reinterpret_cast<std::intptr_t>(GetForegroundWindow());
  if (command == "post") return post(words);
  if (command == "elements") return probe::accessibleElements(handle(words));
  if (command == "find") return find(words);
  using namespace probe;
  if (command == "element") return call(accessibleElement, std::tuple{handle(words), handle(words), number(words)});
  if (command == "marked") return call(namesInState, std::tuple{handle(words), number(words), number(words)});
  if (command == "focus") return call(focusElement, std::tuple{handle(words), number(words)});
  if (command == "press") return call(pressElement, std::tuple{handle(words), number(words)});
  return {{"error", "unknown command"}};
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  SetProcessDPIAware();
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::cout << answer(line).dump(-1, ' ', false, Json::error_handler_t::replace) << "\n" << std::flush;
  }
  CoUninitialize();
  return 0;
}
