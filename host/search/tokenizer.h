#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace nerida::search {

class Database;

/// How the full-text index cuts texts into words: by anything that is no letter or digit, without case and accents.
/// It must be the very same for the index, the vocabulary and the questions.
inline constexpr const char* indexTokenizer = "unicode61 remove_diacritics 2";

class Tokenizer {
 public:
  /// The database must outlive it. Throws DatabaseError.
  explicit Tokenizer(Database& database);
  ~Tokenizer();

  /// The words of a text in their order, folded.
  std::vector<std::string> words(std::string_view text) const;
  /// What the forms of one English word have in common: "boats" and "boating" give the same. For a folded word.
  std::string stem(std::string_view word) const;

 private:
  class Cutter;
  std::unique_ptr<Cutter> cutter, stemmer;
};

}  // namespace nerida::search
