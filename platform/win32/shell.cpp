#include "platform/win32/shell.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/win32/handles.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

// A relative path would be looked for in the current directory, which is anybody's.
bool isFullPath(const std::wstring& path) {
  return path.size() > 2 && (path[1] == L':' || (path[0] == L'\\' && path[1] == L'\\'));
}

bool isExistingFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool shellOpen(WindowHandle owner, const std::wstring& target, const std::wstring& folder, int show) {
  constexpr INT_PTR lastFailure = 32;
  const HINSTANCE result =
      ShellExecuteW(reinterpret_cast<HWND>(owner), L"open", target.c_str(), L"", folder.c_str(), show);
  return reinterpret_cast<INT_PTR>(result) > lastFailure;
}

// The viewer waits in a question to the user, and its caller with it, when it is given anything else.
bool isHelpFile(const std::wstring& path) {
  constexpr DWORD helpFileMark = 0x00035F3F;
  const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  const UniqueFile file(opened);
  DWORD mark = 0;
  DWORD read = 0;
  return ReadFile(file.get(), &mark, sizeof mark, &read, nullptr) && read == sizeof mark && mark == helpFileMark;
}

// Systems that have given the old viewer up keep a little program in its place that only says so.
bool hasHelpViewer() {
  constexpr DWORD largestPlaceholder = 64 * 1024;
  std::wstring viewer(MAX_PATH, L'\0');
  viewer.resize(GetWindowsDirectoryW(viewer.data(), MAX_PATH));
  viewer += L"\\winhlp32.exe";
  WIN32_FILE_ATTRIBUTE_DATA found = {};
  return GetFileAttributesExW(viewer.c_str(), GetFileExInfoStandard, &found) && found.nFileSizeLow > largestPlaceholder;
}

}  // namespace

void SystemShell::openHelp(WindowHandle owner, const std::string& file) {
  const std::wstring path = wide(file);
  if (!isFullPath(path)) return;
  const ModuleLock lock;
  const bool canView = isHelpFile(path) && hasHelpViewer();
  if (canView && WinHelpW(reinterpret_cast<HWND>(owner), path.c_str(), HELP_FINDER, 0)) return;
  const std::wstring folder = path.substr(0, path.find_last_of(L"\\/")) + L"\\Help";
  const std::wstring page = folder + L"\\index.htm";
  if (isExistingFile(page)) shellOpen(owner, page, folder, SW_SHOWNORMAL);
}

bool SystemShell::open(WindowHandle owner, const std::string& target, const std::string& workingFolder,
                       ShowCommand show) {
  const ModuleLock lock;
  return shellOpen(owner, wide(target), wide(workingFolder), static_cast<int>(show));
}

}  // namespace nerida
