// Shows the toolbar's form for a person or a script to look at and to press, and tells on its output what arrives.
// Usage: bars_smoke RESOURCE_FOLDER [unfolded] [swatches] [disabled] [latched]
#include <windows.h>

#include <cstdio>
#include <set>
#include <string>

#include "platform/win32/window.h"
#include "tests/windows/bars/toolbar_sample.h"
#include "toolbar/toolbar_layout.h"

namespace {

using namespace nerida;

void report(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

void wire(Window& form) {
  for (const ControlLayout& row : toolbarLayout.controls) {
    if (row.kind != ControlKind::buttonBar) continue;
    form.buttonBar(row.name, row.index).buttonPress = [](const std::string& key) { report("press " + key); };
  }
  form.buttonBar("barMove", 0).buttonPress = [&form](const std::string& key) {
    report("press " + key);
    if (key != "PresetDropdown") return;
    static constexpr const char* captions[] = {"Reset &Model", "-", "to &Front", "to &Back "};
    const Bounds bar = form.buttonBar("barMove", 0).bounds();
    const int chosen = form.popUpMenuRightAligned(captions, bar.left + bar.width, bar.top + bar.height);
    report("menu " + std::to_string(chosen));
  };
  ComboBox& styles = form.comboBox("cmbStyles");
  for (const char* style : {"Basic Draw", "Ink Outline", "Watercolour"}) styles.addItem(style);
  styles.click = [&styles] { report("style " + std::to_string(styles.selected())); };
  styles.select(0);
  form.activated = [] { report("activated"); };
  form.deactivated = [] { report("deactivated"); };
  form.clicked = [] { report("clicked"); };
  form.closeRequested = [] {
    report("close requested");
    PostQuitMessage(0);
  };
}

void arrange(Window& form, const std::set<std::string>& options) {
  const bool swatches = options.contains("swatches");
  for (const char* name : {"picSurface", "picLine", "picLineThick", "picAni"}) {
    form.pictureBox(name).setVisible(swatches);
  }
  for (int i = 0; i < 3; ++i) form.buttonBar("barLS", i).setVisible(!swatches);
  if (options.contains("unfolded")) form.setHeight(unfoldedHeight);
  if (options.contains("latched")) {
    form.buttonBar("barWorld", 0).setState("Lighting", buttonDown, true);
    form.buttonBar("barLS", 1).setState("LineColorFill", buttonDown, true);
  }
  if (options.contains("disabled")) {
    form.buttonBar("barMove", 2).setEnabled(false);
    form.buttonBar("barMove", 3).setEnabled(false);
    form.buttonBar("barMB").setEnabled(false);
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  SystemWindowFactory factory;
  const std::shared_ptr<Window> form = makeToolbarSample(factory, arguments[1]);
  wire(*form);
  arrange(*form, {arguments + 2, arguments + count});
  form->setCaption("Zephra Toolbar: Teapot");
  form->showTopmostAt({100, 100});
  RECT client = {};
  GetClientRect(reinterpret_cast<HWND>(form->handle()), &client);
  report("client " + std::to_string(client.right) + " x " + std::to_string(client.bottom) + ", origin " +
         std::to_string(form->clientOrigin().x) + ", " + std::to_string(form->clientOrigin().y));
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
