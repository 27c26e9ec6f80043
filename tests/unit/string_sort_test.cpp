// Sorting a list of texts by character codes.
#include "core/string_sort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/error_of.h"

namespace nerida {
namespace {

using testing::ElementsAre;

struct SortCase {
  std::vector<std::string> given, sorted;
};

class Sorting : public testing::TestWithParam<SortCase> {};

TEST_P(Sorting, IsAscendingByCharacterCode) {
  StringArray strings{0, GetParam().given};
  SortStrings(strings);
  EXPECT_EQ(strings.elements, GetParam().sorted);
}

INSTANTIATE_TEST_SUITE_P(Lists, Sorting,
                         testing::Values(SortCase{{"b", "B", "a"}, {"B", "a", "b"}}, SortCase{{"x"}, {"x"}},
                                         SortCase{{"b", "a"}, {"a", "b"}}, SortCase{{"a", "a", ""}, {"", "a", "a"}},
                                         SortCase{{"c", "b", "a", "b", "c"}, {"a", "b", "b", "c", "c"}},
                                         SortCase{{"ab", "a", "abc", "aB"}, {"a", "aB", "ab", "abc"}},
                                         SortCase{{"\xC3\xA9", "z", "Z", "_"},
                                                  {"Z", "_", "z", "\xC3\xA9"}},  // codes above 127 come last
                                         SortCase{{"10", "9", "1"}, {"1", "10", "9"}}));

TEST(SortStrings, OfNothingIsAnError) {
  StringArray none;
  EXPECT_EQ(errorOf([&] { SortStrings(none); }), error::subscriptOutOfRange);
}

TEST(SortStrings, RunsPastTheEndOfAListThatStartsAtOne) {
  StringArray strings{1, {"b", "a"}};
  EXPECT_EQ(errorOf([&] { SortStrings(strings); }), error::subscriptOutOfRange);
}

TEST(SortStrings, LeavesTheEndOfAListThatStartsBelowZeroAlone) {
  StringArray strings{-1, {"c", "b", "a"}};  // positions 0 to 1 of three elements
  SortStrings(strings);
  EXPECT_THAT(strings.elements, ElementsAre("b", "c", "a"));
}

TEST(SwapStrings, CountsFromTheFirstElement) {
  StringArray strings{5, {"a", "b", "c"}};
  SwapStrings(strings, 0, 2);
  EXPECT_THAT(strings.elements, ElementsAre("c", "b", "a"));
  SwapStrings(strings, 1, 1);
  EXPECT_THAT(strings.elements, ElementsAre("c", "b", "a"));
}

TEST(SwapStrings, OutsideTheListIsAnErrorThatChangesNothing) {
  StringArray strings{0, {"a", "b"}};
  for (const int position : {-1, 2, 32767, -32768}) {
    const auto outside = static_cast<std::int16_t>(position);
    EXPECT_EQ(errorOf([&] { SwapStrings(strings, 0, outside); }), error::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { SwapStrings(strings, outside, 0); }), error::subscriptOutOfRange);
  }
  EXPECT_THAT(strings.elements, ElementsAre("a", "b"));
}

}  // namespace
}  // namespace nerida
