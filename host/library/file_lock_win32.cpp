#include <windows.h>

#include "host/library/fields.h"
#include "host/library/file_lock.h"

namespace nerida::library {

FileLock::FileLock(const std::filesystem::path& file)
    : handle(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                         OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {
  if (handle == INVALID_HANDLE_VALUE) throw LibraryError(file.parent_path().string() + ": cannot be changed");
  OVERLAPPED start{};
  if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &start)) return;
  CloseHandle(handle);
  throw LibraryError(file.string() + ": cannot be locked");
}

FileLock::~FileLock() { CloseHandle(handle); }

void flushToDisk(const std::filesystem::path& file) {
  const HANDLE opened = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return;
  FlushFileBuffers(opened);
  CloseHandle(opened);
}

}  // namespace nerida::library
