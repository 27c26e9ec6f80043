#pragma once

#include <filesystem>

namespace nerida::library {

/// Keeps others from changing the same library. The file stays behind, empty; the lock goes with this object and with
/// the process.
class FileLock {
 public:
  /// Waits for the one who has it. Throws LibraryError when the file cannot be made.
  explicit FileLock(const std::filesystem::path& file);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

 private:
#ifdef _WIN32
  void* handle = nullptr;
#else
  int handle = -1;
#endif
};

/// Returns when the file's content would outlive a loss of power. Failures are ignored: nothing better can be done.
void flushToDisk(const std::filesystem::path& file);

}  // namespace nerida::library
