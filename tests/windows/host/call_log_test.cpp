#include <fstream>
#include <sstream>

#include "host/app/call_words.h"
#include "tests/host/glb.h"
#include "tests/windows/host/object_test.h"

namespace nerida::host {
namespace {

class CallLogs : public ObjectTest {};

TEST_F(CallLogs, calls) {
  call(L"RotateX", Value::i2(2));
  EXPECT_EQ(listener.lines.back(), "RotateX(2:I2)");
  call(L"SetLightDirection", Value::i4(0), Value::i4(-100), Value::i4(50));
  EXPECT_EQ(listener.lines.back(), "SetLightDirection(0:I4, -100:I4, 50:I4)");
  call(L"ResetHome");
  EXPECT_EQ(listener.lines.back(), "ResetHome()");
}

TEST_F(CallLogs, assignmentsAndReadings) {
  let(L"IsToolbarShowing", Value::boolean(true));
  EXPECT_EQ(listener.lines.back(), "let IsToolbarShowing = True");
  get(L"IsToolbarShowing");
  EXPECT_EQ(listener.lines.back(), "get IsToolbarShowing -> True");
  let(L"LookStyle", Value::text(L"Wireframe"));
  EXPECT_EQ(listener.lines.back(), "let LookStyle = \"Wireframe\"");
  get(L"LookStyleName");
  EXPECT_EQ(listener.lines.back(), "get LookStyleName -> \"Wireframe\"");
}

TEST_F(CallLogs, references) {
  LONG x = 0, y = 0, z = 0;
  call(L"GetLightDirection", Value::refI4(x), Value::refI4(y), Value::refI4(z));
  EXPECT_EQ(listener.lines.back(), "GetLightDirection(-100:ByRef I4, -100:ByRef I4, 50:ByRef I4) -> 0");
}

TEST_F(CallLogs, failures) {
  let(L"SurfaceColor", Value::i4(-1));
  EXPECT_EQ(listener.lines.back(), "let SurfaceColor = -1 ! 380 A colour must be between 0 and 16777215, not -1.");
  call(L"MoveX", Value::text(L"left"));
  EXPECT_EQ(listener.lines.back(), "MoveX(\"left\":BSTR) ! refused, argument 1");
}

TEST_F(CallLogs, areWrittenAtOnce) {
  const auto file = saved({}, "calls.log");
  CallLog log(file);
  VARIANTARG value = Value::i2(-2);
  const Arguments arguments({&value, 1});
  log.write({CallKind::call, L"RotateY", arguments, nullptr, {}});
  log.write({CallKind::let, L"ModelScale", arguments, nullptr, "380 no"});
  std::stringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  EXPECT_EQ(text.str(), "RotateY(-2:I2)\nlet ModelScale = -2 ! 380 no\n");
}

TEST_F(CallLogs, needAFolder) { EXPECT_THROW(CallLog(L"C:\\no\\such\\folder\\calls.log"), std::runtime_error); }

TEST_F(CallLogs, haveWordsForPeople) {
  const auto words = [](CallKind kind, const wchar_t* member, VARIANTARG value) {
    const Arguments arguments({&value, 1});
    return wordsFor({kind, member, arguments, nullptr, {}});
  };
  EXPECT_EQ(words(CallKind::call, L"RotateX", Value::i2(2)), "Tilted up");
  EXPECT_EQ(words(CallKind::call, L"RotateX", Value::i2(-2)), "Tilted down");
  EXPECT_EQ(words(CallKind::let, L"AnimationState", Value::boolean(true)), "Playing");
  EXPECT_EQ(words(CallKind::let, L"AnimationState", Value::boolean(false)), "Paused");
  EXPECT_EQ(words(CallKind::let, L"LineThicknessScale", Value::i2(150)), "Lines at 150 per cent of their thickness");
  EXPECT_EQ(words(CallKind::get, L"AnimationState", Value::boolean(true)), "");
}

// Whatever changes the object can be told to the user.
TEST_F(CallLogs, haveWordsForEveryChange) {
  VARIANTARG value = Value::i2(1);
  const Arguments arguments({&value, 1});
  for (const ModelMember& member : modelMembers()) {
    const bool asksOnly = member.name.starts_with(L"Get");
    if (asksOnly || (member.let == nullptr && member.call == nullptr)) continue;
    EXPECT_NE(wordsFor({CallKind::let, member.name, arguments, nullptr, {}}), "") << utf8(member.name);
  }
}

}  // namespace
}  // namespace nerida::host
