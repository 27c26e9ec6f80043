// From a hit to the preview, and from the preview into the model.
#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CatalogPreview : public CatalogTest {
 protected:
  void SetUp() override {
    open();
    findWindmill();
  }
  Lines click(int index) {
    hits().click(index);
    return take();
  }
};

TEST_F(CatalogPreview, ShowsTheItemThatIsClicked) {
  EXPECT_THAT(click(1), ElementsAre("list " + shipFile, "zephBrowser: ModelFile = " + shipFile,
                                    "zephBrowser: ModelName = Ship", "lblModel: caption Ship ", "zephBrowser: Load"));
}

TEST_F(CatalogPreview, DoesNotLoadTheItemThatIsShownAlready) {
  EXPECT_THAT(click(0), IsEmpty());
  click(1);
  EXPECT_THAT(click(1), IsEmpty());
}

// Whether it is shown is a matter of the name, and the preview is asked for it each time.
TEST_F(CatalogPreview, TakesANamesakeForTheModelThatIsShown) {
  hits().add({"Windmill", "12345", 0});
  hits().add({"windmill", "12345", 0});
  take();
  EXPECT_THAT(click(2), IsEmpty());
  EXPECT_THAT(click(3), Contains("zephBrowser: Load"));  // capitals count
  preview().model = "Ship";
  EXPECT_THAT(click(1), IsEmpty());
  EXPECT_THAT(click(0), Contains("zephBrowser: Load"));
}

TEST_F(CatalogPreview, TellsOfAMissingFileAndKeepsItsModel) {
  platform.files.files.erase(shipFile);
  answerBoxes(1);
  EXPECT_THAT(click(1), ElementsAre("list " + shipFile, "box [Zephra Catalog] Zephra cannot find the file " + shipFile +
                                                            ".  Please make sure that you have Zephra installed "
                                                            "correctly."));
  EXPECT_EQ(preview().model, "Windmill");
  EXPECT_EQ(preview().file, windmillFile);
  EXPECT_EQ(catalog().labelControl("lblModel").caption, "Windmill ");
}

TEST_F(CatalogPreview, TellsOfADriveThatIsGone) {
  platform.files.failures.emplace(shipFile, Error(error::diskNotReady));
  answerBoxes(1);
  EXPECT_THAT(click(1), ElementsAre("list " + shipFile, "box [Zephra Catalog] Zephra was unable to load model #12345"));
}

TEST_F(CatalogPreview, ATagThatIsNoNumberIsToldAsItIs) {
  for (const char* tag : {"twelve", "", "2147483648"}) {
    answerBoxes(1);
    library.browser.SelectItem({"Strange", tag, 0});
    EXPECT_THAT(take(), ElementsAre(std::string("box [Zephra Catalog] Zephra was unable to load model #") + tag));
  }
}

TEST_F(CatalogPreview, AFailureWhileLoadingLeavesTheNewNames) {
  preview().failures.emplace("Load", Error(500, "Damaged"));
  answerBoxes(1);
  EXPECT_THAT(click(1), ElementsAre("list " + shipFile, "zephBrowser: ModelFile = " + shipFile,
                                    "zephBrowser: ModelName = Ship", "lblModel: caption Ship ", "zephBrowser: Load",
                                    "box [Zephra Catalog] Zephra was unable to load model #12345"));
  EXPECT_EQ(preview().model, "Ship");
  EXPECT_THAT(click(1), IsEmpty());
}

class PreviewFailure : public CatalogPreview, public testing::WithParamInterface<const char*> {};

TEST_P(PreviewFailure, IsToldOnce) {
  preview().failures.emplace(GetParam(), Error(error::cannotCreateObject));
  answerBoxes(1);
  hits().click(1);
  EXPECT_THAT(takeBoxes(), ElementsAre("box [Zephra Catalog] Zephra was unable to load model #12345"));
}

INSTANTIATE_TEST_SUITE_P(Members, PreviewFailure, testing::Values("ModelName", "ModelFile =", "ModelName =", "Load"));

const Lines insertion = {"model: ModelName = \"Windmill\"",
                         "model: TarnwellXFile = \"C:\\Zephra\\Models\\dv0000\\dv0000\\dv0040\\dv42.twe\"",
                         "model: ModelScale = 70000&", "model: SetOrientation ByRef 100&, ByRef -200&, ByRef 36000&"};

Lines followedBy(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

class CatalogInsertion : public CatalogPreview {
 protected:
  void SetUp() override {
    CatalogPreview::SetUp();
    preview().scale = 70000;
    preview().angles = {100, -200, 36000};
    model->values["ModelName"] = std::string();
  }
  Lines press(int index) {
    catalog().pushButton("cmdInsert", index).press();
    return take();
  }
  Lines pick(const char* entry) {
    EXPECT_TRUE(choose(entry));
    return take();
  }
};

TEST_F(CatalogInsertion, OfTheModelAloneKeepsTheStyle) {
  EXPECT_EQ(press(0), followedBy(insertion, {"model: RefreshDisplay"}));
  EXPECT_EQ(pick("mnuInsertModel"), followedBy(insertion, {"model: RefreshDisplay"}));
}

TEST_F(CatalogInsertion, ByTheButtonBringsTheStyleOfThePreview) {
  EXPECT_EQ(press(2), followedBy(insertion, {"model: LookStyle = \"Ink Outline\"", "model: RefreshDisplay"}));
}

TEST_F(CatalogInsertion, ByTheMenuAsksTheModelWhetherItArrived) {
  EXPECT_EQ(pick("mnuInsert"),
            followedBy(insertion, {"model: ModelName", "model: LookStyle = \"Ink Outline\"", "model: RefreshDisplay"}));
}

TEST_F(CatalogInsertion, TheButtonAsksThePreviewAndTheMenuTheModel) {
  model->hooks["SetOrientation"] = [this] { model->values["ModelName"] = std::string(); };
  EXPECT_EQ(press(2), followedBy(insertion, {"model: LookStyle = \"Ink Outline\"", "model: RefreshDisplay"}));
  EXPECT_EQ(pick("mnuInsert"), followedBy(insertion, {"model: ModelName", "model: RefreshDisplay"}));
}

TEST_F(CatalogInsertion, SendsTheStylesNameAsItIs) {
  preview().style = "";
  EXPECT_EQ(press(2), followedBy(insertion, {"model: LookStyle = \"\"", "model: RefreshDisplay"}));
  preview().style = "none";
  EXPECT_EQ(press(2), followedBy(insertion, {"model: LookStyle = \"none\"", "model: RefreshDisplay"}));
}

TEST_F(CatalogInsertion, IsNamedInTheMenu) {
  EXPECT_EQ(menu().caption("mnuInsert", 0), "&Insert");
  EXPECT_EQ(menu().caption("mnuInsertModel", 0), "Insert &Model Only");
}

TEST_F(CatalogInsertion, LeavesTheCatalogOpen) {
  press(2);
  EXPECT_TRUE(control->IsCatalogVisible());
}

TEST_F(CatalogInsertion, OfAnEmptyPreviewOnlyRefreshes) {
  preview().file = preview().model = "";
  EXPECT_THAT(press(0), ElementsAre("model: RefreshDisplay"));
  EXPECT_THAT(press(2), ElementsAre("model: RefreshDisplay"));
  EXPECT_THAT(pick("mnuInsertModel"), ElementsAre("model: RefreshDisplay"));
  model->values["ModelName"] = std::string("Windmill");
  EXPECT_THAT(pick("mnuInsert"),
              ElementsAre("model: ModelName", "model: LookStyle = \"Ink Outline\"", "model: RefreshDisplay"));
}

struct InsertFailureCase {
  const char* member;
  std::size_t callsBefore;
};

class InsertFailure : public CatalogInsertion, public testing::WithParamInterface<InsertFailureCase> {};

TEST_P(InsertFailure, IsToldAndTheCommandGoesOn) {
  model->failures.emplace(GetParam().member, Error(380, "Invalid property value"));
  answerBoxes(1);
  Lines expected(insertion.begin(), insertion.begin() + static_cast<std::ptrdiff_t>(GetParam().callsBefore));
  expected = followedBy(
      expected, {"box [Zephra Toolbar] Error while inserting model Invalid property value", "model: RefreshDisplay"});
  EXPECT_EQ(press(0), expected);
}

INSTANTIATE_TEST_SUITE_P(Members, InsertFailure,
                         testing::Values(InsertFailureCase{"ModelName", 1}, InsertFailureCase{"TarnwellXFile", 2},
                                         InsertFailureCase{"ModelScale", 3}, InsertFailureCase{"SetOrientation", 4}));

class InsertPreviewFailure : public CatalogInsertion, public testing::WithParamInterface<InsertFailureCase> {};

// What was read before has arrived.
TEST_P(InsertPreviewFailure, IsToldAndTheCommandGoesOn) {
  preview().failures.emplace(GetParam().member, Error(error::cannotCreateObject));
  answerBoxes(1);
  Lines expected(insertion.begin(), insertion.begin() + static_cast<std::ptrdiff_t>(GetParam().callsBefore));
  expected = followedBy(expected, {"box [Zephra Toolbar] Error while inserting model ActiveX component can't create "
                                   "object",
                                   "model: RefreshDisplay"});
  EXPECT_EQ(pick("mnuInsertModel"), expected);
}

INSTANTIATE_TEST_SUITE_P(Members, InsertPreviewFailure,
                         testing::Values(InsertFailureCase{"ModelFile", 0}, InsertFailureCase{"ModelName", 0},
                                         InsertFailureCase{"ModelScale", 2}, InsertFailureCase{"GetOrientation", 3}));

TEST_F(CatalogInsertion, WithoutAPreviewIsToldByEachCommand) {
  preview().installed = false;
  answerBoxes(2);
  const std::string absent = "box [Zephra Toolbar] Error while inserting model ActiveX component can't create object";
  EXPECT_THAT(pick("mnuInsertModel"), ElementsAre(absent, "model: RefreshDisplay"));
  EXPECT_THAT(press(0), ElementsAre(absent, "model: RefreshDisplay"));
}

TEST_F(CatalogInsertion, WhatFollowsByTheMenuHasItsOwnMessage) {
  model->failures.emplace("RefreshDisplay", Error(5, "No display"));
  answerBoxes(3);
  EXPECT_EQ(pick("mnuInsert").back(), "box [Zephra Catalog] Error occurred while inserting models :No display");
  EXPECT_EQ(pick("mnuInsertModel").back(), errorBox);
  EXPECT_EQ(press(2).back(), errorBox);
}

TEST_F(CatalogInsertion, AStyleThatIsRefusedEndsTheCommand) {
  model->failures.emplace("LookStyle", Error(5, "No such style"));
  answerBoxes(2);
  EXPECT_EQ(pick("mnuInsert").back(), "box [Zephra Catalog] Error occurred while inserting models :No such style");
  EXPECT_EQ(press(2).back(), errorBox);
}

}  // namespace
}  // namespace nerida
