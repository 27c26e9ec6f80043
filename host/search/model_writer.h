#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "host/search/database.h"
#include "host/search/model_card.h"
#include "host/search/tokenizer.h"

namespace nerida::search {

/// Adds and removes models in a database with our tables, inside a transaction of the caller's. Everything here throws
/// DatabaseError.
class ModelWriter {
 public:
  explicit ModelWriter(Database& database);

  /// False when the number is taken; then nothing is changed.
  bool add(const ModelCard& card);
  /// False when there is no such model.
  bool remove(std::int32_t number);
  /// Must follow the last change: until then the vocabulary is behind.
  void finish();

 private:
  std::int64_t subcategoryOf(const ModelCard& card);
  void forgetEmptySubcategory(std::int64_t id);
  void countWords(std::string_view name, std::string_view keywords, int change);

  Tokenizer tokenizer;
  std::map<std::string, std::int64_t> wordChanges;  ///< by how many models more or fewer have a word
  Statement findSubcategory, addSubcategory, lastId, removeSubcategory;
  Statement findModel, addModel, removeModel, addWords, removeWords;
  Statement changeWord, removeWord;
};

}  // namespace nerida::search
