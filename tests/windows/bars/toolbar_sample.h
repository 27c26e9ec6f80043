#pragma once

#include <memory>
#include <string>

#include "platform/window.h"

namespace nerida {

// The toolbar's form with all its buttons and swatches and nothing behind them: for looking at it and for pressing.
std::shared_ptr<Window> makeToolbarSample(WindowFactory& factory, const std::string& resourceFolder);

}  // namespace nerida
