// The colour dialog of the toolbar: what it starts from, what a choice, a cancel and a failure do.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CustomColorCase {
  ColorRole role;
  const char* member;
  Rgb start;
  bool (frmToolbar::*operation)(WindowHandle);
};

void PrintTo(const CustomColorCase& custom, std::ostream* out) { *out << custom.member; }

class CustomColor : public testing::TestWithParam<CustomColorCase>, protected Desk {
 protected:
  void SetUp() override {
    enableStyleButtons();
    createInitAndShow();
  }
  bool choose() { return (library.toolbar.*GetParam().operation)(55); }
  std::string dialog(Rgb start) const { return "color dialog of 55 from " + std::to_string(start); }
  std::string let(Rgb color) const {
    return std::string("model: ") + GetParam().member + " = " + std::to_string(color) + "&";
  }
  Rgb custom() const { return library.toolbar.customColor(GetParam().role); }
};

TEST_P(CustomColor, OfAChoiceIsKeptAndSetOnTheModel) {
  platform.boxes.colorChoices = {4711};
  EXPECT_TRUE(choose());
  EXPECT_THAT(take(), ElementsAre(dialog(GetParam().start), let(4711)));
  EXPECT_EQ(custom(), 4711);
  EXPECT_EQ(model->values[GetParam().member], Value(std::int32_t{4711}));
}

TEST_P(CustomColor, OfACancelChangesNothing) {
  platform.boxes.colorChoices = {std::nullopt};
  EXPECT_FALSE(choose());
  EXPECT_THAT(take(), ElementsAre(dialog(GetParam().start)));
  EXPECT_EQ(custom(), GetParam().start);
}

TEST_P(CustomColor, ThatTheModelRefusesIsForgottenWithoutAMessage) {
  platform.boxes.colorChoices = {1, 2};
  EXPECT_TRUE(choose());
  for (const std::int32_t number : {5, 7, 438}) {
    platform.boxes.colorChoices = {2};
    model->failures.insert_or_assign(GetParam().member, Error(number));
    EXPECT_FALSE(choose());
    EXPECT_EQ(custom(), 1);
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_P(CustomColor, StartsFromTheColorThatThePaletteShowedLast) {
  library.toolbar.setShownColor(GetParam().role, 99);
  EXPECT_EQ(custom(), GetParam().start);
  EXPECT_THAT(takeModelCalls(), IsEmpty());
  platform.boxes.colorChoices = {std::nullopt};
  choose();
  EXPECT_THAT(take(), ElementsAre(dialog(99)));
}

TEST_P(CustomColor, OfADialogThatOutlivesItsModelIsDropped) {
  platform.boxes.colorChoices = {4711};
  platform.boxes.duringColorDialog = [this] {
    control->ToolbarDispose();
    init();
    take();
  };
  EXPECT_FALSE(choose());
  EXPECT_THAT(takeModelCalls(), IsEmpty());
  EXPECT_EQ(custom(), GetParam().start);
}

INSTANTIATE_TEST_SUITE_P(
    Roles, CustomColor,
    testing::Values(CustomColorCase{ColorRole::surface, "SurfaceColor", 16777215, &frmToolbar::GetCustomSurfaceColor},
                    CustomColorCase{ColorRole::line, "LineColor", 0, &frmToolbar::GetCustomLineColor},
                    CustomColorCase{ColorRole::background, "BackgroundColor", 8421504,
                                    &frmToolbar::GetCustomBackColor}));

}  // namespace
}  // namespace nerida
