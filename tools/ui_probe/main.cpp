// Looks at the desktop's windows as an assistive tool does. Reads one command a line from the standard input and
// answers each with one line of JSON:
//   windows | window HANDLE | elements HANDLE | press HANDLE CHILD | post HANDLE MESSAGE WPARAM LPARAM | foreground
#include <iostream>
#include <sstream>

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

Json answer(const std::string& line) {
  std::istringstream words(line);
  std::string command;
  words >> command;
  if (command == "windows") return probe::topLevelWindows();
  if (command == "window") return probe::describeWindow(handle(words));
  if (command == "elements") return probe::accessibleElements(handle(words));
  if (command == "post") return post(words);
  if (command == "foreground") return reinterpret_cast<std::intptr_t>(GetForegroundWindow());
  if (command == "press") {
    const HWND window = handle(words);
    long child = 0;
    words >> child;
    return probe::pressElement(window, child);
  }
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
