// Reading the installation paths from the registry: what is picked, what is told, where reading stops.
#include "catalog/installation_paths.h"

#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string zephra = "Software\\Tarnwell\\Zephra";
const std::string version = zephra + "\\1.0";

std::string accessBox(const std::string& rest) { return "box [Zephra Catalog] Registry access error at " + rest; }
const std::string databaseBox = "box [Zephra Catalog] Zephra was unable to find the model database.";

class InstallationPaths : public testing::Test {
 protected:
  InstallationPaths() {
    registry.keys = {{"Software", {}},
                     {"Software\\Tarnwell", {}},
                     {zephra, {{"Dictionary", "D"}, {"Style", "S"}, {"System", "Y"}, {"Help", "H"}, {"LivText", "L"}}},
                     {version, {{"Models", "M"}}}};
    boxes.answers.assign(10, PromptAnswer::ok);
  }

  // Reads, and returns the boxes that were shown.
  Lines read() {
    ReadInstallationPaths(paths, registry, messages);
    return transcript.take();
  }

  headless::Transcript transcript;
  headless::Boxes boxes{transcript};
  Messages messages{boxes};
  headless::MemoryRegistry registry;
  Paths paths;
};

TEST_F(InstallationPaths, AreTakenFromTheValuesOfBothKeys) {
  EXPECT_THAT(read(), IsEmpty());
  EXPECT_EQ(paths.DictionaryPath, "D");
  EXPECT_EQ(paths.StylePath, "S");
  EXPECT_EQ(paths.SystemPath, "Y");
  EXPECT_EQ(paths.HelpPath, "H");
  EXPECT_EQ(paths.ProductText, "L");
  EXPECT_EQ(paths.ModelLibraryPath, "M");
  EXPECT_EQ(paths.CdModelDirectory, "");
  EXPECT_EQ(paths.CdDrive, "");
  EXPECT_TRUE(paths.ExpansionAbsent);
}

TEST_F(InstallationPaths, StartFromEmptyOnes) {
  paths = {"a", "b", "c", "d", "e", "f", "g", "h", false};
  registry.keys.clear();
  read();
  for (const std::string& path : {paths.DictionaryPath, paths.StylePath, paths.SystemPath, paths.HelpPath,
                                  paths.ProductText, paths.ModelLibraryPath, paths.CdModelDirectory, paths.CdDrive}) {
    EXPECT_EQ(path, "");
  }
  EXPECT_TRUE(paths.ExpansionAbsent);
}

struct NameCase {
  const char* name;
  bool taken;
};

class ValueName : public InstallationPaths, public testing::WithParamInterface<NameCase> {};

TEST_P(ValueName, IsComparedByItsFirstThreeCharactersExactly) {
  registry.keys[zephra] = {{GetParam().name, "X"}};
  read();
  EXPECT_EQ(paths.DictionaryPath, GetParam().taken ? "X" : "");
}

INSTANTIATE_TEST_SUITE_P(Names, ValueName,
                         testing::Values(NameCase{"Dictionary", true}, NameCase{"Dic2", true}, NameCase{"Dic", true},
                                         NameCase{"dictionary", false}, NameCase{"DICTIONARY", false},
                                         NameCase{"Di", false}, NameCase{"", false}, NameCase{" Dic", false},
                                         NameCase{"Def", false}));

TEST_F(InstallationPaths, OfSeveralMatchingValuesTheLastOneCounts) {
  registry.keys[zephra] = {{"Dictionary", "first"}, {"Dic2", "second"}};
  read();
  EXPECT_EQ(paths.DictionaryPath, "second");
}

TEST_F(InstallationPaths, AnExpansionIsPresentWhateverItsData) {
  registry.keys[zephra].push_back({"Expansion", ""});
  read();
  EXPECT_FALSE(paths.ExpansionAbsent);
}

TEST_F(InstallationPaths, TheFirstModelPathOfTheVersionCounts) {
  registry.keys[version] = {{"Other", "o"}, {"Models", "first"}, {"Mod2", "second"}};
  read();
  EXPECT_EQ(paths.ModelLibraryPath, "first");
}

TEST_F(InstallationPaths, AModelPathOfTheInstallationKeyIsNotTaken) {
  registry.keys[zephra].push_back({"Models", "wrong"});
  registry.keys[version] = {{"Other", "o"}};
  read();
  EXPECT_EQ(paths.ModelLibraryPath, "");
}

TEST_F(InstallationPaths, WithoutModelsOnDiskTheFirstFolderOfTheCdCounts) {
  registry.keys[version] = {{"Other", "o"}};
  registry.keys[zephra].push_back({"DefDir", "\\first"});
  registry.keys[zephra].push_back({"Def2", "\\second"});
  EXPECT_THAT(read(), IsEmpty());
  EXPECT_EQ(paths.CdModelDirectory, "\\first");
}

TEST_F(InstallationPaths, WithModelsOnDiskTheCdIsNotLookedAt) {
  registry.keys[zephra].push_back({"DefDir", "\\cd"});
  read();
  EXPECT_EQ(paths.CdModelDirectory, "");
}

TEST_F(InstallationPaths, AnEmptyModelPathCountsAsNone) {
  registry.keys[version] = {{"Models", ""}, {"Mod2", "later"}};
  registry.keys[zephra].push_back({"DefDir", "\\cd"});
  read();
  EXPECT_EQ(paths.ModelLibraryPath, "");
  EXPECT_EQ(paths.CdModelDirectory, "\\cd");
}

struct OpenCase {
  std::string path;
  std::string told;
};

class MissingKey : public InstallationPaths, public testing::WithParamInterface<OpenCase> {};

TEST_P(MissingKey, IsToldWithItsStatusAndEndsTheReading) {
  registry.openFailures[GetParam().path] = 5;
  EXPECT_THAT(read(), ElementsAre(accessBox(GetParam().told + ": 5")));
}

INSTANTIATE_TEST_SUITE_P(Keys, MissingKey,
                         testing::Values(OpenCase{"Software", "Software"}, OpenCase{"Software\\Tarnwell", "Tarnwell"},
                                         OpenCase{zephra, "Zephra"}, OpenCase{version, "1.0"}));

TEST_F(InstallationPaths, AMissingVersionKeepsWhatWasReadAndReachesNothingBehindIt) {
  registry.keys.erase(version);
  registry.keys[zephra] = {{"Help", "H"}, {"DefDir", "\\cd"}};  // and no dictionary either
  EXPECT_THAT(read(), ElementsAre(accessBox("1.0: 2")));
  EXPECT_EQ(paths.HelpPath, "H");
  EXPECT_EQ(paths.CdModelDirectory, "");
}

TEST_F(InstallationPaths, AnEmptyInstallationKeyIsToldAtEachReadingAndSoIsTheMissingDatabase) {
  registry.keys[zephra].clear();
  registry.keys[version].clear();
  EXPECT_THAT(read(), ElementsAre(accessBox("Enumeration: 259"), accessBox("Enumeration: 259"),
                                  accessBox("Enumeration: 259"), databaseBox));
}

TEST_F(InstallationPaths, AnEnumerationThatFailsLaterEndsQuietly) {
  registry.valueFailures[{zephra, 2}] = 234;
  EXPECT_THAT(read(), IsEmpty());
  EXPECT_EQ(paths.StylePath, "S");
  EXPECT_EQ(paths.SystemPath, "");
  EXPECT_EQ(paths.ModelLibraryPath, "M");
}

TEST_F(InstallationPaths, AMissingDictionaryIsToldInTheEnd) {
  registry.keys[zephra] = {{"System", "Y"}};
  EXPECT_THAT(read(), ElementsAre(databaseBox));
  EXPECT_EQ(paths.SystemPath, "Y");
  EXPECT_EQ(paths.ModelLibraryPath, "M");
}

// Somebody takes the installation away before a reading, counted from 1.
class VanishingRegistry : public Registry {
 public:
  VanishingRegistry(headless::MemoryRegistry& behind, int reading) : behind(behind), readingsLeft(reading) {}
  std::unique_ptr<RegistryKey> openLocalMachine() override {
    if (--readingsLeft == 0) behind.keys.erase(zephra);
    return behind.openLocalMachine();
  }

 private:
  headless::MemoryRegistry& behind;
  int readingsLeft;
};

class VanishingKey : public InstallationPaths, public testing::WithParamInterface<int> {};

TEST_P(VanishingKey, IsToldAndEndsTheReadingThere) {
  registry.keys[zephra] = {{"Help", "H"}, {"DefDir", "\\cd"}};  // without a dictionary, which is not told any more
  registry.keys[version] = {{"Other", "o"}};
  VanishingRegistry vanishing(registry, GetParam());
  ReadInstallationPaths(paths, vanishing, messages);
  EXPECT_THAT(transcript.take(), ElementsAre(accessBox("Zephra: 2")));
  EXPECT_EQ(paths.HelpPath, "H");
  EXPECT_EQ(paths.CdModelDirectory, "");
}

INSTANTIATE_TEST_SUITE_P(Readings, VanishingKey, testing::Values(2, 3));

class BrokenRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> openLocalMachine() override { throw Error(error::outOfMemory); }
};

TEST_F(InstallationPaths, AnyOtherErrorHasItsOwnMessage) {
  BrokenRegistry broken;
  ReadInstallationPaths(paths, broken, messages);
  EXPECT_THAT(transcript.take(), ElementsAre("box [Zephra Toolbar] An error occurred while initializing."));
}

}  // namespace
}  // namespace nerida
