#pragma once

#include <map>
#include <string>

#include "platform/settings.h"

namespace nerida::headless {

class MemorySettings : public Settings {
 public:
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) override {
    const auto found = texts.find({section, key});
    return found == texts.end() ? fallback : found->second;
  }
  void write(const std::string& section, const std::string& key, const std::string& text) override {
    texts[{section, key}] = text;
  }

  std::map<std::pair<std::string, std::string>, std::string> texts;  // by section and key
};

}  // namespace nerida::headless
