#include "host/app/model_title.h"

#include <algorithm>
#include <fstream>

namespace nerida::host {
namespace {

namespace fs = std::filesystem;

constexpr int foldersAboveModel = 4;  // three levels of the scheme, and the library's root

// "dv1042" gives "1042"; any other name gives nothing.
std::string numberOf(const fs::path& model) {
  const std::u8string stem = model.stem().u8string();
  const std::string text(stem.begin(), stem.end());
  if (text.size() < 3 || text.compare(0, 2, "dv") != 0) return {};
  const bool digits = std::all_of(text.begin() + 2, text.end(), [](char c) { return c >= '0' && c <= '9'; });
  return digits ? text.substr(2) : std::string();
}

// A line holds the number, the name and more, separated by tabulators.
std::string nameInIndex(const fs::path& index, const std::string& number) {
  std::ifstream lines(index);
  for (std::string line; std::getline(lines, line);) {
    const std::string start = number + '\t';
    if (line.compare(0, start.size(), start) != 0) continue;
    return line.substr(start.size(), line.find('\t', start.size()) - start.size());
  }
  return {};
}

}  // namespace

std::string findModelTitle(const fs::path& model) {
  const std::string number = numberOf(model);
  if (number.empty()) return {};
  std::error_code ignored;
  fs::path folder = fs::absolute(model, ignored).parent_path();
  for (int level = 0; level < foldersAboveModel; ++level, folder = folder.parent_path()) {
    std::string name = nameInIndex(folder / "index.txt", number);
    if (!name.empty()) return name;
  }
  return {};
}

}  // namespace nerida::host
