#include "platform/win32/window_class.h"

#include <mutex>

#include "platform/error.h"
#include "platform/win32/form_window.h"
#include "platform/win32/module.h"
#include "platform/win32/native_control.h"

namespace nerida {
namespace {

std::mutex mutex;
int users = 0;

bool registerClass(const wchar_t* name, WNDPROC procedure, HBRUSH background) {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  description.lpfnWndProc = procedure;
  description.hInstance = moduleInstance();
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hIcon = LoadIconW(moduleInstance(), MAKEINTRESOURCEW(1));  // the library's own; other modules have none
  description.hbrBackground = background;
  description.lpszClassName = name;
  return RegisterClassExW(&description) != 0;
}

void unregisterClasses() {
  for (const wchar_t* name : {formClass, buttonBarClass, pictureBoxClass}) UnregisterClassW(name, moduleInstance());
}

bool registerClasses() {
  const auto face = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  return registerClass(formClass, formProcedure, face) && registerClass(buttonBarClass, controlProcedure, nullptr) &&
         registerClass(pictureBoxClass, controlProcedure, face);
}

}  // namespace

WindowClasses::WindowClasses() {
  const std::scoped_lock lock(mutex);
  if (users == 0 && !registerClasses()) {
    unregisterClasses();
    throw Error(error::outOfMemory);
  }
  ++users;
}

WindowClasses::~WindowClasses() {
  const std::scoped_lock lock(mutex);
  if (--users == 0) unregisterClasses();
}

}  // namespace nerida
