#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace nerida {

// Answers WM_GETOBJECT for a control of the system's: what the system says of it, but under our name. Nothing when
// the message asks for something else.
std::optional<LRESULT> answerWithName(HWND control, const std::wstring& name, WPARAM wParam, LPARAM lParam);

// The same for a caption of another control, which has the name: this one is nobody's to stop at.
std::optional<LRESULT> answerAsCaption(HWND control, WPARAM wParam, LPARAM lParam);

}  // namespace nerida
