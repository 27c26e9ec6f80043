#include "host/search/model_database.h"

#include <algorithm>

#include "host/search/database.h"
#include "host/search/model_writer.h"
#include "host/search/schema.h"

namespace nerida::search {
namespace {

namespace fs = std::filesystem;

fs::path fileIn(const fs::path& folder) { return folder / databaseFileName; }

void makeFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw DatabaseError(DatabaseFault::other, folder.string() + ": the folder cannot be made");
}

void fill(Database& database, const std::vector<ModelCard>& cards, const Progress& progress) {
  createSchema(database);
  Transaction change(database, Transaction::Kind::writing);
  ModelWriter writer(database);
  std::size_t done = 0;
  for (const ModelCard& card : cards) {
    if (!writer.add(card)) {
      throw DatabaseError(DatabaseFault::other, "Two models have the number " + std::to_string(card.number));
    }
    ++done;
    if (progress) progress(done);
  }
  writer.finish();
  database.run("INSERT INTO words (words) VALUES ('optimize')");
  change.commit();
}

/// There is nothing to be kept of a file that is no database: it must not stop a new one from being written.
void removeUnreadable(const fs::path& file) {
  try {
    Database::open(file).number("SELECT count(*) FROM sqlite_schema");
    return;
  } catch (const DatabaseError& error) {
    if (error.fault != DatabaseFault::foreign && error.fault != DatabaseFault::damaged) return;
  }
  fs::path journal = file;
  journal += "-journal";
  std::error_code ignored;
  fs::remove(journal, ignored);
  fs::remove(file, ignored);
}

bool isEmptyOrAbsent(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  return error || size == 0;
}

std::vector<std::string> keywordsOf(std::string_view lines) {
  std::vector<std::string> keywords;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    keywords.emplace_back(lines.substr(0, end));
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return keywords;
}

ModelCard cardOf(Statement& row) {
  ModelCard card;
  card.number = static_cast<std::int32_t>(row.number(0));
  card.name = row.text(1);
  card.category = row.text(2);
  card.subcategory = row.text(3);
  card.keywords = keywordsOf(row.text(4));
  card.animated = (row.number(5) & animatedFlag) != 0;
  return card;
}

void addFaults(Database& database, const char* query, const std::string& sentence, std::vector<std::string>& faults) {
  if (database.number(query) != 0) faults.push_back(sentence);
}

void lookForFaults(Database& database, std::vector<std::string>& faults) {
  Statement whole(database, "PRAGMA integrity_check(20)");
  while (whole.step()) {
    if (whole.text(0) != "ok") faults.emplace_back(whole.text(0));
  }
  addFaults(database, "SELECT count(*) FROM model WHERE subcategory NOT IN (SELECT id FROM subcategory)",
            "some models have no category", faults);
  database.run("INSERT INTO words (words, rank) VALUES ('integrity-check', 1)");
}

}  // namespace

void buildDatabase(const fs::path& folder, const std::vector<ModelCard>& cards, const Progress& progress) {
  Database built = Database::temporary();
  fill(built, cards, progress);
  makeFolder(folder);
  removeUnreadable(fileIn(folder));
  Database::create(fileIn(folder)).become(built);
}

void changeDatabase(const fs::path& folder, const std::vector<ModelCard>& added,
                    const std::vector<std::int32_t>& removed) {
  if (isEmptyOrAbsent(fileIn(folder))) buildDatabase(folder, {});
  Database database = openModelDatabase(fileIn(folder));
  Transaction change(database, Transaction::Kind::writing);
  {
    ModelWriter writer(database);
    for (const std::int32_t number : removed) writer.remove(number);
    for (const ModelCard& card : added) {
      writer.remove(card.number);
      writer.add(card);
    }
    writer.finish();
  }
  change.commit();
}

std::vector<ModelCard> readDatabase(const fs::path& folder) {
  Database database = openModelDatabase(fileIn(folder));
  Statement row(database,
                "SELECT number, model.name, category, subcategory.name, keywords, flags FROM model "
                "JOIN subcategory ON subcategory.id = model.subcategory ORDER BY number");
  std::vector<ModelCard> cards;
  while (row.step()) cards.push_back(cardOf(row));
  return cards;
}

std::vector<std::string> checkDatabase(const fs::path& folder) {
  std::vector<std::string> faults;
  try {
    Database database = openModelDatabase(fileIn(folder));
    lookForFaults(database, faults);
  } catch (const DatabaseError& error) {
    faults.emplace_back(error.what());
  }
  return faults;
}

}  // namespace nerida::search
