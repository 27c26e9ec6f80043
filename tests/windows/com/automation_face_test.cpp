// The control's dual interface: the virtual table, and late binding with every form of argument that clients send.

#include <gtest/gtest.h>

#include <array>

#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/model.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

class AutomationFace : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  void SetUp() override {
    control = module.create();
    ASSERT_TRUE(control);
  }
  void TearDown() override { EXPECT_EQ(boxes.seen(), std::vector<std::string>()); }

  DISPID id(const wchar_t* name) {
    auto* asked = const_cast<LPOLESTR>(name);
    DISPID result = DISPID_UNKNOWN;
    EXPECT_EQ(control->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &result), S_OK) << utf8(name);
    return result;
  }

  // The arguments stand in the caller's order.
  HRESULT invoke(const wchar_t* name, std::vector<VARIANT> arguments, VARIANT* result, UINT* refused = nullptr) {
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    return control->Invoke(id(name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, result, nullptr,
                           refused);
  }

  HRESULT show(VARIANT x, VARIANT y) {
    Variant result;
    return invoke(L"ToolbarShow", {x, y}, &result);
  }

  void bind() {
    IDispatch* object = &model;
    LONG window = 0;
    LONG number = -1;
    ASSERT_EQ(control->ToolbarInit(&object, &window, &number), S_OK);
    ASSERT_EQ(number, 0);
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  Model model;
  const ControlModule module;
  ComPtr<_NeridaWindow> control;
};

VARIANT number(LONG value, VARTYPE type = VT_I4) {
  VARIANT result = {};
  result.vt = type;
  result.lVal = value;
  return result;
}

VARIANT reference(VARIANT& variable) {
  VARIANT result = {};
  result.vt = VT_BYREF | VT_VARIANT;
  result.pvarVal = &variable;
  return result;
}

TEST_F(AutomationFace, MethodsStandInTheOrderOfTheirSlots) {
  const wchar_t* names[] = {L"IsToolbarVisible", L"IsCatalogVisible", L"ToolbarDispose", L"ToolbarShow", L"ToolbarHide",
                            L"ToolbarInit",      L"ShowAboutBox",     L"ShowHelp",       L"ShowCatalog"};
  ComPtr<ITypeInfo> info;
  ComPtr<ITypeInfo> table;
  HREFTYPE other = 0;
  ASSERT_EQ(control->GetTypeInfo(0, 0, info.put()), S_OK);
  ASSERT_EQ(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &other), S_OK);
  ASSERT_EQ(info->GetRefTypeInfo(other, table.put()), S_OK);
  for (UINT i = 0; i < 9; ++i) {
    EXPECT_EQ(id(names[i]), static_cast<DISPID>(i + 1));
    FUNCDESC* description = nullptr;
    ASSERT_EQ(table->GetFuncDesc(i, &description), S_OK);
    EXPECT_EQ(description->memid, static_cast<DISPID>(i + 1));
    EXPECT_EQ(description->oVft, static_cast<short>((7 + i) * sizeof(void*)));
    table->ReleaseFuncDesc(description);
  }
}

TEST_F(AutomationFace, EveryInterfaceIsOneObject) {
  ComPtr<IUnknown> identity;
  ASSERT_EQ(control->QueryInterface(IID_IUnknown, identity.putVoid()), S_OK);
  for (const IID* interfaceId :
       {&IID_IDispatch, &IID_IOleObject, &IID_IOleWindow, &IID_IOleInPlaceObject, &IID_IOleControl, &IID_IPersist,
        &IID_IPersistStreamInit, &IID_IPersistPropertyBag, &IID_IProvideClassInfo2, &IID_IViewObject2}) {
    ComPtr<IUnknown> face;
    ComPtr<IUnknown> back;
    ASSERT_EQ(control->QueryInterface(*interfaceId, face.putVoid()), S_OK);
    ASSERT_EQ(face->QueryInterface(IID_IUnknown, back.putVoid()), S_OK);
    EXPECT_EQ(back.get(), identity.get());
  }
  ComPtr<IUnknown> none;
  EXPECT_EQ(control->QueryInterface(IID_IStorage, none.putVoid()), E_NOINTERFACE);
}

TEST_F(AutomationFace, ShowsAndHidesThroughTheVirtualTable) {
  bind();
  SHORT x = 30;
  SHORT y = 40;
  LONG window = 0;
  VARIANT_BOOL visible = VARIANT_FALSE;
  ASSERT_EQ(control->ToolbarShow(&x, &y, &window), S_OK);
  RECT place = {};
  ASSERT_TRUE(GetWindowRect(reinterpret_cast<HWND>(static_cast<LONG_PTR>(window)), &place));
  EXPECT_EQ(place.left, 30);
  EXPECT_EQ(place.top, 40);
  control->IsToolbarVisible(&visible);
  EXPECT_EQ(visible, VARIANT_TRUE);
  EXPECT_EQ(model.values[L"IsToolbarShowing"].boolVal, VARIANT_TRUE);
  LONG result = -1;
  EXPECT_EQ(control->ToolbarHide(&result), S_OK);
  EXPECT_EQ(result, 0);
  control->IsToolbarVisible(&visible);
  EXPECT_EQ(visible, VARIANT_FALSE);
  EXPECT_EQ(control->ToolbarDispose(&result), S_OK);
  EXPECT_EQ(model.references, 1U);
}

TEST_F(AutomationFace, TakesValuesReferencesAndOtherTypes) {
  bind();
  Variant text;
  text.vt = VT_BSTR;
  text.bstrVal = SysAllocString(L"50");
  Variant y;
  y.vt = VT_R8;
  y.dblVal = 60.4;
  EXPECT_EQ(show(number(30), number(40, VT_I2)), S_OK);
  EXPECT_EQ(show(reference(text), reference(y)), S_OK);
  EXPECT_STREQ(text.bstrVal, L"50");  // untouched, as no place was computed
  EXPECT_EQ(y.dblVal, 60.4);
}

TEST_F(AutomationFace, WritesAComputedPlaceBackIntoTheCallersVariables) {
  HWND host = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 210, 120, 300, 200, nullptr,
                              nullptr, nullptr, nullptr);
  Variant result;
  ASSERT_EQ(invoke(L"ToolbarInit",
                   {[&] {
                      VARIANT object = {};
                      object.vt = VT_DISPATCH;
                      object.pdispVal = &model;
                      return object;
                    }(),
                    number(static_cast<LONG>(reinterpret_cast<LONG_PTR>(host)))},
                   &result),
            S_OK);
  EXPECT_EQ(result.lVal, 0);
  Variant x;  // empty, as a script's new variable
  LONG y = 250;
  VARIANT typed = {};
  typed.vt = VT_BYREF | VT_I4;
  typed.plVal = &y;
  EXPECT_EQ(show(reference(x), typed), S_OK);
  EXPECT_EQ(x.vt, VT_I2);
  EXPECT_EQ(x.iVal, 210);
  EXPECT_EQ(y, 120);
  DestroyWindow(host);
}

TEST_F(AutomationFace, RefusesWhatDoesNotFitWithoutEnteringTheMethod) {
  bind();
  UINT refused = 99;
  Variant result;
  EXPECT_EQ(invoke(L"ToolbarShow", {number(40000), number(1)}, &result, &refused), DISP_E_OVERFLOW);
  EXPECT_EQ(refused, 1U);
  EXPECT_EQ(invoke(L"ToolbarShow", {number(1), number(-40000)}, &result, &refused), DISP_E_OVERFLOW);
  EXPECT_EQ(refused, 0U);
  EXPECT_EQ(model.values[L"IsToolbarShowing"].boolVal, VARIANT_FALSE);
  EXPECT_EQ(invoke(L"ToolbarInit", {number(5), number(0)}, &result), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(invoke(L"ToolbarShow", {number(1)}, &result), DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(invoke(L"ToolbarHide", {number(1)}, &result), DISP_E_BADPARAMCOUNT);
}

// What a client sends for "ToolbarShow y:=40, x:=30".
TEST_F(AutomationFace, TakesArgumentsByName) {
  bind();
  OLECHAR method[] = L"ToolbarShow";
  OLECHAR second[] = L"y";
  OLECHAR first[] = L"x";
  OLECHAR* names[] = {method, second, first};
  DISPID ids[3] = {};
  ASSERT_EQ(control->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids), S_OK);
  VARIANT values[] = {number(40), number(30)};
  DISPPARAMS parameters = {values, ids + 1, 2, 2};
  Variant window;
  ASSERT_EQ(control->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, &window, nullptr, nullptr), S_OK);
  RECT place = {};
  ASSERT_TRUE(GetWindowRect(reinterpret_cast<HWND>(static_cast<LONG_PTR>(window.lVal)), &place));
  EXPECT_EQ(place.left, 30);
  EXPECT_EQ(place.top, 40);
}

TEST_F(AutomationFace, RefusesNamesThatNoArgumentHas) {
  bind();
  VARIANT values[] = {number(40), number(30)};
  DISPID strange[] = {1, 7};
  DISPPARAMS parameters = {values, strange, 2, 2};
  UINT refused = 99;
  const auto show = [&] {
    return control->Invoke(4, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, &refused);
  };
  EXPECT_EQ(show(), DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(refused, 1U);
  parameters.cArgs = 1;
  EXPECT_EQ(show(), E_INVALIDARG) << "more names than arguments";
  DISPID id = 0;
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &id), E_INVALIDARG);
  EXPECT_EQ(model.values[L"IsToolbarShowing"].boolVal, VARIANT_FALSE);
}

struct Attempt {
  const ControlModule& module;
  HRESULT status;
};

DWORD WINAPI createElsewhere(void* parameter) {
  auto& attempt = *static_cast<Attempt*>(parameter);
  CoInitialize(nullptr);
  ComPtr<IUnknown> made;
  attempt.status = attempt.module.factory()->CreateInstance(nullptr, IID_IUnknown, made.putVoid());
  EXPECT_EQ(static_cast<bool>(made), SUCCEEDED(attempt.status));
  made = {};
  CoUninitialize();
  return 0;
}

HRESULT createOnAnotherThread(const ControlModule& module) {
  Attempt attempt = {module, E_FAIL};
  HANDLE thread = CreateThread(nullptr, 0, createElsewhere, &attempt, 0, nullptr);
  WaitForSingleObject(thread, 20000);
  CloseHandle(thread);
  return attempt.status;
}

// There is one toolbar in a process, and its windows belong to the thread that made them.
TEST_F(AutomationFace, ServesOneThreadAtATime) {
  bind();
  EXPECT_EQ(createOnAnotherThread(module), RPC_E_WRONG_THREAD);
  VARIANT_BOOL visible = VARIANT_TRUE;
  EXPECT_EQ(control->IsToolbarVisible(&visible), S_OK);
  control = {};
  EXPECT_EQ(createOnAnotherThread(module), S_OK);
  EXPECT_EQ(module.call("DllCanUnloadNow"), S_OK);
  control = module.create();
  ASSERT_TRUE(control);
  bind();
}

TEST_F(AutomationFace, HelpAnswersAnEmptyVariant) {
  Variant result;
  result.vt = VT_I4;
  EXPECT_EQ(invoke(L"ShowHelp", {}, &result), S_OK);
  EXPECT_EQ(result.vt, VT_EMPTY);
}

TEST_F(AutomationFace, TheClientMayReleaseItsLastReferenceInsideACall) {
  bind();
  _NeridaWindow* last = control.release();
  bool released = false;
  model.used = [&](const std::wstring& member) {
    if (member != L"IsToolbarShowing" || released) return;
    released = true;
    last->Release();
  };
  SHORT x = 10;
  SHORT y = 10;
  LONG window = 0;
  EXPECT_EQ(last->ToolbarShow(&x, &y, &window), S_OK);
  EXPECT_TRUE(released);
  EXPECT_EQ(model.references, 1U);  // the control has gone and has let go of the model
  EXPECT_EQ(module.call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace nerida
