#pragma once

#include "platform/search_component.h"

namespace nerida {

// The component that is registered for the class of searches, in this process.
class SystemSearchComponents : public SearchComponents {
 public:
  std::unique_ptr<SearchComponent> create() override;
};

}  // namespace nerida
