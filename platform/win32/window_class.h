#pragma once

#include <windows.h>

namespace nerida {

inline constexpr const wchar_t* formClass = L"NeridaToolbarForm";
inline constexpr const wchar_t* buttonBarClass = L"NeridaButtonBar";
inline constexpr const wchar_t* pictureBoxClass = L"NeridaPictureBox";

// Keeps the module's window classes registered. The first user registers them, the last one takes them off again, so
// that the module leaves nothing behind when it is unloaded. Error 7 when the system refuses.
class WindowClasses {
 public:
  WindowClasses();
  ~WindowClasses();
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;
};

}  // namespace nerida
