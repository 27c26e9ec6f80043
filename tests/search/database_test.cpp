#include "host/search/database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "host/search/model_database.h"
#include "host/search/model_writer.h"
#include "host/search/schema.h"
#include "tests/search/sample.h"

namespace nerida::search {

bool operator==(const ModelCard& one, const ModelCard& other) {
  return one.number == other.number && one.name == other.name && one.category == other.category &&
         one.subcategory == other.subcategory && one.keywords == other.keywords && one.animated == other.animated;
}
void PrintTo(const ModelCard& card, std::ostream* stream) { *stream << card.number << ' ' << card.name; }

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const ModelCard swan{-7, "Swan, \"white\"", "Animals", "Birds", {"water, lake", "l'oiseau", "100%"}, true};
const ModelCard chair{2147483647, "Ch\u00E6r \U0001FA91", "Home", "", {}, false};
const ModelCard table{5, "Table", "Home", "Furniture", {"wood"}, false};

DatabaseFault faultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const DatabaseError& error) {
    EXPECT_THAT(error.what(), HasSubstr("model"));
    return error.fault;
  }
  ADD_FAILURE() << "no error";
  return DatabaseFault::other;
}

TEST(ModelDatabase, KeepsTheCardsAsTheyAre) {
  const Sample sample({chair, swan, table});
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(swan, table, chair));
  EXPECT_THAT(checkDatabase(sample.path()), IsEmpty());
}

TEST(ModelDatabase, TurnsControlCharactersIntoBlanks) {
  const Sample sample({{1, std::string("A\tB\nC\0D", 7), "X\rY", "Z\x7F", {"one\ntwo", "three"}, false}});
  EXPECT_THAT(readDatabase(sample.path()),
              ElementsAre(ModelCard{1, "A B C D", "X Y", "Z ", {"one two", "three"}, false}));
}

TEST(ModelDatabase, IsReplacedAsAWhole) {
  const Sample sample({swan, table});
  buildDatabase(sample.path(), {chair});
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(chair));
  EXPECT_THAT(sample.find("swan"), IsEmpty());
  EXPECT_THAT(checkDatabase(sample.path()), IsEmpty());
}

TEST(ModelDatabase, ReportsEveryModelWhileItIsBuilt) {
  const Sample sample({});
  std::vector<std::size_t> heard;
  buildDatabase(sample.path(), {swan, table, chair}, [&](std::size_t done) { heard.push_back(done); });
  EXPECT_THAT(heard, ElementsAre(1, 2, 3));
}

TEST(ModelDatabase, RefusesTwoModelsOfOneNumberAndStaysAsItWas) {
  const Sample sample({swan});
  ModelCard other = table;
  other.number = chair.number;
  EXPECT_EQ(faultOf([&] { buildDatabase(sample.path(), {chair, other}); }), DatabaseFault::other);
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(swan));
}

TEST(ModelDatabase, IsMadeByTheFirstChange) {
  const library::TemporaryFolder folder;
  changeDatabase(folder.path() / "deep" / "down", {swan});
  EXPECT_THAT(readDatabase(folder.path() / "deep" / "down"), ElementsAre(swan));
}

TEST(ModelDatabase, ChangesInPlace) {
  const Sample sample({swan, table}, "seat, chaer\n");
  ModelCard desk = table;
  desk.name = "Desk";
  desk.keywords = {"office"};
  changeDatabase(sample.path(), {desk, chair}, {swan.number, 4711});
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(desk, chair));
  EXPECT_THAT(checkDatabase(sample.path()), IsEmpty());
  EXPECT_THAT(sample.find("office desk"), ElementsAre("Desk"));
  for (const char* gone : {"swan", "wood", "table", "wat", "tablle"}) EXPECT_THAT(sample.find(gone), IsEmpty()) << gone;
}

TEST(ModelDatabase, ForgetsTheWordsOfRemovedModels) {
  const Sample sample({card(1, "Rose"), card(2, "Rosw")});
  EXPECT_THAT(sample.find("rosw"), ElementsAre("Rosw"));
  changeDatabase(sample.path(), {}, {2});
  EXPECT_THAT(sample.find("rosw"), ElementsAre("Rose")) << "a word that nothing has is a misspelt one";
}

TEST(ModelDatabase, IsTheSameWhetherItIsBuiltOrChanged) {
  const Sample built(numberedCards(300)), changed({});
  for (const ModelCard& one : numberedCards(300)) changeDatabase(changed.path(), {one});
  EXPECT_EQ(readDatabase(changed.path()), readDatabase(built.path()));
  for (const char* text : {"thing", "thing 1", "2", "thign"}) EXPECT_EQ(changed.find(text), built.find(text)) << text;
  EXPECT_THAT(checkDatabase(changed.path()), IsEmpty());
}

TEST(ModelDatabase, ThatIsMissingIsReportedWithItsPlace) {
  const library::TemporaryFolder folder;
  EXPECT_EQ(faultOf([&] { readDatabase(folder.path()); }), DatabaseFault::missing);
  EXPECT_EQ(faultOf([&] { SearchEngine({folder.path() / databaseFileName, {}, {}}); }), DatabaseFault::missing);
  EXPECT_EQ(faultOf([&] { SearchEngine({folder.path(), {}, {}}); }), DatabaseFault::missing) << "a folder";
  EXPECT_THAT(checkDatabase(folder.path()), ElementsAre(HasSubstr("Models.db")));
}

TEST(ModelDatabase, ThatIsForeignIsRefusedAndReplacedOnlyByANewOne) {
  const library::TemporaryFolder folder;
  std::string text = "This is a letter, not a database.\n";
  while (text.size() < 5000) text += text;
  folder.write(databaseFileName, text);
  EXPECT_EQ(faultOf([&] { readDatabase(folder.path()); }), DatabaseFault::foreign);
  EXPECT_EQ(faultOf([&] { changeDatabase(folder.path(), {swan}); }), DatabaseFault::foreign);
  EXPECT_EQ(library::contentOf(folder.path() / databaseFileName), text);
  buildDatabase(folder.path(), {swan});
  EXPECT_THAT(readDatabase(folder.path()), ElementsAre(swan));
}

TEST(ModelDatabase, OfAnotherProgramOrVersionIsRefused) {
  const Sample sample({swan});
  for (const char* change : {"PRAGMA application_id = 1", "PRAGMA application_id = 0", "PRAGMA user_version = 2"}) {
    buildDatabase(sample.path(), {swan});
    Database::open(sample.database()).run(change);
    EXPECT_EQ(faultOf([&] { sample.engine(); }), DatabaseFault::foreign) << change;
    EXPECT_EQ(faultOf([&] { changeDatabase(sample.path(), {table}); }), DatabaseFault::foreign) << change;
  }
}

TEST(ModelDatabase, ThatIsEmptyIsForeignToASearchAndAbsentToAChange) {
  const library::TemporaryFolder folder;
  folder.write(databaseFileName, "");
  EXPECT_EQ(faultOf([&] { readDatabase(folder.path()); }), DatabaseFault::foreign);
  changeDatabase(folder.path(), {swan});
  EXPECT_THAT(readDatabase(folder.path()), ElementsAre(swan));
}

TEST(ModelDatabase, ThatIsLockedForLongIsReported) {
  const Sample sample({swan});
  Database other = Database::open(sample.database());
  other.run("BEGIN EXCLUSIVE");
  EXPECT_EQ(faultOf([&] { sample.find("swan"); }), DatabaseFault::busy);
  other.run("ROLLBACK");
  EXPECT_THAT(sample.find("swan"), ElementsAre(swan.name));
}

TEST(ModelDatabase, ThatIsLockedForAMomentIsWaitedFor) {
  const Sample sample({swan});
  Database other = Database::open(sample.database());
  other.run("BEGIN EXCLUSIVE");
  const std::jthread release([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    other.run("ROLLBACK");
  });
  EXPECT_THAT(sample.find("swan"), ElementsAre(swan.name));
}

TEST(ModelDatabase, IsSearchedWhileModelsAreAdded) {
  const Sample sample(numberedCards(50));
  const std::jthread adding([&] {
    for (std::int32_t i = 51; i <= 110; ++i) changeDatabase(sample.path(), {card(i, "Thing " + std::to_string(i))});
    buildDatabase(sample.path(), numberedCards(150));
  });
  std::size_t before = 50;
  while (before < 150) {
    const std::size_t found = sample.find("thing").size();
    ASSERT_GE(found, before) << "a search saw half of a change";
    before = found;
  }
}

// What a killed program leaves behind: its change in the file already, and the journal that takes it back.
void dieInTheMiddleOfAChange(const Sample& sample) {
  const pid_t child = fork();
  if (child == 0) {
    Database database = Database::open(sample.database());
    database.run("PRAGMA cache_size = 1; PRAGMA cache_spill = 1");
    Transaction change(database, Transaction::Kind::writing);
    ModelWriter writer(database);
    for (std::int32_t i = 1000; i < 3000; ++i) writer.add(card(i, "Half a change " + std::to_string(i)));
    writer.finish();
    kill(getpid(), SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
}

TEST(ModelDatabase, IsWholeAfterAProgramDiedWhileChangingIt) {
  const Sample sample({swan, table});
  const std::string before = library::contentOf(sample.database());
  dieInTheMiddleOfAChange(sample);
  ASSERT_NE(library::contentOf(sample.database()), before) << "nothing was interrupted";
  EXPECT_THAT(sample.find("change"), IsEmpty());
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(swan, table));
  EXPECT_THAT(checkDatabase(sample.path()), IsEmpty());
}

TEST(ModelDatabase, IsReplacedAlsoAfterAProgramDiedWhileChangingIt) {
  const Sample sample({swan, table});
  dieInTheMiddleOfAChange(sample);
  buildDatabase(sample.path(), {chair});
  EXPECT_THAT(readDatabase(sample.path()), ElementsAre(chair));
  EXPECT_THAT(checkDatabase(sample.path()), IsEmpty());
}

TEST(ModelDatabase, FaultsAreFoundByTheCheck) {
  const Sample sample({swan, table});
  Database::open(sample.database()).run("UPDATE model SET name = 'Stool' WHERE number = 5");
  EXPECT_THAT(checkDatabase(sample.path()), ElementsAre(HasSubstr("damaged")));
  buildDatabase(sample.path(), {swan, table});
  Database::open(sample.database()).run("UPDATE model SET subcategory = 99 WHERE number = 5");
  EXPECT_THAT(checkDatabase(sample.path()), ElementsAre("some models have no category"));
}

}  // namespace
}  // namespace nerida::search
