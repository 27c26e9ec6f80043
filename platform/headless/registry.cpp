#include "platform/headless/registry.h"

namespace nerida::headless {
namespace {

constexpr long notFound = 2;
constexpr long noMoreItems = 259;

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
    status = position < values.size() ? 0 : noMoreItems;
    return status == 0 ? std::optional(values[position]) : std::nullopt;
  }

 private:
  MemoryRegistry& registry;
  std::string path;
};

}  // namespace

std::unique_ptr<RegistryKey> MemoryRegistry::openLocalMachine() { return std::make_unique<MemoryKey>(*this, ""); }

}  // namespace nerida::headless
