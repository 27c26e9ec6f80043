// What the catalog needs of a window and of the system: menus, lists, buttons, files, the search component.
#include <algorithm>

#include "platform/files.h"
#include "platform/search_component.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

constexpr std::array dialogControls{
    ControlLayout{"field", 0, ControlKind::textBox, {{0}, {0}, {1500}, {330}}, "prompt"},
    ControlLayout{"press", 0, ControlKind::button, {{1500}, {0}, {900}, {375}}, "First"},
    ControlLayout{"press", 2, ControlKind::button, {{2400}, {0}, {900}, {375}}, "Third"},
    ControlLayout{"items", 0, ControlKind::listView, {{0}, {450}, {3000}, {2400}}},
    ControlLayout{"logo", 0, ControlKind::image, {{3300}, {0}, {900}, {375}}},
};

constexpr std::array dialogMenu{
    MenuLayout{"mnuFile", 0, 0, "&File"},     MenuLayout{"mnuOpen", 0, 1, "&Open"},
    MenuLayout{"mnuLine", 0, 1, "-"},         MenuLayout{"mnuGrey", 0, 1, "&Grey", true, false},
    MenuLayout{"mnuHidden", 0, 1, "", false}, MenuLayout{"mnuRecent", 0, 0, "&Recent"},
    MenuLayout{"mnuText", 0, 1, "", false},   MenuLayout{"mnuLast", 0, 1, "Last"},
    MenuLayout{"mnuEmpty", 0, 0, "&Empty"},   MenuLayout{"mnuNothing", 0, 1, "", false},
};

constexpr FormLayout dialogLayout{"dialog", "Dialog", FormFrame::dialog, {6000}, {3000}, dialogControls, dialogMenu};

class DialogTest : public testing::Test {
 protected:
  DialogTest() {
    form = subject->services().windows.create(dialogLayout);
    form->menu().click = [this](const std::string& name, int index) {
      events.push_back(name + " " + std::to_string(index));
    };
    items().itemClick = [this](int index) { events.push_back("item " + std::to_string(index)); };
    for (const int index : {0, 2}) {
      form->button("press", index).click = [this, index] { events.push_back("press " + std::to_string(index)); };
    }
  }
  void show() { form->showTopmostAt({100, 100}); }
  ListView& items() { return form->listView("items"); }
  FormMenu& menu() { return form->menu(); }
  bool choose(const char* name, int index = 0) { return subject->chooseMenu(*form, name, index); }
  std::vector<std::string> take() { return std::exchange(events, {}); }

  using Events = std::vector<std::string>;
  std::unique_ptr<Subject> subject = makeSubject();
  std::shared_ptr<Window> form;
  Events events;
};

using MenuContract = DialogTest;

TEST_F(MenuContract, AnEntryIsChosen) {
  show();
  EXPECT_TRUE(choose("mnuOpen"));
  EXPECT_EQ(take(), Events{"mnuOpen 0"});
}

TEST_F(MenuContract, WhatIsGreyHiddenEmptyOrASeparatorCannotBeChosen) {
  show();
  for (const char* name : {"mnuGrey", "mnuHidden", "mnuLine", "mnuText"}) EXPECT_FALSE(choose(name)) << name;
  menu().setVisible("mnuHidden", 0, true);
  EXPECT_FALSE(choose("mnuHidden"));  // it has no caption yet
  menu().setCaption("mnuHidden", 0, "Now");
  EXPECT_TRUE(choose("mnuHidden"));
  menu().setEnabled("mnuGrey", 0, true);
  EXPECT_TRUE(choose("mnuGrey"));
  menu().setEnabled("mnuOpen", 0, false);
  EXPECT_FALSE(choose("mnuOpen"));
  EXPECT_EQ(take(), (Events{"mnuHidden 0", "mnuGrey 0"}));
}

TEST_F(MenuContract, AMenuOpensWhenSomethingInItIsInSight) {
  show();
  EXPECT_FALSE(choose("mnuNothing"));
  menu().setCaption("mnuNothing", 0, "Something");
  menu().setVisible("mnuNothing", 0, true);
  EXPECT_TRUE(choose("mnuNothing"));
}

TEST_F(MenuContract, ElementsAreHiddenCopiesThatStandTogether) {
  show();
  menu().load("mnuText", 1);
  menu().load("mnuText", 2);
  EXPECT_FALSE(choose("mnuText", 1));
  for (const int index : {1, 2}) {
    menu().setCaption("mnuText", index, "Text & " + std::to_string(index));
    menu().setVisible("mnuText", index, true);
  }
  EXPECT_EQ(menu().caption("mnuText", 2), "Text & 2");
  EXPECT_TRUE(choose("mnuText", 2));
  EXPECT_TRUE(choose("mnuText", 1));
  EXPECT_TRUE(choose("mnuLast"));
  EXPECT_EQ(take(), (Events{"mnuText 2", "mnuText 1", "mnuLast 0"}));
}

TEST_F(MenuContract, ACaptionThatIsSetIsNeverASeparator) {
  show();
  menu().setCaption("mnuLast", 0, "-");
  EXPECT_TRUE(choose("mnuLast"));
}

TEST_F(MenuContract, ElementsThatDoNotExist) {
  EXPECT_EQ(errorOf([&] { menu().setCaption("mnuText", 1, "x"); }), error::noSuchElement);
  EXPECT_EQ(errorOf([&] { menu().setVisible("mnuNobody", 0, true); }), error::noSuchElement);
  EXPECT_EQ(errorOf([&] { (void)menu().caption("mnuText", -1); }), error::noSuchElement);
  EXPECT_EQ(errorOf([&] { menu().load("mnuNobody", 1); }), error::noSuchElement);
  EXPECT_EQ(errorOf([&] { menu().load("mnuText", 0); }), error::alreadyLoaded);
}

TEST_F(MenuContract, MayDestroyItsFormWhenItIsChosen) {
  show();
  Window& window = *form;
  menu().click = [this](const std::string&, int) { form.reset(); };
  EXPECT_TRUE(subject->chooseMenu(window, "mnuOpen", 0));
  EXPECT_EQ(form, nullptr);
}

using ListContract = DialogTest;

TEST_F(ListContract, KeepsItsItems) {
  EXPECT_EQ(items().count(), 0);
  EXPECT_EQ(items().selected(), -1);
  items().add({"M\xC3\xBChle & \"co\"", "42", 1});
  items().add({"", "-1", 0});
  EXPECT_EQ(items().count(), 2);
  EXPECT_EQ(items().item(0), (ListItem{"M\xC3\xBChle & \"co\"", "42", 1}));
  EXPECT_EQ(items().item(1), (ListItem{"", "-1", 0}));
  items().setTag(1, "7");
  EXPECT_EQ(items().item(1), (ListItem{"", "7", 0}));
  for (const int index : {-1, 2}) {
    EXPECT_EQ(errorOf([&] { (void)items().item(index); }), error::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { items().select(index); }), error::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { items().setTag(index, "7"); }), error::subscriptOutOfRange);
  }
}

TEST_F(ListContract, SelectingByCodeRaisesNothing) {
  show();
  for (int i = 0; i < 3; ++i) items().add({"Item", "1", 0});
  items().select(2);
  EXPECT_EQ(items().selected(), 2);
  items().select(0);
  EXPECT_EQ(items().selected(), 0);
  items().refresh();
  items().clear();
  EXPECT_EQ(items().selected(), -1);
  EXPECT_EQ(items().count(), 0);
  EXPECT_EQ(take(), Events{});
}

TEST_F(ListContract, EveryClickOfTheUserIsRaisedOnce) {
  show();
  for (int i = 0; i < 3; ++i) items().add({"Item", "1", 0});
  items().select(0);
  EXPECT_TRUE(subject->clickItem(*form, "items", 1));
  EXPECT_EQ(take(), Events{"item 1"});
  EXPECT_EQ(items().selected(), 1);
  EXPECT_TRUE(subject->clickItem(*form, "items", 1));
  EXPECT_EQ(take(), Events{"item 1"});
  EXPECT_TRUE(subject->clickItem(*form, "items", 0));
  EXPECT_EQ(take(), Events{"item 0"});
}

TEST_F(ListContract, TypingGoesToTheNextItemThatBeginsSo) {
  show();
  for (const char* text : {"Windmill", "Sailboat", "Swan", "sword"}) items().add({text, "1", 0});
  items().select(0);
  const auto type = [&](const char* text) {
    subject->typeInList(*form, "items", text);
    return take();
  };
  EXPECT_EQ(type("s"), Events{"item 1"});
  EXPECT_EQ(type("sw"), Events{"item 2"});
  EXPECT_EQ(type("S"), Events{"item 3"});
  EXPECT_EQ(type("x"), Events{});
  EXPECT_EQ(items().selected(), 3);
  EXPECT_EQ(type("w"), Events{"item 0"});
}

TEST_F(ListContract, HoldsVeryManyItems) {
  show();
  for (int i = 0; i < 32768; ++i) items().add({"Item " + std::to_string(i), std::to_string(i), i % 2});
  items().select(32767);
  EXPECT_EQ(items().selected(), 32767);
  EXPECT_EQ(items().item(32767).text, "Item 32767");
  items().clear();
  items().add({"One", "1", 0});
  items().select(0);
  EXPECT_EQ(items().selected(), 0);
}

using ButtonContract = DialogTest;

TEST_F(ButtonContract, APressIsRaisedOnce) {
  show();
  EXPECT_TRUE(subject->pressButton(*form, "press", 2));
  EXPECT_TRUE(subject->pressButton(*form, "press", 0));
  EXPECT_EQ(take(), (Events{"press 2", "press 0"}));
}

TEST_F(ButtonContract, OutOfSightItCannotBePressed) {
  show();
  form->button("press", 0).setVisible(false);
  EXPECT_FALSE(subject->pressButton(*form, "press", 0));
}

class FilesContract : public testing::Test {
 protected:
  std::unique_ptr<Subject> subject = makeSubject();
  Files& files = subject->services().files;
  std::string folder = subject->folder();
};

TEST_F(FilesContract, AFileIsListedByItsName) {
  EXPECT_EQ(files.firstFile(folder + "plain.txt"), "plain.txt");
  EXPECT_EQ(files.firstFile(folder + "PLAIN.TXT"), "plain.txt");
  EXPECT_EQ(files.firstFile(folder + "nobody.txt"), "");
}

TEST_F(FilesContract, AFolderGivesAPlainFileOfIts) {
  EXPECT_NE(files.firstFile(folder), "");
  EXPECT_EQ(files.firstFile(folder + "below\\"), "");
  EXPECT_EQ(files.firstFile(folder + "nobody\\"), "");
}

TEST_F(FilesContract, HiddenFilesAndFoldersDoNotCount) {
  EXPECT_EQ(files.firstFile(folder + "hidden.txt"), "");
  EXPECT_EQ(files.firstFile(folder + "below"), "");
}

TEST_F(FilesContract, ADriveThatDoesNotExistHasNoType) {
  EXPECT_EQ(files.driveType("b:"), DriveType::none);
  EXPECT_EQ(files.driveType("c:"), DriveType::fixed);
}

TEST_F(FilesContract, PicturesAreRead) {
  EXPECT_NE(files.loadPicture(folder + "picture.bmp"), nullptr);
  EXPECT_EQ(errorOf([&] { files.loadPicture(folder + "nobody.bmp"); }), error::fileNotFound);
  EXPECT_EQ(errorOf([&] { files.loadPicture(folder + "below"); }), error::fileNotFound);
  EXPECT_EQ(errorOf([&] { files.loadPicture(folder + "plain.txt"); }), error::invalidPicture);
}

TEST_F(FilesContract, APictureOutlivesEverythingElse) {
  const auto picture = files.loadPicture(folder + "picture.bmp");
  auto form = subject->services().windows.create(dialogLayout);
  form->image("logo").setPicture(picture);
  form->showTopmostAt({100, 100});
  form->image("logo").setPicture(nullptr);
  form.reset();
  EXPECT_EQ(picture.use_count(), 1);
}

class SearchContract : public testing::Test {
 protected:
  std::unique_ptr<SearchComponent> make() { return subject->services().searchComponents.create(); }

  std::unique_ptr<Subject> subject = makeSubject();
};

TEST_F(SearchContract, WithoutTheComponentThereIsNone) {
  subject->removeSearch();
  EXPECT_EQ(errorOf([&] { make(); }), error::cannotCreateObject);
}

TEST_F(SearchContract, GivesNamesNumbersFlagsAndCount) {
  subject->installSearch();
  std::string query = "boat";
  const SearchResult hits = make()->search(query);
  EXPECT_EQ(query, "boat");
  EXPECT_EQ(hits.count, 3);
  EXPECT_EQ(hits.names.at(0), "Windmill");
  EXPECT_EQ(hits.ids.at(1), 2105);
  EXPECT_EQ(hits.flags.at(1), 0x20);
  EXPECT_EQ(errorOf([&] { (void)hits.names.at(3); }), error::subscriptOutOfRange);
  EXPECT_EQ(errorOf([&] { (void)hits.names.at(-1); }), error::subscriptOutOfRange);
}

TEST_F(SearchContract, TheQueryMayBeRewritten) {
  subject->installSearch();
  std::string query = "rewrite";
  EXPECT_EQ(make()->search(query).count, 0);
  EXPECT_EQ(query, "rewritten");
}

TEST_F(SearchContract, AFailureComesWithItsDescription) {
  subject->installSearch();
  std::string query = "refuse";
  try {
    make()->search(query);
    FAIL();
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, 513);
    EXPECT_EQ(failure.description, "The database is locked.");
  }
  query = "fail";
  EXPECT_EQ(errorOf([&] { make()->search(query); }), error::outOfMemory);
}

TEST_F(SearchContract, GivesTheCategories) {
  subject->installSearch();
  const CategoryList list = make()->categories();
  EXPECT_EQ(list.lastCategory, 2);
  EXPECT_EQ(list.categoryNames.at(1), "Vehicles");
  EXPECT_EQ(list.subCategoryNames.at(1), "Salt & Pepper");
  EXPECT_EQ(list.subCategoryCounts.at(0), 2);
  EXPECT_EQ(list.subCategoryCounts.at(2), 0);
}

}  // namespace
}  // namespace nerida
