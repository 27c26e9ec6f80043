#include "host/search/relevance.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "host/search/database.h"
#include "host/search/full_text.h"
#include "host/search/schema.h"

namespace nerida::search {
namespace {

std::int64_t numberOf(const Rank& rank) {
  return (std::int64_t{static_cast<int>(rank.closeness)} << 32) | (std::int64_t{rank.keywords} << 16) | rank.beginnings;
}

std::uint16_t sum(std::uint16_t one, std::uint16_t other) {
  return static_cast<std::uint16_t>(std::min(one + other, int{std::numeric_limits<std::uint16_t>::max()}));
}

using MaybeRank = std::optional<Rank>;

void keepBetter(MaybeRank& best, const MaybeRank& other) {
  if (other && (!best || *other < *best)) best = other;
}

/// Walks through a question in the order of its forms, which is the order of the full-text module's phrases, and
/// looks up for each where in the current row it was found.
class RowReader {
 public:
  RowReader(const Fts5ExtensionApi& functions, Fts5Context* row)
      : functions(functions), row(row), phrases(functions.xPhraseCount(row)) {}

  Rank rankOf(const Question& question) {
    Rank whole;
    for (const Part& part : question) {
      const Rank rank = ofPart(part).value_or(Rank{Closeness::spelling, 1, 1});
      whole.closeness = std::max(whole.closeness, rank.closeness);
      addTo(whole, rank);
    }
    return whole;
  }

 private:
  static void addTo(Rank& total, const Rank& rank) {
    total.keywords = sum(total.keywords, rank.keywords);
    total.beginnings = sum(total.beginnings, rank.beginnings);
  }

  MaybeRank ofPart(const Part& part) {
    MaybeRank best;
    for (const Alternative& alternative : part) keepBetter(best, ofAlternative(alternative));
    return best;
  }

  // All forms are visited, also after a miss: each takes its phrase.
  MaybeRank ofAlternative(const Alternative& alternative) {
    Rank total{alternative.closeness, 0, 0};
    bool complete = true;
    for (const AnyForm& forms : alternative.words) {
      const MaybeRank rank = ofWord(forms);
      complete = complete && rank.has_value();
      if (rank) addTo(total, *rank);
    }
    return complete ? MaybeRank(total) : std::nullopt;
  }

  MaybeRank ofWord(const AnyForm& forms) {
    MaybeRank best;
    for (const Form& form : forms) keepBetter(best, ofPhrase(next++, form));
    return best;
  }

  MaybeRank ofPhrase(int phrase, const Form& form) const {
    if (phrase >= phrases) return std::nullopt;
    Fts5PhraseIter position;
    int column = -1;
    if (functions.xPhraseFirstColumn(row, phrase, &position, &column) != SQLITE_OK || column < 0) return std::nullopt;
    const bool inName = column == static_cast<int>(Column::name);
    return Rank{Closeness::exact, static_cast<std::uint16_t>(inName ? 0 : 1),
                static_cast<std::uint16_t>(form.isBeginning ? 1 : 0)};
  }

  const Fts5ExtensionApi& functions;
  Fts5Context* row;
  int phrases;
  int next = 0;
};

}  // namespace

struct RelevanceFunction {
  static void call(const Fts5ExtensionApi* functions, Fts5Context* row, sqlite3_context* result, int, sqlite3_value**) {
    const auto* relevance = static_cast<const Relevance*>(functions->xUserData(row));
    if (relevance->question == nullptr) return;
    sqlite3_result_int64(result, numberOf(RowReader(*functions, row).rankOf(*relevance->question)));
  }
};

Relevance::Relevance(Database& database) {
  fts5_api& api = fullText(database);
  const int status = api.xCreateFunction(&api, "relevance", this, RelevanceFunction::call, nullptr);
  if (status != SQLITE_OK) database.fail(status);
}

Rank Relevance::rankOf(std::int64_t number) {
  const auto closeness = static_cast<int>(std::clamp<std::int64_t>(number >> 32, 0, 2));
  return {static_cast<Closeness>(closeness), static_cast<std::uint16_t>((number >> 16) & 0xFFFF),
          static_cast<std::uint16_t>(number & 0xFFFF)};
}

}  // namespace nerida::search
