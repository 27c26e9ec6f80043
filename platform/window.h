#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/button_bar.h"
#include "platform/control.h"
#include "platform/form_layout.h"
#include "platform/form_menu.h"
#include "platform/list_view.h"
#include "platform/preview.h"
#include "platform/timer.h"

namespace nerida {

// A window message as the window procedure of a form sees it.
struct Message {
  WindowHandle window = 0;
  std::uint32_t number = 0;
  std::uintptr_t wParam = 0;
  std::intptr_t lParam = 0;
  friend bool operator==(const Message&, const Message&) = default;
};

inline constexpr std::uint32_t messageActivateApplication = 28;
inline constexpr std::uint32_t messageDisplayChange = 126;

using WindowProcedure = std::function<std::intptr_t(const Message&)>;

// A form's window with its controls, created hidden. Letting go of the last reference destroys it; that is allowed
// inside one of its own events. Thread: the one that created it.
class Window {
 public:
  virtual ~Window() = default;

  virtual WindowHandle handle() const = 0;
  // Whether the window is really on the screen (its system flag), whatever the program believes.
  virtual bool isVisible() const = 0;
  virtual void setCaption(const std::string& text) = 0;
  virtual void setHeight(Twips height) = 0;  // of the whole window; the top edge stays
  virtual Size sizeInPixels() const = 0;     // of the whole window
  virtual Point position() const = 0;        // screen pixels of the whole window's top-left corner
  virtual Point clientOrigin() const = 0;    // screen pixels of the client area's top-left corner
  // Whether the window shows where the keyboard is: the user moved there by keyboard, here or in the window of ours
  // that was active before, and has not pressed with the mouse since.
  virtual bool showsFocus() const = 0;

  // Place topmost, show and activate; the size stays. Without a point the place stays too.
  virtual void showTopmostAt(Point topLeft) = 0;
  virtual void showTopmost() = 0;
  virtual void hide() = 0;
  // Shows the window centred on the screen and returns when it has been hidden or destroyed. Meanwhile the other
  // windows of the thread take no input.
  virtual void showModal() = 0;

  // Puts a procedure in front of the window's own one; every message goes to it until it is taken off again. A second
  // hook while one is on changes nothing, nor does taking off what is not on. Messages in flight when it is taken off
  // end in callPrevious as usual.
  virtual void hook(WindowProcedure procedure) = 0;
  virtual void unhook() = 0;
  virtual bool isHooked() const = 0;
  // Hands a message to the procedure behind the hook; without a hook to the system's default procedure.
  virtual std::intptr_t callPrevious(const Message& message) = 0;

  // Pops a menu up with its top-right corner at a point of the client area, tracks it with the left button, and
  // returns the index of the chosen entry or -1. Closes without a choice when the window goes away.
  virtual int popUpMenuRightAligned(std::span<const char* const> captions, Twips x, Twips y) = 0;

  // Controls by name and index. An unknown one is a programming error (std::logic_error).
  virtual ButtonBar& buttonBar(const std::string& name, int index = 0) = 0;
  virtual ComboBox& comboBox(const std::string& name) = 0;
  virtual TextBox& textBox(const std::string& name) = 0;
  virtual PictureBox& pictureBox(const std::string& name, int index = 0) = 0;
  virtual Label& label(const std::string& name) = 0;
  virtual Button& button(const std::string& name, int index = 0) = 0;
  virtual Image& image(const std::string& name) = 0;
  virtual ListView& listView(const std::string& name) = 0;
  virtual Preview& preview(const std::string& name) = 0;
  // The menu bar; without entries when the layout has none.
  virtual FormMenu& menu() = 0;
  virtual Timer& timer() = 0;

  std::function<void()> activated;
  std::function<void()> deactivated;
  // With any button, anywhere on the form outside its controls; labels and pictures that do not use the mouse forward.
  std::function<void()> clicked;
  std::function<void()> mouseMoved;      // over the form outside its controls
  std::function<void()> mouseLeft;       // the pointer went from the form or one of its controls to another window
  std::function<void()> closeRequested;  // the user's close box; nothing else happens by itself
};

class WindowFactory {
 public:
  virtual ~WindowFactory() = default;
  // Creates the window with all its controls, hidden. Errors: 7 when the system cannot create one; that may come out
  // only when the window or one of its controls is first used.
  virtual std::shared_ptr<Window> create(const FormLayout& layout) = 0;
};

}  // namespace nerida
