// The style list.
#include "core/string_sort.h"
#include "toolbar/frm_toolbar.h"

namespace nerida {
namespace {

constexpr const char* basicStyle = "Basic Draw";
constexpr const char* customStyle = "Custom Style";

}  // namespace

void frmToolbar::GetLookStyleList() {
  trap(
      [this] {
        ComboBox& styles = window().comboBox("cmbStyles");
        styles.clear();
        lookStyles = model.GetLookStyleList();
        styles.addItem(basicStyle);
        for (const std::string& name : lookStyles) styles.addItem(name);
      },
      [this](const Error&) { messages.ShowErrorMessage(); });
}

void frmToolbar::cmbStyles_Click() {
  handle(messages, [this] {
    if (!Initialising) {
      openMarks.lighting = false;
      applyChosenStyle();
    }
    InitSelf();
    model.RefreshDisplay();
  });
}

// "Basic Draw" stands before the model's own styles; the custom style has no name.
void frmToolbar::applyChosenStyle() {
  const ComboBox& styles = window().comboBox("cmbStyles");
  const int entry = styles.selected();
  if (entry < 0 || styles.item(entry) == customStyle) {
    model.setLookStyle("");
  } else if (entry == 0) {
    model.setLookStyle(basicStyle);
  } else {
    const auto index = static_cast<std::size_t>(entry - 1);
    if (index >= lookStyles.size()) throw Error(error::subscriptOutOfRange);
    model.setLookStyle(lookStyles[index]);
  }
}

}  // namespace nerida
