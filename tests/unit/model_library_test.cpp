// Where the model files lie: the path of a model's number, and the search for the library's CD.
#include "catalog/model_library.h"

#include <limits>

#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string insertBox =
    "box [Zephra Catalog] Please insert Zephra CD into your CD-ROM drive.  Wait until the drive gets going and hit the "
    "Retry button. (Retry, Cancel)";
const std::string verifyBox = "box [Zephra Catalog] Zephra was not able to verify the model CD.";

struct PathCase {
  std::int32_t number;
  const char* path;
};

class ModelPath : public testing::TestWithParam<PathCase> {};

TEST_P(ModelPath, HasFoldersByThousandsHundredsAndHalfDecades) {
  headless::Transcript transcript;
  headless::Boxes boxes{transcript};
  Messages messages{boxes};
  Paths paths;
  paths.ModelLibraryPath = "M:\\lib";
  EXPECT_EQ(BuildModelPath(paths, messages, GetParam().number), std::string("M:\\lib\\") + GetParam().path);
  EXPECT_THAT(transcript.take(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Numbers, ModelPath,
                         testing::Values(PathCase{12345, "dv12000\\dv12300\\dv12345\\dv12345.twe"},
                                         PathCase{12343, "dv12000\\dv12300\\dv12340\\dv12343.twe"},
                                         PathCase{42, "dv0000\\dv0000\\dv0040\\dv42.twe"},
                                         PathCase{0, "dv0000\\dv0000\\dv0000\\dv0.twe"},
                                         PathCase{4, "dv0000\\dv0000\\dv0000\\dv4.twe"},
                                         PathCase{5, "dv0000\\dv0000\\dv0005\\dv5.twe"},
                                         PathCase{999, "dv0000\\dv0900\\dv0995\\dv999.twe"},
                                         PathCase{1000, "dv1000\\dv1000\\dv1000\\dv1000.twe"},
                                         PathCase{-1234, "dv-1000\\dv-1200\\dv-1230\\dv-1234.twe"},
                                         PathCase{-42, "dv0000\\dv0000\\dv-0040\\dv-42.twe"},
                                         PathCase{-7, "dv0000\\dv0000\\dv0000\\dv-7.twe"},
                                         PathCase{std::numeric_limits<std::int32_t>::max(),
                                                  "dv2147483000\\dv2147483600\\dv2147483645\\dv2147483647.twe"},
                                         PathCase{std::numeric_limits<std::int32_t>::min(),
                                                  "dv-2147483000\\dv-2147483600\\dv-2147483640\\dv-2147483648.twe"}));

TEST(ModelPathFailure, IsToldWithoutATitleAndGivesNoPath) {
  headless::Transcript transcript;
  headless::Boxes boxes{transcript};
  boxes.answers = {PromptAnswer::ok};
  Messages messages{boxes};
  const auto failing = [](const std::string&, std::int32_t) -> std::string { throw Error(error::overflow); };
  EXPECT_EQ(BuildModelPath(Paths(), messages, 42, failing), "");
  EXPECT_THAT(transcript.take(), ElementsAre("box [] Error creting model path for 42 6: Overflow"));
}

class Locator : public testing::Test {
 protected:
  Locator() {
    paths.CdModelDirectory = "\\models";
    files.drives = {{"a:", DriveType::removable}, {"c:", DriveType::fixed}};
  }
  void addDrive(const std::string& drive, DriveType type = DriveType::cdRom) {
    files.drives[drive] = type;
    files.files.insert(drive + "\\Models\\Graphics\\index.txt");
  }
  bool locate() { return LocateModelLibrary(paths, files, boxes, messages); }

  headless::Transcript transcript;
  headless::Boxes boxes{transcript};
  Messages messages{boxes};
  headless::MemoryFiles files{transcript};
  Paths paths;
};

TEST_F(Locator, TakesTheCdRomDriveThatHoldsTheFolder) {
  addDrive("d:");
  EXPECT_TRUE(locate());
  EXPECT_EQ(paths.CdDrive, "d:");
  EXPECT_EQ(paths.ModelLibraryPath, "");
  EXPECT_THAT(transcript.take(), ElementsAre("list d:\\models\\graphics\\"));
}

TEST_F(Locator, LooksAtCdRomDrivesOnly) {
  for (const auto& [drive, type] : {std::pair{"b:", DriveType::removable},
                                    {"e:", DriveType::fixed},
                                    {"f:", DriveType::remote},
                                    {"g:", DriveType::ramDisk}}) {
    addDrive(drive, type);
  }
  boxes.answers = {PromptAnswer::cancel, PromptAnswer::ok};
  EXPECT_FALSE(locate());
  EXPECT_THAT(transcript.take(), ElementsAre(insertBox, verifyBox));
}

TEST_F(Locator, TakesTheLastOfSeveralDrives) {
  addDrive("d:");
  addDrive("z:");
  addDrive("e:");
  EXPECT_TRUE(locate());
  EXPECT_EQ(paths.CdDrive, "z:");
  EXPECT_THAT(transcript.take(),
              ElementsAre("list d:\\models\\graphics\\", "list e:\\models\\graphics\\", "list z:\\models\\graphics\\"));
}

TEST_F(Locator, BeginsWithTheFirstLetterAndAsksForEachOnce) {
  for (char letter = 'a'; letter <= 'z'; ++letter) files.drives[{letter, ':'}] = DriveType::cdRom;
  addDrive("a:");
  EXPECT_TRUE(locate());
  EXPECT_EQ(paths.CdDrive, "a:");
  const Lines listed = transcript.take();
  ASSERT_EQ(listed.size(), 26U);
  for (std::size_t i = 0; i < listed.size(); ++i) {
    EXPECT_EQ(listed[i], std::string("list ") + static_cast<char>('a' + i) + ":\\models\\graphics\\");
  }
}

TEST_F(Locator, DoesNotTakeADriveThatCannotBeListed) {
  addDrive("d:");
  addDrive("e:");
  files.failures.emplace("e:\\models\\graphics\\", Error(error::diskNotReady));
  EXPECT_TRUE(locate());
  EXPECT_EQ(paths.CdDrive, "d:");
}

TEST_F(Locator, NeedsAPlainFileInTheFolder) {
  files.drives["d:"] = DriveType::cdRom;
  files.files = files.hiddenFiles = {"d:\\models\\graphics\\hidden.txt"};
  files.files.insert("d:\\models\\graphics\\folder\\file.txt");
  boxes.answers = {PromptAnswer::cancel, PromptAnswer::ok};
  EXPECT_FALSE(locate());
  EXPECT_EQ(paths.CdDrive, "");
}

TEST_F(Locator, LooksAgainAsOftenAsTheUserRetries) {
  files.drives["d:"] = DriveType::cdRom;
  int boxesShown = 0;
  boxes.duringBox = [&] {
    if (++boxesShown == 2) addDrive("d:");
  };
  boxes.answers = {PromptAnswer::retry, PromptAnswer::retry};
  EXPECT_TRUE(locate());
  EXPECT_THAT(transcript.take(), ElementsAre("list d:\\models\\graphics\\", insertBox, "list d:\\models\\graphics\\",
                                             insertBox, "list d:\\models\\graphics\\"));
}

TEST_F(Locator, EndsWithAMessageWhenTheUserDoesNotRetry) {
  boxes.answers = {PromptAnswer::retry, PromptAnswer::cancel, PromptAnswer::ok};
  EXPECT_FALSE(locate());
  EXPECT_THAT(transcript.take(), ElementsAre(insertBox, insertBox, verifyBox));
}

}  // namespace
}  // namespace nerida
