#include "host/search/component/keyword_search.h"

namespace nerida::host {

std::span<const ServerClass> serverClasses() {
  static const ServerInterface keywordSearch = {IID_IKeywordSearch, L"IKeywordSearch", LIBID_ZephraSearch,
                                                L"Zephra Search 1.0 Type Library"};
  static const ServerClass classes[] = {
      {CLSID_KeywordSearch, L"ZephraSearch.KeywordSearch", L"ZephraSearch.KeywordSearch.1", L"Zephra Search", false,
       [] { return static_cast<IUnknown*>(static_cast<IDispatch*>(new KeywordSearch)); }, &keywordSearch}};
  return classes;
}

}  // namespace nerida::host
