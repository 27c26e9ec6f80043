#include "platform/headless/files.h"

#include <algorithm>
#include <cctype>

namespace nerida::headless {
namespace {

std::string lower(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// The name of a file, if a path leads to it.
std::string nameIn(const std::string& path, const std::string& file) {
  const std::size_t folderEnd = file.find_last_of('\\') + 1;
  const std::string target = path.ends_with('\\') ? file.substr(0, folderEnd) : file;
  return lower(target) == lower(path) ? file.substr(folderEnd) : "";
}

class PictureOfSize : public StoredPicture {
 public:
  explicit PictureOfSize(Size size) : known(size) {}
  Size size() const override { return known; }

 private:
  Size known;
};

bool contains(const std::set<std::string>& files, const std::string& path) {
  return std::ranges::any_of(files, [&](const std::string& file) { return lower(file) == lower(path); });
}

}  // namespace

DriveType MemoryFiles::driveType(const std::string& drive) {
  const auto found = drives.find(drive);
  return found == drives.end() ? DriveType::none : found->second;
}

std::string MemoryFiles::firstFile(const std::string& path) {
  transcript.add("list " + path);
  if (const auto failure = failures.find(path); failure != failures.end()) throw failure->second;
  for (const std::string& file : files) {
    std::string name = hiddenFiles.contains(file) ? "" : nameIn(path, file);
    if (!name.empty()) return name;
  }
  return "";
}

std::shared_ptr<const StoredPicture> MemoryFiles::loadPicture(const std::string& path) {
  transcript.add("picture " + path);
  if (!contains(files, path)) throw Error(error::fileNotFound);
  if (!contains(pictures, path)) throw Error(error::invalidPicture);
  const auto size = sizes.find(path);
  return std::make_shared<PictureOfSize>(size == sizes.end() ? Size{1, 1} : size->second);
}

}  // namespace nerida::headless
