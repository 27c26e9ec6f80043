#pragma once

#include <map>
#include <string>

#include "platform/error.h"
#include "platform/settings.h"

namespace nerida::headless {

class MemorySettings : public Settings {
 public:
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) override {
    const auto found = texts.find({section, key});
    return found == texts.end() ? fallback : found->second;
  }
  void write(const std::string& section, const std::string& key, const std::string& text) override {
    if (!isWritable) throw Error(error::invalidCall);
    texts[{section, key}] = text;
  }

  std::map<std::pair<std::string, std::string>, std::string> texts;  // by section and key
  bool isWritable = true;
};

}  // namespace nerida::headless
