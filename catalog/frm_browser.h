#pragma once

#include <functional>
#include <memory>
#include <string>

#include "catalog/recent_searches.h"
#include "core/catalog_window.h"
#include "core/form.h"
#include "core/model_object.h"
#include "core/paths.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/search_component.h"
#include "platform/settings.h"
#include "platform/shell.h"

namespace nerida {

// The model catalog's window: models are found by keyword, by category or at random, previewed, and inserted into the
// embedded object. Its program lies in five rooms: browser_form (its life), browser_commands (what buttons and menus
// do), browser_search, browser_categories and browser_insertion.
class frmBrowser : public Form, public CatalogWindow {
 public:
  // What the catalog needs of the world.
  struct Services {
    Desktop& desktop;
    Prompts& prompts;
    Settings& settings;
    Shell& shell;
    Files& files;
    SearchComponents& searchComponents;
  };
  frmBrowser(State& state, WindowFactory& windows, Paths& paths, Messages& messages, const Services& services);

  // Shows the catalog and tells the model. A failure is shown, and the model is told that the catalog is closed.
  void ShowSelf() override;
  // Saves the recent searches, hides the catalog and tells the model that it is done. Goes through all of it; the
  // first failure is shown.
  void HideSelf() override;
  void ShowHelpFile() override;
  void ShowWeb();
  void SaveSettings() const { searches.save(services.settings); }

  // The catalog's own hook passes every message on: activation is watched at the toolbar's window alone.
  void SetCallback();
  void RestoreCallback();

  // Searches for the text and lists the hits; the first one is previewed. May rewrite the query. Failures are shown.
  void DictionarySearch(std::string& query);
  // Loads an item's model into the preview. Failures are shown.
  void SelectItem(const ListItem& item);
  // Copies the previewed model into the embedded object; nothing when there is none. A failure is shown.
  void InsertModel();

  // The model's name, read when the catalog closes.
  std::function<void(const std::string& name)> modelNamed;
  std::function<void()> aboutAsked;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  struct Search;  // one under way

  void loadLogo();
  void showExpansionEntries();
  void connectControls();
  void connectMenu();
  void show();
  void GetLookStyleList();
  void selectCurrentStyle();
  void tellClosed(const std::function<void(const std::function<void()>&)>& attempt);

  bool hasLibrary();
  void runSearch(std::string& query, Search& search);
  void listHits(const SearchResult& hits);
  void selectFirstHit();

  void AddCategories();
  void fillCategories(const CategoryList& list);

  void insertWithStyle(const std::string& testedName);
  void openExpansionPage();
  void openPage(const std::string& page, ShowCommand show, const char* complaint);

  void txtSearch_KeyPress();
  void searchTypedText();
  void searchBoxText(const std::string& text);
  void cmdBrowse_Click(int index);
  void cmdInsert_Click(int index);
  void cmbStyles_Click();
  void lstModels_ItemClick(int index);
  void menu_Click(const std::string& name, int index);
  void mnuInsert_Click();
  void mnuInsertModel_Click();

  // What was shown or searched by the user goes on only while the form is still there.
  TextBox& searchBox() { return loadedWindow().textBox("txtSearch"); }
  ListView& hitList() { return loadedWindow().listView("lstModels"); }
  Preview& zephBrowser() { return loadedWindow().preview("zephBrowser"); }

  // The catalog tells every failure that has no words of its own with the general message.
  template <class Body>
  void handleHere(Body&& body) {
    handleWith([this](const Error&) { messages.ShowErrorMessage(); }, body);
  }
  // Tells a failure as a phrase and what was wrong.
  template <class Body>
  void handleAs(const char* phrase, const char* title, Body&& body) {
    handleWith([&](const Error& failure) { messages.show(phrase + failure.description, title); }, body);
  }

  ModelObject model;
  Paths& paths;
  Messages& messages;
  Services services;
  RecentSearches searches;
  std::shared_ptr<const StoredPicture> logo;
  bool connected = false;       // the controls of the window raise their events here
  bool selectingStyle = false;  // by the program: nobody has chosen anything
};

}  // namespace nerida
