#pragma once

#include <functional>
#include <string>

#include "core/catalog_window.h"
#include "core/form.h"
#include "core/model_object.h"
#include "core/paths.h"
#include "platform/shell.h"

namespace nerida {

// The model catalog's window.
class frmBrowser : public Form, public CatalogWindow {
 public:
  frmBrowser(State& state, WindowFactory& windows, const Paths& paths, Messages& messages, Shell& shell);

  // Shows the catalog and tells the model. A failure is shown, and the model is told that the catalog is closed.
  void ShowSelf() override;
  // Hides the catalog and tells the model that it is done.
  void HideSelf() override;
  void ShowHelpFile() override;

  // The catalog's own hook passes every message on: activation is watched at the toolbar's window alone.
  void SetCallback();
  void RestoreCallback();

  // The model's name, read when the catalog closes.
  std::function<void(const std::string& name)> modelNamed;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void show();
  void tellClosed();
  // The catalog tells every failure with the general message.
  template <class Body>
  void handleHere(Body&& body) {
    handleWith([this](const Error&) { messages.ShowErrorMessage(); }, body);
  }

  ModelObject model;
  const Paths& paths;
  Messages& messages;
  Shell& shell;
};

}  // namespace nerida
