// The life of the catalog's window: loading, showing, hiding, unloading.
#include <utility>

#include "catalog/browser_layout.h"
#include "catalog/browser_texts.h"
#include "catalog/frm_browser.h"

namespace nerida {
namespace {

constexpr const char* basicStyle = "Basic Draw";
constexpr const char* customStyle = "Custom Style";
constexpr const char* noStyle = "none";

}  // namespace

frmBrowser::frmBrowser(State& state, WindowFactory& windows, Paths& paths, Messages& messages, const Services& services)
    : Form(state, windows, browserLayout, catalogIndex),
      model(state),
      paths(paths),
      messages(messages),
      services(services) {}

// The window itself is not needed yet, and most often never: only its menu and what lies in files is read here.
void frmBrowser::Form_Load() {
  connected = false;
  logo.reset();
  window().closeRequested = [this] { HideSelf(); };
  connectMenu();
  handleAs("Error loading the browser settings : ", catalogTitle, [this] {
    searches.load(services.settings, loadedWindow().menu());
    AddCategories();
    loadLogo();
    showExpansionEntries();
  });
  if (isLoaded()) markLoaded();
}

void frmBrowser::loadLogo() { logo = services.files.loadPicture(paths.DictionaryPath + "\\zpcatbut.bmp"); }

void frmBrowser::showExpansionEntries() {
  if (paths.ExpansionAbsent) return;
  FormMenu& menu = loadedWindow().menu();
  menu.setVisible("mnuDiv", 0, true);
  menu.setVisible("mnuMaster", 0, true);
  menu.setEnabled("mnuMaster", 0, true);
}

void frmBrowser::Form_Unload() {
  ignoringErrors([this] { SaveSettings(); });
  markUnloaded();
  ignoringErrors([this] { RestoreCallback(); });
  if (model.exists()) model.setDoneShowingModelCatalog();
}

void frmBrowser::ShowSelf() {
  const auto report = [this](const Error& failure) {
    messages.show("Error showing Model Catalog: " + failure.description, toolbarTitle);
    hideWindow();
    markShown(false);
    ignoringErrors([this] { model.setIsCatalogShowing(false); });
    ignoringErrors([this] { model.setDoneShowingModelCatalog(); });
  };
  const int binding = state.bindings;
  trap([this] { load(); }, report);
  if (state.bindings != binding) unload();  // disposed of while a message of the load was waiting for its user
  if (isLoaded()) handleWith(report, [this] { show(); });
}

void frmBrowser::show() {
  connectControls();
  if (!isMarkedShown()) {
    searchBox().setText(searchPrompt);
    FormMenu& menu = loadedWindow().menu();
    if (menu.caption("mnuSearch", 0).empty()) menu.setCaption("mnuSearch", 0, previousSearch);
    menu.setCaption("mnuCategory", 0, surpriseCaption);
  }
  GetLookStyleList();
  selectCurrentStyle();
  loadedWindow().showTopmost();
  markShown(true);
  model.setIsCatalogShowing(true);
}

void frmBrowser::GetLookStyleList() {
  const std::vector<std::string> names = model.GetLookStyleList();
  ComboBox& styles = loadedWindow().comboBox("cmbStyles");
  styles.clear();
  styles.addItem(basicStyle);
  for (const std::string& name : names) styles.addItem(name);
}

void frmBrowser::selectCurrentStyle() {
  std::string name = model.LookStyleName();
  ComboBox& styles = loadedWindow().comboBox("cmbStyles");
  if (name == noStyle) {
    name = customStyle;
    styles.addItem(customStyle);
  }
  int entry = styles.count() - 1;
  while (entry >= 0 && styles.item(entry) != name) --entry;
  selectingStyle = true;
  styles.select(entry);
  selectingStyle = false;
}

// The custom style has no name.
void frmBrowser::cmbStyles_Click() {
  if (selectingStyle) return;
  handleHere([this] {
    const ComboBox& styles = loadedWindow().comboBox("cmbStyles");
    const std::string chosen = styles.item(styles.selected());
    model.setLookStyle(chosen == customStyle ? "" : chosen);
    model.RefreshDisplay();
  });
}

void frmBrowser::HideSelf() {
  bool told = false;
  const auto attempt = [&](const std::function<void()>& step) {
    handleWith(
        [&](const Error&) {
          if (!std::exchange(told, true)) messages.ShowErrorMessage();
        },
        step);
  };
  if (isLoaded()) attempt([this] { SaveSettings(); });
  hideWindow();
  markShown(false);
  if (model.exists()) tellClosed(attempt);
}

void frmBrowser::tellClosed(const std::function<void(const std::function<void()>&)>& attempt) {
  attempt([this] {
    const std::string name = model.ModelName();
    if (!name.empty() && modelNamed) modelNamed(name);
  });
  if (model.exists()) attempt([this] { model.setIsCatalogShowing(false); });
  if (model.exists()) attempt([this] { model.setDoneShowingModelCatalog(); });
}

void frmBrowser::SetCallback() {
  Window& self = window();
  self.hook([&self](const Message& message) { return self.callPrevious(message); });
}

// The window is not touched as others touch it, which would mark the form as loaded again while it unloads.
void frmBrowser::RestoreCallback() {
  if (isLoaded()) loadedWindow().unhook();
}

}  // namespace nerida
