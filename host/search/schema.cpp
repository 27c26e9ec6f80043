#include "host/search/schema.h"

#include <string>

#include "host/search/database.h"
#include "host/search/tokenizer.h"

namespace nerida::search {
namespace {

constexpr std::int64_t ownApplication = 0x5A70684D;
constexpr std::int64_t schemaVersion = 1;

// A model's order_name is its name as words are compared: lists by name are sorted by it. Its keywords stand one on a
// line. The full-text index takes its texts from the models and must be told of every change. The vocabulary knows
// every word of the index, with the number of models that have it.
constexpr const char* tables = R"(
  CREATE TABLE subcategory (
    id INTEGER PRIMARY KEY, category TEXT NOT NULL, name TEXT NOT NULL, UNIQUE (category, name));
  CREATE INDEX subcategory_by_name ON subcategory (name);
  CREATE TABLE model (
    number INTEGER PRIMARY KEY, flags INTEGER NOT NULL, subcategory INTEGER NOT NULL REFERENCES subcategory,
    name TEXT NOT NULL, order_name TEXT NOT NULL, keywords TEXT NOT NULL);
  CREATE INDEX model_by_subcategory ON model (subcategory, order_name);
  CREATE TABLE vocabulary (word TEXT PRIMARY KEY, stem TEXT NOT NULL, models INTEGER NOT NULL) WITHOUT ROWID;
  CREATE INDEX vocabulary_by_stem ON vocabulary (stem);
)";

std::string fullTextIndex() {
  return std::string(
             "CREATE VIRTUAL TABLE words USING fts5(name, keywords, content = 'model', content_rowid = 'number', "
             "prefix = '1 2 3', tokenize = '") +
         indexTokenizer + "')";
}

}  // namespace

void createSchema(Database& database) {
  Transaction change(database, Transaction::Kind::writing);
  database.run(tables);
  database.run(fullTextIndex().c_str());
  database.run(("PRAGMA application_id = " + std::to_string(ownApplication)).c_str());
  database.run(("PRAGMA user_version = " + std::to_string(schemaVersion)).c_str());
  change.commit();
}

void requireSchema(Database& database) {
  if (database.number("PRAGMA application_id") != ownApplication) database.refuse("it belongs to another program");
  if (database.number("PRAGMA user_version") != schemaVersion) database.refuse("it was made by another version");
}

Database openModelDatabase(const std::filesystem::path& file) {
  Database database = Database::open(file);
  requireSchema(database);
  return database;
}

}  // namespace nerida::search
