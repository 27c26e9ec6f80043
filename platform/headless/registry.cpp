#include "platform/headless/registry.h"

namespace nerida::headless {
namespace {

constexpr long notFound = 2;
constexpr long moreData = 234;
constexpr long noMoreItems = 259;
constexpr std::size_t nameCapacity = 255;
constexpr std::size_t dataCapacity = 256;

long statusOf(const RegistryValue& value) {
  return value.name.size() > nameCapacity || value.data.size() > dataCapacity ? moreData : 0;
}

class MemoryKey : public RegistryKey {
 public:
  MemoryKey(MemoryRegistry& registry, std::string path) : registry(registry), path(std::move(path)) {}

  std::unique_ptr<RegistryKey> open(const std::string& name, long& status) override {
    const std::string below = path.empty() ? name : path + "\\" + name;
    if (const auto failure = registry.openFailures.find(below); failure != registry.openFailures.end()) {
      status = failure->second;
      return nullptr;
    }
    status = registry.keys.contains(below) ? 0 : notFound;
    return status == 0 ? std::make_unique<MemoryKey>(registry, below) : nullptr;
  }

  std::optional<RegistryValue> value(int index, long& status) override {
    if (const auto failure = registry.valueFailures.find({path, index}); failure != registry.valueFailures.end()) {
      status = failure->second;
      return std::nullopt;
    }
    const std::vector<RegistryValue>& values = registry.keys.at(path);
    const auto position = static_cast<std::size_t>(index);
    status = position < values.size() ? statusOf(values[position]) : noMoreItems;
    if (status != 0) return std::nullopt;
    const RegistryValue& found = values[position];
    return RegistryValue{found.name, found.data.substr(0, found.data.find('\0'))};
  }

 private:
  MemoryRegistry& registry;
  std::string path;
};

}  // namespace

std::unique_ptr<RegistryKey> MemoryRegistry::openLocalMachine() { return std::make_unique<MemoryKey>(*this, ""); }

}  // namespace nerida::headless
