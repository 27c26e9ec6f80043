#include "tests/windows/bars/toolbar_sample.h"

#include "toolbar/button_table.h"
#include "toolbar/swatches.h"
#include "toolbar/toolbar_layout.h"

namespace nerida {
namespace {

void fill(ButtonBar& bar, const ControlLayout& row, const std::string& resourceFolder) {
  bar.setEnabled(true);
  bar.setResourceFolder(resourceFolder);
  bar.setShowsTooltips(true);
  bar.setResourceFile("Toolbar.res");
  bar.openLayout("Default");
  for (const ButtonRow& button : buttonsOf(row.name, row.index)) {
    bar.addButton(button.key, button.bitmapSpec);
    if (button.caption != nullptr) bar.setCaption(button.caption);
    if (button.tooltip != nullptr) bar.setTooltip(button.tooltip);
  }
  bar.recomputeLayout();
  bar.showLayout("Default");
}

}  // namespace

std::shared_ptr<Window> makeToolbarSample(WindowFactory& factory, const std::string& resourceFolder) {
  std::shared_ptr<Window> form = factory.create(toolbarLayout);
  for (const ControlLayout& row : toolbarLayout.controls) {
    if (row.kind == ControlKind::buttonBar) fill(form->buttonBar(row.name, row.index), row, resourceFolder);
  }
  form->pictureBox("picSurface").paint = paintSurfaceSwatch;
  form->pictureBox("picLine").paint = paintLineSwatch;
  form->pictureBox("picLineThick").paint = paintLineThicknessSwatch;
  form->pictureBox("picAni").paint = paintAnimationIndicator;
  return form;
}

}  // namespace nerida
