#include "host/search/thesaurus.h"

#include <algorithm>
#include <fstream>

#include "host/search/tokenizer.h"

namespace nerida::search {

void Thesaurus::read(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  for (std::string line; std::getline(stream, line);) add(line);
}

// A mark of the byte order and carriage returns are no part of a word.
void Thesaurus::add(std::string_view line) {
  line = line.substr(0, line.find('#'));
  const std::size_t arrow = line.find('>');
  if (arrow != std::string_view::npos) {
    const std::vector<Term> general = terms(line.substr(0, arrow)), special = terms(line.substr(arrow + 1));
    for (const Term& from : general) {
      for (const Term& to : special) relate(from, to);
    }
    return;
  }
  const std::vector<Term> group = terms(line);
  for (const Term& from : group) {
    for (const Term& to : group) relate(from, to);
  }
}

std::vector<Thesaurus::Term> Thesaurus::terms(std::string_view list) const {
  std::vector<Term> result;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(','), list.size());
    Term term = tokenizer.words(list.substr(0, end));
    if (!term.empty()) result.push_back(std::move(term));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return result;
}

void Thesaurus::relate(const Term& term, const Term& synonym) {
  if (key(term) == key(synonym)) return;
  std::vector<Term>& known = synonymsByStems[key(term)];
  if (known.empty() && term.size() == 1) singleWords.push_back(term.front());
  if (std::ranges::find(known, synonym) == known.end()) known.push_back(synonym);
  longest = std::max(longest, term.size());
}

const std::vector<Thesaurus::Term>& Thesaurus::synonyms(std::span<const std::string> words) const {
  static const std::vector<Term> none;
  const auto found = synonymsByStems.find(key(words));
  return found == synonymsByStems.end() ? none : found->second;
}

std::string Thesaurus::key(std::span<const std::string> words) const {
  std::string stems;
  for (const std::string& word : words) stems += tokenizer.stem(word) + ' ';
  return stems;
}

}  // namespace nerida::search
