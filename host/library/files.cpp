#include "host/library/files.h"

#include <fstream>
#include <iterator>

#include "host/library/fields.h"
#include "host/library/model_path.h"

namespace nerida::library {

namespace fs = std::filesystem;

std::optional<std::string> readWhole(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (stream.bad()) return std::nullopt;
  return bytes;
}

void writeFile(const fs::path& file, const std::string& bytes) {
  std::error_code error;
  if (fs::file_size(file, error) == bytes.size() && !error && readWhole(file) == bytes) return;
  fs::create_directories(file.parent_path(), error);
  fs::path unfinished = file;
  unfinished += ".part";
  std::ofstream stream(unfinished, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) throw LibraryError(file.string() + ": cannot be written");
  fs::rename(unfinished, file, error);
  if (error) throw LibraryError(file.string() + ": cannot be replaced");
}

void removeModelFile(const fs::path& library, std::int32_t number) {
  std::error_code error;
  fs::path place = library / modelPath(number);
  fs::path unfinished = place;
  unfinished += ".part";
  fs::remove(unfinished, error);
  fs::remove(place, error);
  for (int level = 0; level < 3; ++level) {
    place = place.parent_path();
    if (!fs::is_empty(place, error) || error || !fs::remove(place, error)) return;
  }
}

}  // namespace nerida::library
