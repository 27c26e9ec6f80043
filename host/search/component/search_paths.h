#pragma once

#include <string>

namespace nerida::host {

/// The product's folder of the search database as the installation key names it, empty when it names none.
std::wstring dictionaryFolder();

/// The current user's folder of the product, empty when there is none.
std::wstring userFolder();

}  // namespace nerida::host
