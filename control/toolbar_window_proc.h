#pragma once

#include "platform/window.h"

namespace nerida {

struct Library;

// The window procedure that the toolbar puts in front of its own while it is in use: it takes the toolbar or the
// catalog off the screen while another application is in front, and pauses the model's animation meanwhile.
// It never fails and never waits, but for the message that a change of the display brings.
std::intptr_t ToolbarWindowProc(Library& library, const Message& message);

}  // namespace nerida
