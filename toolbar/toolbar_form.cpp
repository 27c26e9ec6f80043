// How the toolbar is built, and how it adapts to a model.
#include "toolbar/button_table.h"
#include "toolbar/frm_toolbar.h"
#include "toolbar/swatches.h"
#include "toolbar/toolbar_layout.h"

namespace nerida {
namespace {

// What a model does without.
constexpr std::int32_t noSurfaceColor = 1;
constexpr std::int32_t noLineColor = 2;
constexpr std::int32_t lineThicknessFlag = 4;
constexpr std::int32_t noLineThickness = 16;

constexpr const char* customStyle = "Custom Style";

}  // namespace

frmToolbar::frmToolbar(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths, Messages& messages)
    : Form(state, windows, toolbarLayout, toolbarIndex),
      model(state),
      desktop(desktop),
      paths(paths),
      messages(messages) {}

void frmToolbar::Form_Load() {
  handle(messages, [this] {
    resetState();
    connectEvents();
    buildBars();
    markLoaded();
  });
}

void frmToolbar::resetState() {
  CustomSurfaceColor = rgb(255, 255, 255);
  CustomLineColor = rgb(0, 0, 0);
  CustomBackColor = rgb(128, 128, 128);
  NudgeAmount = 100;
  OpenChild = 0;
  openMarks = {};
  NudgeOn = false;
  activations = 0;
  Initialising = false;
  LineThicknessEnabled = false;
  lookStyles = {""};
}

void frmToolbar::connectEvents() {
  Window& form = window();
  form.activated = [this] { Form_Activate(); };
  form.deactivated = [this] { Form_Deactivate(); };
  form.clicked = [this] { Form_Click(); };
  form.closeRequested = [this] { HideSelf(); };
  bar("barMB", 0).buttonPress = [this](const std::string& key) { barMB_ButtonPress(key); };
  for (int i = 0; i < worldBars; ++i) {
    bar("barWorld", i).buttonPress = [this](const std::string& key) { barWorld_ButtonPress(key); };
  }
  for (int i = 0; i < moveBars; ++i) {
    bar("barMove", i).buttonPress = [this](const std::string& key) { barMove_ButtonPress(key); };
  }
  form.comboBox("cmbStyles").click = [this] { cmbStyles_Click(); };
  form.pictureBox("picSurface").paint = paintSurfaceSwatch;
  form.pictureBox("picLine").paint = paintLineSwatch;
  form.pictureBox("picLineThick").paint = paintLineThicknessSwatch;
  form.pictureBox("picAni").paint = paintAnimationIndicator;
}

void frmToolbar::buildBars() {
  makeSettings("barMB", 0);
  addButtons("barMB", 0);
  showDefault("barMB", 0);

  for (int i = 0; i < styleBars; ++i) makeSettings("barLS", i);
  for (int i = 0; i < styleBars; ++i) addButtons("barLS", i);
  for (int i = 0; i < styleBars; ++i) showDefault("barLS", i);

  for (int i = 0; i < worldBars; ++i) makeSettings("barWorld", i);
  for (int i = 0; i < worldBars; ++i) addButtons("barWorld", i);
  for (int i = 0; i < worldBars; ++i) showDefault("barWorld", i);

  for (int i = 0; i < moveBars; ++i) makeSettings("barMove", i);
  for (int i = 0; i < moveBars; ++i) {
    addButtons("barMove", i);
    showDefault("barMove", i);
  }
}

void frmToolbar::makeSettings(const char* name, int index) {
  ButtonBar& target = bar(name, index);
  target.setEnabled(true);
  target.setResourceFolder(paths.SystemPath);
  target.setShowsTooltips(true);
  target.setResourceFile("Toolbar.res");
}

void frmToolbar::addButtons(const char* name, int index) {
  ButtonBar& target = bar(name, index);
  target.openLayout("Default");
  for (const ButtonRow& row : buttonsOf(name, index)) {
    target.addButton(row.key, row.bitmapSpec);
    if (*row.caption) target.setCaption(row.caption);
    if (*row.tooltip) target.setTooltip(row.tooltip);
  }
  target.recomputeLayout();
}

void frmToolbar::InitSelf() {
  const std::int32_t flags = model.InterfaceFlags();
  showEither((flags & noSurfaceColor) != 0, "picSurface", 2);
  showEither((flags & noLineColor) != 0, "picLine", 1);
  LineThicknessEnabled = (flags & lineThicknessFlag) != 0;
  showEither((flags & noLineThickness) != 0, "picLineThick", 0);
  showAnimationState();
  if (window().comboBox("cmbStyles").count() < 1) {
    lookStyles.clear();
    GetLookStyleList();
  }
  setCaptionFor(model.ModelName());
  selectCurrentStyle();
  model.IsToolbarShowing();
}

// Either the style button or the swatch in its place.
void frmToolbar::showEither(bool button, const char* swatch, int styleBar) {
  if (button) {
    window().pictureBox(swatch).setVisible(false);
    bar("barLS", styleBar).setVisible(true);
  } else {
    bar("barLS", styleBar).setVisible(false);
    window().pictureBox(swatch).setVisible(true);
  }
}

// The indicator lies over the Animation button of a model that has no animation.
void frmToolbar::showAnimationState() {
  const bool animated = model.AnimationFrameCount() > 0;
  window().pictureBox("picAni").setVisible(!animated);
  if (animated) neighbours.animation->setFrameText(std::to_string(model.AnimationCurrentFrame()));
}

void frmToolbar::setCaptionFor(const std::string& modelName) {
  window().setCaption(std::string(toolbarTitle) + ": " + modelName);
}

// A selection that changes raises cmbStyles_Click; Initialising tells it that nobody has chosen anything.
void frmToolbar::selectCurrentStyle() {
  struct WhileInitialising {
    explicit WhileInitialising(bool& flag) : flag(flag) { flag = true; }
    ~WhileInitialising() { flag = false; }
    bool& flag;
  } const initialising(Initialising);

  const std::string name = model.LookStyleName();
  ComboBox& styles = window().comboBox("cmbStyles");
  if (name != "none") {
    styles.select(styleEntry(name));
    return;
  }
  if (styles.count() > 0 && styleEntry(customStyle) < 0) styles.addItem(customStyle);
  styles.select(styleEntry(customStyle));
}

int frmToolbar::styleEntry(const std::string& name) {
  const ComboBox& styles = window().comboBox("cmbStyles");
  for (int i = 0; i < styles.count(); ++i) {
    if (styles.item(i) == name) return i;
  }
  return -1;
}

void frmToolbar::Form_QueryUnload() { hideWithPopups(); }

void frmToolbar::Form_Unload() {
  RestoreCallback();
  if (unloading) unloading();
}

}  // namespace nerida
