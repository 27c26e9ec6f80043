#include "tests/windows/catalog/prepared_search.h"

#include <string>
#include <vector>

#include "platform/win32/com.h"
#include "tests/windows/counted_object.h"

namespace nerida {
namespace {

using Texts = std::vector<std::wstring>;

constexpr LONG windmill = 3310;
constexpr LONG sailboat = 2105;
constexpr LONG nobodysNumber = 9999;
constexpr LONG animated = 0x20;

struct Answer {
  Texts names;
  std::vector<LONG> numbers;
  std::vector<LONG> flags;
};

Answer repeated(std::size_t count) {
  return {Texts(count, L"Windmill"), std::vector<LONG>(count, windmill), std::vector<LONG>(count, 0)};
}

Answer answerTo(const std::wstring& query) {
  if (query == L"nothing" || query == L"rewrite") return {};
  if (query == L"all") return repeated(32767);
  if (query == L"too many") return repeated(32768);
  if (query == L"odd") {
    return {{L"100 % \"Salt & Pepper\"", L"M\u00FChle \u98A8\u8ECA", std::wstring(300, L'w'), L"&File\tOpen"},
            {windmill, sailboat, windmill, sailboat},
            {animated, 0, 0, animated}};
  }
  return {{L"Windmill", L"Sailboat", L"No such file"}, {windmill, sailboat, nobodysNumber}, {0, animated, 0}};
}

bool categoriesFail() { return GetEnvironmentVariableW(L"PREPARED_SEARCH_REFUSES", nullptr, 0) != 0; }

SAFEARRAY* arrayOf(const Texts& texts) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
  for (LONG i = 0; i < static_cast<LONG>(texts.size()); ++i) {
    const Bstr text(texts[static_cast<std::size_t>(i)]);
    SafeArrayPutElement(array, &i, text.get());
  }
  return array;
}

template <class Number>
SAFEARRAY* arrayOf(const std::vector<Number>& numbers, VARTYPE type) {
  SAFEARRAY* array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(numbers.size()));
  void* start = nullptr;
  SafeArrayAccessData(array, &start);
  std::copy(numbers.begin(), numbers.end(), static_cast<Number*>(start));
  SafeArrayUnaccessData(array);
  return array;
}

HRESULT refusal() {
  ComPtr<ICreateErrorInfo> info;
  CreateErrorInfo(info.put());
  Bstr text(L"The database is locked.");
  info->SetDescription(text.get());
  ComPtr<IErrorInfo> finished;
  info->QueryInterface(IID_IErrorInfo, finished.putVoid());
  SetErrorInfo(0, finished.get());
  return static_cast<HRESULT>(0x800A0201);  // error 513
}

class PreparedSearch final : public CountedObject<SearchInterface, ISupportErrorInfo> {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (id == IID_IUnknown || id == IID_IDispatch || id == interfaceSearch) {
      *result = static_cast<SearchInterface*>(this);
    } else if (id == IID_ISupportErrorInfo) {
      *result = static_cast<ISupportErrorInfo*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override { return id == interfaceSearch ? S_OK : S_FALSE; }

  STDMETHODIMP Search(BSTR* query, SAFEARRAY** names, SAFEARRAY** ids, SAFEARRAY** flags, LONG* count) override {
    const std::wstring asked(*query, SysStringLen(*query));
    if (asked == L"refuse") return refusal();
    if (asked == L"fail") return E_OUTOFMEMORY;
    if (asked == L"rewrite") SysReAllocString(query, L"rewritten");
    const Answer answer = answerTo(asked);
    *count = static_cast<LONG>(answer.names.size()) + (asked == L"short" ? 1 : 0);
    *names = arrayOf(answer.names);
    *ids = arrayOf(answer.numbers, VT_I4);
    *flags = arrayOf(answer.flags, VT_I4);
    return S_OK;
  }

  STDMETHODIMP unused() override { return E_NOTIMPL; }

  STDMETHODIMP GetCategories(SAFEARRAY** names, SAFEARRAY** subNames, SAFEARRAY** subCounts, LONG* last) override {
    if (categoriesFail()) return refusal();
    *names = arrayOf({L"Buildings", L"Vehicles", L"Nothing"});
    *subNames = arrayOf({L"Mills", L"Salt & Pepper", L"Boats"});
    *subCounts = arrayOf(std::vector<SHORT>{2, 1, 0}, VT_I2);
    *last = 2;
    return S_OK;
  }
};

}  // namespace

SearchInterface* createPreparedSearch() { return new PreparedSearch; }

}  // namespace nerida
