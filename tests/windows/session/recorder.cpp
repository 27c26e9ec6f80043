// Writes down what it is asked to open: recorder RECORD TARGET. A line each: the target, the folder that it was started
// in, how it was told to show itself.
#include <windows.h>

#include <shellapi.h>

#include <array>
#include <filesystem>
#include <fstream>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  if (words == nullptr || count < 3) return 1;
  std::array<wchar_t, 1024> folder{};
  GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  GetStartupInfoW(&start);
  const bool isTold = (start.dwFlags & STARTF_USESHOWWINDOW) != 0;
  const std::filesystem::path record(words[1]);
  std::filesystem::path unfinished = record;
  unfinished += L".part";
  std::ofstream(unfinished) << std::filesystem::path(words[2]).string() << '\n'
                            << std::filesystem::path(folder.data()).string() << '\n'
                            << (isTold ? static_cast<int>(start.wShowWindow) : -1) << '\n';
  std::filesystem::rename(unfinished, record);
  return 0;
}
