#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/search/component/engine_library.h"

namespace nerida::host {

/// What a search found: entries of one index belong together.
struct FoundModels {
  std::vector<std::wstring> names;
  std::vector<std::int32_t> numbers;
  std::vector<std::int32_t> flags;
};

struct CategoryList {
  std::vector<std::wstring> names;
  std::vector<std::wstring> subcategories;  ///< those of the first category, then those of the second, …
  std::vector<std::int16_t> subcategoryCounts;
};

/// The catalog's questions, answered by the engine library over the installed model database. Everything here throws
/// MemberError with a sentence for the user.
class CatalogSearch {
 public:
  /// Keywords, ":" and a sub-category, or ":Random".
  FoundModels search(std::wstring_view query);
  CategoryList categories();
  std::int32_t testEngine(std::int32_t number);

 private:
  class Conversation;
};

}  // namespace nerida::host
