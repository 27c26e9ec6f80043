// The shared messages, letter by letter, and which failure gets which.
#include "core/messages.h"

#include "core/trap.h"
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

class MessagesTest : public DeskTest {
 protected:
  MessagesTest() { answerBoxes(1); }
  Messages messages{platform.boxes};
};

TEST_F(MessagesTest, ErrorMessage) {
  messages.ShowErrorMessage();
  EXPECT_THAT(take(), ElementsAre("box [Zephra Toolbar] Zephra has encountered an error.  Please de-activate Zephra by "
                                  "clicking off the object.  Double-click the object to re-activate Zephra"));
}

TEST_F(MessagesTest, ToolbarErrorMessageEndsInABlank) {
  messages.ShowToolbarErrorMessage();
  EXPECT_THAT(take(), ElementsAre("box [Zephra Toolbar] Zephra is unable to display the editing toolbar. "));
}

TEST_F(MessagesTest, LowMemoryMessage) {
  messages.ShowLowMemoryMessage();
  EXPECT_THAT(take(), ElementsAre("box [Zephra Toolbar] Your system appears to be low on memory.  Please close some "
                                  "windows and/or programs."));
}

TEST_F(MessagesTest, TheReporterTellsShortMemoryFromTheRest) {
  messages.report(Error(error::outOfMemory));
  EXPECT_THAT(take(), ElementsAre(memoryBox));
  for (const std::int32_t number : {5, 6, 9, 13, 91, 438, -2147467259}) {
    answerBoxes(1);
    messages.report(Error(number));
    EXPECT_THAT(take(), ElementsAre(errorBox));
  }
}

TEST(Trap, TakesExhaustedMemoryForError7AndLetsForeignExceptionsPass) {
  std::int32_t number = 0;
  trap([] { throw std::bad_alloc(); }, [&](const Error& failure) { number = failure.number; });
  EXPECT_EQ(number, error::outOfMemory);
  EXPECT_THROW(ignoringErrors([] { throw TestEnded{}; }), TestEnded);
}

struct TextCase {
  std::int32_t number;
  const char* text;
};

class ErrorText : public testing::TestWithParam<TextCase> {};

TEST_P(ErrorText, IsTheStandardOne) {
  const Error failure(GetParam().number);
  EXPECT_EQ(failure.number, GetParam().number);
  EXPECT_EQ(failure.description, GetParam().text);
  EXPECT_STREQ(failure.what(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ErrorText,
                         testing::Values(TextCase{5, "Invalid procedure call or argument"}, TextCase{6, "Overflow"},
                                         TextCase{7, "Out of memory"}, TextCase{9, "Subscript out of range"},
                                         TextCase{13, "Type mismatch"}, TextCase{53, "File not found"},
                                         TextCase{91, "Object variable or With block variable not set"},
                                         TextCase{429, "ActiveX component can't create object"},
                                         TextCase{438, "Object doesn't support this property or method"},
                                         TextCase{94, "Invalid use of Null"}, TextCase{380, "Invalid property value"},
                                         TextCase{1234, "Application-defined or object-defined error"},
                                         TextCase{65535, "Application-defined or object-defined error"},
                                         TextCase{65536, "Automation error"}, TextCase{0, "Automation error"},
                                         TextCase{-2147467259, "Automation error"}));

}  // namespace
}  // namespace nerida
