#include "host/library/shipped_models.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <sstream>

#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/index_file.h"
#include "host/library/model_path.h"
#include "host/search/model_database.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

using Cards = std::vector<ModelCard>;
using Numbers = std::set<std::int32_t>;
using Lines = std::set<std::string>;

constexpr const char* recordName = "shipped.txt";  // lines of the index

Lines linesOf(const Cards& cards) {
  Lines lines;
  for (const ModelCard& card : cards) lines.insert(indexLine(card));
  return lines;
}

Numbers numbersOf(const Cards& cards) {
  Numbers numbers;
  for (const ModelCard& card : cards) numbers.insert(card.number);
  return numbers;
}

Lines readRecord(const fs::path& library) {
  std::istringstream text(readWhole(library / recordName).value_or(""));
  Lines lines;
  for (std::string line; std::getline(text, line);) lines.insert(indexLine(cardOfIndexLine(line)));
  return lines;
}

void writeRecord(const fs::path& library, const Lines& lines) {
  if (lines.empty()) {
    std::error_code ignored;
    fs::remove(library / recordName, ignored);
    return;
  }
  std::string text;
  for (const std::string& line : lines) text += line;
  writeFile(library / recordName, text);
}

/// A model that has got the number of a shipped one, which its owner had removed, has another line.
Cards ownModels(const fs::path& library, const Lines& shippedBefore) {
  if (!fs::exists(library / indexFileName)) return {};
  Cards cards = readIndex(library);
  std::erase_if(cards, [&](const ModelCard& card) { return shippedBefore.contains(indexLine(card)); });
  return cards;
}

Cards readArriving(const fs::path& shipped, const Numbers& taken) {
  if (shipped.empty()) return {};
  Cards cards = readIndex(shipped);
  std::erase_if(cards, [&](const ModelCard& card) { return taken.contains(card.number); });
  return cards;
}

void copyModels(const Cards& cards, const fs::path& from, const fs::path& to) {
  for (const ModelCard& card : cards) {
    const std::optional<std::string> bytes = readWhole(from / modelPath(card.number));
    if (!bytes) throw LibraryError((from / modelPath(card.number)).string() + ": cannot be read");
    writeFile(to / modelPath(card.number), *bytes);
  }
}

/// The record names old and new models until all is done: whoever comes after an interruption takes none of them for
/// somebody's own.
void exchange(LibraryEditor& editor, const fs::path& library, const fs::path& shipped) {
  const Lines before = readRecord(library);
  Cards cards = ownModels(library, before);
  const Cards arriving = readArriving(shipped, numbersOf(cards));
  const Lines now = linesOf(arriving);

  Lines both = before;
  both.insert(now.begin(), now.end());
  writeRecord(library, both);
  copyModels(arriving, shipped, library);
  cards.insert(cards.end(), arriving.begin(), arriving.end());
  writeIndex(library, cards);
  editor.buildDatabase();
  const Numbers kept = numbersOf(cards);
  for (const std::string& line : before) {
    const std::int32_t number = cardOfIndexLine(line).number;
    if (!kept.contains(number)) removeModelFile(library, number);
  }
  writeRecord(library, now);
}

void removeEmptyLibrary(const LibraryPlaces& places) {
  std::error_code ignored;
  for (const char* name : {indexFileName, lockFileName}) fs::remove(places.models / name, ignored);
  fs::remove(places.database / search::databaseFileName, ignored);
  fs::remove(places.models, ignored);
}

}  // namespace

void replaceShippedModels(const LibraryPlaces& places, const fs::path& shipped) {
  {
    LibraryEditor editor(places);
    exchange(editor, places.models, shipped);
    if (!readIndex(places.models).empty()) return;
  }
  removeEmptyLibrary(places);
}

}  // namespace nerida::library
