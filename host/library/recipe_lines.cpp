#include "host/library/recipe_lines.h"

#include <charconv>
#include <cmath>
#include <sstream>

#include "host/library/fields.h"

namespace nerida::library {
namespace {

/// A number with nothing behind it. (The standard stream would read it in the user's own notation.)
bool readNumber(const std::string& text, double& value) {
  const char* end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stopped == end && !text.empty() && std::isfinite(value);
}

std::vector<std::string> cut(const std::string& text, char separator) {
  std::vector<std::string> pieces;
  std::stringstream stream(text);
  for (std::string piece; std::getline(stream, piece, separator);) pieces.push_back(piece);
  return pieces;
}

}  // namespace

RecipeLine::RecipeLine(const std::string& text, int number, const std::string& file)
    : place(file + ":" + std::to_string(number)), at(number) {
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  depth = static_cast<int>(i);
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (i < text.size()) {
    if (blank(text[i])) {
      ++i;
    } else if (text[i] == '#' && (i + 1 == text.size() || blank(text[i + 1]))) {
      return;
    } else if (text[i] == '"') {
      const std::size_t end = text.find('"', i + 1);
      if (end == std::string::npos) fail("a quotation mark is not closed");
      words.push_back(text.substr(i + 1, end - i - 1));
      i = end + 1;
    } else {
      std::size_t end = i;
      while (end < text.size() && !blank(text[end])) ++end;
      words.push_back(text.substr(i, end - i));
      i = end;
    }
  }
}

void RecipeLine::fail(const std::string& what) const { throw LibraryError(place + ": " + what); }

std::string RecipeLine::word() {
  if (done()) fail("something is missing at the end");
  return words[next++];
}

double RecipeLine::number(const char* what) {
  double value = 0;
  if (done() || !readNumber(words[next], value)) fail(std::string("a number is expected: ") + what);
  ++next;
  return value;
}

int RecipeLine::whole(const char* what) {
  const double value = number(what);
  if (value != std::floor(value) || std::abs(value) > 2147483647.0) {
    fail(std::string("a whole number is expected: ") + what);
  }
  return static_cast<int>(value);
}

bool RecipeLine::numberFollows() const {
  double value = 0;
  if (done()) return false;
  const std::vector<std::string> pieces = cut(words[next], ',');
  return !pieces.empty() && readNumber(pieces.front(), value);
}

std::vector<double> RecipeLine::numbers(const char* what) {
  std::vector<double> values;
  const std::string text = done() ? "" : words[next];
  for (const std::string& piece : cut(text, ',')) {
    double value = 0;
    if (!readNumber(piece, value)) fail(std::string("numbers are expected: ") + what);
    values.push_back(value);
  }
  if (values.empty()) fail(std::string("numbers are expected: ") + what);
  ++next;
  return values;
}

std::vector<std::string> RecipeLine::listToTheEnd() {
  std::string rest;
  for (; !done(); ++next) rest += (rest.empty() ? "" : " ") + words[next];
  std::vector<std::string> pieces = cut(rest, ',');
  for (std::string& piece : pieces) {
    piece.erase(0, piece.find_first_not_of(' '));
    piece.erase(piece.find_last_not_of(' ') + 1);
    if (piece.empty()) fail("a comma has nothing before or behind it");
  }
  return pieces;
}

std::vector<RecipeLine> recipeLines(const std::string& text, const std::string& file) {
  std::vector<RecipeLine> lines;
  std::stringstream stream(text);
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    RecipeLine read(line, ++number, file);
    if (!read.empty()) lines.push_back(std::move(read));
  }
  return lines;
}

}  // namespace nerida::library
