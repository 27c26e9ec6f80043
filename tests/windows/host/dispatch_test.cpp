#include <set>

#include "tests/windows/host/object_test.h"

namespace nerida::host {
namespace {

class Dispatch : public ObjectTest {};

// What the toolbar, its popups and the catalog use, and how.
struct Contract {
  const wchar_t* name;
  bool get, let;
  int callArguments;  // -1: not a call
};

constexpr Contract contract[] = {
    {L"ModelName", true, true, -1},
    {L"TarnwellXFile", false, true, -1},
    {L"ModelScale", false, true, -1},
    {L"RefreshDisplay", false, false, 0},
    {L"InterfaceFlags", true, false, -1},
    {L"IsToolbarShowing", true, true, -1},
    {L"IsCatalogShowing", true, true, -1},
    {L"DoneShowingModelCatalog", false, true, -1},
    {L"MoveX", false, false, 1},
    {L"MoveY", false, false, 1},
    {L"RotateX", false, false, 1},
    {L"RotateY", false, false, 1},
    {L"RotateZ", false, false, 1},
    {L"ScaleModel", false, false, 1},
    {L"ResetHome", false, false, 0},
    {L"SetOrientation", false, false, 3},
    {L"GetLookStyleList", false, false, 3},
    {L"LookStyleName", true, false, -1},
    {L"LookStyle", false, true, -1},
    {L"SurfaceColor", true, true, -1},
    {L"LineColor", true, true, -1},
    {L"BackgroundColor", true, true, -1},
    {L"IsSurfaceColorDefault", true, false, -1},
    {L"IsLineColorDefault", true, false, -1},
    {L"IsBackgroundDefault", true, false, -1},
    {L"RestoreDefaultSurfaceColor", false, false, 0},
    {L"RestoreDefaultLineColor", false, false, 0},
    {L"RestoreDefaultBackgroundColor", false, false, 0},
    {L"LineThicknessScale", true, true, -1},
    {L"LightIsOn", true, true, -1},
    {L"SetLightDirection", false, false, 3},
    {L"GetLightDirection", false, false, 3},
    {L"AnimationFrameCount", true, false, -1},
    {L"AnimationCurrentFrame", true, true, -1},
    {L"AnimationIncrementFrame", false, false, 0},
    {L"AnimationDecrementFrame", false, false, 0},
    {L"AnimationState", true, true, -1},
    {L"AnimationLoopState", true, true, -1},
    {L"StopTimer", false, false, 0},
    {L"StartTimer", false, false, 0},
};

TEST_F(Dispatch, everyMemberOfTheContractIsThereAndNoOther) {
  std::set<DISPID> ids;
  for (const Contract& row : contract) {
    const DISPID id = find(row.name);
    EXPECT_GT(id, 0) << utf8(row.name);
    ids.insert(id);
  }
  EXPECT_EQ(ids.size(), std::size(contract));
  EXPECT_EQ(modelMembers().size(), std::size(contract));
}

TEST_F(Dispatch, membersCanBeUsedInTheirOwnWaysOnly) {
  for (const Contract& row : contract) {
    const HRESULT got = use(row.name, DISPATCH_PROPERTYGET, {}).status;
    EXPECT_EQ(got, row.get ? S_OK : DISP_E_MEMBERNOTFOUND) << "get " << utf8(row.name);
    // An object is no value for anything, so nothing is changed by trying.
    const Value nothing = Value::empty();
    const HRESULT put = use(row.name, DISPATCH_PROPERTYPUT, {&nothing, &nothing}).status;
    EXPECT_EQ(put, row.let ? DISP_E_BADPARAMCOUNT : DISP_E_MEMBERNOTFOUND) << "let " << utf8(row.name);
    const HRESULT called = use(row.name, DISPATCH_METHOD, {&nothing, &nothing}).status;
    EXPECT_EQ(called, row.callArguments < 0 ? DISP_E_MEMBERNOTFOUND : DISP_E_BADPARAMCOUNT) << utf8(row.name);
  }
}

TEST_F(Dispatch, callsNeedTheirNumberOfArguments) {
  const Value one = Value::i2(1);
  for (const Contract& row : contract) {
    if (row.callArguments < 0) continue;
    if (row.callArguments != 0) {
      EXPECT_EQ(call(row.name).status, DISP_E_BADPARAMCOUNT) << utf8(row.name);
    }
    if (row.callArguments != 1) {
      EXPECT_EQ(call(row.name, one).status, DISP_E_BADPARAMCOUNT) << utf8(row.name);
    }
    if (row.callArguments != 3) {
      EXPECT_EQ(call(row.name, one, one, one).status, DISP_E_BADPARAMCOUNT) << utf8(row.name);
    }
  }
}

TEST_F(Dispatch, namesAreTheSameInSmallLetters) { EXPECT_EQ(find(L"rotatex"), find(L"RotateX")); }

TEST_F(Dispatch, otherNamesAreUnknown) {
  auto* name = const_cast<wchar_t*>(L"Explode");
  DISPID id = 5;
  EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
  DISPPARAMS none = {};
  for (const DISPID wrong :
       {DISPID{DISPID_UNKNOWN}, DISPID{DISPID_VALUE}, DISPID{1} + static_cast<DISPID>(std::size(contract))}) {
    EXPECT_EQ(dispatch->Invoke(wrong, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
  }
}

TEST_F(Dispatch, argumentsHaveNoNames) {
  wchar_t* names[] = {const_cast<wchar_t*>(L"RotateX"), const_cast<wchar_t*>(L"steps")};
  DISPID ids[2] = {};
  EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[0], find(L"RotateX"));
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
  DISPID first = 0;
  VARIANTARG step = Value::i2(1);
  DISPPARAMS named = {&step, &first, 1, 1};
  EXPECT_EQ(dispatch->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &named, nullptr, nullptr, nullptr),
            DISP_E_NONAMEDARGS);
}

TEST_F(Dispatch, convertsArgumentsLikeAutomation) {
  EXPECT_EQ(let(L"AnimationLoopState", Value::i4(7)).status, S_OK);
  EXPECT_TRUE(flagOf(L"AnimationLoopState"));
  EXPECT_EQ(let(L"LineThicknessScale", Value::text(L"150")).status, S_OK);
  EXPECT_EQ(get(L"LineThicknessScale").result.iVal, 150);
  Value inside = Value::i2(200);
  EXPECT_EQ(let(L"LineThicknessScale", Value::refVariant(inside)).status, S_OK);
  EXPECT_EQ(get(L"LineThicknessScale").result.iVal, 200);
}

TEST_F(Dispatch, refusesArgumentsThatCannotBeConverted) {
  const Value good = Value::i4(0), bad = Value::text(L"up");
  const Answer answer = call(L"SetOrientation", good, bad, good);
  EXPECT_EQ(answer.status, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(answer.badArgument, 1U);
  EXPECT_EQ(call(L"SetOrientation", bad, good, good).badArgument, 2U);
}

TEST_F(Dispatch, failuresAreExceptionsWithASource) {
  const Answer answer = let(L"LookStyle", Value::text(L"Oil on Canvas"));
  EXPECT_EQ(answer.status, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorNumber, 380);
  EXPECT_EQ(answer.description, L"There is no style called \"Oil on Canvas\".");
  EXPECT_EQ(answer.source, L"Zephra Model");
}

TEST_F(Dispatch, worksForCallersThatWantNoAnswer) {
  VARIANTARG direction = Value::text(L"up");
  DISPPARAMS parameters = {&direction, nullptr, 1, 0};
  EXPECT_EQ(dispatch->Invoke(find(L"RotateX"), IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
            DISP_E_TYPEMISMATCH);
  DISPPARAMS none = {};
  EXPECT_EQ(dispatch->Invoke(find(L"ModelName"), IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
            S_OK);
}

TEST_F(Dispatch, lateCallersOfAnObjectThatHasGoneGetAnError) {
  dispatch->disconnect();
  EXPECT_EQ(get(L"ModelName").status, RPC_E_DISCONNECTED);
}

TEST_F(Dispatch, isAnAutomationObjectWithoutTypeInformation) {
  IDispatch* same = nullptr;
  ASSERT_EQ(dispatch->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&same)), S_OK);
  same->Release();
  IStream* other = reinterpret_cast<IStream*>(this);
  EXPECT_EQ(dispatch->QueryInterface(IID_IStream, reinterpret_cast<void**>(&other)), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
  UINT count = 7;
  EXPECT_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 0U);
}

}  // namespace
}  // namespace nerida::host
