#include "host/search/engine.h"

#include <optional>

#include "host/search/database.h"
#include "host/search/random_numbers.h"
#include "host/search/ranked_hits.h"
#include "host/search/relevance.h"
#include "host/search/schema.h"
#include "host/search/thesaurus.h"
#include "host/search/tokenizer.h"
#include "host/search/vocabulary.h"

namespace nerida::search {
namespace {

// The columns are number, name, flags.
Hit hitOf(Statement& row) {
  return {static_cast<std::int32_t>(row.number(0)), std::string(row.text(1)), static_cast<std::int32_t>(row.number(2)),
          Closeness::exact};
}

}  // namespace

struct SearchEngine::Parts {
  explicit Parts(const EngineFiles& files)
      : database(openModelDatabase(files.database)), tokenizer(database), relevance(database), files(files) {}

  // Only words have synonyms: who asks for the categories does not wait for them.
  const Thesaurus& thesaurus() {
    if (!synonyms) {
      synonyms.emplace(tokenizer);
      synonyms->read(files.thesaurus);
      synonyms->read(files.userThesaurus);
    }
    return *synonyms;
  }

  Database database;
  Tokenizer tokenizer;
  Relevance relevance;

 private:
  EngineFiles files;
  std::optional<Thesaurus> synonyms;
};

SearchEngine::SearchEngine(const EngineFiles& files) : parts(std::make_unique<Parts>(files)) {}

SearchEngine::~SearchEngine() = default;

std::vector<Hit> SearchEngine::searchKeywords(std::string_view text) {
  // One view of the database for all steps, whatever others write meanwhile.
  const Transaction view(parts->database, Transaction::Kind::reading);
  Vocabulary vocabulary(parts->database, parts->tokenizer);
  const Question question = understand(text, parts->tokenizer, parts->thesaurus(), vocabulary);
  if (question.empty()) return {};
  parts->relevance.setQuestion(question);
  const std::string wanted = expression(question);
  Statement row(parts->database,
                "SELECT number, model.name, flags, order_name, relevance(words) FROM words "
                "JOIN model ON model.number = words.rowid WHERE words MATCH ?");
  row.bind(1, wanted);
  RankedHits hits;
  while (row.step()) hits.add(Relevance::rankOf(row.number(4)), row.text(3), hitOf(row));
  return hits.take();
}

std::vector<Hit> SearchEngine::searchRandom(std::size_t count) {
  const Transaction view(parts->database, Transaction::Kind::reading);
  Statement model(parts->database, "SELECT number, name, flags FROM model WHERE number = ?");
  std::vector<Hit> hits;
  for (const std::int64_t number : randomNumbers(parts->database, count)) {
    model.reset();
    if (model.bind(1, number).step()) hits.push_back(hitOf(model));
  }
  return hits;
}

std::vector<Hit> SearchEngine::searchCategory(std::string_view subcategory) {
  Statement row(parts->database,
                "SELECT number, name, flags FROM model "
                "WHERE subcategory IN (SELECT id FROM subcategory WHERE name = ? AND name <> '') "
                "ORDER BY order_name, name, number");
  row.bind(1, subcategory);
  std::vector<Hit> hits;
  while (row.step()) hits.push_back(hitOf(row));
  return hits;
}

std::vector<Category> SearchEngine::categories() {
  Statement row(parts->database,
                "SELECT category, name FROM subcategory WHERE category <> '' "
                "ORDER BY category COLLATE NOCASE, category, name COLLATE NOCASE, name");
  std::vector<Category> result;
  while (row.step()) {
    if (result.empty() || result.back().name != row.text(0)) result.push_back({std::string(row.text(0)), {}});
    if (!row.text(1).empty()) result.back().subcategories.emplace_back(row.text(1));
  }
  return result;
}

}  // namespace nerida::search
