#pragma once

#include "core/form.h"
#include "core/paths.h"

namespace nerida {

// The About box. It is no member of the forms registry.
class frmAbout : public Form {
 public:
  frmAbout(State& state, WindowFactory& windows, const Paths& paths);

  // Shows the box and returns when it is closed. While it is open a second call returns at once.
  void ShowModal();
  void HideSelf() override { hideWindow(); }

 protected:
  void Form_Load() override;
  // Hidden, the box ends its modal display.
  void Form_QueryUnload() override {
    if (isVisible()) hideWindow();
  }

 private:
  const Paths& paths;
};

}  // namespace nerida
