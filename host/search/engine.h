#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/search/database_error.h"
#include "host/search/question.h"

namespace nerida::search {

/// Where the engine finds what it needs. Thesauri may be absent.
struct EngineFiles {
  std::filesystem::path database, thesaurus, userThesaurus;
};

struct Hit {
  std::int32_t number = 0;
  std::string name;  ///< UTF-8
  std::int32_t flags = 0;
  Closeness closeness = Closeness::exact;
};

struct Category {
  std::string name;
  std::vector<std::string> subcategories;
};

/// Finds models. One object is used by one thread at a time. Everything here throws DatabaseError; the engine stays
/// usable after it.
class SearchEngine {
 public:
  explicit SearchEngine(const EngineFiles& files);
  ~SearchEngine();

  /// The models that have every word of the text, or a word that begins with it, among their names and keywords. Best
  /// first: exact ones, then those found through the thesaurus, then those found by guessing at a misspelt word; among
  /// each, names before keywords, whole words before beginnings, short names before long ones, then by name.
  std::vector<Hit> searchKeywords(std::string_view text);

  /// `count` models, or all if there are fewer: a fresh selection each time, in no order.
  std::vector<Hit> searchRandom(std::size_t count);

  /// The models of the sub-categories of that name, by name.
  std::vector<Hit> searchCategory(std::string_view subcategory);

  /// All categories by name, each with its sub-categories by name.
  std::vector<Category> categories();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts;
};

}  // namespace nerida::search
