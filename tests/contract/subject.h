#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/automation.h"
#include "platform/canvas.h"
#include "platform/platform.h"
#include "platform/window.h"

namespace nerida {

enum class Mouse { move, down, rightDown, up, rightUp };
enum class ColorAnswer { own, typed, cancel };

// One side of the platform, as the tests see it: its services, what a user does to its windows, what a program does to
// its stores, and what only the side itself can tell.
class Subject {
 public:
  virtual ~Subject() = default;

  virtual Platform services() = 0;

  // What a user does. False when the user cannot: there is nothing in sight to press or to choose.
  virtual bool press(Window& window, const std::string& bar, const std::string& key) = 0;
  virtual bool choose(Window& window, const std::string& comboBox, const std::string& entry) = 0;
  // The mouse over a drawn control, in twips from its corner, over a label, over a button of a bar, and over the
  // form outside its controls.
  virtual void mouse(Window& window, const std::string& picture, Mouse what, Twips x, Twips y) = 0;
  virtual void mouseOnLabel(Window& window, const std::string& label, Mouse what, bool inside) = 0;
  virtual void pointAt(Window& window, const std::string& bar, const std::string& key) = 0;
  virtual void pointAtForm(Window& window) = 0;
  // A key in the drawn control or the bar that has the keyboard, and Enter behind a text in a text box.
  virtual void key(Window& window, const std::string& picture, Key key) = 0;
  virtual void keyInBar(Window& window, const std::string& bar, Key key) = 0;
  virtual void enter(Window& window, const std::string& textBox, const std::string& text) = 0;
  // An assistive tool presses a part of a drawn control; false when it is refused.
  virtual bool pressPart(Window& window, const std::string& picture, std::size_t part) = 0;
  // The answer to the next colour dialog: a colour that is typed into it, its own one, or Cancel.
  virtual void answerColorDialog(ColorAnswer answer, Rgb typed) = 0;
  virtual bool chooseMenu(Window& window, const std::string& name, int index) = 0;
  virtual bool pressButton(Window& window, const std::string& name, int index) = 0;
  virtual bool clickItem(Window& window, const std::string& list, int item) = 0;
  // Letters typed into a list, after a pause.
  virtual void typeInList(Window& window, const std::string& list, const std::string& text) = 0;
  virtual void close(Window& window) = 0;
  virtual void click(Window& window) = 0;
  // So many milliseconds pass, in which the program takes its messages.
  virtual void pass(Window& window, int milliseconds) = 0;
  // Runs once, while the next modal window waits.
  virtual void duringModal(std::function<void()> action) = 0;

  // A message as the system sends it; gives the procedure's answer.
  virtual std::intptr_t send(Window& window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) = 0;
  virtual std::string captionOf(Window& window) = 0;
  // What a drawn control shows at a place.
  virtual Rgb colorAt(Window& window, const std::string& picture, Twips x, Twips y) = 0;
  // The buttons that a bar shows, in order: names, those that look pressed in brackets.
  virtual std::string buttonsOf(Window& window, const std::string& bar) = 0;
  virtual bool exists(WindowHandle window) = 0;

  // A key of the machine-wide registry that is empty before each test and gone after it: "Software\NeridaContract".
  virtual void storeText(const std::string& name, const std::string& text) = 0;
  virtual void storeBytes(const std::string& name, const std::string& bytes) = 0;

  // A folder, with a backslash at its end, that holds "plain.txt", "picture.bmp", "hidden.txt", which is hidden, and
  // the folder "below", which is empty. There are a drive c: and no drive b:.
  virtual std::string folder() = 0;

  // Whether there is a search component; it answers as prepared_search.h says.
  virtual void installSearch() = 0;
  virtual void removeSearch() = 0;

  // Whether there is a component behind a preview: one in the style "Ink Outline", scaled to 70000 and turned by 100,
  // -200 and 36000, which refuses to load "nobody.twe" with error 53 "No such model".
  virtual void setPreviewPresent(Window& window, const std::string& preview, bool present) = 0;

  // An object with the properties Name (text) and Number (32 bit), and the methods Add(a, b), Fill(ByRef variable),
  // Increase(ByRef number), Refuse, which raises error 380 "Bad value", and Crash, which raises 91 without a text.
  virtual ObjectRef makeObject() = 0;
};

std::unique_ptr<Subject> makeSubject();

inline constexpr const char* contractKey = "NeridaContract";  // below Software

}  // namespace nerida
