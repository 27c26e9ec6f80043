#include "host/library/command_line.h"

#include <algorithm>
#include <charconv>
#include <sstream>

#include "host/library/fields.h"

namespace nerida::library {

std::string utf8(const std::filesystem::path& word) {
  const std::u8string text = word.u8string();
  return {text.begin(), text.end()};
}

CommandLine::CommandLine(const std::vector<std::filesystem::path>& words, const std::vector<std::string>& known) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string word = utf8(words[i]);
    if (word.rfind("--", 0) != 0) {
      plain.push_back(words[i]);
      continue;
    }
    if (std::ranges::find(known, word) == known.end()) throw LibraryError("unknown option: " + word);
    if (i + 1 == words.size()) throw LibraryError("a value is missing after " + word);
    options[word] = words[++i];
  }
}

std::string CommandLine::text(const std::string& option, const std::string& otherwise) const {
  const auto found = options.find(option);
  return found == options.end() ? otherwise : utf8(found->second);
}

std::filesystem::path CommandLine::path(const std::string& option, const std::filesystem::path& otherwise) const {
  const auto found = options.find(option);
  return found == options.end() ? otherwise : found->second;
}

std::int32_t wholeNumber(const std::string& text) {
  std::int32_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  if (text.empty() || stopped != end || error != std::errc()) throw LibraryError("not a number: " + text);
  return number;
}

std::vector<std::string> piecesOf(const std::string& text, char separator) {
  std::vector<std::string> pieces;
  std::stringstream stream(text);
  for (std::string piece; std::getline(stream, piece, separator);) {
    piece.erase(0, std::min(piece.find_first_not_of(' '), piece.size()));
    piece.erase(piece.find_last_not_of(' ') + 1);
    if (!piece.empty()) pieces.push_back(piece);
  }
  return pieces;
}

}  // namespace nerida::library
