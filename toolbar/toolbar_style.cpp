// The style list.
#include <algorithm>

#include "core/string_sort.h"
#include "toolbar/frm_toolbar.h"

namespace nerida {
namespace {

constexpr const char* basicStyle = "Basic Draw";
constexpr const char* customStyle = "Custom Style";

// Of a selection inside the click of a selection. Two or three are usual.
constexpr int deepestNesting = 20;

}  // namespace

void frmToolbar::GetLookStyleList() {
  handleWith([this](const Error&) { messages.ShowErrorMessage(); },
             [this] {
               window().comboBox("cmbStyles").clear();
               lookStyles = model.GetLookStyleList();
               ComboBox& styles = loadedWindow().comboBox("cmbStyles");
               styles.addItem(basicStyle);
               for (const std::string& name : lookStyles) styles.addItem(name);
               StringArray sorted{0, lookStyles};
               if (!lookStyles.empty()) SortStrings(sorted);
               sortedStyles = std::move(sorted.elements);
             });
}

// A selection that changes raises cmbStyles_Click; Initialising tells it that nobody has chosen anything. The click
// comes back here: a model that names another style each time would go on for ever.
void frmToolbar::selectCurrentStyle() {
  struct WhileInitialising {
    explicit WhileInitialising(frmToolbar& form) : form(form) {
      form.Initialising = true;
      ++form.nestedInits;
    }
    ~WhileInitialising() {
      form.Initialising = false;
      --form.nestedInits;
    }
    frmToolbar& form;
  } const initialising(*this);
  if (nestedInits > deepestNesting) throw Error(error::outOfStackSpace);

  const std::string name = model.LookStyleName();
  ComboBox& styles = loadedWindow().comboBox("cmbStyles");
  if (name != "none") {
    styles.select(styleEntry(name));
    return;
  }
  if (styles.count() > 0 && styleEntry(customStyle) < 0) styles.addItem(customStyle);
  styles.select(styleEntry(customStyle));
}

// -1 for a name that is no entry's; most names of that kind are told by the sorted list already.
int frmToolbar::styleEntry(const std::string& name) {
  const bool known = name == basicStyle || name == customStyle || std::ranges::binary_search(sortedStyles, name);
  if (!known) return -1;
  const ComboBox& styles = loadedWindow().comboBox("cmbStyles");
  for (int i = 0; i < styles.count(); ++i) {
    if (styles.item(i) == name) return i;
  }
  return -1;
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
