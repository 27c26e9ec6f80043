#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/error.h"
#include "platform/files.h"
#include "platform/headless/transcript.h"

namespace nerida::headless {

// Drives and files by their full paths, which are the same in capitals and in small letters.
class MemoryFiles : public Files {
 public:
  explicit MemoryFiles(Transcript& transcript) : transcript(transcript) {}

  DriveType driveType(const std::string& drive) override;
  std::string firstFile(const std::string& path) override;
  std::shared_ptr<const StoredPicture> loadPicture(const std::string& path) override;

  std::map<std::string, DriveType> drives;  // "d:"
  std::set<std::string> files;
  std::set<std::string> hiddenFiles;
  std::set<std::string> pictures;         // files that hold one
  std::map<std::string, Size> sizes;      // of pictures that are larger than one pixel
  std::map<std::string, Error> failures;  // of listing a path

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless
