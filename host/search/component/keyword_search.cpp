#include "host/search/component/keyword_search.h"

#include "host/search/component/arrays.h"
#include "host/win32/automation.h"

namespace nerida::host {
namespace {

constexpr const wchar_t* source = L"Zephra Search";

void tellError(const MemberError& error) {
  ComRef<ICreateErrorInfo> made;
  ComRef<IErrorInfo> info;
  if (FAILED(CreateErrorInfo(reinterpret_cast<ICreateErrorInfo**>(made.out())))) return;
  made->SetGUID(IID_IKeywordSearch);
  made->SetSource(const_cast<wchar_t*>(source));
  made->SetDescription(wide(error.description).data());
  if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, info.out()))) SetErrorInfo(0, info.get());
}

/// Runs a method of the dual interface: its error goes to the caller's error information.
template <typename Body>
HRESULT told(Body body) {
  return guarded([&] {
    try {
      return body();
    } catch (const MemberError& error) {
      tellError(error);
      return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.number);
    }
  });
}

template <typename... Pointers>
bool anyNull(Pointers... pointers) {
  return ((pointers == nullptr) || ...);
}

void require(HRESULT status, const Arguments& arguments, std::size_t index) {
  if (FAILED(status)) throw CallRefused{status, static_cast<UINT>(arguments.count() - 1 - index)};
}

/// Stores what goes out of a late-bound call, from the argument of that index on.
template <typename... Values>
void storeFrom(std::size_t index, const Arguments& arguments, Values... values) {
  ((require(store(arguments.at(index), std::move(values)), arguments, index), ++index), ...);
}

// The results are for the languages that cannot fill variables: the number of models, and of categories.

void searchByName(CatalogSearch& search, const Arguments& arguments, VARIANT* result) {
  const FoundModels found = search.search(arguments.text(0));
  const auto count = static_cast<LONG>(found.names.size());
  storeFrom(1, arguments, Array(found.names), Array(found.numbers), Array(found.flags), count);
  answer(result, static_cast<int>(count));
}

void testByName(CatalogSearch& search, const Arguments& arguments, VARIANT* result) {
  answer(result, static_cast<int>(search.testEngine(arguments.number(0))));
}

void categoriesByName(CatalogSearch& search, const Arguments& arguments, VARIANT* result) {
  const CategoryList list = search.categories();
  const auto count = static_cast<LONG>(list.names.size());
  storeFrom(0, arguments, Array(list.names), Array(list.subcategories), Array(list.subcategoryCounts), count - 1);
  answer(result, static_cast<int>(count));
}

// In the order of the interface: its identifiers are those of the table.
constexpr Member<CatalogSearch> memberTable[] = {
    {.name = L"Search", .call = searchByName, .argumentCount = 5},
    {.name = L"TestEngine", .call = testByName, .argumentCount = 1},
    {.name = L"GetCategories", .call = categoriesByName, .argumentCount = 4},
};

MemberTable<CatalogSearch> members() { return MemberTable<CatalogSearch>(memberTable); }

}  // namespace

STDMETHODIMP KeywordSearch::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IKeywordSearch) {
    *result = static_cast<IKeywordSearch*>(this);
  }
  if (id == IID_ISupportErrorInfo) *result = static_cast<ISupportErrorInfo*>(this);
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) KeywordSearch::Release() {
  const ULONG left = --references;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP KeywordSearch::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP KeywordSearch::GetTypeInfo(UINT index, LCID, ITypeInfo** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return guarded([&] {
    ComRef<ITypeLib> library;
    const HRESULT status =
        LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, reinterpret_cast<ITypeLib**>(library.out()));
    return FAILED(status) ? status : library->GetTypeInfoOfGuid(IID_IKeywordSearch, result);
  });
}

STDMETHODIMP KeywordSearch::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  return findNames(reserved, names, count, ids, [](const wchar_t* name) { return members().idOf(name); });
}

STDMETHODIMP KeywordSearch::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  const Outcome outcome{source, result, exception, badArgument};
  return members().invoke(search, id, flags, parameters, outcome, [](const CallRecord&) {});
}

STDMETHODIMP KeywordSearch::Search(BSTR* query, SAFEARRAY** names, SAFEARRAY** ids, SAFEARRAY** flags, long* count) {
  if (anyNull(query, names, ids, flags, count)) return E_POINTER;
  return told([&] {
    const FoundModels found = search.search(viewOf(*query));
    Array foundNames(found.names), foundNumbers(found.numbers), foundFlags(found.flags);
    HRESULT status = foundNames.replace(names);
    if (SUCCEEDED(status)) status = foundNumbers.replace(ids);
    if (SUCCEEDED(status)) status = foundFlags.replace(flags);
    if (SUCCEEDED(status)) *count = static_cast<long>(found.names.size());
    return status;
  });
}

STDMETHODIMP KeywordSearch::TestEngine(long number, long* result) {
  if (result == nullptr) return E_POINTER;
  return told([&] {
    *result = search.testEngine(number);
    return S_OK;
  });
}

STDMETHODIMP KeywordSearch::GetCategories(SAFEARRAY** categoryNames, SAFEARRAY** subCategoryNames,
                                          SAFEARRAY** subCategoryCounts, long* lastCategory) {
  if (anyNull(categoryNames, subCategoryNames, subCategoryCounts, lastCategory)) return E_POINTER;
  return told([&] {
    const CategoryList list = search.categories();
    Array names(list.names), subcategories(list.subcategories), counts(list.subcategoryCounts);
    HRESULT status = names.replace(categoryNames);
    if (SUCCEEDED(status)) status = subcategories.replace(subCategoryNames);
    if (SUCCEEDED(status)) status = counts.replace(subCategoryCounts);
    if (SUCCEEDED(status)) *lastCategory = static_cast<long>(list.names.size()) - 1;
    return status;
  });
}

}  // namespace nerida::host
