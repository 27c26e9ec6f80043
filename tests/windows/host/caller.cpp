#include "tests/windows/host/caller.h"

#include <gtest/gtest.h>

#include "tests/host/glb.h"

namespace nerida::host {

Value Value::i2(int value) {
  Value made;
  made.vt = VT_I2;
  made.iVal = static_cast<SHORT>(value);
  return made;
}

Value Value::i4(int value) {
  Value made;
  made.vt = VT_I4;
  made.lVal = value;
  return made;
}

Value Value::boolean(bool value) {
  Value made;
  made.vt = VT_BOOL;
  made.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return made;
}

Value Value::text(const wchar_t* value) {
  Value made;
  made.vt = VT_BSTR;
  made.bstrVal = newBstr(value);
  return made;
}

Value Value::refI4(LONG& target) {
  Value made;
  made.vt = VT_BYREF | VT_I4;
  made.plVal = &target;
  return made;
}

Value Value::refI2(SHORT& target) {
  Value made;
  made.vt = VT_BYREF | VT_I2;
  made.piVal = &target;
  return made;
}

Value Value::refVariant(VARIANT& target) {
  Value made;
  made.vt = VT_BYREF | VT_VARIANT;
  made.pvarVal = &target;
  return made;
}

DISPID Caller::find(const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<wchar_t*>(name);
  called.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

Answer Caller::use(const wchar_t* name, WORD flags, std::initializer_list<const Value*> arguments) {
  // Plain copies, so that references keep pointing at the test's variables.
  std::vector<VARIANTARG> reversed;
  for (auto each = std::rbegin(arguments); each != std::rend(arguments); ++each) reversed.push_back(**each);
  const bool assigns = (flags & DISPATCH_PROPERTYPUT) != 0;
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {reversed.data(), assigns ? &put : nullptr, static_cast<UINT>(reversed.size()),
                           assigns ? 1U : 0U};
  Answer answer;
  EXCEPINFO exception = {};
  answer.status = called.Invoke(find(name), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer.result,
                                &exception, &answer.badArgument);
  answer.errorNumber = HRESULT_CODE(exception.scode);
  answer.description = viewOf(exception.bstrDescription);
  answer.source = viewOf(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  return answer;
}

LONG Caller::numberOf(const wchar_t* name) {
  const Answer answer = get(name);
  EXPECT_EQ(answer.status, S_OK) << utf8(name);
  EXPECT_EQ(answer.result.vt, VT_I4) << utf8(name);
  return answer.result.lVal;
}

bool Caller::flagOf(const wchar_t* name) {
  const Answer answer = get(name);
  EXPECT_EQ(answer.status, S_OK) << utf8(name);
  EXPECT_EQ(answer.result.vt, VT_BOOL) << utf8(name);
  EXPECT_TRUE(answer.result.boolVal == VARIANT_TRUE || answer.result.boolVal == VARIANT_FALSE) << utf8(name);
  return answer.result.boolVal == VARIANT_TRUE;
}

std::wstring Caller::textOf(const wchar_t* name) {
  const Answer answer = get(name);
  EXPECT_EQ(answer.status, S_OK) << utf8(name);
  EXPECT_EQ(answer.result.vt, VT_BSTR) << utf8(name);
  return answer.result.vt == VT_BSTR ? std::wstring(viewOf(answer.result.bstrVal)) : L"";
}

std::filesystem::path movingModel() { return saved(movingTriangleFile().bytes(), "flag.twe"); }

std::filesystem::path brokenModel() {
  Bytes bytes = triangleFile().bytes();
  bytes.resize(bytes.size() / 2);
  return saved(bytes, "torn.twe");
}

}  // namespace nerida::host
