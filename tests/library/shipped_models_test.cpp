#include "host/library/shipped_models.h"

#include <gtest/gtest.h>

#include "host/library/description.h"
#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/glb_writer.h"
#include "host/library/index_file.h"
#include "host/library/model_path.h"
#include "host/search/model_database.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

std::string modelFile(const std::string& shape) {
  return writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\n" + shape + " #808080\n", "box", {}), "box"));
}

ModelCard shippedCard(std::int32_t number, const std::string& name) {
  ModelCard made;
  made.number = number;
  made.name = name;
  made.category = "C";
  made.subcategory = "S";
  made.keywords = {"word"};
  return made;
}

class ShippedModels : public testing::Test {
 protected:
  [[nodiscard]] LibraryPlaces places() const { return {folder.path() / "Models", folder.path()}; }

  /// A library as a version of the product brings it.
  fs::path version(const std::string& name, const std::vector<ModelCard>& cards) {
    const LibraryPlaces made{folder.path() / name / "Models", folder.path() / name};
    LibraryEditor editor(made);
    for (const ModelCard& each : cards) editor.add(each, box);
    return made.models;
  }

  void addOwn(std::int32_t number, const std::string& name) {
    LibraryEditor(places()).add(shippedCard(number, name), ball);
  }

  /// What the index says; the database and the files must agree.
  Lines models() {
    EXPECT_EQ(checkLibrary(places()), Lines());
    Lines lines;
    for (const ModelCard& each : readIndex(places().models)) {
      lines.push_back(std::to_string(each.number) + " " + each.name);
    }
    return lines;
  }

  std::string contentOfModel(std::int32_t number) {
    return readWhole(places().models / modelPath(number)).value_or("nothing");
  }

  TemporaryFolder folder;
  std::string box = modelFile("box 1,2,3"), ball = modelFile("ball 1");
};

TEST_F(ShippedModels, FirstOnesMakeALibrary) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three"), shippedCard(1234, "More")}));
  EXPECT_EQ(models(), (Lines{"3 Three", "1234 More"}));
}

TEST_F(ShippedModels, NextVersionWithdrawsAndRenamesButKeepsPeoplesOwn) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three"), shippedCard(1234, "More")}));
  addOwn(50000, "Mine");
  replaceShippedModels(places(), version("2", {shippedCard(3, "Drei"), shippedCard(40, "Forty")}));
  EXPECT_EQ(models(), (Lines{"3 Drei", "40 Forty", "50000 Mine"}));
  EXPECT_EQ(contentOfModel(1234), "nothing");
  EXPECT_EQ(contentOfModel(50000), ball);
}

TEST_F(ShippedModels, TheSameVersionAgainBringsBackWhatWasRemoved) {
  const fs::path shipped = version("1", {shippedCard(3, "Three"), shippedCard(4, "Four")});
  replaceShippedModels(places(), shipped);
  LibraryEditor(places()).remove(4);
  replaceShippedModels(places(), shipped);
  EXPECT_EQ(models(), (Lines{"3 Three", "4 Four"}));
}

TEST_F(ShippedModels, OwnModelKeepsItsNumber) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three")}));
  LibraryEditor(places()).remove(3);
  addOwn(3, "Mine");
  addOwn(7, "Also mine");
  replaceShippedModels(places(), version("2", {shippedCard(3, "Three"), shippedCard(7, "Seven")}));
  EXPECT_EQ(models(), (Lines{"3 Mine", "7 Also mine"}));
  EXPECT_EQ(contentOfModel(3), ball);
  EXPECT_EQ(contentOfModel(7), ball);
}

TEST_F(ShippedModels, NoneLeaveALibraryOfPeoplesOwn) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three")}));
  addOwn(50000, "Mine");
  replaceShippedModels(places(), {});
  EXPECT_EQ(models(), Lines{"50000 Mine"});
}

TEST_F(ShippedModels, NoneAtAllLeaveNoTrace) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three")}));
  fs::remove_all(folder.path() / "1");
  replaceShippedModels(places(), {});
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(ShippedModels, InterruptedExchangeIsMadeGood) {
  replaceShippedModels(places(), version("1", {shippedCard(3, "Three")}));
  addOwn(50000, "Mine");
  const fs::path damaged = version("2", {shippedCard(4, "Four"), shippedCard(5, "Five")});
  const std::string lost = readWhole(damaged / modelPath(5)).value();
  fs::remove(damaged / modelPath(5));
  EXPECT_THROW(replaceShippedModels(places(), damaged), LibraryError);
  writeFile(damaged / modelPath(5), lost);
  replaceShippedModels(places(), damaged);
  EXPECT_EQ(models(), (Lines{"4 Four", "5 Five", "50000 Mine"}));
  replaceShippedModels(places(), {});
  EXPECT_EQ(models(), Lines{"50000 Mine"});
}

}  // namespace
}  // namespace nerida::library
