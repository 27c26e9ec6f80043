#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "host/search/engine.h"

namespace nerida::search {

/// A list of results that is handed out one by one.
template <typename Result>
class Queue {
 public:
  void restart(std::vector<Result> newResults) {
    results = std::move(newResults);
    taken = 0;
  }
  /// The result whose turn it is, or null.
  const Result* front() const { return taken < results.size() ? &results[taken] : nullptr; }
  void take() { ++taken; }
  std::size_t size() const { return results.size(); }

 private:
  std::vector<Result> results;
  std::size_t taken = 0;
};

struct CategoryPair {
  std::string category, subcategory;
};

/// What one thread has set, opened and found.
struct Session {
  EngineFiles files;
  std::unique_ptr<SearchEngine> engine;
  Queue<Hit> hits;
  Queue<CategoryPair> categories;
};

/// This thread's session, made at its first use. Throws std::bad_alloc.
Session& session();
void endSession();

}  // namespace nerida::search
