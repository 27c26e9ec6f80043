// The search component in the hands of the system's script languages.
#include <gtest/gtest.h>

#include "tests/windows/com/recording_object.h"
#include "tests/windows/com/script_engine.h"
#include "tests/windows/search/search_files.h"

namespace nerida::host {
namespace {

class ScriptClients : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  /// What a script says. It finds the component as "search", and says something by page.Say.
  std::vector<std::string> run(const wchar_t* language, const wchar_t* code) {
    RecordingObject page;
    std::vector<std::string> lines;
    page.add(L"Say", [&](const RecordingObject::Call& call) {
      host::Variant text;
      VariantChangeType(&text, &call.argument(0), VARIANT_ALPHABOOL, VT_BSTR);
      lines.push_back(host::utf8(viewOf(text.bstrVal)));
      return S_OK;
    });
    ScriptEngine engine(language);
    engine.add(L"page", &page);
    engine.add(L"search", search.get());
    EXPECT_TRUE(engine.run(code)) << host::utf8(engine.error());
    return lines;
  }

  const SearchFiles files;
  const Module module{componentFile()};
  const ComRef<IKeywordSearch> search = module.newSearch();
};

using Lines = std::vector<std::string>;

TEST_F(ScriptClients, InVBScriptGetFilledVariables) {
  EXPECT_EQ(run(L"VBScript",
                LR"(
    Dim query, names, ids, flags, count, i
    query = "boat"
    search.Search query, names, ids, flags, count
    page.Say query & " " & count & " " & LBound(names) & ".." & UBound(names)
    For i = 0 To count - 1
      page.Say names(i) & " " & ids(i) & " " & flags(i)
    Next
    names = "something else"
    page.Say search.Search("nothing at all", names, ids, flags, count) & " " & UBound(names)
  )"),
            (Lines{"boat 2 0..1", "Sailing Boat 1 0", "Steamer 2 32", "0 -1"}));
}

TEST_F(ScriptClients, InVBScriptGetTheCategories) {
  EXPECT_EQ(run(L"VBScript",
                LR"(
    Dim names, subs, counts, last, i
    search.GetCategories names, subs, counts, last
    For i = 0 To last
      page.Say names(i) & " " & counts(i)
    Next
    page.Say subs(0) & subs(1) & subs(2) & " " & search.TestEngine(6)
  )"),
            (Lines{"Buildings 1", "Shapes 0", "Transport 2", "HousesCarsShips 7"}));
}

TEST_F(ScriptClients, InVBScriptGetTheErrorsText) {
  files.removeDatabase();
  const Lines lines = run(L"VBScript",
                          LR"(
    Dim names, ids, flags, count
    count = 5
    On Error Resume Next
    search.Search "boat", names, ids, flags, count
    page.Say "failed: " & (Err.Number <> 0) & " " & count
    page.Say Err.Description
    page.Say Err.Source
  )");
  EXPECT_EQ(lines,
            (Lines{"failed: True 5", "The model database is missing: " + files.database().string(), "Zephra Search"}));
}

TEST_F(ScriptClients, InJScriptGetTheNumberOfHits) {
  EXPECT_EQ(run(L"JScript",
                LR"(
    page.Say(search.Search("boat", 0, 0, 0, 0) + " " + search.TestEngine(1) + " " + search.GetCategories(0, 0, 0, 0));
    try { search.Search("boat"); page.Say("too few arguments"); } catch (error) { page.Say("refused"); }
  )"),
            (Lines{"2 2 3", "refused"}));
}

TEST_F(ScriptClients, InJScriptGetTheErrorsText) {
  files.removeDatabase();
  EXPECT_EQ(run(L"JScript",
                LR"(
    try { search.Search("boat", 0, 0, 0, 0); } catch (error) { page.Say(error.description); }
  )"),
            Lines{"The model database is missing: " + files.database().string()});
}

}  // namespace
}  // namespace nerida::host
