#include "control/frm_about.h"

#include <array>

namespace nerida {
namespace {

constexpr std::array controls{
    ControlLayout{"lblVersion", 0, ControlKind::label, {{300}, {300}, {6945}, {600}}},
};

constexpr FormLayout aboutLayout{"frmAbout", "", FormFrame::borderless, {7545}, {6045}, controls};
constexpr int notInRegistry = -1;

}  // namespace

frmAbout::frmAbout(State& state, WindowFactory& windows, const Paths& paths)
    : Form(state, windows, aboutLayout, notInRegistry), paths(paths) {}

void frmAbout::Form_Load() {
  window().clicked = [this] { HideSelf(); };
  window().label("lblVersion").setCaption(paths.ProductText);
}

void frmAbout::ShowModal() {
  if (isVisible()) return;
  load();
  const std::shared_ptr<Window> box = sharedWindow();  // the box may be unloaded while it is open
  box->showModal();
}

}  // namespace nerida
