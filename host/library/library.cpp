#include "host/library/library.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <map>
#include <set>

#include "host/library/description.h"
#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/glb_check.h"
#include "host/library/glb_writer.h"
#include "host/library/model_path.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> descriptionsIn(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> files;
  for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ".model") files.push_back(at->path());
  }
  if (error) throw LibraryError(folder.string() + ": cannot be read");
  if (files.empty()) throw LibraryError(folder.string() + ": holds no descriptions");
  std::ranges::sort(files);
  return files;
}

/// A tab or line break inside a text would end its field.
std::string oneField(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return text;
}

std::string indexLine(const ModelCard& card) {
  std::string line = std::to_string(card.number);
  for (const std::string& field : {card.name, card.category, card.subcategory}) line += '\t' + oneField(field);
  line += card.animated ? "\tanimated\t" : "\tstill\t";
  for (std::size_t i = 0; i < card.keywords.size(); ++i) {
    if (i > 0) line += ',';
    line += oneField(card.keywords[i]);
  }
  line += '\n';
  return line;
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != std::string::npos; start = end + 1) {
    parts.push_back(text.substr(start, end - start));
  }
  parts.push_back(text.substr(start));
  return parts;
}

ModelCard cardOfLine(const std::string& line) {
  const std::vector<std::string> fields = split(line, '\t');
  ModelCard card;
  const char* end = fields[0].data() + fields[0].size();
  const bool numbered = std::from_chars(fields[0].data(), end, card.number).ptr == end && !fields[0].empty();
  if (!numbered || fields.size() != 6) throw LibraryError("the index has a damaged line: " + line.substr(0, 60));
  card.name = fields[1];
  card.category = fields[2];
  card.subcategory = fields[3];
  card.animated = fields[4] == "animated";
  if (!fields[5].empty()) card.keywords = split(fields[5], ',');
  return card;
}

void addSurplus(const fs::path& library, const std::set<fs::path>& wanted, std::vector<std::string>& faults) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(library)) {
    const fs::path relative = entry.path().lexically_relative(library);
    if (relative.extension() == ".twe" && !wanted.contains(relative)) {
      faults.push_back(relative.generic_string() + ": it is not in the index");
    }
  }
}

}  // namespace

void buildLibrary(const fs::path& descriptions, const fs::path& target,
                  const std::function<void(const std::string&)>& progress) {
  std::map<std::int32_t, std::string> lines;
  const Shared shared = readSharedFile(descriptions);
  for (const fs::path& file : descriptionsIn(descriptions)) {
    const BuiltModel model = buildModelFile(file, shared);
    const ModelCard& card = model.card;
    if (!lines.emplace(card.number, indexLine(card)).second) {
      throw LibraryError(file.filename().string() + ": number " + std::to_string(card.number) + " is taken already");
    }
    writeFile(target / modelPath(card.number), writeGlb(model));
    progress(std::to_string(card.number) + "  " + card.name + ", " + std::to_string(triangleCount(model.root)) +
             " triangles" + (card.animated ? ", " + std::to_string(model.frames) + " frames" : ""));
  }
  std::string index;
  for (const auto& [number, line] : lines) index += line;
  writeFile(target / indexFileName, index);
}

std::vector<ModelCard> readIndex(const fs::path& library) {
  std::ifstream stream(library / indexFileName, std::ios::binary);
  if (!stream) throw LibraryError(library.string() + ": there is no " + indexFileName);
  std::vector<ModelCard> cards;
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) cards.push_back(cardOfLine(line));
  }
  return cards;
}

std::vector<std::string> checkLibrary(const fs::path& library) {
  std::vector<std::string> faults;
  std::set<fs::path> wanted;
  for (const ModelCard& card : readIndex(library)) {
    const fs::path relative = modelPath(card.number);
    wanted.insert(relative);
    const std::string wrong = whatIsWrongWith(library / relative);
    if (!wrong.empty()) faults.push_back(relative.generic_string() + ": " + wrong);
  }
  addSurplus(library, wanted, faults);
  return faults;
}

}  // namespace nerida::library
