#include "platform/win32/shell.h"

#include <windows.h>

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

}  // namespace

// The system's help viewer waits in a question to the user while the file is missing, so it is not asked then.
void SystemShell::openHelp(WindowHandle owner, const std::string& file) {
  const std::wstring path = wide(file);
  if (!isFullPath(path) || !isExistingFile(path)) return;
  const ModuleLock lock;
  WinHelpW(reinterpret_cast<HWND>(owner), path.c_str(), HELP_FINDER, 0);
}

}  // namespace nerida
