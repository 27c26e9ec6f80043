#include "host/search/tokenizer.h"

#include <sqlite3.h>

#include <array>

#include "host/search/database.h"
#include "host/search/full_text.h"

namespace nerida::search {
namespace {

int addWord(void* words, int, const char* start, int length, int, int) {
  static_cast<std::vector<std::string>*>(words)->emplace_back(start, static_cast<std::size_t>(length));
  return SQLITE_OK;
}

}  // namespace

/// One of the full-text module's own tokenizers.
class Tokenizer::Cutter {
 public:
  template <std::size_t Count>
  Cutter(Database& database, const char* name, std::array<const char*, Count> arguments) {
    fts5_api& api = fullText(database);
    void* context = nullptr;
    int status = api.xFindTokenizer(&api, name, &context, &functions);
    if (status == SQLITE_OK) status = functions.xCreate(context, arguments.data(), int{Count}, &instance);
    if (status != SQLITE_OK) database.fail(status);
  }
  Cutter(const Cutter&) = delete;
  Cutter& operator=(const Cutter&) = delete;
  ~Cutter() { functions.xDelete(instance); }

  std::vector<std::string> cut(std::string_view text) const {
    std::vector<std::string> words;
    functions.xTokenize(instance, &words, FTS5_TOKENIZE_AUX, text.data(), static_cast<int>(text.size()), addWord);
    return words;
  }

 private:
  fts5_tokenizer functions{};
  Fts5Tokenizer* instance = nullptr;
};

Tokenizer::Tokenizer(Database& database)
    : cutter(std::make_unique<Cutter>(database, "unicode61", std::array{"remove_diacritics", "2"})),
      stemmer(std::make_unique<Cutter>(database, "porter", std::array{"unicode61", "remove_diacritics", "2"})) {}

Tokenizer::~Tokenizer() = default;

std::vector<std::string> Tokenizer::words(std::string_view text) const { return cutter->cut(text); }

std::string Tokenizer::stem(std::string_view word) const {
  std::vector<std::string> stems = stemmer->cut(word);
  return stems.size() == 1 ? std::move(stems.front()) : std::string(word);
}

}  // namespace nerida::search
