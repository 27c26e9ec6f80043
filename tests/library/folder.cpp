#include "tests/library/folder.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace nerida::library {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "zephra-library-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  place = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(place, ignored);
}

std::filesystem::path TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
  std::filesystem::path file = place / name;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
  return file;
}

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace nerida::library
