#include "catalog/browser_layout.h"

#include <array>

#include "catalog/browser_texts.h"

namespace nerida {
namespace {

constexpr std::int32_t formWidth = 9900;
constexpr std::int32_t formHeight = 6600;
constexpr std::int32_t margin = 150;
constexpr std::int32_t row1 = 150;   // searching
constexpr std::int32_t row2 = 720;   // captions
constexpr std::int32_t row3 = 960;   // list and preview
constexpr std::int32_t row4 = 6060;  // inserting
constexpr std::int32_t line = 390;   // height of a button
constexpr std::int32_t field = 345;  // of a text box and of a list of styles
constexpr std::int32_t paneHeight = row4 - margin - row3;
constexpr std::int32_t rightPane = 4650;
constexpr std::int32_t rightWidth = formWidth - margin - rightPane;

// A form that grows gives both panes their share, and the buttons keep to the edges.
constexpr Stretch leftHalf{0, 0, 50, 100};
constexpr Stretch rightHalf{50, 0, 100, 100};
constexpr Stretch wider{0, 0, 100, 0};
constexpr Stretch rightEdge{100, 0, 100, 0};
constexpr Stretch bottomLeft{0, 100, 50, 100};
constexpr Stretch bottomRight{100, 100, 100, 100};

constexpr std::array controls{
    ControlLayout{"txtSearch", 0, ControlKind::textBox, at(margin, row1 + 22, 4350, field), searchPrompt,
                  "Keywords for a model search", wider},
    ControlLayout{"cmdBrowse", 0, ControlKind::button, at(4650, row1, 1200, line), "Search", "", rightEdge},
    ControlLayout{"cmdBrowse", 2, ControlKind::button, at(5970, row1, 1200, line), "Help", "", rightEdge},
    ControlLayout{"picLogo", 0, ControlKind::image, at(7350, 90, 2400, 570), "", "Zephra on the web", rightEdge},
    ControlLayout{
        "lblResults", 0, ControlKind::label, at(margin, row2, 4350, 225), " Search Results", "", {0, 0, 50, 0}},
    ControlLayout{"lblModel", 0, ControlKind::label, at(rightPane, row2, rightWidth, 225), "", "", {50, 0, 100, 0}},
    ControlLayout{"lstModels", 0, ControlKind::listView, at(margin, row3, 4350, paneHeight), "Models found", "",
                  leftHalf},
    ControlLayout{"zephBrowser", 0, ControlKind::preview, at(rightPane, row3, rightWidth, paneHeight),
                  "Preview of the model", "", rightHalf},
    ControlLayout{"lblStyles",
                  0,
                  ControlKind::label,
                  at(margin, row4 + 75, 1560, 240),
                  "Style on the page:",
                  "",
                  {0, 100, 0, 100}},
    ControlLayout{"cmbStyles", 0, ControlKind::comboBox, at(1740, row4 + 22, 2760, field), "",
                  "Select a LookStyle for the model on the page", bottomLeft},
    ControlLayout{"cmdInsert", 2, ControlKind::button, at(6150, row4, 1650, line), "Insert",
                  "Insert the model in the style of the preview", bottomRight},
    ControlLayout{"cmdInsert", 0, ControlKind::button, at(7950, row4, 1800, line), "Insert Model Only",
                  "Insert the model and keep the style of the page", bottomRight},
};

constexpr int menusOfCategories = 15;
constexpr int categories = menusOfCategories + 2;  // "Surprise Me" in front, and one without a menu in the end

constexpr std::array<const char*, menusOfCategories> subMenuNames{
    "mnuSubCategory1",  "mnuSubCategory2",  "mnuSubCategory3",  "mnuSubCategory4",  "mnuSubCategory5",
    "mnuSubCategory6",  "mnuSubCategory7",  "mnuSubCategory8",  "mnuSubCategory9",  "mnuSubCategory10",
    "mnuSubCategory11", "mnuSubCategory12", "mnuSubCategory13", "mnuSubCategory14", "mnuSubCategory15"};

constexpr std::array menusBefore{
    MenuLayout{"mnuFile", 0, 0, "&File"},
    MenuLayout{"mnuInsert", 0, 1, "&Insert"},
    MenuLayout{"mnuInsertModel", 0, 1, "Insert &Model Only"},
    MenuLayout{"mnuFileDiv", 0, 1, "-"},
    MenuLayout{"mnuExit", 0, 1, "&Close"},
    MenuLayout{"mnuEdit", 0, 0, "&Edit"},
    MenuLayout{"mnuCopy", 0, 1, "&Copy", true, false},
    MenuLayout{"mnuSearches", 0, 0, "&Recent Searches"},
    MenuLayout{"mnuSearch", 0, 1, "", false},
    MenuLayout{"mnuCategories", 0, 0, "Ca&tegories"},
};

constexpr std::array menusAfter{
    MenuLayout{"mnuHelpMenu", 0, 0, "&Help"},
    MenuLayout{"mnuHelp", 0, 1, "&Help Topics"},
    MenuLayout{"mnuWeb", 0, 1, "Zephra on the &Web"},
    MenuLayout{"mnuDiv", 0, 1, "-", false},
    MenuLayout{"mnuMaster", 0, 1, "&Expansion Models", false, false},
    MenuLayout{"mnuAboutDiv", 0, 1, "-"},
    MenuLayout{"mnuAbout", 0, 1, "&About Zephra"},
};

constexpr std::size_t menuCount = menusBefore.size() + categories + menusOfCategories + menusAfter.size();

constexpr std::array<MenuLayout, menuCount> makeMenu() {
  std::array<MenuLayout, menuCount> rows{};
  std::size_t count = 0;
  for (const MenuLayout& row : menusBefore) rows[count++] = row;
  for (int i = 0; i < categories; ++i) {
    rows[count++] = {"mnuCategory", i, 1, i == 0 ? surpriseCaption : "", i == 0};
    if (i >= 1 && i <= menusOfCategories) rows[count++] = {subMenuNames[static_cast<std::size_t>(i) - 1], 0, 2};
  }
  for (const MenuLayout& row : menusAfter) rows[count++] = row;
  return rows;
}

constexpr std::array menu = makeMenu();

}  // namespace

const FormLayout browserLayout{"frmBrowser", "Zephra Catalog", FormFrame::dialog, {formWidth}, {formHeight}, controls,
                               menu};

}  // namespace nerida
