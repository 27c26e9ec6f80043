#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/catalog_window.h"
#include "core/form.h"
#include "core/model_object.h"
#include "core/paths.h"
#include "platform/desktop.h"
#include "platform/prompts.h"
#include "popups/animation.h"
#include "popups/color_table.h"
#include "popups/popup_opener.h"

namespace nerida {

// The floating editing toolbar. Its program lies in five rooms: toolbar_form (building and InitSelf),
// toolbar_movement, toolbar_style, toolbar_popups and toolbar_lifecycle.
class frmToolbar : public Form, public PopupOpener {
 public:
  frmToolbar(State& state, WindowFactory& windows, Desktop& desktop, Prompts& prompts, const Paths& paths,
             Messages& messages);

  // The windows that the toolbar opens, and its window procedure; known once the library is put together.
  struct Neighbours {
    Popup* lineThickness = nullptr;
    Popup* lineColors = nullptr;
    Popup* surfaceColors = nullptr;
    Popup* backgroundColors = nullptr;
    Popup* lighting = nullptr;
    frmAnimation* animation = nullptr;
    CatalogWindow* catalog = nullptr;
    WindowProcedure windowProcedure;
  };
  void connect(Neighbours neighbours) { this->neighbours = std::move(neighbours); }
  // Called when the form unloads.
  std::function<void()> unloading;

  // Adapts the form to the model. Raises the model's errors.
  void InitSelf();
  // Fills cmbStyles from the model. A failure is shown.
  void GetLookStyleList();

  void ShowSelf();
  void HideSelf() override;
  void SetCallback();
  void RestoreCallback();
  void NudgeToggle(bool on);
  void setCaptionFor(const std::string& modelName);
  // Hands a message to the procedure that was in place before SetCallback.
  // The toolbar's own window is named to it, whatever window the message came to.
  std::intptr_t callPrevious(Message message);
  // The mark that the lighting popup is up, cleared when the application loses the focus.
  void clearLightingMark() { openMarks.lighting = false; }

  void KillChild() override;
  void releaseButton(const std::string& key) override;
  void takeForeground() override;
  void afterChoice(std::int16_t open) override;
  bool chooseCustomColor(ColorRole role, WindowHandle owner) override;
  Rgb customColor(ColorRole role) const override;
  void setShownColor(ColorRole role, Rgb color) override { shownColor(role) = color; }

  // The colour dialog for one colour of the model, owned by a window.
  bool GetCustomSurfaceColor(WindowHandle owner);
  bool GetCustomLineColor(WindowHandle owner);
  bool GetCustomBackColor(WindowHandle owner);

 protected:
  void Form_Load() override;
  void Form_QueryUnload() override;
  void Form_Unload() override;

 private:
  static constexpr int styleBars = 4;
  static constexpr int worldBars = 3;
  static constexpr int moveBars = 4;

  // Which of the toolbar's popups is up. A mark outlives a popup that was closed by the click that presses its button.
  struct OpenMarks {
    bool lineThickness = false;
    bool lineColor = false;
    bool fillColor = false;
    bool background = false;
    bool lighting = false;
  };

  // A button that opens a popup.
  struct PopupButton {
    const char* key;
    const char* bar;
    int index;
    bool OpenMarks::*mark;
    Popup* Neighbours::*popup;
  };
  static const std::array<PopupButton, 5> popupButtons;
  static const PopupButton* popupButton(std::string_view bar, const std::string& key);

  void resetState();
  void connectEvents();
  void buildBars();
  ButtonBar& bar(const char* name, int index) { return loadedWindow().buttonBar(name, index); }
  void makeSettings(const char* bar, int index);
  void addButtons(const char* bar, int index);
  void showDefault(const char* bar, int index) { this->bar(bar, index).showLayout("Default"); }

  void showEither(bool button, const char* swatch, int styleBar);
  void showAnimationState();
  void selectCurrentStyle();
  int styleEntry(const std::string& name);
  void applyChosenStyle();

  void hideWithPopups();

  void openPopup(const PopupButton& button, Point place);
  void closePopup(const PopupButton& button);
  void toggleLighting();
  Point anchorBelow(const char* bar, int index);
  static std::int32_t topWithin(const Size& screen, std::int32_t top, const Size& popup);
  Point placeOfStylePopup(const PopupButton& button);
  Point placeOfLighting();
  void settleClosing(const PopupButton* pressed);
  bool hasClosedPopup(const ButtonBar& pressed) const;
  bool chooseColor(WindowHandle owner, Rgb& custom, Rgb start, void (ModelObject::*setColor)(std::int32_t));
  Rgb& shownColor(ColorRole role) { return shownColors[static_cast<std::size_t>(role)]; }

  void barLS_ButtonPress(const std::string& key);
  void barMB_ButtonPress(const std::string& key);
  void barWorld_ButtonPress(const std::string& key);
  void barMove_ButtonPress(const std::string& key);
  void openPresetMenu();
  void mnuReset_Click(int index);
  void cmbStyles_Click();
  void Form_Activate() { ++activations; }
  void Form_Deactivate() { --activations; }
  void Form_Click() { openMarks = {}; }

  ModelObject model;
  Desktop& desktop;
  Prompts& prompts;
  const Paths& paths;
  Messages& messages;
  Neighbours neighbours;

  Rgb CustomSurfaceColor = 0;
  Rgb CustomLineColor = 0;
  Rgb CustomBackColor = 0;
  std::array<Rgb, 3> shownColors{};  // by role: what the palettes showed last, where the colour dialog starts
  std::int32_t NudgeAmount = 0;
  std::int16_t OpenChild = 0;
  OpenMarks openMarks;
  const PopupButton* closedByClick = nullptr;  // whose popup has lost the focus, perhaps to its own button
  std::uint32_t closedAt = 0;                  // and when
  bool NudgeOn = false;
  std::int32_t activations = 0;
  bool Initialising = false;
  int nestedInits = 0;
  bool LineThicknessEnabled = false;
  bool hiding = false;
  std::vector<std::string> lookStyles;    // in the model's order, which is that of the entries
  std::vector<std::string> sortedStyles;  // the same, for looking names up
};

}  // namespace nerida
