#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "control/library.h"
#include "control/nerida_window.h"
#include "platform/headless/platform.h"

namespace nerida {

using headless::TestEnded;
using Lines = std::vector<std::string>;

inline const std::string errorBox =
    "box [Zephra Toolbar] Zephra has encountered an error.  Please de-activate Zephra by clicking off the object.  "
    "Double-click the object to re-activate Zephra";
inline const std::string toolbarBox = "box [Zephra Toolbar] Zephra is unable to display the editing toolbar. ";
inline const std::string memoryBox =
    "box [Zephra Toolbar] Your system appears to be low on memory.  Please close some windows and/or programs.";

// A well-installed library on a headless platform, with a model that answers every member.
class Desk {
 public:
  Desk();

  headless::HeadlessPlatform platform;
  Library library{platform.services()};
  std::shared_ptr<headless::ScriptedObject> model = std::make_shared<headless::ScriptedObject>(platform.transcript);
  std::unique_ptr<NeridaWindow> control;

  // The life of a control, step by step.
  void create() { control = std::make_unique<NeridaWindow>(library); }
  std::int32_t init() { return control->ToolbarInit(model, 7); }
  WindowHandle show(std::int16_t x = 10, std::int16_t y = 20) { return control->ToolbarShow(x, y); }
  void createAndInit();
  void createInitAndShow();
  // A model whose style buttons all show.
  void enableStyleButtons() { model->values["InterfaceFlags"] = std::int32_t{1 | 2 | 16}; }

  headless::FormWindow& form(const std::string& name) const;
  headless::FormWindow& toolbar() const { return form("frmToolbar"); }
  headless::Bar& bar(const std::string& name, int index = 0) const { return toolbar().bar(name, index); }
  headless::FormWindow& catalog() const { return form("frmBrowser"); }
  headless::Combo& styles() const { return toolbar().combo("cmbStyles"); }

  // A press as the mouse does it: the toolbar takes the activation while the button is held.
  void pressWithMouse(headless::Bar& bar, const std::string& key);

  // Shows a popup as if the focus had not been in another one, which closes when it loses it.
  void showBeside(Popup& popup);

  // The user's answers to the message boxes to come.
  void answerBoxes(int count);
  // What the toolbar asks the desktop for when a popup gives it the foreground.
  std::string foregroundLine() const { return "foreground " + std::to_string(toolbar().handle()); }

  // Everything that happened since the last take, or only the lines of the model, or only the boxes.
  Lines take() { return platform.transcript.take(); }
  Lines takeModelCalls() { return takeLines("model: "); }
  Lines takeBoxes() { return takeLines("box "); }

  void setStyles(const std::vector<std::string>& names);

 private:
  Lines takeLines(const std::string& prefix);
};

// Without the lines of button bars, which a loading toolbar writes many of.
Lines withoutBars(Lines lines);

// Without the lines of what the catalog reads and fills while it loads and comes up.
Lines withoutCatalog(Lines lines);

class DeskTest : public testing::Test, protected Desk {};

// The value of an array of texts.
Value textArray(const std::vector<std::string>& texts, std::int32_t lowerBound = 0);

}  // namespace nerida
