#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "host/library/fields.h"
#include "host/library/file_lock.h"

namespace nerida::library {

FileLock::FileLock(const std::filesystem::path& file) : handle(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
  if (handle < 0) throw LibraryError(file.parent_path().string() + ": cannot be changed");
  while (flock(handle, LOCK_EX) != 0) {
    if (errno == EINTR) continue;
    close(handle);
    throw LibraryError(file.string() + ": cannot be locked");
  }
}

FileLock::~FileLock() { close(handle); }

void flushToDisk(const std::filesystem::path& file) {
  const int opened = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

}  // namespace nerida::library
