// Conversions of automation values.
#include "platform/value.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/automation.h"
#include "tests/unit/error_of.h"

namespace nerida {
namespace {

const Value someObject{ObjectRef()};
const Value someArray{std::make_shared<const Array>()};

struct NumberCase {
  Value value;
  std::int32_t number;
};

class Numbers : public testing::TestWithParam<NumberCase> {};

TEST_P(Numbers, AreRoundedHalfToEven) { EXPECT_EQ(toInt32(GetParam().value), GetParam().number); }

INSTANTIATE_TEST_SUITE_P(Values, Numbers,
                         testing::Values(NumberCase{Value(), 0}, NumberCase{true, -1}, NumberCase{false, 0},
                                         NumberCase{std::int16_t{-5}, -5}, NumberCase{std::int32_t{70000}, 70000},
                                         NumberCase{0.5, 0}, NumberCase{1.5, 2}, NumberCase{2.5, 2},
                                         NumberCase{-0.5, 0}, NumberCase{-1.5, -2}, NumberCase{2.50001, 3},
                                         NumberCase{2147483647.4, 2147483647}, NumberCase{std::string("42"), 42},
                                         NumberCase{std::string(" 3.5 "), 4}, NumberCase{std::string("-1e2"), -100},
                                         NumberCase{std::string("+7"), 7}, NumberCase{std::string("1e-400"), 0}));

TEST(Number, ThatDoesNotFitIsAnOverflow) {
  EXPECT_EQ(toInt16(32767.4), 32767);
  for (const Value& value : {Value(32767.5), Value(-32768.6), Value(std::int32_t{32768}), Value(std::string("1e400")),
                             Value(std::string("32767.5"))}) {
    EXPECT_EQ(errorOf([&] { toInt16(value); }), error::overflow);
  }
  for (const double number : {2147483647.5, -2147483649.0, 1e300, std::nan("")}) {
    EXPECT_EQ(errorOf([&] { toInt32(number); }), error::overflow);
    EXPECT_EQ(errorOf([&] { roundToInt32(number); }), error::overflow);
  }
  EXPECT_EQ(roundToInt16(-32768), -32768);
  EXPECT_EQ(errorOf([] { roundToInt16(32768); }), error::overflow);
}

TEST(Number, OfAnythingElseIsATypeMismatch) {
  for (const Value& value :
       {Value(Null()), Value(std::string()), Value(std::string("abc")), Value(std::string("12abc")),
        Value(std::string(".")), Value(std::string("-")), someObject, someArray}) {
    EXPECT_EQ(errorOf([&] { toInt32(value); }), error::typeMismatch);
    EXPECT_EQ(errorOf([&] { toInt16(value); }), error::typeMismatch);
  }
}

struct BooleanCase {
  Value value;
  bool truth;
};

class Booleans : public testing::TestWithParam<BooleanCase> {};

TEST_P(Booleans, AreTrueForEverythingButZero) { EXPECT_EQ(toBoolean(GetParam().value), GetParam().truth); }

INSTANTIATE_TEST_SUITE_P(Values, Booleans,
                         testing::Values(BooleanCase{true, true}, BooleanCase{false, false},
                                         BooleanCase{std::int16_t{1}, true}, BooleanCase{std::int16_t{-1}, true},
                                         BooleanCase{std::int32_t{0}, false}, BooleanCase{std::int32_t{256}, true},
                                         BooleanCase{0.25, true}, BooleanCase{0.0, false},
                                         BooleanCase{std::string("True"), true},
                                         BooleanCase{std::string("FALSE"), false}, BooleanCase{std::string("0"), false},
                                         BooleanCase{std::string("-1"), true}, BooleanCase{Value(), false},
                                         BooleanCase{Value(Null()), false}));

TEST(Boolean, OfAnythingElseIsATypeMismatch) {
  for (const Value& value : {Value(std::string("yes")), Value(std::string()), someObject, someArray}) {
    EXPECT_EQ(errorOf([&] { toBoolean(value); }), error::typeMismatch);
  }
}

TEST(Text, OfValues) {
  EXPECT_EQ(toText(Value()), "");
  EXPECT_EQ(toText(Null()), "");
  EXPECT_EQ(toText(std::string("a b")), "a b");
  EXPECT_EQ(toText(true), "True");
  EXPECT_EQ(toText(false), "False");
  EXPECT_EQ(toText(std::int16_t{-3}), "-3");
  EXPECT_EQ(toText(std::int32_t{2147483647}), "2147483647");
  EXPECT_EQ(toText(1.5), "1.5");
  EXPECT_EQ(errorOf([] { toText(someObject); }), error::typeMismatch);
  EXPECT_EQ(errorOf([] { toText(someArray); }), error::typeMismatch);
}

TEST(Numeric, MeansThatTheWholeTextIsOneNumber) {
  for (const char* text : {"5", " 5 ", "-5.25", "+.5", "5.", "1e3"}) EXPECT_TRUE(isNumeric(text)) << text;
  for (const char* text : {"", " ", "abc", "5x", "1 2", "--5", "e3"}) EXPECT_FALSE(isNumeric(text)) << text;
}

struct LeadingCase {
  const char* text;
  double number;
};

class LeadingNumber : public testing::TestWithParam<LeadingCase> {};

TEST_P(LeadingNumber, IsTheLongestOneAtTheStart) { EXPECT_EQ(leadingNumber(GetParam().text), GetParam().number); }

INSTANTIATE_TEST_SUITE_P(Texts, LeadingNumber,
                         testing::Values(LeadingCase{"", 0}, LeadingCase{"abc", 0}, LeadingCase{"12abc", 12},
                                         LeadingCase{" 1 2\t3\n", 123}, LeadingCase{"-4.5x", -4.5},
                                         LeadingCase{".5", 0.5}, LeadingCase{"1e2", 100}, LeadingCase{"1e", 1},
                                         LeadingCase{"1e+", 1}, LeadingCase{"&HFF", 255}, LeadingCase{"&hff", 255},
                                         LeadingCase{"&HFFFF", -1}, LeadingCase{"&H10000", 65536},
                                         LeadingCase{"&O17", 15}, LeadingCase{"&", 0}, LeadingCase{"&H", 0},
                                         LeadingCase{"&HG", 0}, LeadingCase{"- 5", -5}, LeadingCase{"1.2.3", 1.2}));

}  // namespace
}  // namespace nerida
