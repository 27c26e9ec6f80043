// How the toolbar is built, and how it adapts to a model.
#include <string_view>

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

}  // namespace

frmToolbar::frmToolbar(State& state, WindowFactory& windows, Desktop& desktop, Prompts& prompts, const Paths& paths,
                       Messages& messages)
    : Form(state, windows, toolbarLayout, toolbarIndex),
      model(state),
      desktop(desktop),
      prompts(prompts),
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
  shownColor(ColorRole::surface) = CustomSurfaceColor;
  shownColor(ColorRole::line) = CustomLineColor;
  shownColor(ColorRole::background) = CustomBackColor;
  NudgeAmount = 100;
  OpenChild = 0;
  openMarks = {};
  closedByClick = nullptr;
  NudgeOn = false;
  activations = 0;
  Initialising = false;
  LineThicknessEnabled = false;
  lookStyles = {""};
  sortedStyles = lookStyles;
}

void frmToolbar::connectEvents() {
  Window& form = window();
  form.activated = [this] { Form_Activate(); };
  form.deactivated = [this] { Form_Deactivate(); };
  form.clicked = [this] { Form_Click(); };
  form.closeRequested = [this] { HideSelf(); };
  bar("barMB", 0).buttonPress = [this](const std::string& key) { barMB_ButtonPress(key); };
  for (int i = 0; i < styleBars; ++i) {
    bar("barLS", i).buttonPress = [this](const std::string& key) { barLS_ButtonPress(key); };
  }
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
  const bool captionFirst = std::string_view(name) == "barWorld";
  target.openLayout("Default");
  for (const ButtonRow& row : buttonsOf(name, index)) {
    target.addButton(row.key, row.bitmapSpec);
    if (*row.caption && captionFirst) target.setCaption(row.caption);
    if (*row.tooltip) target.setTooltip(row.tooltip);
    if (*row.caption && !captionFirst) target.setCaption(row.caption);
  }
  target.recomputeLayout();
}

void frmToolbar::InitSelf() {
  load();
  const std::int32_t flags = model.InterfaceFlags();
  showEither((flags & noSurfaceColor) != 0, "picSurface", 2);
  showEither((flags & noLineColor) != 0, "picLine", 1);
  LineThicknessEnabled = (flags & lineThicknessFlag) != 0;
  showEither((flags & noLineThickness) != 0, "picLineThick", 0);
  showAnimationState();
  if (loadedWindow().comboBox("cmbStyles").count() < 1) {
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
    loadedWindow().pictureBox(swatch).setVisible(false);
    bar("barLS", styleBar).setVisible(true);
  } else {
    bar("barLS", styleBar).setVisible(false);
    loadedWindow().pictureBox(swatch).setVisible(true);
  }
}

// The indicator lies over the Animation button of a model that has no animation.
void frmToolbar::showAnimationState() {
  const bool animated = model.AnimationFrameCount() > 0;
  loadedWindow().pictureBox("picAni").setVisible(!animated);
  if (!animated) return;
  const std::string frame = std::to_string(model.AnimationCurrentFrame());
  loadedWindow();
  neighbours.animation->setFrameText(frame);
}

void frmToolbar::setCaptionFor(const std::string& modelName) {
  loadedWindow().setCaption(std::string(toolbarTitle) + ": " + modelName);
}

void frmToolbar::Form_QueryUnload() { hideWithPopups(); }

void frmToolbar::Form_Unload() {
  RestoreCallback();
  if (unloading) unloading();
}

}  // namespace nerida
