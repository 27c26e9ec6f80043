#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace nerida::library {

/// The words of a command: files and folders, and options with their values ("--name Dog"), all as UTF-8 or paths.
class CommandLine {
 public:
  /// Throws LibraryError for an option without a value or one that is not among `known`.
  CommandLine(const std::vector<std::filesystem::path>& words, const std::vector<std::string>& known);

  [[nodiscard]] const std::vector<std::filesystem::path>& files() const { return plain; }
  [[nodiscard]] bool has(const std::string& option) const { return options.contains(option); }
  [[nodiscard]] std::string text(const std::string& option, const std::string& otherwise) const;
  [[nodiscard]] std::filesystem::path path(const std::string& option, const std::filesystem::path& otherwise) const;

 private:
  std::vector<std::filesystem::path> plain;
  std::map<std::string, std::filesystem::path> options;
};

/// UTF-8 of a path or word.
std::string utf8(const std::filesystem::path& word);

/// A whole number of 32 bits. Throws LibraryError.
std::int32_t wholeNumber(const std::string& text);

/// The pieces between separators, without blanks around them; empty pieces are left out.
std::vector<std::string> piecesOf(const std::string& text, char separator);

}  // namespace nerida::library
