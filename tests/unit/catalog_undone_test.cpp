// A model or a preview that takes the catalog down while it is being used by it: what was going on ends where it was,
// and nobody is told.
#include <tuple>

#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::Combine;
using testing::IsEmpty;
using testing::Values;

struct InsertCommand {
  const char* name;
  void (*run)(headless::FormWindow&);
};

void PrintTo(const InsertCommand& command, std::ostream* out) { *out << command.name; }

const InsertCommand insertButton = {"Insert", [](auto& catalog) { catalog.pushButton("cmdInsert", 2).press(); }};
const InsertCommand insertEntry = {"the menu's Insert", [](auto& catalog) { catalog.menuBar.choose("mnuInsert"); }};
const InsertCommand modelButton = {"Insert Model Only",
                                   [](auto& catalog) { catalog.pushButton("cmdInsert", 0).press(); }};
const InsertCommand modelEntry = {"the menu's Insert Model Only",
                                  [](auto& catalog) { catalog.menuBar.choose("mnuInsertModel"); }};

struct CatalogUndoing {
  const char* name;
  void (*run)(std::unique_ptr<NeridaWindow>& control);
};

void PrintTo(const CatalogUndoing& undoing, std::ostream* out) { *out << undoing.name; }

const CatalogUndoing disposal = {"disposed of", [](auto& control) { control->ToolbarDispose(); }};
const CatalogUndoing lastRelease = {"released", [](auto& control) { control.reset(); }};

// A catalog that previews a model.
class UndoneCatalog : public CatalogTest {
 protected:
  void SetUp() override {
    open();
    findWindmill();
  }

  // What the model was told that belongs to an insertion. A catalog that closes asks for its name and tells that it
  // does.
  static Lines ofInsertion(Lines lines) {
    std::erase_if(lines, [](const std::string& line) {
      return !line.starts_with("model: ") || line == "model: ModelName" || line.find("Showing") != std::string::npos;
    });
    return lines;
  }

  void expectGone(const Lines& lines) {
    for (const std::string& line : lines) EXPECT_FALSE(line.starts_with("box")) << line;
    EXPECT_THAT(platform.windows.living, IsEmpty());
    EXPECT_EQ(library.state.gModelObject, nullptr);
    EXPECT_EQ(library.state.unloading, 0);
  }
};

class UndoneInsertion : public UndoneCatalog,
                        public testing::WithParamInterface<std::tuple<InsertCommand, const char*, CatalogUndoing>> {};

TEST_P(UndoneInsertion, EndsQuietlyInTheMemberThatUndidIt) {
  const InsertCommand& command = std::get<0>(GetParam());
  const std::string member = std::get<1>(GetParam());
  const CatalogUndoing& undoing = std::get<2>(GetParam());
  model->hooks[member] = [&] {
    model->hooks.clear();
    undoing.run(control);
  };
  command.run(catalog());
  const Lines lines = take();
  expectGone(lines);
  ASSERT_TRUE(model->hooks.empty());  // the member was reached
  const Lines told = ofInsertion(lines);
  ASSERT_FALSE(told.empty());
  EXPECT_THAT(told.back(), testing::StartsWith("model: " + member));
}

INSTANTIATE_TEST_SUITE_P(OfTheModel, UndoneInsertion,
                         Combine(Values(insertButton, insertEntry, modelButton, modelEntry),
                                 Values("ModelName", "TarnwellXFile", "ModelScale", "SetOrientation", "RefreshDisplay"),
                                 Values(disposal, lastRelease)));
INSTANTIATE_TEST_SUITE_P(OfItsStyle, UndoneInsertion,
                         Combine(Values(insertButton, insertEntry), Values("LookStyle"),
                                 Values(disposal, lastRelease)));

struct PreviewUse {
  const char* name;
  const char* member;
  void (*run)(headless::FormWindow&);
};

void PrintTo(const PreviewUse& use, std::ostream* out) { *out << use.name << ", inside " << use.member; }

void clickShip(headless::FormWindow& catalog) { catalog.items("lstModels").click(1); }
void searchAnew(headless::FormWindow& catalog) {
  catalog.previewControl("zephBrowser").model = "";
  catalog.text("txtSearch").enter("mill");
}
void insertPreviewed(headless::FormWindow& catalog) { insertButton.run(catalog); }

class UndonePreview : public UndoneCatalog,
                      public testing::WithParamInterface<std::tuple<PreviewUse, CatalogUndoing>> {};

TEST_P(UndonePreview, IsNotTouchedAgain) {
  const PreviewUse& use = std::get<0>(GetParam());
  const CatalogUndoing& undoing = std::get<1>(GetParam());
  bool reached = false;
  preview().hooks[use.member] = [&] {
    reached = true;
    undoing.run(control);
    take();
  };
  use.run(catalog());
  const Lines lines = take();
  expectGone(lines);
  EXPECT_TRUE(reached);
  for (const std::string& line : lines) EXPECT_FALSE(line.starts_with("zephBrowser")) << line;
  EXPECT_THAT(ofInsertion(lines), IsEmpty());
  EXPECT_EQ(platform.screen.pointer, MousePointer::standard);
}

INSTANTIATE_TEST_SUITE_P(
    Members, UndonePreview,
    Combine(Values(PreviewUse{"a click", "ModelName", clickShip}, PreviewUse{"a click", "ModelFile =", clickShip},
                   PreviewUse{"a click", "ModelName =", clickShip}, PreviewUse{"a click", "Load", clickShip},
                   PreviewUse{"a search", "ModelFile =", searchAnew}, PreviewUse{"a search", "Load", searchAnew},
                   PreviewUse{"an insertion", "ModelFile", insertPreviewed},
                   PreviewUse{"an insertion", "ModelName", insertPreviewed},
                   PreviewUse{"an insertion", "ModelScale", insertPreviewed},
                   PreviewUse{"an insertion", "GetOrientation", insertPreviewed},
                   PreviewUse{"an insertion", "StyleName", insertPreviewed}),
            Values(disposal, lastRelease)));

TEST_F(UndoneCatalog, IsGoneUnderTheMessageAboutAModelThatRefuses) {
  model->failures.emplace("ModelScale", Error(380));
  platform.boxes.duringBox = [this] { control->ToolbarDispose(); };
  answerBoxes(1);
  catalog().pushButton("cmdInsert", 2).press();
  const Lines lines = take();
  EXPECT_THAT(ofInsertion(lines), testing::Contains("model: ModelScale = 100&"));
  EXPECT_THAT(ofInsertion(lines), testing::SizeIs(3));
  EXPECT_EQ(std::ranges::count_if(lines, [](const std::string& line) { return line.starts_with("box"); }), 1);
}

}  // namespace
}  // namespace nerida
