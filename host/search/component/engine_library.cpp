#include "host/search/component/engine_library.h"

#include <filesystem>

#include "host/win32/arguments.h"
#include "host/win32/server.h"

namespace nerida::host {
namespace {

constexpr int cannotCreateObject = 429;

[[noreturn]] void refuse(const std::string& why) { throw MemberError{cannotCreateObject, "KwSearchDll.dll " + why}; }

}  // namespace

const EngineLibrary& EngineLibrary::loaded() {
  static const EngineLibrary library;
  return library;
}

EngineLibrary::EngineLibrary() {
  const std::filesystem::path file = std::filesystem::path(modulePath()).replace_filename("KwSearchDll.dll");
  module.reset(LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
  if (!module) refuse("cannot be loaded");
  find(addOneTest, "AddOneTest");
  find(openSearchEngine, "OpenSearchEngine");
  find(closeSearchEngine, "CloseSearchEngine");
  find(setThesaurusPath, "SetThesaurusPath");
  find(setUserThesaurusPath, "SetUserThesaurusPath");
  find(setModelDataBasePath, "SetModelDataBasePath");
  find(startSearch, "StartSearch");
  find(startRandomSearch, "StartRandomSearch");
  find(startCategorySearch, "StartCategorySearch");
  find(getNextResult, "GetNextResult");
  find(getFirstCategory, "GetFirstCategory");
  find(getNextCategory, "GetNextCategory");
}

template <typename Function>
void EngineLibrary::find(Function& function, const char* name) const {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module.get(), name)));
  if (function == nullptr) refuse(std::string("has no ") + name);
}

}  // namespace nerida::host
