#pragma once

#include <nlohmann/json.hpp>

#include "host/library/recipe_lines.h"

namespace nerida::library {

/// Reads what follows a word for movement (spin, swing, bob, turns, moves) into the part's "animate". False when the
/// word is none of them. Movements without frames of their own fill the whole animation.
bool readMotion(const std::string& word, RecipeLine& line, nlohmann::json& part);

}  // namespace nerida::library
