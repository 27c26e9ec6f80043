#pragma once

#include <cstdint>
#include <tuple>

#include "host/search/question.h"

namespace nerida::search {

class Database;

/// How well a model answers a question. Smaller is better in each, in this order: nothing that was found through a
/// synonym or a guess comes before what was asked for, nor a keyword before a name, nor a beginning before a word.
struct Rank {
  Closeness closeness = Closeness::exact;
  std::uint16_t keywords = 0;    ///< how many of the question's words are not in the name
  std::uint16_t beginnings = 0;  ///< how many of them are only beginnings of the model's words

  friend bool operator<(const Rank& a, const Rank& b) {
    return std::tie(a.closeness, a.keywords, a.beginnings) < std::tie(b.closeness, b.keywords, b.beginnings);
  }
};

/// Adds the function relevance(words) to full-text queries: the rank of a row for the question that was set last, as
/// one number. Must outlive the statements that use it.
class Relevance {
 public:
  /// Throws DatabaseError.
  explicit Relevance(Database& database);
  Relevance(const Relevance&) = delete;
  Relevance& operator=(const Relevance&) = delete;

  void setQuestion(const Question& asked) { question = &asked; }
  static Rank rankOf(std::int64_t number);

 private:
  friend struct RelevanceFunction;
  const Question* question = nullptr;
};

}  // namespace nerida::search
