#include "platform/win32/label.h"

#include "platform/win32/text.h"

namespace nerida {

// Without a notification style the system's label lets clicks through to the form, which is what we want of it.
SystemLabel::SystemLabel(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row) {
  createStandard(L"STATIC", wide(row.text).c_str(), SS_LEFT | SS_NOPREFIX, 0);
}

void SystemLabel::setCaption(const std::string& text) { SetWindowTextW(window(), wide(text).c_str()); }

}  // namespace nerida
