#include "host/library/library_editor.h"

#include <algorithm>
#include <limits>

#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/index_file.h"
#include "host/library/library.h"
#include "host/library/model_path.h"
#include "host/search/model_database.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr const char* noteName = "unfinished-change.txt";
constexpr const char* adding = "add ";
constexpr const char* removing = "remove ";

const fs::path& madeFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw LibraryError(folder.string() + ": the folder cannot be made");
  return folder;
}

bool hasDatabase(const fs::path& folder) {
  std::error_code error;
  return fs::exists(folder / search::databaseFileName, error);
}

/// What the database says becomes an error of the library's.
template <class Action>
auto asLibraryError(const Action& action) {
  try {
    return action();
  } catch (const search::DatabaseError& error) {
    throw LibraryError(error.what());
  }
}

bool isNumberIn(const std::vector<ModelCard>& cards, std::int32_t number) {
  return std::ranges::find(cards, number, &ModelCard::number) != cards.end();
}

std::string lastWordOf(const std::string& text) { return text.substr(text.rfind(' ') + 1); }

}  // namespace

LibraryEditor::LibraryEditor(LibraryPlaces where, Step whenDone)
    : places(std::move(where)), step(std::move(whenDone)), lock(madeFolder(places.models) / lockFileName) {
  bringToAnEnd();
}

void LibraryEditor::did(const char* what) const {
  if (step) step(what);
}

void LibraryEditor::note(const std::string& text) const {
  writeFile(places.models / noteName, text);
  flushToDisk(places.models / noteName);
}

void LibraryEditor::forgetNote() const {
  std::error_code ignored;
  fs::remove(places.models / noteName, ignored);
}

std::int32_t LibraryEditor::nextNumber() const {
  const std::int32_t last = lastNumberOf(places.models);
  if (last == std::numeric_limits<std::int32_t>::max()) throw LibraryError("there are no more numbers");
  return std::max(firstOwnNumber, last + 1);
}

void LibraryEditor::add(const ModelCard& card, const std::string& modelFile) {
  const bool taken = card.number <= lastNumberOf(places.models) && isNumberIn(readIndex(places.models), card.number);
  if (taken) throw LibraryError("number " + std::to_string(card.number) + " is taken already");
  requireDatabase();
  note(adding + indexLine(card));
  did("note");
  try {
    writeFile(places.models / modelPath(card.number), modelFile);
    flushToDisk(places.models / modelPath(card.number));
    did("model file");
    asLibraryError([&] { search::changeDatabase(places.database, {card}); });
  } catch (const LibraryError&) {
    removeModelFile(places.models, card.number);
    forgetNote();
    throw;
  }
  did("database");
  addToIndex(places.models, card);  // should it fail, the note stays, and the next editor ends what is begun
  did("index");
  forgetNote();
}

void LibraryEditor::remove(std::int32_t number) {
  if (!isNumberIn(readIndex(places.models), number)) {
    throw LibraryError("there is no model " + std::to_string(number));
  }
  requireDatabase();
  note(removing + std::to_string(number));
  did("note");
  try {
    asLibraryError([&] { search::changeDatabase(places.database, {}, {number}); });
  } catch (const LibraryError&) {
    forgetNote();
    throw;
  }
  did("database");
  endRemoving(number);
  forgetNote();
}

void LibraryEditor::buildDatabase(const std::function<void(std::size_t, std::size_t)>& progress) {
  const std::vector<ModelCard> cards = readIndex(places.models);
  asLibraryError([&] {
    search::buildDatabase(places.database, cards, [&](std::size_t done) {
      if (progress) progress(done, cards.size());
    });
  });
}

/// A database of one model alone would hide all others.
void LibraryEditor::requireDatabase() {
  if (hasDatabase(places.database)) return;
  if (fs::exists(places.models / indexFileName)) {
    buildDatabase();
  } else {
    asLibraryError([&] { search::buildDatabase(places.database, {}); });
    writeIndex(places.models, {});
  }
}

bool LibraryEditor::databaseHas(std::int32_t number) const {
  if (!hasDatabase(places.database)) return false;
  return isNumberIn(asLibraryError([&] { return search::readDatabase(places.database); }), number);
}

/// The database decides: it changes in one step.
void LibraryEditor::bringToAnEnd() const {
  const std::optional<std::string> text = readWhole(places.models / noteName);
  if (!text) return;
  if (text->rfind(adding, 0) == 0) {
    endAdding(cardOfIndexLine(text->substr(std::string(adding).size())));
  } else if (text->rfind(removing, 0) == 0) {
    const std::int32_t number = std::stoi(lastWordOf(*text));
    if (!databaseHas(number)) endRemoving(number);
  } else {
    throw LibraryError(noteName + std::string(" in the library is not one of ours"));
  }
  forgetNote();
}

void LibraryEditor::endAdding(const ModelCard& card) const {
  if (databaseHas(card.number)) {
    if (!isNumberIn(readIndex(places.models), card.number)) addToIndex(places.models, card);
    return;
  }
  removeModelFile(places.models, card.number);
}

void LibraryEditor::endRemoving(std::int32_t number) const {
  std::vector<ModelCard> cards = readIndex(places.models);
  std::erase_if(cards, [&](const ModelCard& card) { return card.number == number; });
  writeIndex(places.models, std::move(cards));
  did("index");
  removeModelFile(places.models, number);
  did("model file");
}

bool hasUnfinishedChange(const fs::path& library) {
  std::error_code error;
  return fs::exists(library / noteName, error);
}

std::vector<std::string> checkLibrary(const LibraryPlaces& places) {
  std::vector<std::string> faults = checkLibrary(places.models);
  if (!hasDatabase(places.database)) {
    faults.push_back("there is no database; build-index makes it");
    return faults;
  }
  const std::vector<std::string> inside = search::checkDatabase(places.database);
  faults.insert(faults.end(), inside.begin(), inside.end());
  if (!inside.empty()) return faults;
  const std::vector<ModelCard> indexed = readIndex(places.models), found = search::readDatabase(places.database);
  const auto lines = [](const std::vector<ModelCard>& cards) {
    std::vector<std::string> texts(cards.size());
    std::transform(cards.begin(), cards.end(), texts.begin(), indexLine);
    return texts;
  };
  if (lines(indexed) != lines(found))
    faults.push_back("the database is not that of the index; build-index makes it anew");
  return faults;
}

}  // namespace nerida::library
