#pragma once

#include "tests/contract/local_class.h"

namespace nerida {

// A control of this process under the preview's name, in the place of any that is registered. It answers as the
// contract says, and has no window.
class PreviewRegistration {
 public:
  PreviewRegistration();
  ~PreviewRegistration();
  PreviewRegistration(const PreviewRegistration&) = delete;
  PreviewRegistration& operator=(const PreviewRegistration&) = delete;
  void setPresent(bool present);

 private:
  LocalClass registered;
  bool touched = false;  // the name in the registry
};

}  // namespace nerida
