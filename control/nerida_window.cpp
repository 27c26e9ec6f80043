#include "control/nerida_window.h"

#include <utility>

#include "catalog/installation_paths.h"
#include "control/library.h"
#include "core/popup_hiding.h"

namespace nerida {
namespace {

constexpr WindowHandle failed = -1;

// Runs one statement of the start-up: without memory it is tried again, after any other failure the next one follows.
template <class Statement>
void startStep(Messages& messages, Statement&& statement) {
  for (bool again = true; again;) {
    again = false;
    trap(statement, [&](const Error& failure) {
      again = failure.number == error::outOfMemory;
      if (again) {
        messages.ShowLowMemoryMessage();
      } else {
        messages.ShowToolbarErrorMessage();
      }
    });
  }
}

// The model may have disposed of the forms when it was told that one shows.
WindowHandle handleUnlessGone(Form& form) { return form.isLoaded() ? form.hWnd() : failed; }

std::int32_t atLeastOne(std::int32_t twipsPerPixel) { return twipsPerPixel == 0 ? 1 : twipsPerPixel; }

}  // namespace

NeridaWindow::NeridaWindow(Library& library) : library(library) {
  ++library.state.controls;
  startLibrary();
}

NeridaWindow::~NeridaWindow() {
  releaseModel();
  UnloadAllForms();
  unloadLeftovers();
  library.state.gForms.fill(nullptr);
  --library.state.controls;
}

void NeridaWindow::startLibrary() {
  State& state = library.state;
  const auto step = [this](auto&& statement) { startStep(library.messages, statement); };
  step([&] { library.desktop.setMousePointer(MousePointer::hourglass); });
  state.gFormLoaded.fill(false);
  if (state.gTwipsPerPixelX < 1) {
    step([&] { state.gTwipsPerPixelX = roundToInt32(library.desktop.twipsPerPixelX()); });
    step([&] { state.gTwipsPerPixelY = roundToInt32(library.desktop.twipsPerPixelY()); });
  }
  state.gTwipsPerPixelX = atLeastOne(state.gTwipsPerPixelX);
  state.gTwipsPerPixelY = atLeastOne(state.gTwipsPerPixelY);
  step([&] { ReadInstallationPaths(library.paths, library.registry, library.messages); });
  step([&] { library.recentColors = InitColorTable(library.settings); });
  loadForms();
  registerForms();
  state.gFormShown.fill(false);
  step([&] { library.browser.load(); });
  step([&] { library.desktop.setMousePointer(MousePointer::standard); });
}

// The other forms load when they are first used.
void NeridaWindow::loadForms() {
  Form* const forms[] = {&library.toolbar, &library.lineThicknessMenu, &library.surfaceColors, &library.lighting,
                         &library.browser};
  for (Form* form : forms) {
    startStep(library.messages, [form] { form->load(); });
  }
}

void NeridaWindow::registerForms() {
  const std::pair<int, Form*> entries[] = {
      {lineThicknessIndex, &library.lineThicknessMenu},
      {surfaceColorsIndex, &library.surfaceColors},
      {lineColorsIndex, &library.lineColors},
      {backgroundColorsIndex, &library.backgroundColors},
      {lightingIndex, &library.lighting},
      {animationIndex, &library.animation},
      {catalogIndex, &library.browser},
      {toolbarIndex, &library.toolbar},
  };
  for (const auto& [index, form] : entries) {
    library.state.gForms[static_cast<std::size_t>(index)] = form;
    if (form->isLoaded()) form->load();  // marks a form as loaded that an earlier control had left so
  }
}

bool NeridaWindow::IsToolbarVisible() { return library.toolbar.isVisible(); }

bool NeridaWindow::IsCatalogVisible() { return library.browser.isVisible(); }

std::int32_t NeridaWindow::ToolbarDispose() {
  ignoringErrors([this] {
    UnloadAllForms();
    releaseModel();
  });
  return 0;
}

WindowHandle NeridaWindow::ToolbarShow(std::int16_t& x, std::int16_t& y) {
  WindowHandle result = failed;
  trap(
      [&] {
        if (x == 0 || y == 0) {
          const Point corner = library.desktop.screenToClient(library.state.gHostWnd, {0, 0});
          x = roundToInt16(-static_cast<double>(corner.x));
          y = roundToInt16(-static_cast<double>(corner.y));
        }
        library.toolbar.SetCallback();
        library.browser.SetCallback();
        library.toolbar.placeTopmost({x, y});
        library.state.gFormShown[toolbarIndex] = true;
        ModelObject(library.state).setIsToolbarShowing(true);
        result = handleUnlessGone(library.toolbar);
      },
      [&](const Error&) { library.messages.ShowToolbarErrorMessage(); });
  return result;
}

std::int32_t NeridaWindow::ToolbarHide() {
  const auto isUp = [this](std::size_t index) {
    return library.state.gFormShown[index] && library.state.gFormLoaded[index];
  };
  ignoringErrors([&] {
    library.toolbar.RestoreCallback();
    library.browser.RestoreCallback();
    if (isUp(catalogIndex)) library.browser.HideSelf();
    if (isUp(toolbarIndex)) library.toolbar.HideSelf();
    HideAllPopups(library.state);
  });
  return 0;
}

std::int32_t NeridaWindow::ToolbarInit(ObjectRef newModel, WindowHandle hostWindow) {
  State& state = library.state;
  std::int32_t lastError = 0;
  state.gModelObject.reset();  // the old model goes before the new one is bound
  state.gModelObject = std::move(newModel);
  state.gHostWnd = hostWindow;
  // A binding that was replaced or disposed of from inside one of its own calls is not worth another try.
  const int binding = ++state.bindings;
  const auto stillBound = [&] { return state.bindings == binding; };
  const auto insistOn = [&](auto&& statement) {
    for (bool done = false; !done && stillBound();) {
      done = true;
      trap(statement, [&](const Error& failure) {
        done = false;
        lastError = failure.number;
        if (!stillBound()) return;
        if (failure.number == error::outOfMemory) {
          library.messages.ShowLowMemoryMessage();
        } else {
          library.messages.ShowToolbarErrorMessage();
        }
      });
    }
  };

  ModelObject model(state);
  bool catalogShowing = false;
  insistOn([&] { library.toolbar.GetLookStyleList(); });
  insistOn([&] { library.toolbar.InitSelf(); });
  insistOn([&] { model.setIsToolbarShowing(library.toolbar.isVisible()); });
  insistOn([&] { catalogShowing = model.IsCatalogShowing(); });
  if (stillBound() && catalogShowing != library.browser.isVisible()) {
    insistOn([&] { model.setIsCatalogShowing(library.browser.isVisible()); });
  }
  return lastError;
}

void NeridaWindow::ShowAboutBox() { library.showAboutBox(); }

void NeridaWindow::ShowHelp() { library.browser.ShowHelpFile(); }

WindowHandle NeridaWindow::ShowCatalog() {
  WindowHandle result = failed;
  trap(
      [&] {
        if (library.state.gFormLoaded[toolbarIndex] && library.state.gFormShown[toolbarIndex]) {
          library.toolbar.HideSelf();
          ModelObject(library.state).setIsToolbarShowing(false);
        }
        library.toolbar.SetCallback();
        library.browser.ShowSelf();
        result = handleUnlessGone(library.browser);
      },
      [&](const Error&) { library.messages.ShowToolbarErrorMessage(); });
  return result;
}

void NeridaWindow::releaseModel() {
  ++library.state.bindings;
  library.state.gModelObject.reset();
}

// Forms that no mark tells of: the About box, and a form whose load came to no end.
void NeridaWindow::unloadLeftovers() {
  library.about.unload();
  for (Form* form : library.state.gForms) {
    if (form) form->unload();
  }
}

// The mark is read again before each form: an earlier one may have taken it down.
void NeridaWindow::UnloadAllForms() {
  const std::pair<std::size_t, Form*> order[] = {
      {toolbarIndex, &library.toolbar},
      {lineThicknessIndex, &library.lineThicknessMenu},
      {lineColorsIndex, &library.lineColors},
      {surfaceColorsIndex, &library.surfaceColors},
      {backgroundColorsIndex, &library.backgroundColors},
      {catalogIndex, &library.browser},
      {lightingIndex, &library.lighting},
      {animationIndex, &library.animation},
  };
  for (const auto& [index, form] : order) {
    if (library.state.gFormLoaded[index]) form->unload();
  }
}

}  // namespace nerida
