#include "host/library/library.h"

#include <gtest/gtest.h>

#include "host/library/fields.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

std::string thing(int number, const std::string& name = "Thing") {
  return "model " + std::to_string(number) + " \"" + name + "\"\nin C, S\nwords one, two words\nbox 1,2,3 #808080\n";
}

void ignore(const std::string&) {}

class Library : public testing::Test {
 protected:
  void build() { buildLibrary(descriptions.path(), target.path() / "Models", ignore); }
  [[nodiscard]] fs::path models() const { return target.path() / "Models"; }

  TemporaryFolder descriptions, target;
};

TEST_F(Library, FilesLieInTheFolderScheme) {
  descriptions.write("a.model", thing(12343));
  descriptions.write("b.model", thing(42));
  build();
  EXPECT_TRUE(fs::is_regular_file(models() / "dv12000/dv12300/dv12340/dv12343.twe"));
  EXPECT_TRUE(fs::is_regular_file(models() / "dv0000/dv0000/dv0040/dv42.twe"));
  EXPECT_TRUE(checkLibrary(models()).empty());
}

TEST_F(Library, IndexIsByNumberAndReadsBack) {
  descriptions.write("a.model", thing(300, "Later"));
  descriptions.write("b.model", thing(2, "First"));
  build();
  EXPECT_EQ(contentOf(models() / indexFileName),
            "2\tFirst\tC\tS\tstill\tone,two words\n300\tLater\tC\tS\tstill\tone,two words\n");
  const std::vector<ModelCard> cards = readIndex(models());
  ASSERT_EQ(cards.size(), 2U);
  EXPECT_EQ(cards[1].name, "Later");
  EXPECT_EQ(cards[1].keywords, (std::vector<std::string>{"one", "two words"}));
}

TEST_F(Library, TabInANameDoesNotBreakTheIndex) {
  descriptions.write("a.model", thing(1, "Tea\tpot"));
  build();
  EXPECT_EQ(readIndex(models()).front().name, "Tea pot");
}

TEST_F(Library, UnchangedFilesAreNotWrittenAgain) {
  descriptions.write("a.model", thing(1));
  build();
  const fs::path file = models() / "dv0000/dv0000/dv0000/dv1.twe";
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(100);
  fs::last_write_time(file, longAgo);
  build();
  EXPECT_EQ(fs::last_write_time(file), longAgo);
}

TEST_F(Library, TwiceTheSameNumberIsRefusedAndLeavesTheIndex) {
  descriptions.write("a.model", thing(1, "Kept"));
  build();
  descriptions.write("b.model", thing(1, "Second"));
  EXPECT_THROW(build(), LibraryError);
  EXPECT_EQ(readIndex(models()).front().name, "Kept");
}

TEST_F(Library, FolderWithoutDescriptionsIsRefused) {
  EXPECT_THROW(build(), LibraryError);
  EXPECT_THROW(buildLibrary(descriptions.path() / "none", models(), ignore), LibraryError);
}

TEST_F(Library, CheckNamesDamagedMissingAndSurplusFiles) {
  for (const int number : {1, 2, 3}) descriptions.write(std::to_string(number) + ".model", thing(number));
  build();
  const fs::path folder = models() / "dv0000/dv0000/dv0000";
  fs::resize_file(folder / "dv1.twe", 100);
  fs::remove(folder / "dv2.twe");
  fs::copy_file(folder / "dv3.twe", folder / "dv4.twe");
  const std::vector<std::string> faults = checkLibrary(models());
  ASSERT_EQ(faults.size(), 3U);
  EXPECT_EQ(faults[0].rfind("dv0000/dv0000/dv0000/dv1.twe: The model file is cut off.", 0), 0U) << faults[0];
  EXPECT_EQ(faults[1], "dv0000/dv0000/dv0000/dv2.twe: The model file cannot be found.");
  EXPECT_EQ(faults[2], "dv0000/dv0000/dv0000/dv4.twe: it is not in the index");
}

TEST_F(Library, DamagedIndexIsRefused) {
  target.write("Models/index.txt", "1\tno more\n");
  EXPECT_THROW(readIndex(models()), LibraryError);
  target.write("Models/index.txt", "12x\ta\tb\tc\tstill\t\n");
  EXPECT_THROW(readIndex(models()), LibraryError);
  EXPECT_THROW(readIndex(target.path() / "none"), LibraryError);
}

}  // namespace
}  // namespace nerida::library
