#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "host/win32/automation.h"

namespace nerida::host {

/// An argument or a result as a test writes it.
struct Value : Variant {
  Value() = default;
  Value(Value&& other) noexcept {
    static_cast<VARIANT&>(*this) = other;
    VariantInit(&other);
  }
  static Value empty() { return {}; }
  static Value i2(int value);
  static Value i4(int value);
  static Value boolean(bool value);
  static Value text(const wchar_t* value);
  static Value refI4(LONG& target);
  static Value refI2(SHORT& target);
  static Value refVariant(VARIANT& target);
};

/// The outcome of one call.
struct Answer {
  HRESULT status = S_OK;
  Value result;
  int errorNumber = 0;
  std::wstring description, source;
  UINT badArgument = 99;
};

/// An automation object used late-bound, by name.
class Caller {
 public:
  explicit Caller(IDispatch& called) : called(called) {}

  DISPID find(const wchar_t* name);
  Answer use(const wchar_t* name, WORD flags, std::initializer_list<const Value*> arguments);
  Answer get(const wchar_t* name) { return use(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}); }
  Answer let(const wchar_t* name, const Value& value) { return use(name, DISPATCH_PROPERTYPUT, {&value}); }
  template <typename... Values>
  Answer call(const wchar_t* name, const Values&... values) {
    return use(name, DISPATCH_METHOD, {&values...});
  }

  // Fail the test unless the member answers with a value of just this type.
  LONG numberOf(const wchar_t* name);
  bool flagOf(const wchar_t* name);
  std::wstring textOf(const wchar_t* name);

 private:
  IDispatch& called;
};

/// A model of 25 frames, in a file.
std::filesystem::path movingModel();
std::filesystem::path brokenModel();

}  // namespace nerida::host
