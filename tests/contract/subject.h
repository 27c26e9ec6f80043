#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/automation.h"
#include "platform/platform.h"
#include "platform/window.h"

namespace nerida {

// One side of the platform, as the tests see it: its services, what a user does to its windows, what a program does to
// its stores, and what only the side itself can tell.
class Subject {
 public:
  virtual ~Subject() = default;

  virtual Platform services() = 0;

  // What a user does. False when the user cannot: there is nothing in sight to press or to choose.
  virtual bool press(Window& window, const std::string& bar, const std::string& key) = 0;
  virtual bool choose(Window& window, const std::string& comboBox, const std::string& entry) = 0;
  virtual void close(Window& window) = 0;
  virtual void click(Window& window) = 0;
  // Runs once, while the next modal window waits.
  virtual void duringModal(std::function<void()> action) = 0;

  // A message as the system sends it; gives the procedure's answer.
  virtual std::intptr_t send(Window& window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) = 0;
  virtual std::string captionOf(Window& window) = 0;
  virtual bool exists(WindowHandle window) = 0;

  // A key of the machine-wide registry that is empty before each test and gone after it: "Software\NeridaContract".
  virtual void storeText(const std::string& name, const std::string& text) = 0;
  virtual void storeBytes(const std::string& name, const std::string& bytes) = 0;

  // An object with the properties Name (text) and Number (32 bit), and the methods Add(a, b), Fill(ByRef variable),
  // Increase(ByRef number), Refuse, which raises error 380 "Bad value", and Crash, which raises 91 without a text.
  virtual ObjectRef makeObject() = 0;
};

std::unique_ptr<Subject> makeSubject();

inline constexpr const char* contractKey = "NeridaContract";  // below Software

}  // namespace nerida
