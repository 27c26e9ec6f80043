// The trace that a host's developer asks for, written by the real control: where it goes and what stands in it.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "platform/win32/settings.h"
#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/model.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

constexpr const wchar_t* variable = L"NERIDA_TRACE";
constexpr const wchar_t* settingsKey = L"Software\\VB and VBA Program Settings\\Zephra\\Trace";
constexpr const char* folder = "C:\\NeridaTrace";
constexpr const char* fileName = "C:\\NeridaTrace\\\xc3\xa4 trace.log";

using Lines = std::vector<std::string>;

// The lines of a file without the times that they begin with; a line without its end is missing.
Lines linesOf(const std::string& path) {
  std::ifstream file(wide(path).c_str(), std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  Lines lines;
  for (std::size_t start = 0, end = 0; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
    const std::string line = text.substr(start, end - start);
    EXPECT_TRUE(line.find_first_not_of(" 0123456789") >= 10 && line.substr(8, 2) == "  ") << line;
    lines.push_back(line.substr(10));
  }
  return lines;
}

class TracedControl : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  void SetUp() override {
    CreateDirectoryW(wide(folder).c_str(), nullptr);
    cleanUp();
  }
  void TearDown() override {
    cleanUp();
    EXPECT_TRUE(RemoveDirectoryW(wide(folder).c_str())) << "nothing is left in it";
    EXPECT_EQ(boxes.seen(), Lines());
  }
  void cleanUp() {
    SetEnvironmentVariableW(variable, nullptr);
    RegDeleteKeyW(HKEY_CURRENT_USER, settingsKey);
    for (const std::string& path : {std::string(fileName), ownFile()}) DeleteFileW(wide(path).c_str());
  }

  static std::string ownFile() {
    return std::string(folder) + "\\ActiveNeridaToolbar-" + std::to_string(GetCurrentProcessId()) + ".log";
  }

  // One control's life, from its creation to its release.
  void useControl() {
    const auto control = module.create();
    ASSERT_TRUE(control);
    IDispatch* object = &model;
    LONG host = 0;
    LONG number = -1;
    EXPECT_EQ(control->ToolbarInit(&object, &host, &number), S_OK);
    SHORT x = 30;
    SHORT y = 40;
    EXPECT_EQ(control->ToolbarShow(&x, &y, &window), S_OK);
    EXPECT_NE(window, -1);
    EXPECT_EQ(control->ToolbarDispose(&number), S_OK);
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  Model model;
  const ControlModule module;
  LONG window = 0;
};

TEST_F(TracedControl, WritesTheLifeOfAControlToTheNamedFile) {
  SetEnvironmentVariableW(variable, wide(fileName).c_str());
  useControl();
  Lines lines = linesOf(fileName);
  // Asked whenever the desktop gives this program the focus, which it may do at any time.
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("  get AnimationState"); });
  ASSERT_GT(lines.size(), 8U);
  EXPECT_NE(lines[0].find("process " + std::to_string(GetCurrentProcessId())), std::string::npos) << lines[0];
  EXPECT_EQ(lines[1], "create NeridaWindow -> done");
  EXPECT_EQ(lines[2], "ToolbarInit(Object, 0&) ->");
  EXPECT_EQ(
      lines[3],
      "  call GetLookStyleList(ByRef Empty, ByRef Empty, ByRef Empty) -> Empty leaving Array(\"\"), Empty, Empty");
  const auto bound = std::find(lines.begin(), lines.end(), "ToolbarInit -> 0&");
  ASSERT_NE(bound, lines.end());
  EXPECT_EQ(Lines(bound + 1, lines.end()),
            Lines({"ToolbarShow(ByRef 30%, ByRef 40%) ->", "  let IsToolbarShowing = True -> done",
                   "ToolbarShow -> " + std::to_string(window) + "& leaving 30%, 40%", "ToolbarDispose() ->",
                   "  let IsToolbarShowing = False -> done", "  let DoneShowingModelCatalog = True -> done",
                   "ToolbarDispose -> 0&", "release NeridaWindow -> done"}));
}

TEST_F(TracedControl, AddsToWhatIsThereAndCanBeReadMeanwhile) {
  SetEnvironmentVariableW(variable, wide(fileName).c_str());
  useControl();
  const std::size_t before = linesOf(fileName).size();
  Lines inside;
  model.used = [&](const std::wstring&) {
    if (inside.empty()) inside = linesOf(fileName);
  };
  useControl();
  EXPECT_EQ(inside.size(), before + 3) << "heading, creation, ToolbarInit; the line under way has no end yet";
  EXPECT_EQ(linesOf(fileName).size(), 2 * before);
}

TEST_F(TracedControl, GivesEachProcessAFileOfItsOwnInAFolder) {
  SetEnvironmentVariableW(variable, wide(folder).c_str());
  useControl();
  EXPECT_EQ(linesOf(ownFile()).back(), "release NeridaWindow -> done");
}

TEST_F(TracedControl, IsAskedForInTheUsersSettingsToo) {
  SystemSettings().write("Trace", "File", fileName);
  useControl();
  EXPECT_EQ(linesOf(fileName).back(), "release NeridaWindow -> done");
}

TEST_F(TracedControl, FollowsTheEnvironmentBeforeTheSettings) {
  SystemSettings().write("Trace", "File", fileName);
  SetEnvironmentVariableW(variable, wide(folder).c_str());
  useControl();
  EXPECT_EQ(linesOf(fileName), Lines());
  EXPECT_FALSE(linesOf(ownFile()).empty());
}

TEST_F(TracedControl, IsOffWhereTheFileCannotBeOpened) {
  for (const wchar_t* path : {L"C:\\NoSuchFolder\\trace.log", L"C:\\Neri<da>|?*", L"Q:\\trace.log"}) {
    SetEnvironmentVariableW(variable, path);
    useControl();
  }
  const HANDLE taken = CreateFileW(wide(fileName).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  SetEnvironmentVariableW(variable, wide(fileName).c_str());
  useControl();
  CloseHandle(taken);
  EXPECT_EQ(linesOf(fileName), Lines());
  EXPECT_EQ(model.references, 1U);
}

TEST_F(TracedControl, IsOffUnlessAskedFor) {
  useControl();
  EXPECT_EQ(linesOf(fileName), Lines());
  EXPECT_EQ(linesOf(ownFile()), Lines());
}

// The trace's keeper is let go of from inside of the call that it is to record.
TEST_F(TracedControl, RecordsACallInWhichTheControlGoes) {
  SetEnvironmentVariableW(variable, wide(fileName).c_str());
  _NeridaWindow* last = module.create().release();
  IDispatch* object = &model;
  LONG host = 0;
  LONG number = -1;
  ASSERT_EQ(last->ToolbarInit(&object, &host, &number), S_OK);
  bool released = false;
  model.used = [&](const std::wstring& member) {
    if (member != L"IsToolbarShowing" || released) return;
    released = true;
    last->Release();
  };
  SHORT x = 10;
  SHORT y = 10;
  EXPECT_EQ(last->ToolbarShow(&x, &y, &window), S_OK);
  const Lines lines = linesOf(fileName);
  EXPECT_EQ(lines.back(), "release NeridaWindow -> done");
  EXPECT_EQ(model.references, 1U);
}

}  // namespace
}  // namespace nerida
