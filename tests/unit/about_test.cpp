// The About box: modal, with credits that scroll by its timer, closed by a click, gone when another program comes to
// the front.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Box = headless::FormWindow;

constexpr int pause = 50;
constexpr int way = 100;  // of the credits, in pixels

class About : public DeskTest {
 protected:
  void SetUp() override {
    for (const char* file : {background, credits}) {
      platform.files.files.insert(file);
      platform.files.pictures.insert(file);
    }
    setHeight(78 + way);
    createAndInit();
    library.paths.ProductText = "Zephra 1.0";
  }

  void setHeight(int height) { platform.files.sizes[credits] = {503, height}; }
  void whileOpen(std::function<void(Box&)> action) { platform.windows.duringModal = std::move(action); }
  // The user looks, and closes the box by a click.
  void open(std::function<void(Box&)> look = [](Box&) {}) {
    whileOpen([look = std::move(look)](Box& box) {
      look(box);
      box.userClicks();
    });
    control->ShowAboutBox();
  }
  static int top(Box& box) { return box.image("Image1").bounds().top.value / 15; }

  static constexpr const char* background = "C:\\Zephra\\About Box.gif";
  static constexpr const char* credits = "C:\\Zephra\\About_ZPCredits.gif";
};

TEST_F(About, OpensWithItsPicturesAndClosesAtAClick) {
  open();
  EXPECT_THAT(take(),
              ElementsAre("frmAbout: load", "lblVersion: caption Zephra 1.0", "picture C:\\Zephra\\About Box.gif",
                          "picture C:\\Zephra\\About_ZPCredits.gif", "frmAbout: show modal", "frmAbout: timer on",
                          "lblVersion: on #FFFFFF", "frmAbout: show topmost", "frmAbout: timer off", "frmAbout: hide",
                          "frmAbout: modal end", "frmAbout: unload"));
}

TEST_F(About, IsLaidOutInPixels) {
  open([](Box& box) {
    EXPECT_TRUE(box.layout.onPicture);
    EXPECT_EQ(box.sizeInPixels(), (Size{503, 403}));
    const Bounds strip = box.picture("picScroll").bounds();
    EXPECT_EQ(strip, (Bounds{{0}, {300 * 15}, {503 * 15}, {78 * 15}}));
    EXPECT_EQ(box.image("Image1").bounds(), (Bounds{{0}, {0}, {503 * 15}, {178 * 15}}));
    EXPECT_EQ(box.clock.milliseconds, 100);
    EXPECT_NE(box.stillPicture("imgBackground").picture, nullptr);
  });
}

TEST_F(About, ScrollsFromPauseToPauseAndStartsAnew) {
  open([](Box& box) {
    for (int cycle = 0; cycle < 3; ++cycle) {
      box.clock.pass(pause);
      EXPECT_EQ(top(box), 0);
      box.clock.pass(1);
      EXPECT_EQ(top(box), -1);
      box.clock.pass(way - 1);
      EXPECT_EQ(top(box), -way);
      box.clock.pass(pause);
      EXPECT_EQ(top(box), -way);
      box.clock.pass(1);
      EXPECT_EQ(top(box), 0);
    }
  });
}

TEST_F(About, StandsStillWhereItsCreditsAreNotHigherThanTheStrip) {
  for (const int height : {1, 77, 78}) {
    setHeight(height);
    open([](Box& box) {
      for (int i = 0; i < 300; ++i) {
        box.clock.pass(1);
        EXPECT_EQ(top(box), 0);
      }
    });
  }
  setHeight(79);
  open([](Box& box) {
    box.clock.pass(pause + 1);
    EXPECT_EQ(top(box), -1);
  });
}

TEST_F(About, TakesCreditsOfAnyHeight) {
  setHeight(40000);
  open([](Box& box) {
    box.clock.pass(pause + 32767);
    EXPECT_EQ(top(box), -32767);
    box.clock.pass(pause + 1);
    EXPECT_EQ(top(box), 0);
  });
}

TEST_F(About, OpensWithoutItsPictures) {
  platform.files.files.erase(background);
  platform.files.pictures.erase(credits);
  open([this](Box& box) {
    EXPECT_THAT(takeBoxes(), IsEmpty());
    EXPECT_EQ(box.stillPicture("imgBackground").picture, nullptr);
    EXPECT_EQ(box.labelControl("lblVersion").caption, "Zephra 1.0");
    box.clock.pass(500);
    EXPECT_EQ(top(box), 0);
  });
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(About, OneMissingPictureDoesNotCostTheOther) {
  platform.files.files.erase(background);
  open([](Box& box) {
    box.clock.pass(pause + 5);
    EXPECT_EQ(top(box), -5);
  });
}

TEST_F(About, ActivatedAgainItPausesAndGoesOnFromThere) {
  open([this](Box& box) {
    box.clock.pass(pause + 30);
    take();
    platform.windows.activateElsewhere();
    EXPECT_TRUE(box.clock.isEnabled());
    platform.windows.activateAgain();
    EXPECT_THAT(take(), ElementsAre("lblVersion: on #FFFFFF", "frmAbout: show topmost"));
    box.clock.pass(pause);
    EXPECT_EQ(top(box), -30);
    box.clock.pass(way - 30);
    EXPECT_EQ(top(box), -way);
    box.clock.pass(1 + pause);
    EXPECT_EQ(top(box), 0);
  });
}

TEST_F(About, OpenedAgainItStartsFromTheTopWithAPause) {
  open([](Box& box) { box.clock.pass(pause + 30); });
  open([](Box& box) {
    EXPECT_EQ(top(box), 0);
    box.clock.pass(pause);
    EXPECT_EQ(top(box), 0);
    box.clock.pass(way);
    EXPECT_EQ(top(box), -way);
  });
}

TEST_F(About, ReadsItsTextAndItsPicturesAtEveryOpening) {
  open();
  library.paths.ProductText = "Zephra 2.0";
  platform.files.files.erase(background);
  open([](Box& box) {
    EXPECT_EQ(box.labelControl("lblVersion").caption, "Zephra 2.0");
    EXPECT_EQ(box.stillPicture("imgBackground").picture, nullptr);
  });
}

TEST_F(About, ClosesByKeyboardToo) {
  whileOpen([](Box& box) { box.userCloses(); });
  control->ShowAboutBox();
  EXPECT_TRUE(platform.windows.find("frmAbout") == nullptr);
}

TEST_F(About, ASecondCallWhileItIsOpenReturnsAtOnce) {
  open([this](Box& box) {
    take();
    control->ShowAboutBox();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_TRUE(box.isVisible());
  });
  EXPECT_EQ(platform.windows.find("frmAbout"), nullptr);
}

TEST_F(About, EndsWhenAnotherProgramComesToTheFront) {
  show();
  whileOpen([this](Box&) {
    take();
    platform.windows.activateApplication(false);
  });
  control->ShowAboutBox();
  EXPECT_THAT(take(),
              ElementsAre("frmAbout: hide", "frmAbout: timer off", "frmToolbar: hide", "model: AnimationState",
                          "frmBrowser: previous procedure gets message 28", "frmAbout: modal end", "frmAbout: unload"));
}

TEST_F(About, MayBeOpenedAgainBeforeTheCallThatOpenedItHasReturned) {
  show();
  int openings = 0;
  whileOpen([&](Box& box) {
    if (++openings == 2) return box.userClicks();
    platform.windows.activateApplication(false);
    control->ShowAboutBox();
  });
  control->ShowAboutBox();
  EXPECT_EQ(openings, 2);
  EXPECT_EQ(platform.windows.find("frmAbout"), nullptr);
}

TEST_F(About, SurvivesTheToolbarBeingHiddenOrDisposedOfMeanwhile) {
  show();
  whileOpen([this](Box& box) {
    control->ToolbarHide();
    control->ToolbarDispose();
    EXPECT_TRUE(box.isVisible());
    box.clock.pass(pause + 1);
    EXPECT_EQ(top(box), -1);
    box.userClicks();
  });
  control->ShowAboutBox();
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(About, GoesWithTheControl) {
  whileOpen([this](Box&) { control.reset(); });
  library.showAboutBox();
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(About, FailsQuietly) {
  platform.windows.creationFailures["frmAbout"] = error::outOfMemory;
  control->ShowAboutBox();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(About, ThatCannotBeShownIsWholeTheNextTime) {
  whileOpen([](Box&) { throw Error(error::outOfMemory); });
  control->ShowAboutBox();
  EXPECT_EQ(platform.windows.find("frmAbout"), nullptr);
  platform.windows.modal = nullptr;
  library.paths.ProductText = "Zephra 2.0";
  open([](Box& box) { EXPECT_EQ(box.labelControl("lblVersion").caption, "Zephra 2.0"); });
}

TEST_F(About, IsNoMemberOfTheRegistry) {
  const auto loaded = library.state.gFormLoaded;
  open([this](Box&) { EXPECT_THAT(library.state.gFormShown, testing::Each(false)); });
  EXPECT_EQ(library.state.gFormLoaded, loaded);
}

}  // namespace
}  // namespace nerida
