#pragma once

#include <memory>
#include <string>

#include "platform/control.h"

namespace nerida {

enum class DriveType { none = 1, removable = 2, fixed = 3, remote = 4, cdRom = 5, ramDisk = 6 };

class Files {
 public:
  virtual ~Files() = default;
  // The type of a drive that is named by a letter and a colon. Never fails.
  virtual DriveType driveType(const std::string& drive) = 0;
  // The name of the first plain file that a path leads to, empty when there is none: the file itself, or, for a path
  // that ends with a backslash, the first one in that folder. Folders, hidden and system files do not count.
  // Errors: 52, 68 or 71 for a path or a drive that cannot be listed.
  virtual std::string firstFile(const std::string& path) = 0;
  // Reads a picture. Errors: 53 when there is no such file, 481 when it is no picture.
  virtual std::shared_ptr<const StoredPicture> loadPicture(const std::string& path) = 0;
};

}  // namespace nerida
