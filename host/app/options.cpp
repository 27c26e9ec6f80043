#include "host/app/options.h"

#include <algorithm>
#include <cwchar>

#include "host/win32/com.h"

namespace nerida::host {
namespace {

Options::Place placeOf(const std::wstring& text) {
  Options::Place place;
  const int read = std::swscanf(text.c_str(), L"%d,%d,%d,%d", &place.x, &place.y, &place.width, &place.height);
  if (read != 4 || place.width < 1 || place.height < 1) throw OptionError("--place needs four numbers: X,Y,W,H.");
  return place;
}

}  // namespace

Options readOptions(std::span<wchar_t* const> words) {
  Options options;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::wstring word = words[i];
    if (word == L"--activate" || word == L"--right-to-left") {
      (word == L"--activate" ? options.activate : options.rightToLeft) = true;
      continue;
    }
    if (word != L"--model" && word != L"--log" && word != L"--place") {
      throw OptionError("Unknown option: " + utf8(word));
    }
    if (++i == words.size()) throw OptionError("A value is missing after " + utf8(word) + ".");
    if (word == L"--model") options.model = words[i];
    if (word == L"--log") options.log = words[i];
    if (word == L"--place") options.place = placeOf(words[i]);
  }
  return options;
}

std::optional<std::filesystem::path> findDefaultModel(const std::filesystem::path& programFolder) {
  namespace fs = std::filesystem;
  std::error_code failure;
  std::optional<fs::path> first;
  for (const char* name : {"models", "Models"}) {
    for (fs::recursive_directory_iterator at(programFolder / name, failure), end; !failure && at != end;
         at.increment(failure)) {
      if (at->path().extension() == ".twe" && (!first || at->path() < *first)) first = at->path();
    }
    if (first) return first;
  }
  return first;
}

}  // namespace nerida::host
