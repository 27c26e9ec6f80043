#include <map>

#include "platform/desktop.h"
#include "platform/registry.h"
#include "platform/settings.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

class ServiceTest : public testing::Test {
 protected:
  std::unique_ptr<Subject> subject = makeSubject();
};

using DesktopContract = ServiceTest;

TEST_F(DesktopContract, TheScreenHasASizeAndAFineness) {
  Desktop& desktop = subject->services().desktop;
  EXPECT_GE(desktop.screenSize().width, 640);
  EXPECT_GE(desktop.screenSize().height, 480);
  EXPECT_GT(desktop.twipsPerPixelX(), 0);
  EXPECT_LE(desktop.twipsPerPixelX(), 15);
  EXPECT_EQ(desktop.twipsPerPixelX(), desktop.twipsPerPixelY());
}

TEST_F(DesktopContract, AWindowThatDoesNotExistHasNoCoordinates) {
  Desktop& desktop = subject->services().desktop;
  EXPECT_EQ(desktop.screenToClient(0, {30, 40}), (Point{0, 0}));
  EXPECT_EQ(desktop.screenToClient(0x7FFF123, {30, 40}), (Point{0, 0}));
}

TEST_F(DesktopContract, PointsAreCountedFromTheClientArea) {
  const auto form = subject->services().windows.create(formLayout);
  form->showTopmostAt({100, 120});
  const Point origin = form->clientOrigin();
  EXPECT_EQ(subject->services().desktop.screenToClient(form->handle(), {origin.x + 5, origin.y - 6}), (Point{5, -6}));
}

class RegistryContract : public ServiceTest {
 protected:
  std::unique_ptr<RegistryKey> open() {
    long status = -1;
    const auto software = subject->services().registry.openLocalMachine()->open("Software", status);
    EXPECT_EQ(status, 0);
    auto key = software->open(contractKey, status);
    EXPECT_EQ(status, 0);
    return key;
  }
  long statusOf(int index) {
    long status = -1;
    (void)open()->value(index, status);
    return status;
  }

  static constexpr long notFound = 2, moreData = 234, noMoreItems = 259;
};

TEST_F(RegistryContract, AMissingKeyHasAStatus) {
  long status = 0;
  EXPECT_EQ(open()->open("Nobody", status), nullptr);
  EXPECT_EQ(status, notFound);
}

TEST_F(RegistryContract, ListsTheValuesThenEnds) {
  subject->storeText("First", "C:\\One");
  subject->storeText("Second", "");
  std::map<std::string, std::string> values;
  for (int index : {0, 1}) {
    long status = -1;
    const auto value = open()->value(index, status);
    ASSERT_TRUE(value);
    EXPECT_EQ(status, 0);
    values[value->name] = value->data;
  }
  EXPECT_EQ(values, (std::map<std::string, std::string>{{"First", "C:\\One"}, {"Second", ""}}));
  EXPECT_EQ(statusOf(2), noMoreItems);
}

TEST_F(RegistryContract, AnEmptyKeyEndsAtOnce) { EXPECT_EQ(statusOf(0), noMoreItems); }

TEST_F(RegistryContract, DataEndsAtTheFirstZero) {
  subject->storeBytes("Mixed", std::string("ab\0cd", 5));
  long status = -1;
  const auto value = open()->value(0, status);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->data, "ab");
}

TEST_F(RegistryContract, DataOf256BytesFits) {
  subject->storeText("Long", std::string(255, 'x'));  // and its end
  long status = -1;
  const auto value = open()->value(0, status);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->data, std::string(255, 'x'));
}

TEST_F(RegistryContract, LongerDataHasAStatus) {
  subject->storeText("Long", std::string(256, 'x'));
  EXPECT_EQ(statusOf(0), moreData);
}

TEST_F(RegistryContract, BinaryDataHasNoEndOfItsOwn) {
  subject->storeBytes("Full", std::string(256, 'x'));
  EXPECT_EQ(statusOf(0), 0);
  subject->storeBytes("Full", std::string(257, 'x'));
  EXPECT_EQ(statusOf(0), moreData);
}

using SettingsContract = ServiceTest;

TEST_F(SettingsContract, TheFallbackStandsInForAMissingText) {
  Settings& settings = subject->services().settings;
  EXPECT_EQ(settings.read("Contract", "Nobody", "fallback"), "fallback");
  EXPECT_EQ(settings.read("NoSection", "Nobody", ""), "");
}

TEST_F(SettingsContract, AStoredTextIsKeptAlsoWhenItIsEmpty) {
  Settings& settings = subject->services().settings;
  for (const char* text : {"42", "", "M\xC3\xBChle"}) {
    settings.write("Contract", "Key", text);
    EXPECT_EQ(settings.read("Contract", "Key", "fallback"), text);
  }
}

TEST_F(SettingsContract, SectionsAreSeparate) {
  Settings& settings = subject->services().settings;
  settings.write("Contract", "Key", "one");
  settings.write("ContractToo", "Key", "two");
  EXPECT_EQ(settings.read("Contract", "Key", ""), "one");
  EXPECT_EQ(settings.read("ContractToo", "Key", ""), "two");
}

class ObjectContract : public ServiceTest {
 protected:
  ObjectRef object = subject->makeObject();

  Error failureOf(const std::string& member) {
    try {
      object->call(member, {});
    } catch (const Error& failure) {
      return failure;
    }
    return {0, "no error"};
  }
};

TEST_F(ObjectContract, PropertiesKeepTheirTypes) {
  object->let("Name", Value(std::string("M\xC3\xBChle")));
  object->let("Number", Value(std::int32_t{70000}));
  EXPECT_EQ(object->get("Name"), Value(std::string("M\xC3\xBChle")));
  EXPECT_EQ(object->get("Number"), Value(std::int32_t{70000}));
}

TEST_F(ObjectContract, ArgumentsArriveInOrder) {
  std::array arguments{Argument(Value(std::int16_t{30})), Argument(Value(std::int16_t{4}))};
  EXPECT_EQ(object->call("Add", arguments), Value(std::int32_t{304}));
}

TEST_F(ObjectContract, AnEmptyVariableIsFilled) {
  Value variable;
  std::array arguments{Argument(&variable)};
  object->call("Fill", arguments);
  EXPECT_EQ(variable, Value(std::string("filled")));
}

TEST_F(ObjectContract, ANumberIsChangedInItsPlace) {
  Value number{std::int32_t{41}};
  std::array arguments{Argument(&number)};
  object->call("Increase", arguments);
  EXPECT_EQ(number, Value(std::int32_t{42}));
}

TEST_F(ObjectContract, NoSuchMember) {
  EXPECT_EQ(errorOf([&] { object->get("Nobody"); }), error::noSuchMember);
  EXPECT_EQ(errorOf([&] { object->let("Nobody", Value(true)); }), error::noSuchMember);
  EXPECT_EQ(errorOf([&] { object->call("Nobody", {}); }), error::noSuchMember);
}

TEST_F(ObjectContract, WhatTheObjectRaisesArrives) {
  EXPECT_EQ(failureOf("Refuse").number, 380);
  EXPECT_EQ(failureOf("Refuse").description, "Bad value");
}

TEST_F(ObjectContract, AnErrorWithoutATextHasTheStandardOne) {
  EXPECT_EQ(failureOf("Crash").number, error::objectNotSet);
  EXPECT_EQ(failureOf("Crash").description, standardErrorText(error::objectNotSet));
}

}  // namespace
}  // namespace nerida
