#include "platform/win32/shell.h"

#include <windows.h>

#include <shellapi.h>

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

}  // namespace

// The system's help viewer waits in a question to the user while the file is missing, so it is not asked then.
void SystemShell::openHelp(WindowHandle owner, const std::string& file) {
  const std::wstring path = wide(file);
  if (!isFullPath(path) || !isExistingFile(path)) return;
  const ModuleLock lock;
  if (!WinHelpW(reinterpret_cast<HWND>(owner), path.c_str(), HELP_FINDER, 0)) {
    shellOpen(owner, path, L"", SW_SHOWNORMAL);  // systems without the old viewer may have another
  }
}

bool SystemShell::open(WindowHandle owner, const std::string& target, const std::string& workingFolder,
                       ShowCommand show) {
  const ModuleLock lock;
  return shellOpen(owner, wide(target), wide(workingFolder), static_cast<int>(show));
}

}  // namespace nerida
