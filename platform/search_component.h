#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/error.h"

namespace nerida {

// An array as a component fills it. Its elements are asked for by their own indexes: error 9 for one that it lacks.
template <class Element>
struct ComponentArray {
  std::int32_t lowerBound = 0;
  std::vector<Element> elements;

  const Element& at(std::int32_t index) const {
    const std::int64_t place = std::int64_t{index} - lowerBound;
    if (place < 0 || place >= static_cast<std::int64_t>(elements.size())) throw Error(error::subscriptOutOfRange);
    return elements[static_cast<std::size_t>(place)];
  }
};

// The hits of a search, in the component's order.
struct SearchResult {
  ComponentArray<std::string> names;
  ComponentArray<std::int32_t> ids;    // model numbers
  ComponentArray<std::int32_t> flags;  // 0x20: animated
  std::int32_t count = 0;
};

struct CategoryList {
  ComponentArray<std::string> categoryNames;
  ComponentArray<std::string> subCategoryNames;  // those of the first category, then those of the second, …
  ComponentArray<std::int16_t> subCategoryCounts;
  std::int32_t lastCategory = -1;  // index; negative when there are none
};

// The component that knows the model database. Both operations may fail with any error. Going away releases it.
class SearchComponent {
 public:
  virtual ~SearchComponent() = default;
  // The component may rewrite the query.
  virtual SearchResult search(std::string& query) = 0;
  virtual CategoryList categories() = 0;
};

class SearchComponents {
 public:
  virtual ~SearchComponents() = default;
  // A fresh instance. Error 429 when the component is not installed.
  virtual std::unique_ptr<SearchComponent> create() = 0;
};

}  // namespace nerida
