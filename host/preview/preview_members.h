#pragma once

#include "host/preview/preview.h"
#include "host/win32/automation.h"

namespace nerida::host {

/// ModelFile, ModelName (texts); StyleName (text), ModelScale (per cent of the home size): to be read only, the user
/// sets them; GetOrientation(x, y, z): three references to 32-bit numbers, hundredths of a degree; Load().
std::span<const Member<Preview>> previewMembers();

}  // namespace nerida::host
