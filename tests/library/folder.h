#pragma once

#include <filesystem>
#include <string>

namespace nerida::library {

/// A new empty folder that goes away with this object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::filesystem::path& path() const { return place; }
  std::filesystem::path write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path place;
};

std::string contentOf(const std::filesystem::path& file);

}  // namespace nerida::library
