// The tool itself, as a person at a terminal would use it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <future>
#include <set>

#include "host/library/library_editor.h"
#include "host/search/engine.h"
#include "host/search/model_database.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

int run(const std::string& arguments) {
  return std::system((std::string("'") + LIBRARY_TOOL + "' " + arguments + " >/dev/null 2>&1").c_str());
}

class Tool : public testing::Test {
 protected:
  void SetUp() override {
    folder.write("box.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nv 0 0 1\nf 1 3 2\nf 1 2 4\nf 1 4 3\nf 2 3 4\n");
  }
  [[nodiscard]] LibraryPlaces places() const { return {folder.path() / "Models", folder.path()}; }
  [[nodiscard]] std::string library() const { return " --library '" + places().models.string() + "'"; }
  [[nodiscard]] std::string obj() const { return "'" + (folder.path() / "box.obj").string() + "'"; }

  TemporaryFolder folder;
};

TEST_F(Tool, AddsListsAndRemoves) {
  ASSERT_EQ(
      run("add " + obj() + " --name 'Kiste \"50 %\" \xC3\xA4' --category Mine/Boxes --keywords 'a, b c'" + library()),
      0);
  ASSERT_EQ(run("add " + obj() + " " + obj() + library()), 0);
  const auto cards = search::readDatabase(folder.path());
  ASSERT_EQ(cards.size(), 3U);
  EXPECT_EQ(cards[0].number, 50000);
  EXPECT_EQ(cards[0].name, "Kiste \"50 %\" \xC3\xA4");
  EXPECT_EQ(cards[0].category, "Mine");
  EXPECT_EQ(cards[0].subcategory, "Boxes");
  EXPECT_EQ(cards[0].keywords, (std::vector<std::string>{"a", "b c"}));
  EXPECT_EQ(cards[1].name, "box");
  EXPECT_EQ(run("list" + library()), 0);
  EXPECT_EQ(run("check" + library()), 0);
  EXPECT_EQ(run("remove 50000 50002" + library()), 0);
  EXPECT_EQ(run("check" + library()), 0);
  EXPECT_EQ(search::readDatabase(folder.path()).size(), 1U);
}

TEST_F(Tool, BuildIndexMakesALostDatabase) {
  ASSERT_EQ(run("add " + obj() + library()), 0);
  fs::remove(folder.path() / search::databaseFileName);
  EXPECT_NE(run("check" + library()), 0);
  EXPECT_EQ(run("build-index" + library()), 0);
  EXPECT_EQ(run("check" + library()), 0);
}

TEST_F(Tool, DatabaseMayLieElsewhere) {
  const std::string elsewhere = " --database '" + (folder.path() / "Dictionary").string() + "'";
  ASSERT_EQ(run("add " + obj() + library() + elsewhere), 0);
  EXPECT_TRUE(fs::exists(folder.path() / "Dictionary" / search::databaseFileName));
  EXPECT_EQ(run("check" + library() + elsewhere), 0);
}

TEST_F(Tool, BuildsTwiceAlikeAndFindsTheModelsWhole) {
  const TemporaryFolder recipes;
  fs::copy_file(fs::path(SAMPLE_MODELS) / "shared.recipe", recipes.path() / "shared.recipe");
  for (const char* some : {"symbols", "office"}) {
    fs::copy(fs::path(SAMPLE_MODELS) / some, recipes.path() / some, fs::copy_options::recursive);
  }
  const std::string one = (folder.path() / "1/Models").string(), two = (folder.path() / "2/Models").string();
  ASSERT_EQ(run("build '" + recipes.path().string() + "' --library '" + one + "'"), 0);
  ASSERT_EQ(run("build '" + recipes.path().string() + "' --library '" + two + "'"), 0);
  EXPECT_EQ(run("check --library '" + one + "'"), 0);
  std::set<fs::path> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(one)) {
    if (entry.is_regular_file()) files.insert(entry.path().lexically_relative(one));
  }
  EXPECT_GE(files.size(), 20U);
  for (const fs::path& file : files) EXPECT_EQ(contentOf(one / file), contentOf(two / file)) << file;
}

TEST_F(Tool, FailsForWrongUse) {
  EXPECT_NE(run(""), 0);
  EXPECT_NE(run("build"), 0);
  EXPECT_NE(run("sing /tmp"), 0);
  EXPECT_NE(run("add" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --colour red" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --number" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --number -3" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --number 5000000000" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --name '  '" + library()), 0);
  EXPECT_NE(run("add " + obj() + " --category a/b/c" + library()), 0);
  EXPECT_NE(run("remove x" + library()), 0);
  EXPECT_NE(run("check --library '/no such folder'"), 0);
}

/// Kills the tool after `microseconds`, wherever it is then.
void addAndKill(const std::string& file, const std::string& library, useconds_t microseconds) {
  const std::string tool = LIBRARY_TOOL;
  std::string words[] = {tool, "add", file, "--library", library};
  char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), words[4].data(), nullptr};
  pid_t child = 0;
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  ASSERT_EQ(posix_spawn(&child, tool.c_str(), &quiet, nullptr, arguments, environ), 0);
  posix_spawn_file_actions_destroy(&quiet);
  usleep(microseconds);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

TEST_F(Tool, KilledAnywhereItLeavesALibraryThatIsWhole) {
  ASSERT_EQ(run("add " + obj() + library()), 0);
  for (useconds_t i = 0; i < 24; ++i) {
    addAndKill((folder.path() / "box.obj").string(), places().models.string(), 4000 * i);
    ASSERT_EQ(run("check" + library()), 0) << "killed after " << 4 * i << " ms";
  }
}

TEST_F(Tool, SeveralAtOnceWaitForEachOtherWhileSomebodySearches) {
  ASSERT_EQ(run("add " + obj() + library()), 0);
  constexpr int tools = 3, models = 6;
  std::vector<std::future<int>> running;
  running.reserve(tools);
  for (int i = 0; i < tools; ++i) {
    running.push_back(std::async(std::launch::async, [this] {
      int failures = 0;
      for (int added = 0; added < models; ++added) failures += run("add " + obj() + library()) == 0 ? 0 : 1;
      return failures;
    }));
  }
  const auto isDone = [](const std::future<int>& tool) {
    return tool.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
  };
  std::size_t searches = 0, last = 1;
  while (!std::ranges::all_of(running, isDone)) {
    search::SearchEngine engine({folder.path() / search::databaseFileName, {}, {}});
    const std::size_t found = engine.searchKeywords("box").size();
    EXPECT_GE(found, last) << "a search saw a library that never was";
    last = found;
    ++searches;
  }
  EXPECT_GT(searches, 0U);
  for (std::future<int>& tool : running) EXPECT_EQ(tool.get(), 0);
  EXPECT_EQ(search::readDatabase(folder.path()).size(), 1U + tools * models);
  EXPECT_EQ(run("check" + library()), 0);
}

}  // namespace
}  // namespace nerida::library
