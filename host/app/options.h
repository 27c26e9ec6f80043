#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace nerida::host {

/// The command line: what to open and where to stand.
struct Options {
  struct Place {
    int x = 0, y = 0, width = 0, height = 0;
  };

  std::optional<std::filesystem::path> model;
  std::optional<std::filesystem::path> log;
  std::optional<Place> place;
  bool activate = false;
  bool rightToLeft = false;  // all windows, as for languages that are written so
};

class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words after the program's name. Throws OptionError with a sentence for the user.
Options readOptions(std::span<wchar_t* const> words);

/// The first model of a library folder beside the program, if there is one.
std::optional<std::filesystem::path> findDefaultModel(const std::filesystem::path& programFolder);

}  // namespace nerida::host
