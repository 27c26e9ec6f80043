#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nerida::search {

class Thesaurus;
class Tokenizer;
class Vocabulary;

/// How a model came to be found.
enum class Closeness { exact = 0, synonym = 1, spelling = 2 };

/// One word to look for in the index, or the beginning of one.
struct Form {
  std::string word;
  bool isBeginning = false;
};

/// A word of the question with everything that counts as that word: one of the forms must be there.
using AnyForm = std::vector<Form>;

/// One way to answer a part of the question: all of its words must be there.
struct Alternative {
  Closeness closeness = Closeness::exact;
  std::vector<AnyForm> words;
};

/// A word of the question, or some that belong together like "fire engine": one of the ways must succeed.
using Part = std::vector<Alternative>;

/// What to look for: all parts must be found. Without parts nothing is found.
using Question = std::vector<Part>;

/// Understands what a person typed. Throws DatabaseError.
Question understand(std::string_view text, const Tokenizer& tokenizer, const Thesaurus& thesaurus,
                    Vocabulary& vocabulary);

/// The question in the full-text module's language. Its forms appear in the order in which they stand in the question.
std::string expression(const Question& question);

}  // namespace nerida::search
