// The About box as a window: modal, closed by a click, gone when another program comes to the front.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class About : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }

  void whileOpen(std::function<void(headless::FormWindow&)> action) {
    platform.windows.duringModal = std::move(action);
  }
};

TEST_F(About, ShowsTheProductsTextAndClosesAtAClick) {
  library.paths.ProductText = "Zephra 1.0";
  whileOpen([](headless::FormWindow& box) { box.userClicks(); });
  control->ShowAboutBox();
  EXPECT_THAT(take(), ElementsAre("frmAbout: load", "lblVersion: caption Zephra 1.0", "frmAbout: show modal",
                                  "frmAbout: hide", "frmAbout: modal end", "frmAbout: unload"));
}

TEST_F(About, IsReadAnewAtEveryOpening) {
  whileOpen([](headless::FormWindow& box) { box.userClicks(); });
  control->ShowAboutBox();
  control->ShowAboutBox();
  const Lines lines = take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "frmAbout: load"), 2);
}

TEST_F(About, ASecondCallWhileItIsOpenReturnsAtOnce) {
  whileOpen([this](headless::FormWindow& box) {
    take();
    control->ShowAboutBox();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_TRUE(box.isVisible());
    box.userClicks();
  });
  control->ShowAboutBox();
  EXPECT_EQ(platform.windows.find("frmAbout"), nullptr);
}

TEST_F(About, EndsWhenAnotherProgramComesToTheFront) {
  show();
  whileOpen([this](headless::FormWindow&) {
    take();
    platform.windows.activateApplication(false);
  });
  control->ShowAboutBox();
  EXPECT_THAT(take(),
              ElementsAre("frmAbout: hide", "frmToolbar: hide", "model: AnimationState",
                          "frmBrowser: previous procedure gets message 28", "frmAbout: modal end", "frmAbout: unload"));
}

TEST_F(About, SurvivesTheToolbarBeingHiddenOrDisposedOfMeanwhile) {
  show();
  whileOpen([this](headless::FormWindow& box) {
    control->ToolbarHide();
    control->ToolbarDispose();
    EXPECT_TRUE(box.isVisible());
    box.userClicks();
  });
  control->ShowAboutBox();
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(About, FailsQuietly) {
  platform.windows.creationFailures["frmAbout"] = error::outOfMemory;
  control->ShowAboutBox();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(About, IsNoMemberOfTheRegistry) {
  whileOpen([this](headless::FormWindow& box) {
    EXPECT_THAT(library.state.gFormShown, testing::Each(false));
    box.userClicks();
  });
  const auto loaded = library.state.gFormLoaded;
  control->ShowAboutBox();
  EXPECT_EQ(library.state.gFormLoaded, loaded);
}

}  // namespace
}  // namespace nerida
