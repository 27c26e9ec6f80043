// Objects of the script languages as models: what their classes and arrays do differently still works.

#include <gtest/gtest.h>

#include <array>

#include "platform/error.h"
#include "platform/win32/automation.h"
#include "tests/windows/com/script_engine.h"

namespace nerida {
namespace {

class ScriptObjects : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  // The object that the script's function Model returns. The engine has to outlive it.
  ObjectRef model(const std::wstring& language, const std::wstring& code) {
    engine = std::make_unique<ScriptEngine>(language);
    EXPECT_TRUE(engine->run(code)) << utf8(engine->error());
    return wrapDispatch(engine->object(L"Model").get());
  }

  std::int32_t failure(const std::function<void()>& access) {
    try {
      access();
    } catch (const Error& error) {
      return error.number;
    }
    return 0;
  }

  std::unique_ptr<ScriptEngine> engine;
};

constexpr const wchar_t* basicClass =
    LR"(
Class Duck
  Public Field
  Public Steps
  Private lit
  Public Property Get LightIsOn
    LightIsOn = lit
  End Property
  Public Property Let LightIsOn(value)
    lit = value
  End Property
  Public Function Name()
    Name = "Duck"
  End Function
  Public Sub MoveX(stepCount)
    Steps = Steps & TypeName(stepCount) & stepCount
  End Sub
  Public Sub Fail()
    Steps = Steps & "F"
    Err.Raise 380
  End Sub
  Public Function FailGet()
    Steps = Steps & "G"
    Err.Raise -2147467259
  End Function
  Public Function GetLightDirection(x, y, z)
    x = 10
    y = -20
    z = 30
    GetLightDirection = 0
  End Function
  Public Sub GetLookStyleList(a, b, c)
    b = Array("Ink", "Clay")
  End Sub
End Class
Function Model()
  Set Model = New Duck
End Function
)";

TEST_F(ScriptObjects, AClassOfVBScriptIsReadWrittenAndCalled) {
  const ObjectRef duck = model(L"VBScript", basicClass);
  EXPECT_EQ(toText(duck->get("Name")), "Duck");
  EXPECT_EQ(toText(duck->get("name")), "Duck");
  duck->let("LightIsOn", true);
  EXPECT_TRUE(toBoolean(duck->get("LightIsOn")));
  duck->let("Field", std::int16_t{7});
  EXPECT_EQ(toInt16(duck->get("Field")), 7);
  std::array<Argument, 1> step{Argument(std::int16_t{-1})};
  duck->call("MoveX", step);
  EXPECT_EQ(toText(duck->get("Steps")), "Integer-1");
}

TEST_F(ScriptObjects, AClassOfVBScriptLacksMembersAndFailsOnce) {
  const ObjectRef duck = model(L"VBScript", basicClass);
  EXPECT_EQ(failure([&] { duck->get("Nothing"); }), error::noSuchMember);
  EXPECT_NE(failure([&] { duck->call("Fail", {}); }), 0);
  EXPECT_NE(failure([&] { duck->get("FailGet"); }), 0);
  EXPECT_EQ(toText(duck->get("Steps")), "FG");
}

TEST_F(ScriptObjects, AClassOfVBScriptFillsVariables) {
  const ObjectRef duck = model(L"VBScript", basicClass);
  Value x = std::int32_t{0};
  Value y = std::int32_t{0};
  Value z = std::int32_t{0};
  std::array<Argument, 3> direction{Argument(&x), Argument(&y), Argument(&z)};
  EXPECT_EQ(toInt32(duck->call("GetLightDirection", direction)), 0);
  EXPECT_EQ(toInt32(x), 10);
  EXPECT_EQ(toInt32(y), -20);
  EXPECT_EQ(toInt32(z), 30);

  std::array<Value, 3> lists;
  std::array<Argument, 3> arguments{Argument(&lists[0]), Argument(&lists[1]), Argument(&lists[2])};
  duck->call("GetLookStyleList", arguments);
  const auto* names = std::get_if<std::shared_ptr<const Array>>(&lists[1]);
  ASSERT_NE(names, nullptr);
  ASSERT_EQ((*names)->elements.size(), 2U);
  EXPECT_EQ(toText((*names)->elements[0]), "Ink");
}

constexpr const wchar_t* scriptObject =
    LR"(
function Model() {
  return {
    field: 7,
    steps: "",
    name: function () { return "Duck"; },
    move: function (step) { this.steps += step; },
    failGet: function () { this.steps += "G"; throw new Error(380, "no"); },
    fail: function () { this.steps += "F"; throw new Error(380, "no"); },
    take: function (x, y, z) { this.steps += "[" + (x + y + z) + "]"; return 0; },
    list: function (a, b, c) { return ["Ink", "Clay"]; }
  };
}
)";

TEST_F(ScriptObjects, AnObjectOfJScriptIsReadWrittenAndCalled) {
  const ObjectRef duck = model(L"JScript", scriptObject);
  EXPECT_EQ(toText(duck->get("name")), "Duck");
  EXPECT_EQ(toInt16(duck->get("field")), 7);
  duck->let("field", std::int16_t{8});
  EXPECT_EQ(toInt16(duck->get("field")), 8);
  std::array<Argument, 1> step{Argument(std::int16_t{-1})};
  duck->call("move", step);
  EXPECT_EQ(toText(duck->get("steps")), "-1");
  EXPECT_EQ(failure([&] { duck->get("Nothing"); }), error::noSuchMember);
}

TEST_F(ScriptObjects, ReadingADataPropertyOfJScriptReportsNothingToItsHost) {
  const ObjectRef duck = model(L"JScript", scriptObject);
  EXPECT_EQ(toInt16(duck->get("field")), 7);
  EXPECT_EQ(utf8(engine->error()), "");
}

TEST_F(ScriptObjects, AFailingFunctionOfJScriptRunsOnce) {
  const ObjectRef duck = model(L"JScript", scriptObject);
  EXPECT_NE(failure([&] { duck->call("fail", {}); }), 0);
  EXPECT_NE(failure([&] { duck->get("failGet"); }), 0);
  EXPECT_EQ(toText(duck->get("steps")), "FG");
}

TEST_F(ScriptObjects, JScriptTakesTypedVariablesByValue) {
  const ObjectRef duck = model(L"JScript", scriptObject);
  Value x = std::int32_t{1};
  Value y = std::int32_t{2};
  Value z = std::int32_t{3};
  std::array<Argument, 3> arguments{Argument(&x), Argument(&y), Argument(&z)};
  EXPECT_EQ(toInt32(duck->call("take", arguments)), 0);
  EXPECT_EQ(toText(duck->get("steps")), "[6]");
  EXPECT_EQ(toInt32(x), 1);
}

TEST_F(ScriptObjects, AnArrayOfJScriptIsAnObjectWithNumberedMembers) {
  const ObjectRef duck = model(L"JScript", scriptObject);
  std::array<Value, 3> lists;
  std::array<Argument, 3> arguments{Argument(&lists[0]), Argument(&lists[1]), Argument(&lists[2])};
  const Value result = duck->call("list", arguments);
  const auto* array = std::get_if<ObjectRef>(&result);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(toInt16((*array)->get("length")), 2);
  EXPECT_EQ(toText((*array)->get("1")), "Clay");
}

}  // namespace
}  // namespace nerida
