#include "platform/win32/trace_file.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <cwchar>

#include "platform/win32/handles.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

class SystemTraceFile : public TraceFile {
 public:
  explicit SystemTraceFile(UniqueFile file) : file(std::move(file)) {}

  void append(std::string_view text) noexcept override {
    DWORD done = 0;
    WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &done, nullptr);
  }

 private:
  UniqueFile file;
};

std::wstring environmentVariable(const wchar_t* name) {
  const DWORD size = GetEnvironmentVariableW(name, nullptr, 0);
  std::wstring text(size, L'\0');
  const DWORD length = GetEnvironmentVariableW(name, text.data(), size);
  text.resize(length < size ? length : 0);
  return text;
}

bool isFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring programPath() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  return path;
}

}  // namespace

std::unique_ptr<TraceFile> openTraceFile(Settings& settings) {
  std::wstring path = environmentVariable(L"NERIDA_TRACE");
  if (path.empty()) path = wide(settings.read("Trace", "File", {}));
  if (path.empty()) return nullptr;
  if (isFolder(path)) path += L"\\ActiveNeridaToolbar-" + std::to_wstring(GetCurrentProcessId()) + L".log";
  // Two writers would mix up their lines; readers may look on, and the file may be moved away.
  UniqueFile file(CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
  if (file.get() == INVALID_HANDLE_VALUE) {
    static_cast<void>(file.release());
    return nullptr;
  }
  return std::make_unique<SystemTraceFile>(std::move(file));
}

std::string traceHeading() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  std::array<char, 100> text;
  std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u:%02u:%02u, process %lu, %u bits: ", now.wYear,
                now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, GetCurrentProcessId(),
                static_cast<unsigned>(8 * sizeof(void*)));
  return text.data() + utf8(programPath());
}

}  // namespace nerida
