#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/headless/transcript.h"
#include "platform/search_component.h"

namespace nerida::headless {

// A search component of prepared answers. Each instance is written down from its making to its release.
class PreparedSearch : public SearchComponents {
 public:
  explicit PreparedSearch(Transcript& transcript) : transcript(transcript) {}

  std::unique_ptr<SearchComponent> create() override;

  std::function<SearchResult(std::string& query)> search = [](std::string&) { return SearchResult(); };
  std::function<CategoryList()> categories = [] { return CategoryList(); };
  bool installed = true;

  Transcript& transcript;
};

}  // namespace nerida::headless
