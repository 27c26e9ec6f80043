#include "tests/search/sample.h"

#include "host/search/model_database.h"

namespace nerida::search {

ModelCard card(std::int32_t number, const std::string& name, const std::vector<std::string>& keywords) {
  return {number, name, "Things", "Any", keywords, false};
}

std::vector<ModelCard> numberedCards(std::int32_t count) {
  std::vector<ModelCard> cards;
  cards.reserve(static_cast<std::size_t>(count));
  for (std::int32_t i = 1; i <= count; ++i) cards.push_back(card(i, "Thing " + std::to_string(i)));
  return cards;
}

std::vector<std::string> namesOf(const std::vector<Hit>& hits) {
  std::vector<std::string> names;
  names.reserve(hits.size());
  for (const Hit& hit : hits) names.push_back(hit.name);
  return names;
}

Sample::Sample(const std::vector<ModelCard>& cards, const std::string& thesaurus, const std::string& userThesaurus) {
  buildDatabase(path(), cards);
  if (!thesaurus.empty()) folder.write("Thesaurus.txt", thesaurus);
  if (!userThesaurus.empty()) folder.write("User.txt", userThesaurus);
}

std::filesystem::path Sample::database() const { return path() / databaseFileName; }

EngineFiles Sample::files() const { return {database(), path() / "Thesaurus.txt", path() / "User.txt"}; }

std::vector<std::string> Sample::find(std::string_view text) const { return namesOf(engine().searchKeywords(text)); }

}  // namespace nerida::search
