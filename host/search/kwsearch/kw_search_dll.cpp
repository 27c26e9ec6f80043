#include "host/search/kwsearch/kw_search_dll.h"

#include <cstring>
#include <string>

#include "host/search/kwsearch/session.h"

namespace nerida::search {
namespace {

KwStatus statusOf(DatabaseFault fault) {
  switch (fault) {
    case DatabaseFault::missing:
      return kwDatabaseMissing;
    case DatabaseFault::foreign:
      return kwDatabaseForeign;
    case DatabaseFault::damaged:
      return kwDatabaseDamaged;
    case DatabaseFault::busy:
      return kwDatabaseBusy;
    case DatabaseFault::memory:
      return kwOutOfMemory;
    case DatabaseFault::other:
      break;
  }
  return kwDatabaseUnusable;
}

/// Runs the body of an entry point: no exception leaves it.
template <typename Body>
long guarded(Body body) noexcept {
  try {
    return body();
  } catch (const DatabaseError& error) {
    return statusOf(error.fault);
  } catch (const std::bad_alloc&) {
    return kwOutOfMemory;
  } catch (const std::exception&) {
    return kwDatabaseUnusable;
  }
}

long setPath(std::filesystem::path EngineFiles::*path, const char* file) {
  if (file == nullptr) return kwBadArgument;
  return guarded([&]() -> long {
    try {
      session().files.*path = std::filesystem::path(reinterpret_cast<const char8_t*>(file));
      return kwNone;
    } catch (const std::filesystem::filesystem_error&) {
      return kwBadArgument;
    } catch (const std::range_error&) {
      return kwBadArgument;
    }
  });
}

template <typename Search>
long start(Search search) {
  return guarded([&]() -> long {
    Session& current = session();
    current.hits.restart({});
    if (!current.engine) return kwNotOpen;
    current.hits.restart(search(*current.engine));
    return static_cast<long>(current.hits.size());
  });
}

/// Whether a text with its end fits into a buffer; one that is not wanted always does.
bool fits(const std::string& text, const char* buffer, long size) {
  return buffer == nullptr || (size > 0 && text.size() < static_cast<std::size_t>(size));
}

void put(const std::string& text, char* buffer) {
  if (buffer != nullptr) std::memcpy(buffer, text.c_str(), text.size() + 1);
}

void put(long value, long* target) {
  if (target != nullptr) *target = value;
}

std::vector<CategoryPair> pairsOf(const std::vector<Category>& categories) {
  std::vector<CategoryPair> pairs;
  for (const Category& category : categories) {
    if (category.subcategories.empty()) pairs.push_back({category.name, ""});
    for (const std::string& name : category.subcategories) pairs.push_back({category.name, name});
  }
  return pairs;
}

}  // namespace
}  // namespace nerida::search

using namespace nerida::search;

long __stdcall AddOneTest(long number) { return static_cast<long>(static_cast<unsigned long>(number) + 1UL); }

long __stdcall OpenSearchEngine() {
  return guarded([]() -> long {
    Session& current = session();
    current.engine.reset();
    current.engine = std::make_unique<SearchEngine>(current.files);
    return kwNone;
  });
}

long __stdcall CloseSearchEngine() {
  endSession();
  return kwNone;
}

long __stdcall SetThesaurusPath(const char* file) { return setPath(&EngineFiles::thesaurus, file); }

long __stdcall SetUserThesaurusPath(const char* file) { return setPath(&EngineFiles::userThesaurus, file); }

long __stdcall SetModelDataBasePath(const char* file) { return setPath(&EngineFiles::database, file); }

long __stdcall StartSearch(const char* words) {
  if (words == nullptr) return kwBadArgument;
  return start([&](SearchEngine& engine) { return engine.searchKeywords(words); });
}

long __stdcall StartRandomSearch(long count) {
  if (count < 0) return kwBadArgument;
  return start([&](SearchEngine& engine) { return engine.searchRandom(static_cast<std::size_t>(count)); });
}

long __stdcall StartCategorySearch(const char* subcategory) {
  if (subcategory == nullptr) return kwBadArgument;
  return start([&](SearchEngine& engine) { return engine.searchCategory(subcategory); });
}

long __stdcall GetNextResult(char* name, long nameSize, long* number, long* flags, long* closeness) {
  return guarded([&]() -> long {
    Session& current = session();
    if (!current.engine) return kwNotOpen;
    const Hit* hit = current.hits.front();
    if (hit == nullptr) return kwNone;
    if (!fits(hit->name, name, nameSize)) return kwBufferTooSmall;
    put(hit->name, name);
    put(hit->number, number);
    put(hit->flags, flags);
    put(static_cast<long>(hit->closeness), closeness);
    current.hits.take();
    return kwOne;
  });
}

long __stdcall GetFirstCategory(char* category, char* subcategory, long size) {
  return guarded([&]() -> long {
    Session& current = session();
    if (!current.engine) return kwNotOpen;
    current.categories.restart(pairsOf(current.engine->categories()));
    return GetNextCategory(category, subcategory, size);
  });
}

long __stdcall GetNextCategory(char* category, char* subcategory, long size) {
  return guarded([&]() -> long {
    Session& current = session();
    if (!current.engine) return kwNotOpen;
    const CategoryPair* pair = current.categories.front();
    if (pair == nullptr) return kwNone;
    if (!fits(pair->category, category, size) || !fits(pair->subcategory, subcategory, size)) return kwBufferTooSmall;
    put(pair->category, category);
    put(pair->subcategory, subcategory);
    current.categories.take();
    return kwOne;
  });
}
