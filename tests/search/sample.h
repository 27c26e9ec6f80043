#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/search/engine.h"
#include "host/search/model_card.h"
#include "tests/library/folder.h"

namespace nerida::search {

/// A card in the category Things / Any.
ModelCard card(std::int32_t number, const std::string& name, const std::vector<std::string>& keywords = {});

std::vector<ModelCard> numberedCards(std::int32_t count);

std::vector<std::string> namesOf(const std::vector<Hit>& hits);

/// A folder with a database and, when there are lines for them, thesauri.
class Sample {
 public:
  explicit Sample(const std::vector<ModelCard>& cards, const std::string& thesaurus = {},
                  const std::string& userThesaurus = {});

  const std::filesystem::path& path() const { return folder.path(); }
  std::filesystem::path database() const;
  EngineFiles files() const;
  SearchEngine engine() const { return SearchEngine(files()); }
  /// The names that a keyword search with a new engine finds.
  std::vector<std::string> find(std::string_view text) const;

 private:
  library::TemporaryFolder folder;
};

}  // namespace nerida::search
