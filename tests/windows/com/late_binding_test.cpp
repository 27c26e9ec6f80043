// What an object written in C++ sees of the library's late-bound calls, and what its failures become.

#include <gtest/gtest.h>

#include <array>

#include "platform/error.h"
#include "platform/win32/automation.h"
#include "platform/win32/com.h"
#include "tests/windows/com/recording_object.h"

namespace nerida {
namespace {

class LateBinding : public testing::Test {
 protected:
  // The number and text of the error that an access raises; 0 when it raises none.
  template <typename Access>
  std::pair<std::int32_t, std::string> failure(Access access) {
    try {
      access();
    } catch (const Error& error) {
      return {error.number, error.description};
    }
    return {0, ""};
  }

  std::pair<std::int32_t, std::string> failureOf(RecordingObject::Member member) {
    model.add(L"Member", std::move(member));
    return failure([&] { object->get("Member"); });
  }

  RecordingObject model;
  ObjectRef object = wrapDispatch(&model);
};

TEST_F(LateBinding, HoldsOneReferenceAndGivesItBack) {
  EXPECT_EQ(model.references, 2U);
  object.reset();
  EXPECT_EQ(model.references, 1U);
  EXPECT_EQ(wrapDispatch(nullptr), nullptr);
}

TEST_F(LateBinding, LooksTheNameUpAtEveryUse) {
  model.add(L"ModelName", [](const auto&) { return S_OK; });
  object->get("ModelName");
  object->get("ModelName");
  object->let("ModelName", std::string("Duck"));
  EXPECT_EQ(model.lookUps, 3);
}

TEST_F(LateBinding, GetsAsPropertyOrFunctionAndLetsAsPropertyPut) {
  model.add(L"LightIsOn", [](const RecordingObject::Call& call) {
    if (call.parameters.cArgs == 1) {
      EXPECT_EQ(call.parameters.cNamedArgs, 1U);
      EXPECT_EQ(call.parameters.rgdispidNamedArgs[0], DISPID_PROPERTYPUT);
      EXPECT_EQ(call.argument(0).boolVal, VARIANT_TRUE);
    }
    return S_OK;
  });
  object->get("LightIsOn");
  object->let("LightIsOn", true);
  ASSERT_EQ(model.requests.size(), 2U);
  EXPECT_EQ(model.requests[0].flags, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
  EXPECT_EQ(model.requests[1].flags, DISPATCH_PROPERTYPUT);
  EXPECT_EQ(model.requests[1].types, std::vector<VARTYPE>{VT_BOOL});
}

TEST_F(LateBinding, PassesEveryKindOfArgumentExactly) {
  model.add(L"Take", [](const RecordingObject::Call& call) {
    EXPECT_EQ(call.argument(0).iVal, -2);
    EXPECT_EQ(call.argument(1).lVal, 65536);
    EXPECT_STREQ(call.argument(2).bstrVal, L"\x00c4hre");
    return S_OK;
  });
  std::array<Argument, 4> arguments{Argument(std::int16_t{-2}), Argument(std::int32_t{65536}),
                                    Argument(std::string("\xc3\x84hre")), Argument(Value())};
  object->call("Take", arguments);
  ASSERT_EQ(model.requests.size(), 1U);
  EXPECT_EQ(model.requests[0].flags, DISPATCH_METHOD);
  EXPECT_EQ(model.requests[0].types, (std::vector<VARTYPE>{VT_I2, VT_I4, VT_BSTR, VT_EMPTY}));
}

TEST_F(LateBinding, FillsTypedVariablesInPlace) {
  model.add(L"GetLightDirection", [](const RecordingObject::Call& call) {
    *call.argument(0).plVal = 40;
    *call.argument(1).plVal = -70;
    SysReAllocString(call.argument(2).pbstrVal, L"north");
    call.result->vt = VT_I4;
    call.result->lVal = 0;
    return S_OK;
  });
  Value x = std::int32_t{0};
  Value y = std::int32_t{0};
  Value name = std::string("nowhere");
  std::array<Argument, 3> arguments{Argument(&x), Argument(&y), Argument(&name)};
  EXPECT_EQ(toInt32(object->call("GetLightDirection", arguments)), 0);
  EXPECT_EQ(model.requests[0].types, (std::vector<VARTYPE>{VT_BYREF | VT_I4, VT_BYREF | VT_I4, VT_BYREF | VT_BSTR}));
  EXPECT_EQ(toInt32(x), 40);
  EXPECT_EQ(toInt32(y), -70);
  EXPECT_EQ(toText(name), "north");
}

TEST_F(LateBinding, EmptyVariablesAreVariantsThatMayReceiveArrays) {
  model.add(L"GetLookStyleList", [](const RecordingObject::Call& call) {
    SAFEARRAY* names = SafeArrayCreateVector(VT_BSTR, 3, 2);
    LONG index = 3;
    SafeArrayPutElement(names, &index, Bstr(std::string_view("Ink")).get());
    index = 4;
    SafeArrayPutElement(names, &index, Bstr(std::string_view("Clay")).get());
    call.argument(1).pvarVal->vt = VT_ARRAY | VT_BSTR;
    call.argument(1).pvarVal->parray = names;
    return S_OK;
  });
  std::array<Value, 3> variables;
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  object->call("GetLookStyleList", arguments);
  EXPECT_EQ(model.requests[0].types, (std::vector<VARTYPE>(3, VT_BYREF | VT_VARIANT)));
  EXPECT_TRUE(variables[0].isEmpty());
  const auto* names = std::get_if<std::shared_ptr<const Array>>(&variables[1]);
  ASSERT_NE(names, nullptr);
  EXPECT_EQ((*names)->lowerBound, 3);
  ASSERT_EQ((*names)->elements.size(), 2U);
  EXPECT_EQ(toText((*names)->elements[1]), "Clay");
}

TEST_F(LateBinding, ArraysOfSeveralDimensionsAreNoArrays) {
  model.add(L"Grid", [](const RecordingObject::Call& call) {
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    call.result->vt = VT_ARRAY | VT_I4;
    call.result->parray = SafeArrayCreate(VT_I4, 2, bounds);
    return S_OK;
  });
  EXPECT_TRUE(std::holds_alternative<ObjectRef>(object->get("Grid")));
}

TEST_F(LateBinding, RetriesATypedReferenceOnlyWhenTheObjectRefusedTheArgument) {
  int runs = 0;
  model.add(L"Fussy", [](const RecordingObject::Call& call) {
    if (call.argument(0).vt != (VT_BYREF | VT_VARIANT)) {
      *call.argumentError = 0;
      return DISP_E_TYPEMISMATCH;
    }
    VariantClear(call.argument(0).pvarVal);
    call.argument(0).pvarVal->vt = VT_I4;
    call.argument(0).pvarVal->lVal = 9;
    return S_OK;
  });
  model.add(L"Failing", [&](const RecordingObject::Call&) {
    ++runs;
    return DISP_E_TYPEMISMATCH;
  });
  model.add(L"Unwritten", [&](const RecordingObject::Call&) {
    ++runs;
    return E_NOTIMPL;
  });
  Value variable = std::int32_t{1};
  std::array<Argument, 1> arguments{Argument(&variable)};
  object->call("Fussy", arguments);
  EXPECT_EQ(toInt32(variable), 9);
  EXPECT_EQ(failure([&] { object->call("Failing", arguments); }).first, error::typeMismatch);
  EXPECT_EQ(failure([&] { object->call("Unwritten", arguments); }).first, error::notImplemented);
  EXPECT_EQ(runs, 2);
}

TEST_F(LateBinding, AFailingGetRunsOnce) {
  int runs = 0;
  const auto error = failureOf([&](const auto&) {
    ++runs;
    return E_FAIL;
  });
  EXPECT_EQ(error, std::pair(static_cast<std::int32_t>(E_FAIL), std::string("Automation error")));
  EXPECT_EQ(runs, 1);
}

TEST_F(LateBinding, AMissingMemberIsError438) {
  const auto error = failure([&] { object->get("Nothing"); });
  EXPECT_EQ(error, std::pair(438, std::string("Object doesn't support this property or method")));
}

TEST_F(LateBinding, StatusCodesBecomeRunTimeErrors) {
  struct Row {
    HRESULT status;
    std::int32_t number;
    const char* text;
  };
  const Row rows[] = {
      {DISP_E_UNKNOWNNAME, 438, "Object doesn't support this property or method"},
      {DISP_E_MEMBERNOTFOUND, 438, "Object doesn't support this property or method"},
      {DISP_E_TYPEMISMATCH, 13, "Type mismatch"},
      {DISP_E_OVERFLOW, 6, "Overflow"},
      {DISP_E_BADINDEX, 9, "Subscript out of range"},
      {E_OUTOFMEMORY, 7, "Out of memory"},
      {E_INVALIDARG, 5, "Invalid procedure call or argument"},
      {DISP_E_BADPARAMCOUNT, 450, "Wrong number of arguments or invalid property assignment"},
      {DISP_E_PARAMNOTOPTIONAL, 449, "Argument not optional"},
      {E_NOTIMPL, 445, "Object doesn't support this action"},
      {E_NOINTERFACE, 430, "Class does not support Automation or does not support expected interface"},
      {REGDB_E_CLASSNOTREG, 429, "ActiveX component can't create object"},
      {E_ACCESSDENIED, static_cast<std::int32_t>(E_ACCESSDENIED), "Automation error"},
      {static_cast<HRESULT>(0x800A0007), 7, "Out of memory"},
  };
  for (const Row& row : rows) {
    const auto error = failureOf([&](const auto&) { return row.status; });
    EXPECT_EQ(error, std::pair(row.number, std::string(row.text))) << std::hex << row.status;
  }
}

TEST_F(LateBinding, ExceptionsCarryNumberAndDescription) {
  const auto raised = [](WORD code, SCODE scode, const wchar_t* text) {
    return [=](const RecordingObject::Call& call) {
      call.exception->wCode = code;
      call.exception->scode = scode;
      call.exception->bstrSource = SysAllocString(L"model");
      if (text != nullptr) call.exception->bstrDescription = SysAllocString(text);
      return DISP_E_EXCEPTION;
    };
  };
  EXPECT_EQ(failureOf(raised(53, 0, L"No such model")), std::pair(53, std::string("No such model")));
  EXPECT_EQ(failureOf(raised(7, E_FAIL, nullptr)), std::pair(7, std::string("Out of memory")));
  EXPECT_EQ(failureOf(raised(0, static_cast<SCODE>(0x800A000D), nullptr)), std::pair(13, std::string("Type mismatch")));
  EXPECT_EQ(failureOf(raised(0, E_OUTOFMEMORY, L"")), std::pair(7, std::string("Out of memory")));
  EXPECT_EQ(failureOf(raised(0, E_UNEXPECTED, L"Oops")),
            std::pair(static_cast<std::int32_t>(E_UNEXPECTED), std::string("Oops")));
}

HRESULT WINAPI fillIn(EXCEPINFO* exception) {
  exception->wCode = 9;
  exception->bstrDescription = SysAllocString(L"Filled in later");
  return S_OK;
}

TEST_F(LateBinding, RunsTheDeferredFillInOfAnException) {
  const auto error = failureOf([](const RecordingObject::Call& call) {
    call.exception->pfnDeferredFillIn = fillIn;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error, std::pair(9, std::string("Filled in later")));
}

TEST_F(LateBinding, TheObjectMayLetGoOfItsLastReferenceInsideACall) {
  model.add(L"StopTimer", [&](const auto&) {
    object.reset();
    EXPECT_GT(model.references, 1U);
    return S_OK;
  });
  object.get()->call("StopTimer", {});
  EXPECT_EQ(model.references, 1U);
  EXPECT_EQ(object, nullptr);
}

TEST_F(LateBinding, NumbersOfEveryTypeAreRead) {
  model.add(L"Long64", [](const RecordingObject::Call& call) {
    call.result->vt = VT_I8;
    call.result->llVal = 70000;
    return S_OK;
  });
  model.add(L"Currency", [](const RecordingObject::Call& call) {
    call.result->vt = VT_CY;
    call.result->cyVal.int64 = 25000;
    return S_OK;
  });
  EXPECT_EQ(toInt32(object->get("Long64")), 70000);
  EXPECT_EQ(toInt16(object->get("Currency")), 2);  // 2.5, half to even
}

}  // namespace
}  // namespace nerida
