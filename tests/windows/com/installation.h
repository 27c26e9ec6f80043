#pragma once

#include <string>

namespace nerida {

// The registry entries of an installed product, without which every start of the control tells the user about them.
// Whatever was there before is gone afterwards.
class Installation {
 public:
  Installation();
  ~Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
};

}  // namespace nerida
