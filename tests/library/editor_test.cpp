#include "host/library/library_editor.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>

#include "host/library/description.h"
#include "host/library/fields.h"
#include "host/library/glb_writer.h"
#include "host/library/index_file.h"
#include "host/library/model_path.h"
#include "host/search/model_database.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

std::string boxFile() {
  return writeGlb(buildModel(readRecipe("model 1 Box\nin C, S\nwords a\nbox 1,2,3 #808080\n", "box", {}), "box"));
}

/// Where a test stops an editor, as a loss of power would: nothing is tidied up behind it.
struct PowerFailure : std::exception {};

LibraryEditor::Step failingAfter(const std::string& step) {
  return [step](const char* done) {
    if (done == step) throw PowerFailure();
  };
}

class Editor : public testing::Test {
 protected:
  [[nodiscard]] LibraryPlaces places() const { return {folder.path() / "Models", folder.path()}; }

  [[nodiscard]] ModelCard card(std::int32_t number, const std::string& name = "Box") const {
    ModelCard made;
    made.number = number;
    made.name = name;
    made.category = "Mine";
    made.subcategory = "Boxes";
    made.keywords = {"box", "cardboard"};
    return made;
  }

  void add(std::int32_t number) const { LibraryEditor(places()).add(card(number), box); }

  [[nodiscard]] std::vector<std::int32_t> numbers() const {
    std::vector<std::int32_t> all;
    for (const ModelCard& known : readIndex(places().models)) all.push_back(known.number);
    return all;
  }

  TemporaryFolder folder;
  std::string box = boxFile();
};

using Numbers = std::vector<std::int32_t>;

TEST_F(Editor, FirstModelMakesALibrary) {
  add(50000);
  EXPECT_EQ(numbers(), Numbers{50000});
  EXPECT_EQ(contentOf(places().models / "dv50000/dv50000/dv50000/dv50000.twe"), box);
  ASSERT_EQ(search::readDatabase(folder.path()).size(), 1U);
  EXPECT_EQ(search::readDatabase(folder.path())[0].name, "Box");
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

TEST_F(Editor, OwnModelsAreNumberedBehindAllOthers) {
  EXPECT_EQ(LibraryEditor(places()).nextNumber(), 50000);
  add(7);
  EXPECT_EQ(LibraryEditor(places()).nextNumber(), 50000);
  add(50123);
  EXPECT_EQ(LibraryEditor(places()).nextNumber(), 50124);
}

TEST_F(Editor, IndexIsInOrderWhateverIsAddedFirst) {
  for (const int number : {300, 2, 40}) add(number);
  EXPECT_EQ(numbers(), (Numbers{2, 40, 300}));
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

TEST_F(Editor, TakenNumberIsRefusedAndChangesNothing) {
  add(5);
  EXPECT_THROW(LibraryEditor(places()).add(card(5, "Other"), box), LibraryError);
  EXPECT_EQ(readIndex(places().models)[0].name, "Box");
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

TEST_F(Editor, RemovingLeavesNothingBehind) {
  add(5);
  add(50000);
  LibraryEditor(places()).remove(50000);
  EXPECT_EQ(numbers(), Numbers{5});
  EXPECT_FALSE(fs::exists(places().models / "dv50000"));
  EXPECT_TRUE(fs::exists(places().models / modelPath(5)));
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
  EXPECT_THROW(LibraryEditor(places()).remove(50000), LibraryError);
}

TEST_F(Editor, MissingDatabaseIsMadeOutOfTheIndexBeforeAChange) {
  add(5);
  fs::remove(folder.path() / search::databaseFileName);
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>{"there is no database; build-index makes it"});
  add(6);
  EXPECT_EQ(search::readDatabase(folder.path()).size(), 2U);
}

TEST_F(Editor, DatabaseOfAnotherIndexIsNoticedAndMadeAnew) {
  add(5);
  search::buildDatabase(folder.path(), {card(5, "Another name")});
  ASSERT_EQ(checkLibrary(places()).size(), 1U);
  std::size_t last = 0;
  LibraryEditor(places()).buildDatabase([&](std::size_t done, std::size_t all) {
    last = done;
    EXPECT_EQ(all, 1U);
  });
  EXPECT_EQ(last, 1U);
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

TEST_F(Editor, FailingDatabaseTakesTheModelBack) {
  add(5);
  fs::remove(folder.path() / search::databaseFileName);
  fs::create_directory(folder.path() / search::databaseFileName);
  EXPECT_THROW(add(6), LibraryError);
  EXPECT_EQ(numbers(), Numbers{5});
  EXPECT_FALSE(fs::exists(places().models / modelPath(6)));
}

TEST_F(Editor, TornLineAtTheEndOfTheIndexDoesNotCount) {
  add(5);
  const std::string index = contentOf(places().models / indexFileName);
  folder.write("Models/index.txt", index + "6\tHalf a li");
  EXPECT_EQ(numbers(), Numbers{5});
  add(7);
  EXPECT_EQ(numbers(), (Numbers{5, 7}));
}

TEST_F(Editor, LongLinesAreFoundFromTheEnd) {
  ModelCard large = card(50000);
  large.keywords.assign(3000, "keyword");
  LibraryEditor(places()).add(large, box);
  EXPECT_EQ(lastNumberOf(places().models), 50000);
  add(50001);
  EXPECT_EQ(numbers(), (Numbers{50000, 50001}));
}

struct Cut {
  const char* after;
  bool done;  ///< whether the change counts as done at that point
};

void PrintTo(const Cut& cut, std::ostream* out) { *out << cut.after; }

class InterruptedAdding : public Editor, public testing::WithParamInterface<Cut> {};

TEST_P(InterruptedAdding, IsBroughtToAnEndByTheNextEditor) {
  add(5);
  EXPECT_THROW(LibraryEditor(places(), failingAfter(GetParam().after)).add(card(50000), box), PowerFailure);
  EXPECT_TRUE(hasUnfinishedChange(places().models));
  const LibraryEditor next(places());
  EXPECT_FALSE(hasUnfinishedChange(places().models));
  EXPECT_EQ(numbers(), GetParam().done ? (Numbers{5, 50000}) : Numbers{5});
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Steps, InterruptedAdding,
                         testing::Values(Cut{"note", false}, Cut{"model file", false}, Cut{"database", true},
                                         Cut{"index", true}));

class InterruptedRemoving : public Editor, public testing::WithParamInterface<Cut> {};

TEST_P(InterruptedRemoving, IsBroughtToAnEndByTheNextEditor) {
  add(5);
  add(50000);
  EXPECT_THROW(LibraryEditor(places(), failingAfter(GetParam().after)).remove(50000), PowerFailure);
  const LibraryEditor next(places());
  EXPECT_EQ(numbers(), GetParam().done ? Numbers{5} : (Numbers{5, 50000}));
  EXPECT_EQ(checkLibrary(places()), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Steps, InterruptedRemoving,
                         testing::Values(Cut{"note", false}, Cut{"database", true}, Cut{"index", true},
                                         Cut{"model file", true}));

}  // namespace
}  // namespace nerida::library
