#pragma once

#include <windows.h>

#include <memory>

#include "host/search/kwsearch/kw_search_dll.h"

namespace nerida::host {

/// KwSearchDll.dll, loaded from the folder in which this module lies. Each entry has the type of its declaration.
class EngineLibrary {
 public:
  /// Loading it takes longer than most questions: it stays as long as this module. Throws MemberError while it, or one
  /// of its entries, is not there.
  static const EngineLibrary& loaded();

  decltype(&::AddOneTest) addOneTest;
  decltype(&::OpenSearchEngine) openSearchEngine;
  decltype(&::CloseSearchEngine) closeSearchEngine;
  decltype(&::SetThesaurusPath) setThesaurusPath;
  decltype(&::SetUserThesaurusPath) setUserThesaurusPath;
  decltype(&::SetModelDataBasePath) setModelDataBasePath;
  decltype(&::StartSearch) startSearch;
  decltype(&::StartRandomSearch) startRandomSearch;
  decltype(&::StartCategorySearch) startCategorySearch;
  decltype(&::GetNextResult) getNextResult;
  decltype(&::GetFirstCategory) getFirstCategory;
  decltype(&::GetNextCategory) getNextCategory;

 private:
  EngineLibrary();

  struct Free {
    void operator()(HMODULE module) const { FreeLibrary(module); }
  };
  template <typename Function>
  void find(Function& function, const char* name) const;

  std::unique_ptr<std::remove_pointer_t<HMODULE>, Free> module;
};

}  // namespace nerida::host
