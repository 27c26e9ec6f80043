#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/search/database.h"

namespace nerida::search {

class Tokenizer;

/// The words of all models. Everything here throws DatabaseError; words are folded ones.
class Vocabulary {
 public:
  Vocabulary(Database& database, const Tokenizer& tokenizer);

  /// The word itself and its other forms, as far as models have them.
  std::vector<std::string> formsOf(std::string_view word);
  /// Whether models have longer words that begin with this one.
  bool hasLonger(std::string_view word);
  /// The words, of the models or of `others`, that were most likely meant by a misspelt one. Of equally likely ones
  /// all, frequent ones first.
  std::vector<std::string> nearest(std::string_view word, const std::vector<std::string>& others);

 private:
  const Tokenizer& tokenizer;
  Statement sameStem, next, all;
};

}  // namespace nerida::search
