#pragma once

#include <nlohmann/json.hpp>

#include "host/library/recipe_lines.h"

namespace nerida::library {

/// The part that one line describes. Colours are those of `colors`, or "#rrggbb", which is then added to them.
nlohmann::json partOfLine(RecipeLine& line, nlohmann::json& colors);

}  // namespace nerida::library
