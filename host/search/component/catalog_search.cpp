#include "host/search/component/catalog_search.h"

#include <algorithm>

#include "host/search/component/search_paths.h"
#include "host/search/database_error.h"
#include "host/win32/arguments.h"

namespace nerida::host {
namespace {

using search::DatabaseFault;

/// As many as fit into the catalog's list at once.
constexpr long randomSelection = 30;
constexpr std::wstring_view randomQuery = L":Random";

constexpr int outOfMemory = 7;
constexpr int permissionDenied = 70;
constexpr int pathFileAccess = 75;
constexpr int invalidFileFormat = 321;

struct Failure {
  DatabaseFault fault;
  int number;
};

Failure failureOf(long status) {
  switch (status) {
    case kwDatabaseMissing:
      return {DatabaseFault::missing, fileNotFound};
    case kwDatabaseForeign:
      return {DatabaseFault::foreign, invalidFileFormat};
    case kwDatabaseDamaged:
      return {DatabaseFault::damaged, invalidFileFormat};
    case kwDatabaseBusy:
      return {DatabaseFault::busy, permissionDenied};
    case kwOutOfMemory:
      return {DatabaseFault::memory, outOfMemory};
    default:
      return {DatabaseFault::other, pathFileAccess};
  }
}

/// The engine takes texts that end with a NUL: one inside separates words like any other sign.
std::string engineText(std::wstring_view text) {
  std::string result = utf8(text);
  std::ranges::replace(result, '\0', ' ');
  return result;
}

}  // namespace

/// One opening of the engine, and what is asked meanwhile.
class CatalogSearch::Conversation {
 public:
  Conversation() {
    const std::wstring folder = dictionaryFolder();
    if (folder.empty()) throw MemberError{fileNotFound, "The installation names no folder for the model database"};
    database = engineText(folder + L"\\Models.db");
    library.setModelDataBasePath(database.c_str());
    library.setThesaurusPath(engineText(folder + L"\\Thesaurus.txt").c_str());
    library.setUserThesaurusPath(engineText(userFolder() + L"\\Thesaurus.txt").c_str());
    try {
      checked(library.openSearchEngine());
    } catch (...) {
      library.closeSearchEngine();
      throw;
    }
  }
  Conversation(const Conversation&) = delete;
  Conversation& operator=(const Conversation&) = delete;
  ~Conversation() { library.closeSearchEngine(); }

  long start(std::wstring_view query) {
    if (query == randomQuery) return checked(library.startRandomSearch(randomSelection));
    if (query.starts_with(L':')) return checked(library.startCategorySearch(engineText(query.substr(1)).c_str()));
    return checked(library.startSearch(engineText(query).c_str()));
  }

  bool next(FoundModels& found) {
    long number = 0, flags = 0;
    const auto take = [&] {
      return library.getNextResult(first.data(), static_cast<long>(first.size()), &number, &flags, nullptr);
    };
    if (!taken(take(), take)) return false;
    found.names.push_back(wide(first.data()));
    found.numbers.push_back(number);
    found.flags.push_back(flags);
    return true;
  }

  /// Adds the pair whose turn it is to the list.
  bool next(CategoryList& list) {
    const auto take = [&] {
      return library.getNextCategory(first.data(), second.data(), static_cast<long>(first.size()));
    };
    const long status = list.names.empty()
                            ? library.getFirstCategory(first.data(), second.data(), static_cast<long>(first.size()))
                            : take();
    if (!taken(status, take)) return false;
    const std::wstring name = wide(first.data());
    if (list.names.empty() || list.names.back() != name) {
      list.names.push_back(name);
      list.subcategoryCounts.push_back(0);
    }
    if (second.front() == '\0') return true;
    list.subcategories.push_back(wide(second.data()));
    ++list.subcategoryCounts.back();
    return true;
  }

 private:
  /// Whether there is a result. One that is longer than the buffers is taken again with longer ones.
  template <typename Take>
  bool taken(long status, Take take) {
    while (status == kwBufferTooSmall) {
      first.resize(first.size() * 2);
      second.resize(first.size());
      status = take();
    }
    return checked(status) == kwOne;
  }

  long checked(long status) const {
    if (status >= 0) return status;
    const Failure failure = failureOf(status);
    throw MemberError{failure.number, std::string(describe(failure.fault)) + ": " + database};
  }

  const EngineLibrary& library = EngineLibrary::loaded();
  std::string database;
  std::string first = std::string(1024, '\0'), second = first;
};

FoundModels CatalogSearch::search(std::wstring_view query) {
  Conversation conversation;
  FoundModels found;
  const auto count = static_cast<std::size_t>(conversation.start(query));
  found.names.reserve(count);
  found.numbers.reserve(count);
  found.flags.reserve(count);
  while (conversation.next(found)) {
  }
  return found;
}

CategoryList CatalogSearch::categories() {
  Conversation conversation;
  CategoryList list;
  while (conversation.next(list)) {
  }
  return list;
}

std::int32_t CatalogSearch::testEngine(std::int32_t number) { return EngineLibrary::loaded().addOneTest(number); }

}  // namespace nerida::host
