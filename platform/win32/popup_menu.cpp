#include "platform/win32/popup_menu.h"

#include <string_view>

#include "platform/win32/handles.h"
#include "platform/win32/text.h"

namespace nerida {

int trackPopupMenu(HWND owner, std::span<const char* const> captions, POINT topRight) {
  const UniqueMenu menu(CreatePopupMenu());
  if (!menu) return -1;
  UINT_PTR identifier = 0;  // 0 is what the system answers when nothing was chosen
  for (const char* caption : captions) {
    ++identifier;
    const bool separates = std::string_view(caption) == "-";
    AppendMenuW(menu.get(), separates ? MF_SEPARATOR : MF_STRING, identifier, wide(caption).c_str());
  }
  constexpr UINT flags = TPM_RIGHTALIGN | TPM_LEFTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY;
  return TrackPopupMenu(menu.get(), flags, topRight.x, topRight.y, 0, owner, nullptr) - 1;
}

}  // namespace nerida
