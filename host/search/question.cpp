#include "host/search/question.h"

#include <algorithm>
#include <span>

#include "host/search/thesaurus.h"
#include "host/search/tokenizer.h"
#include "host/search/vocabulary.h"

namespace nerida::search {
namespace {

using Words = std::span<const std::string>;

/// A question with more unknown words than this was not typed by a person who slipped.
constexpr std::size_t mostUnknownWords = 8;

/// "dog's" is about a dog: the ending after an apostrophe, plain or curly, is no word of its own.
std::string withoutPossessives(std::string_view text) {
  std::string result(text);
  for (const std::string_view ending : {"'s", "'S", "\u2019s", "\u2019S"}) {
    for (std::size_t at = 0; (at = result.find(ending, at)) != std::string::npos;) {
      const std::size_t after = at + ending.size();
      const bool ends = after == result.size() || result[after] == ' ';
      if (ends) result.erase(at, ending.size());
      at += ends ? 0 : ending.size();
    }
  }
  return result;
}

class Reader {
 public:
  Reader(const Tokenizer& tokenizer, const Thesaurus& thesaurus, Vocabulary& vocabulary)
      : tokenizer(tokenizer), thesaurus(thesaurus), vocabulary(vocabulary) {}

  Question read(std::string_view text) {
    const std::vector<std::string> words = wordsOf(text);
    Question question;
    for (Words rest = words; !rest.empty();) {
      const std::size_t count = lengthOfTerm(rest);
      Part part = partOf(rest.first(count));
      if (part.empty()) return {};
      question.push_back(std::move(part));
      rest = rest.subspan(count);
    }
    return question;
  }

 private:
  // A word that is said twice is asked once.
  std::vector<std::string> wordsOf(std::string_view text) const {
    std::vector<std::string> words;
    for (std::string& word : tokenizer.words(withoutPossessives(text))) {
      if (std::ranges::find(words, word) == words.end()) words.push_back(std::move(word));
    }
    return words;
  }

  std::size_t lengthOfTerm(Words words) const {
    for (std::size_t count = std::min(thesaurus.longestTerm(), words.size()); count > 1; --count) {
      if (!thesaurus.synonyms(words.first(count)).empty()) return count;
    }
    return 1;
  }

  Part partOf(Words words) {
    Part part;
    addAlternative(part, Closeness::exact, words, true);
    addSynonyms(part, Closeness::synonym, words);
    if (part.empty() && words.size() == 1 && ++unknownWords <= mostUnknownWords) addGuesses(part, words.front());
    return part;
  }

  // Only what a person typed may be the beginning of a word.
  AnyForm formsOf(const std::string& word, bool mayBeBeginning) {
    AnyForm forms;
    for (std::string& form : vocabulary.formsOf(word)) forms.push_back({std::move(form)});
    if (mayBeBeginning && vocabulary.hasLonger(word)) forms.push_back({word, true});
    return forms;
  }

  void addAlternative(Part& part, Closeness closeness, Words words, bool mayBeBeginnings) {
    Alternative alternative{closeness, {}};
    for (const std::string& word : words) {
      alternative.words.push_back(formsOf(word, mayBeBeginnings));
      if (alternative.words.back().empty()) return;
    }
    part.push_back(std::move(alternative));
  }

  void addSynonyms(Part& part, Closeness closeness, Words words) {
    for (const Thesaurus::Term& term : thesaurus.synonyms(words)) addAlternative(part, closeness, term, false);
  }

  void addGuesses(Part& part, const std::string& word) {
    for (const std::string& guess : vocabulary.nearest(word, thesaurus.words())) {
      addAlternative(part, Closeness::spelling, Words(&guess, 1), false);
      addSynonyms(part, Closeness::spelling, Words(&guess, 1));
    }
  }

  const Tokenizer& tokenizer;
  const Thesaurus& thesaurus;
  Vocabulary& vocabulary;
  std::size_t unknownWords = 0;
};

template <typename Items, typename Write>
std::string bracketed(const Items& items, const char* separator, Write write) {
  std::string text = "(";
  for (const auto& item : items) {
    if (text.size() > 1) text += separator;
    text += write(item);
  }
  return text + ")";
}

// The words consist of letters and digits alone, so nothing in them can end the quotes.
std::string formText(const Form& form) { return '"' + form.word + (form.isBeginning ? "\"*" : "\""); }

std::string alternativeText(const Alternative& alternative) {
  return bracketed(alternative.words, " AND ", [](const AnyForm& forms) { return bracketed(forms, " OR ", formText); });
}

}  // namespace

Question understand(std::string_view text, const Tokenizer& tokenizer, const Thesaurus& thesaurus,
                    Vocabulary& vocabulary) {
  return Reader(tokenizer, thesaurus, vocabulary).read(text);
}

std::string expression(const Question& question) {
  return bracketed(question, " AND ", [](const Part& part) { return bracketed(part, " OR ", alternativeText); });
}

}  // namespace nerida::search
