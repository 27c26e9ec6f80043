#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/search/model_card.h"

namespace nerida::bench {

/// `count` models whose names and keywords are spread as words are in language: few are in very many models, most in
/// few. The same for the same count, everywhere. A larger library begins with the models of a smaller one.
std::vector<search::ModelCard> libraryOfWords(std::size_t count);

/// The word of that rank by frequency, 0 the most frequent.
std::string wordOfRank(std::size_t rank);

}  // namespace nerida::bench
