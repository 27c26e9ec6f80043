#include "catalog/frm_browser.h"

#include "catalog/browser_layout.h"

namespace nerida {

frmBrowser::frmBrowser(State& state, WindowFactory& windows, const Paths& paths, Messages& messages, Shell& shell)
    : Form(state, windows, browserLayout, catalogIndex), model(state), paths(paths), messages(messages), shell(shell) {}

void frmBrowser::Form_Load() {
  window().closeRequested = [this] { HideSelf(); };
  markLoaded();
}

void frmBrowser::Form_Unload() {
  markUnloaded();
  RestoreCallback();
  if (model.exists()) model.setDoneShowingModelCatalog();
}

void frmBrowser::ShowSelf() {
  trap([this] { show(); },
       [this](const Error& failure) {
         messages.show("Error showing Model Catalog: " + failure.description, toolbarTitle);
         hideWindow();
         markShown(false);
         ignoringErrors([this] { model.setIsCatalogShowing(false); });
         ignoringErrors([this] { model.setDoneShowingModelCatalog(); });
       });
}

void frmBrowser::show() {
  window().showTopmost();
  markShown(true);
  model.setIsCatalogShowing(true);
}

void frmBrowser::HideSelf() {
  handleHere([this] {
    hideWindow();
    markShown(false);
    if (model.exists()) tellClosed();
  });
}

void frmBrowser::tellClosed() {
  const std::string name = model.ModelName();
  if (!name.empty() && modelNamed) modelNamed(name);
  model.setIsCatalogShowing(false);
  model.setDoneShowingModelCatalog();
}

void frmBrowser::ShowHelpFile() {
  handleHere([this] { shell.openHelp(hWnd(), paths.HelpPath + "\\Zephra.hlp"); });
}

void frmBrowser::SetCallback() {
  Window& self = window();
  self.hook([&self](const Message& message) { return self.callPrevious(message); });
}

void frmBrowser::RestoreCallback() {
  if (isLoaded()) window().unhook();
}

}  // namespace nerida
