// The preview as the catalog drives it, whatever component stands behind it.
#include "platform/preview.h"

#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

constexpr std::array previewControls{
    ControlLayout{"shown", 0, ControlKind::preview, {{0}, {0}, {3000}, {2400}}, "Preview"},
};
constexpr FormLayout previewLayout{"previewing", "Previewing", FormFrame::dialog, {3000}, {2400}, previewControls};

class PreviewContract : public testing::Test {
 protected:
  PreviewContract() {
    form = subject->services().windows.create(previewLayout);
    subject->setPreviewPresent(*form, "shown", true);
  }
  Preview& shown() { return form->preview("shown"); }

  std::unique_ptr<Subject> subject = makeSubject();
  std::shared_ptr<Window> form;
};

TEST_F(PreviewContract, IsEmptyAtFirst) {
  EXPECT_EQ(shown().modelFile(), "");
  EXPECT_EQ(shown().modelName(), "");
}

TEST_F(PreviewContract, KeepsFileAndNameApart) {
  shown().setModelFile("C:\\Models\\dv42.twe");
  shown().setModelName("M\xC3\xBChle & \"co\"");
  EXPECT_EQ(shown().modelFile(), "C:\\Models\\dv42.twe");
  EXPECT_EQ(shown().modelName(), "M\xC3\xBChle & \"co\"");
  shown().load();
}

TEST_F(PreviewContract, ReportsStyleScaleAndTheAnglesInTheirOrder) {
  EXPECT_EQ(shown().styleName(), "Ink Outline");
  EXPECT_EQ(shown().modelScale(), 70000);
  EXPECT_EQ(shown().orientation(), (std::array<std::int32_t, 3>{100, -200, 36000}));
}

TEST_F(PreviewContract, AFileThatIsRefusedIsAnErrorAndStays) {
  shown().setModelFile("nobody.twe");
  try {
    shown().load();
    FAIL();
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, error::fileNotFound);
    EXPECT_EQ(failure.description, "No such model");
  }
  EXPECT_EQ(shown().modelFile(), "nobody.twe");
}

TEST_F(PreviewContract, WithoutTheComponentEveryMemberFails) {
  subject->setPreviewPresent(*form, "shown", false);
  const std::function<void()> members[] = {
      [this] { (void)shown().modelFile(); },   [this] { shown().setModelFile("x"); },
      [this] { (void)shown().modelName(); },   [this] { shown().setModelName("x"); },
      [this] { (void)shown().styleName(); },   [this] { (void)shown().modelScale(); },
      [this] { (void)shown().orientation(); }, [this] { shown().load(); },
  };
  for (const auto& member : members) EXPECT_EQ(errorOf(member), error::cannotCreateObject);
  subject->setPreviewPresent(*form, "shown", true);
  EXPECT_EQ(shown().modelFile(), "");
}

TEST_F(PreviewContract, KeepsItsModelWhileItsFormIsHidden) {
  form->showTopmostAt({100, 100});
  shown().setModelName("Mill");
  form->hide();
  form->showTopmostAt({100, 100});
  EXPECT_EQ(shown().modelName(), "Mill");
}

}  // namespace
}  // namespace nerida
