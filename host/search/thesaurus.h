#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerida::search {

class Tokenizer;

/// Words that mean the same. In a thesaurus file each line is one of
///     car, automobile, fire engine        each finds also the others
///     vehicle > car, lorry                the first finds also the others, they do not find it
///     # a remark
/// in UTF-8. Forms of a word count as the word itself, so "cars" finds what "automobile" finds.
class Thesaurus {
 public:
  /// A word or several, folded.
  using Term = std::vector<std::string>;

  explicit Thesaurus(const Tokenizer& tokenizer) : tokenizer(tokenizer) {}

  /// Adds the content of a file to what is there already. A file that is absent or cannot be read adds nothing.
  void read(const std::filesystem::path& file);
  void add(std::string_view line);

  /// What is to be looked for along with these words, empty when there is nothing.
  const std::vector<Term>& synonyms(std::span<const std::string> words) const;
  /// The greatest number of words that a term with synonyms has.
  std::size_t longestTerm() const { return longest; }
  /// The single words that have synonyms.
  const std::vector<std::string>& words() const { return singleWords; }

 private:
  std::vector<Term> terms(std::string_view list) const;
  void relate(const Term& term, const Term& synonym);
  std::string key(std::span<const std::string> words) const;

  const Tokenizer& tokenizer;
  std::map<std::string, std::vector<Term>> synonymsByStems;
  std::vector<std::string> singleWords;
  std::size_t longest = 0;
};

}  // namespace nerida::search
