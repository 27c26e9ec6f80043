#include "host/library/index_file.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "host/library/fields.h"
#include "host/library/file_lock.h"
#include "host/library/files.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

/// A tab or line break inside a text would end its field; other control characters help nobody.
std::string oneField(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  return text;
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != std::string::npos; start = end + 1) {
    parts.push_back(text.substr(start, end - start));
  }
  parts.push_back(text.substr(start));
  return parts;
}

/// The end of a file, so much of it that a whole line is there, or all of it.
std::string endOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary | std::ios::ate);
  if (!stream) return {};
  const auto size = static_cast<std::streamoff>(stream.tellg());
  for (std::streamoff wanted = 1024;; wanted *= 4) {
    const std::streamoff start = std::max<std::streamoff>(0, size - wanted);
    std::string text(static_cast<std::size_t>(size - start), '\0');
    stream.seekg(start);
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (!stream) throw LibraryError(file.string() + ": cannot be read");
    if (start == 0 || std::ranges::count(text, '\n') >= 2) return text;
  }
}

/// Without what was interrupted while it was written.
std::string wholeLinesOf(std::string text) {
  text.erase(text.rfind('\n') == std::string::npos ? 0 : text.rfind('\n') + 1);
  return text;
}

void append(const fs::path& file, const std::string& line) {
  const std::string end = endOf(file);
  const std::size_t torn = end.size() - wholeLinesOf(end).size();
  std::error_code error;
  if (torn > 0) fs::resize_file(file, fs::file_size(file) - torn, error);
  std::ofstream stream(file, std::ios::binary | std::ios::app);
  stream.write(line.data(), static_cast<std::streamsize>(line.size()));
  stream.close();
  if (!stream || error) throw LibraryError(file.string() + ": cannot be written");
  flushToDisk(file);
}

}  // namespace

std::string indexLine(const ModelCard& card) {
  std::string line = std::to_string(card.number);
  for (const std::string& field : {card.name, card.category, card.subcategory}) line += '\t' + oneField(field);
  line += card.animated ? "\tanimated\t" : "\tstill\t";
  for (std::size_t i = 0; i < card.keywords.size(); ++i) {
    if (i > 0) line += ',';
    line += oneField(card.keywords[i]);
  }
  line += '\n';
  return line;
}

ModelCard cardOfIndexLine(const std::string& line) {
  std::vector<std::string> fields = split(line, '\t');
  while (!fields.back().empty() && (fields.back().back() == '\n' || fields.back().back() == '\r'))
    fields.back().pop_back();
  ModelCard card;
  const char* end = fields[0].data() + fields[0].size();
  const bool numbered = std::from_chars(fields[0].data(), end, card.number).ptr == end && !fields[0].empty();
  if (!numbered || fields.size() != 6) throw LibraryError("the index has a damaged line: " + line.substr(0, 60));
  card.name = fields[1];
  card.category = fields[2];
  card.subcategory = fields[3];
  card.animated = fields[4] == "animated";
  if (!fields[5].empty()) card.keywords = split(fields[5], ',');
  return card;
}

std::vector<ModelCard> readIndex(const fs::path& library) {
  const std::optional<std::string> text = readWhole(library / indexFileName);
  if (!text) throw LibraryError(library.string() + ": there is no " + indexFileName);
  std::vector<ModelCard> cards;
  for (std::string& line : split(wholeLinesOf(*text), '\n')) {
    if (!line.empty() && line != "\r") cards.push_back(cardOfIndexLine(line));
  }
  return cards;
}

void writeIndex(const fs::path& library, std::vector<ModelCard> cards) {
  std::ranges::sort(cards, {}, &ModelCard::number);
  std::string index;
  for (const ModelCard& card : cards) index += indexLine(card);
  writeFile(library / indexFileName, index);
}

std::int32_t lastNumberOf(const fs::path& library) {
  std::string end = wholeLinesOf(endOf(library / indexFileName));
  if (end.empty()) return -1;
  end.pop_back();
  const std::size_t start = end.rfind('\n');
  return cardOfIndexLine(start == std::string::npos ? end : end.substr(start + 1)).number;
}

void addToIndex(const fs::path& library, const ModelCard& card) {
  if (card.number > lastNumberOf(library)) {
    append(library / indexFileName, indexLine(card));
    return;
  }
  std::vector<ModelCard> cards = readIndex(library);
  std::erase_if(cards, [&](const ModelCard& known) { return known.number == card.number; });
  cards.push_back(card);
  writeIndex(library, std::move(cards));
}

}  // namespace nerida::library
