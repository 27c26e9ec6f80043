#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace nerida::search {

/// What the catalog knows of a model. All texts are UTF-8.
struct ModelCard {
  std::int32_t number = 0;
  std::string name, category, subcategory;
  std::vector<std::string> keywords;
  bool animated = false;
};

}  // namespace nerida::search
