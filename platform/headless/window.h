#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/headless/button_bar.h"
#include "platform/headless/controls.h"
#include "platform/headless/form_menu.h"
#include "platform/headless/list_view.h"
#include "platform/headless/preview.h"
#include "platform/headless/timer.h"
#include "platform/window.h"

namespace nerida::headless {

class Windows;

// A window in memory. What a user does to it is done with the members below the interface.
class FormWindow : public Window {
 public:
  FormWindow(Windows& windows, const FormLayout& layout, WindowHandle handle);
  void dispose();

  WindowHandle handle() const override { return number; }
  bool isVisible() const override { return visible; }
  void setCaption(const std::string& text) override;
  void setHeight(Twips height) override;
  Size sizeInPixels() const override;
  Point position() const override { return topLeft; }
  Point clientOrigin() const override { return {topLeft.x + 3, topLeft.y + 22}; }
  bool showsFocus() const override;
  void showTopmostAt(Point point) override;
  void showTopmost() override;
  void hide() override;
  void showModal() override;
  void hook(WindowProcedure procedure) override;
  void unhook() override;
  bool isHooked() const override { return hookProcedure != nullptr; }
  std::intptr_t callPrevious(const Message& message) override;
  int popUpMenuRightAligned(std::span<const char* const> captions, Twips x, Twips y) override;
  ButtonBar& buttonBar(const std::string& name, int index) override { return bar(name, index); }
  ComboBox& comboBox(const std::string& name) override { return *find(combos, name, 0); }
  TextBox& textBox(const std::string& name) override { return *find(texts, name, 0); }
  PictureBox& pictureBox(const std::string& name, int index) override { return *find(pictures, name, index); }
  Label& label(const std::string& name) override { return *find(labels, name, 0); }
  Button& button(const std::string& name, int index) override { return *find(buttons, name, index); }
  Image& image(const std::string& name) override { return *find(images, name, 0); }
  ListView& listView(const std::string& name) override { return *find(lists, name, 0); }
  Preview& preview(const std::string& name) override { return *find(previews, name, 0); }
  FormMenu& menu() override { return menuBar; }
  Timer& timer() override { return clock; }

  // The headless faces of the controls.
  Bar& bar(const std::string& name, int index = 0) { return *find(bars, name, index); }
  Combo& combo(const std::string& name) { return *find(combos, name, 0); }
  Text& text(const std::string& name) { return *find(texts, name, 0); }
  Picture& picture(const std::string& name, int index = 0) { return *find(pictures, name, index); }
  Caption& labelControl(const std::string& name) { return *find(labels, name, 0); }
  PushButton& pushButton(const std::string& name, int index = 0) { return *find(buttons, name, index); }
  StillPicture& stillPicture(const std::string& name) { return *find(images, name, 0); }
  Items& items(const std::string& name) { return *find(lists, name, 0); }
  PreviewControl& previewControl(const std::string& name) { return *find(previews, name, 0); }

  // The system sends the window a message; the answer is what its procedure returns.
  std::intptr_t send(std::uint32_t number, std::uintptr_t wParam = 0, std::intptr_t lParam = 0);
  void userCloses();
  void userClicks();
  void userMovesPointer();  // over the form outside its controls
  // The user goes to the window, by a mouse press for one.
  void userActivates();

  std::string caption;
  Twips height;
  const FormLayout& layout;
  MenuBar menuBar;
  Clock clock;
  // What the procedure behind the hook was handed, and what it answers.
  std::vector<Message> passedOn;
  std::intptr_t previousAnswer = 0;

 private:
  friend class Windows;
  template <class C>
  using ByName = std::map<std::pair<std::string, int>, std::unique_ptr<C>>;
  template <class C>
  C* find(ByName<C>& controls, const std::string& name, int index);
  void createControls();
  void setVisible(bool value);
  void raise(const std::function<void()>& event);
  void note(const std::string& what);

  Windows& windows;
  WindowHandle number;
  Point topLeft;
  bool visible = false;
  bool disposed = false;
  WindowProcedure hookProcedure;
  ByName<Bar> bars;
  ByName<Combo> combos;
  ByName<Text> texts;
  ByName<Picture> pictures;
  ByName<Caption> labels;
  ByName<PushButton> buttons;
  ByName<StillPicture> images;
  ByName<Items> lists;
  ByName<PreviewControl> previews;
};

// Creates the windows, keeps the list of those that live, and plays the user where a window waits for one.
class Windows : public WindowFactory {
 public:
  explicit Windows(Transcript& transcript) : transcript(transcript) {}

  std::shared_ptr<Window> create(const FormLayout& layout) override;

  // The living window of that name, or null.
  FormWindow* find(const std::string& name) const;
  std::optional<Point> clientCornerOf(WindowHandle window) const;
  // The application loses or gains the focus: every window of it is told.
  void activateApplication(bool active);

  Transcript& transcript;
  std::vector<FormWindow*> living;  // in order of creation
  std::vector<std::unique_ptr<FormWindow>> gone;
  FormWindow* active = nullptr;
  FormWindow* modal = nullptr;  // the one that keeps the input from all others
  KeyboardFocus focus;
  // Told of every change of the active window.
  std::function<void(WindowHandle)> activeChanged;
  // Another program's window or a dialog takes the activation, and gives it back.
  void activateElsewhere();
  void activateAgain();
  // What the user does while a modal window is shown; a window that nobody closes ends the test.
  std::function<void(FormWindow&)> duringModal;
  // Runs while a pop-up menu is open.
  std::function<void()> duringMenu;
  // The entries that the user picks from pop-up menus, in order (-1: none).
  std::deque<int> menuChoices;
  std::vector<std::string> lastMenu;
  // Creating a window of this name fails with an error.
  std::map<std::string, std::int32_t> creationFailures;

 private:
  friend class FormWindow;
  void activate(FormWindow* window);

  FormWindow* activeBefore = nullptr;
  WindowHandle nextHandle = 101;
};

}  // namespace nerida::headless
