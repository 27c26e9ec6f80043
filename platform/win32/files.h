#pragma once

#include "platform/files.h"

namespace nerida {

class SystemFiles : public Files {
 public:
  DriveType driveType(const std::string& drive) override;
  std::string firstFile(const std::string& path) override;
  std::shared_ptr<const StoredPicture> loadPicture(const std::string& path) override;
};

}  // namespace nerida
