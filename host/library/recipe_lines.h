#pragma once

#include <string>
#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// One line of a recipe: its words, those in quotation marks without them, and how far it is set in.
class RecipeLine {
 public:
  RecipeLine(const std::string& text, int number, const std::string& file);

  [[nodiscard]] int indent() const { return depth; }
  [[nodiscard]] bool empty() const { return words.empty(); }
  [[nodiscard]] int number() const { return at; }

  [[nodiscard]] bool done() const { return next == words.size(); }
  [[nodiscard]] std::string peek() const { return done() ? std::string() : words[next]; }
  std::string word();
  double number(const char* what);
  int whole(const char* what);
  /// Numbers joined by commas: "1,0.5,2".
  std::vector<double> numbers(const char* what);
  [[nodiscard]] bool numberFollows() const;
  /// The rest of the line, cut at commas: "a dog, a puppy" gives two texts.
  std::vector<std::string> listToTheEnd();

  [[noreturn]] void fail(const std::string& what) const;

 private:
  std::string place;
  int at;
  int depth = 0;
  std::vector<std::string> words;
  std::size_t next = 0;
};

/// The lines of a text that say something.
std::vector<RecipeLine> recipeLines(const std::string& text, const std::string& file);

}  // namespace nerida::library
