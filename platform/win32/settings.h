#pragma once

#include "platform/settings.h"

namespace nerida {

// Keeps the settings in the current user's registry, one key for each section.
class SystemSettings : public Settings {
 public:
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) override;
  void write(const std::string& section, const std::string& key, const std::string& text) override;
};

}  // namespace nerida
