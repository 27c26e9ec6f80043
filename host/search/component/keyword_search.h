#pragma once

#include <ZephraSearch_h.h>

#include "host/search/component/catalog_search.h"
#include "host/win32/server.h"

namespace nerida::host {

/// The search component: the catalog's questions as an automation object with a dual interface.
class KeywordSearch final : public IKeywordSearch, public ISupportErrorInfo {
 public:
  KeywordSearch() = default;
  KeywordSearch(const KeywordSearch&) = delete;
  KeywordSearch& operator=(const KeywordSearch&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override;

  // IDispatch
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID language, ITypeInfo** result) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID language, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) override;

  // IKeywordSearch. What goes out is stored only when everything succeeded.
  STDMETHODIMP Search(BSTR* query, SAFEARRAY** names, SAFEARRAY** ids, SAFEARRAY** flags, long* count) override;
  STDMETHODIMP TestEngine(long number, long* result) override;
  STDMETHODIMP GetCategories(SAFEARRAY** categoryNames, SAFEARRAY** subCategoryNames, SAFEARRAY** subCategoryCounts,
                             long* lastCategory) override;

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override { return id == IID_IKeywordSearch ? S_OK : S_FALSE; }

 private:
  ~KeywordSearch() = default;

  std::atomic<ULONG> references = 1;
  CatalogSearch search;
  ModuleUse use;
};

}  // namespace nerida::host
