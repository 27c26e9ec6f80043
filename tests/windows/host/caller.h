#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "host/app/model_dispatch.h"

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

/// A document's place for an object: counts what it is told.
struct RecordingSite : ModelSite {
  int displays = 0, animations = 0, models = 0, catalogs = 0;
  void displayChanged() override { ++displays; }
  void animationChanged() override { ++animations; }
  void modelLoaded() override { ++models; }
  void catalogDone() override { ++catalogs; }
};

struct RecordingListener : CallListener {
  std::vector<std::string> lines;
  void called(const CallRecord& record) override { lines.push_back(lineOf(record)); }
};

/// An object with nothing in it, used the way the toolbar uses it: by name, late-bound.
class ObjectTest : public testing::Test {
 protected:
  ObjectTest();
  ~ObjectTest() override;

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

  /// A model of 25 frames.
  static std::filesystem::path movingModel();
  static std::filesystem::path brokenModel();
  Answer load(const std::filesystem::path& file);

  RecordingSite site;
  RecordingListener listener;
  ModelObject object{site};
  ModelDispatch* dispatch;
};

}  // namespace nerida::host
