// What the catalog's buttons and menu entries do.
#include "catalog/browser_texts.h"
#include "catalog/frm_browser.h"

#ifndef NERIDA_WEB_PAGE
#error "NERIDA_WEB_PAGE must be the address of the web page"
#endif

namespace nerida {
namespace {

constexpr const char* webPage = NERIDA_WEB_PAGE;

// Elements of the button arrays; what lies between them is not used.
constexpr int searchButton = 0;
constexpr int helpButton = 2;
constexpr int insertModelButton = 0;
constexpr int insertButton = 2;

// The icon of an animated model is the toolbar's picture for animation.
constexpr const char* smallIcons[] = {"5,Animation.bmp,0,0,23,22"};

}  // namespace

// Touching a control makes the window; that is left to the first time that somebody wants to see it.
void frmBrowser::connectControls() {
  if (connected) return;
  Window& form = loadedWindow();
  form.textBox("txtSearch").enterPressed = [this] { txtSearch_KeyPress(); };
  for (const int index : {searchButton, helpButton}) {
    form.button("cmdBrowse", index).click = [this, index] { cmdBrowse_Click(index); };
  }
  for (const int index : {insertModelButton, insertButton}) {
    form.button("cmdInsert", index).click = [this, index] { cmdInsert_Click(index); };
  }
  form.comboBox("cmbStyles").click = [this] { cmbStyles_Click(); };
  form.listView("lstModels").itemClick = [this](int index) { lstModels_ItemClick(index); };
  form.listView("lstModels").setSmallIcons(paths.SystemPath, "Toolbar.res", smallIcons);
  form.image("picLogo").click = [this] { ShowWeb(); };
  form.image("picLogo").setPicture(logo);
  connected = true;
}

void frmBrowser::connectMenu() {
  loadedWindow().menu().click = [this](const std::string& name, int index) { menu_Click(name, index); };
}

void frmBrowser::menu_Click(const std::string& name, int index) {
  if (name == "mnuExit") HideSelf();
  if (name == "mnuHelp") ShowHelpFile();
  if (name == "mnuWeb") ShowWeb();
  if (name == "mnuMaster") openExpansionPage();
  if (name == "mnuAbout" && aboutAsked) aboutAsked();
  if (name == "mnuInsert") mnuInsert_Click();
  if (name == "mnuInsertModel") mnuInsertModel_Click();
  if (name == "mnuCategory" && index == 0) searchBoxText(surpriseQuery);
  const bool isSearch = name == "mnuSearch";
  const bool isCategory = name.starts_with("mnuSubCategory");
  if (!isSearch && !isCategory) return;
  const std::string caption = loadedWindow().menu().caption(name, index);
  searchBoxText(isCategory ? ":" + caption : caption);
}

void frmBrowser::cmdBrowse_Click(int index) {
  if (index == searchButton) searchTypedText();
  if (index == helpButton) ShowHelpFile();
}

void frmBrowser::ShowHelpFile() {
  handleHere([this] { services.shell.openHelp(hWnd(), paths.HelpPath + "\\Zephra.hlp"); });
}

void frmBrowser::ShowWeb() {
  openPage(webPage, ShowCommand::hidden, "Sorry, Zephra was unable to start a Web Browser.");
}

void frmBrowser::openExpansionPage() {
  openPage(paths.SystemPath + "\\expansion.htm", ShowCommand::normal,
           "Sorry, Zephra was unable to start a Web Browser to view the file 'expansion.htm'");
}

void frmBrowser::openPage(const std::string& page, ShowCommand show, const char* complaint) {
  bool opened = false;
  ignoringErrors([&] { opened = services.shell.open(hWnd(), page, paths.SystemPath, show); });
  if (!opened) messages.show(complaint, catalogTitle);
}

void frmBrowser::cmdInsert_Click(int index) {
  handleHere([this, index] {
    InsertModel();
    if (index == insertButton) insertWithStyle(zephBrowser().modelName());
    model.RefreshDisplay();
  });
}

// The button asks the preview whether there is a model, the menu asks the embedded object what it has become.
void frmBrowser::mnuInsert_Click() {
  handleAs("Error occurred while inserting models :", catalogTitle, [this] {
    InsertModel();
    insertWithStyle(model.ModelName());
    model.RefreshDisplay();
  });
}

void frmBrowser::mnuInsertModel_Click() {
  handleHere([this] {
    InsertModel();
    model.RefreshDisplay();
  });
}

void frmBrowser::insertWithStyle(const std::string& testedName) {
  if (!testedName.empty()) model.setLookStyle(zephBrowser().styleName());
}

}  // namespace nerida
