#include "tests/windows/catalog/prepared_search.h"

#include <atomic>
#include <string>
#include <vector>

#include "platform/win32/com.h"

namespace nerida {
namespace {

using Texts = std::vector<std::wstring>;

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

HRESULT refuse() {
  ComPtr<ICreateErrorInfo> info;
  CreateErrorInfo(info.put());
  Bstr text(L"The database is locked.");
  info->SetDescription(text.get());
  ComPtr<IErrorInfo> finished;
  info->QueryInterface(IID_IErrorInfo, finished.putVoid());
  SetErrorInfo(0, finished.get());
  return static_cast<HRESULT>(0x800A0201);  // error 513
}

class PreparedSearch final : public SearchInterface, public ISupportErrorInfo {
 public:
  virtual ~PreparedSearch() = default;

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
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override { return id == interfaceSearch ? S_OK : S_FALSE; }

  STDMETHODIMP Search(BSTR* query, SAFEARRAY** names, SAFEARRAY** ids, SAFEARRAY** flags, LONG* count) override {
    const std::wstring asked(*query, SysStringLen(*query));
    if (asked == L"refuse") return refuse();
    if (asked == L"fail") return E_OUTOFMEMORY;
    Texts found = {L"Windmill", L"Sailboat", L"No such file"};
    std::vector<LONG> numbers = {3310, 2105, 9999};
    std::vector<LONG> bits = {0, 0x20, 0};
    if (asked == L"nothing" || asked == L"rewrite") found.clear();
    if (asked == L"rewrite") SysReAllocString(query, L"rewritten");
    if (asked == L"all" || asked == L"too many") {
      const std::size_t many = asked == L"all" ? 32767 : 32768;
      found.assign(many, L"Windmill");
      numbers.assign(many, 3310);
      bits.assign(many, 0);
    }
    *count = static_cast<LONG>(found.size()) + (asked == L"short" ? 1 : 0);
    *names = arrayOf(found);
    *ids = arrayOf(numbers, VT_I4);
    *flags = arrayOf(bits, VT_I4);
    return S_OK;
  }

  STDMETHODIMP unused() override { return E_NOTIMPL; }

  STDMETHODIMP GetCategories(SAFEARRAY** names, SAFEARRAY** subNames, SAFEARRAY** subCounts, LONG* last) override {
    *names = arrayOf({L"Buildings", L"Vehicles", L"Nothing"});
    *subNames = arrayOf({L"Mills", L"Salt & Pepper", L"Boats"});
    *subCounts = arrayOf(std::vector<SHORT>{2, 1, 0}, VT_I2);
    *last = 2;
    return S_OK;
  }

 private:
  std::atomic<ULONG> references = 1;
};

}  // namespace

SearchInterface* createPreparedSearch() { return new PreparedSearch; }

}  // namespace nerida
