#include "platform/win32/search_component.h"

#include <span>

#include "platform/value.h"
#include "platform/win32/com.h"
#include "platform/win32/safe_array.h"
#include "platform/win32/search_interface.h"
#include "platform/win32/status.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

// An array that a component hands over.
class ArrayResult {
 public:
  ArrayResult() = default;
  ~ArrayResult() { SafeArrayDestroy(array); }
  ArrayResult(const ArrayResult&) = delete;
  ArrayResult& operator=(const ArrayResult&) = delete;

  SAFEARRAY** put() { return &array; }
  SAFEARRAY* get() const { return array; }

 private:
  SAFEARRAY* array = nullptr;
};

// The elements of an array while it is locked.
template <class Element>
class Elements {
 public:
  explicit Elements(SAFEARRAY* source) : array(source) {
    void* start = nullptr;
    const HRESULT status = SafeArrayAccessData(array, &start);
    if (FAILED(status)) throw errorFromStatus(status);
    content = {static_cast<const Element*>(start), array->rgsabound[0].cElements};
  }
  ~Elements() { SafeArrayUnaccessData(array); }
  Elements(const Elements&) = delete;
  Elements& operator=(const Elements&) = delete;

  auto begin() const { return content.begin(); }
  auto end() const { return content.end(); }

 private:
  SAFEARRAY* array;
  std::span<const Element> content;
};

bool holds(SAFEARRAY* array, VARTYPE wanted) {
  VARTYPE type = VT_EMPTY;
  return SafeArrayGetDim(array) == 1 && SUCCEEDED(SafeArrayGetVartype(array, &type)) && type == wanted;
}

// What the array is made of as it should be is taken directly, anything else by conversion.
template <class Element, class Stored, class Convert, class ConvertValue>
ComponentArray<Element> elementsOf(SAFEARRAY* array, VARTYPE type, Convert convert, ConvertValue convertValue) {
  ComponentArray<Element> result;
  if (array == nullptr) return result;
  if (holds(array, type)) {
    result.lowerBound = static_cast<std::int32_t>(array->rgsabound[0].lLbound);
    result.elements.reserve(array->rgsabound[0].cElements);
    for (const Stored& element : Elements<Stored>(array)) result.elements.push_back(convert(element));
    return result;
  }
  const std::shared_ptr<const Array> values = fromSafeArray(array);
  if (!values) throw Error(error::typeMismatch);
  result.lowerBound = values->lowerBound;
  for (const Value& value : values->elements) result.elements.push_back(convertValue(value));
  return result;
}

std::string textOf(BSTR text) { return text == nullptr ? std::string() : utf8({text, SysStringLen(text)}); }

ComponentArray<std::string> texts(const ArrayResult& array) {
  return elementsOf<std::string, BSTR>(array.get(), VT_BSTR, textOf, toText);
}

ComponentArray<std::int32_t> numbers(const ArrayResult& array) {
  const auto same = [](LONG number) { return static_cast<std::int32_t>(number); };
  return elementsOf<std::int32_t, LONG>(array.get(), VT_I4, same, toInt32);
}

ComponentArray<std::int16_t> shortNumbers(const ArrayResult& array) {
  const auto same = [](SHORT number) { return static_cast<std::int16_t>(number); };
  return elementsOf<std::int16_t, SHORT>(array.get(), VT_I2, same, toInt16);
}

class ComSearchComponent : public SearchComponent {
 public:
  explicit ComSearchComponent(ComPtr<SearchInterface> component) : component(std::move(component)) {}

  SearchResult search(std::string& query) override {
    BSTR text = Bstr(query).release();
    ArrayResult names;
    ArrayResult ids;
    ArrayResult flags;
    LONG count = 0;
    const HRESULT status = component->Search(&text, names.put(), ids.put(), flags.put(), &count);
    query = textOf(text);
    SysFreeString(text);
    check(status);
    return {texts(names), numbers(ids), numbers(flags), static_cast<std::int32_t>(count)};
  }

  CategoryList categories() override {
    ArrayResult names;
    ArrayResult subNames;
    ArrayResult subCounts;
    LONG last = -1;
    check(component->GetCategories(names.put(), subNames.put(), subCounts.put(), &last));
    return {texts(names), texts(subNames), shortNumbers(subCounts), static_cast<std::int32_t>(last)};
  }

 private:
  void check(HRESULT status) {
    if (FAILED(status)) throw errorFromComponent(status, *component.get(), interfaceSearch);
  }

  ComPtr<SearchInterface> component;
};

}  // namespace

std::unique_ptr<SearchComponent> SystemSearchComponents::create() {
  ComPtr<SearchInterface> component;
  const HRESULT status =
      CoCreateInstance(classSearch, nullptr, CLSCTX_INPROC_SERVER, interfaceSearch, component.putVoid());
  if (status == E_OUTOFMEMORY) throw errorFromStatus(status);
  if (FAILED(status)) throw Error(error::cannotCreateObject);
  return std::make_unique<ComSearchComponent>(std::move(component));
}

}  // namespace nerida
