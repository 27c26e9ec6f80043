#include "host/search/model_writer.h"

#include <algorithm>
#include <set>

#include "host/search/schema.h"

namespace nerida::search {
namespace {

/// Control characters would break lists, menus and the lines of keywords.
std::string clean(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  return text;
}

std::string lines(const std::vector<std::string>& texts) {
  std::string result;
  for (const std::string& text : texts) {
    if (!result.empty()) result += '\n';
    result += clean(text);
  }
  return result;
}

std::string joined(const std::vector<std::string>& words) {
  std::string result;
  for (const std::string& word : words) {
    if (!result.empty()) result += ' ';
    result += word;
  }
  return result;
}

}  // namespace

ModelWriter::ModelWriter(Database& database)
    : tokenizer(database),
      findSubcategory(database, "SELECT id FROM subcategory WHERE category = ? AND name = ?"),
      addSubcategory(database, "INSERT INTO subcategory (category, name) VALUES (?, ?)"),
      lastId(database, "SELECT last_insert_rowid()"),
      removeSubcategory(database,
                        "DELETE FROM subcategory WHERE id = ?1 AND NOT EXISTS "
                        "(SELECT 1 FROM model WHERE subcategory = ?1)"),
      findModel(database, "SELECT name, keywords, subcategory FROM model WHERE number = ?"),
      addModel(database,
               "INSERT OR IGNORE INTO model (number, flags, subcategory, name, order_name, keywords) "
               "VALUES (?, ?, ?, ?, ?, ?) RETURNING 1"),
      removeModel(database, "DELETE FROM model WHERE number = ?"),
      addWords(database, "INSERT INTO words (rowid, name, keywords) VALUES (?, ?, ?)"),
      removeWords(database, "INSERT INTO words (words, rowid, name, keywords) VALUES ('delete', ?, ?, ?)"),
      changeWord(database,
                 "INSERT INTO vocabulary (word, stem, models) VALUES (?, ?, ?) "
                 "ON CONFLICT (word) DO UPDATE SET models = models + excluded.models"),
      removeWord(database, "DELETE FROM vocabulary WHERE word = ? AND models <= 0") {}

std::int64_t ModelWriter::subcategoryOf(const ModelCard& card) {
  const std::string category = clean(card.category), name = clean(card.subcategory);
  findSubcategory.reset();
  if (findSubcategory.bind(1, category).bind(2, name).step()) return findSubcategory.number(0);
  addSubcategory.bind(1, category).bind(2, name).run();
  lastId.reset();
  lastId.step();
  return lastId.number(0);
}

void ModelWriter::forgetEmptySubcategory(std::int64_t id) { removeSubcategory.bind(1, id).run(); }

void ModelWriter::countWords(std::string_view name, std::string_view keywords, int change) {
  std::set<std::string> distinct;
  for (const std::string_view text : {name, keywords}) {
    for (std::string& word : tokenizer.words(text)) distinct.insert(std::move(word));
  }
  for (const std::string& word : distinct) wordChanges[word] += change;
}

bool ModelWriter::add(const ModelCard& card) {
  const std::string name = clean(card.name), keywords = lines(card.keywords);
  const std::string orderName = joined(tokenizer.words(name));
  addModel.reset();
  addModel.bind(1, card.number).bind(2, card.animated ? animatedFlag : 0).bind(3, subcategoryOf(card));
  const bool added = addModel.bind(4, name).bind(5, orderName).bind(6, keywords).step();
  addModel.reset();
  if (!added) return false;
  addWords.bind(1, card.number).bind(2, name).bind(3, keywords).run();
  countWords(name, keywords, 1);
  return true;
}

bool ModelWriter::remove(std::int32_t number) {
  findModel.reset();
  if (!findModel.bind(1, number).step()) return false;
  const std::string name(findModel.text(0)), keywords(findModel.text(1));
  const std::int64_t subcategory = findModel.number(2);
  findModel.reset();
  removeWords.bind(1, number).bind(2, name).bind(3, keywords).run();
  removeModel.bind(1, number).run();
  forgetEmptySubcategory(subcategory);
  countWords(name, keywords, -1);
  return true;
}

void ModelWriter::finish() {
  for (const auto& [word, change] : wordChanges) {
    if (change == 0) continue;
    const std::string stem = tokenizer.stem(word);
    changeWord.bind(1, word).bind(2, stem).bind(3, change).run();
    if (change < 0) removeWord.bind(1, word).run();
  }
  wordChanges.clear();
}

}  // namespace nerida::search
