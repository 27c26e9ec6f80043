#pragma once

#include <string>

namespace nerida {

// What of an installed product every start of the control looks for, and tells the user when it is missing: registry
// entries, the catalog's logo, and a search component (see prepared_search.h).
// Whatever was there before is gone afterwards.
class Installation {
 public:
  Installation();
  ~Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
};

}  // namespace nerida
