#include "catalog/installation_paths.h"

#include <functional>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "core/trap.h"

namespace nerida {
namespace {

using ValueVisitor = std::function<bool(const RegistryValue&)>;  // returns whether to go on

// Values are picked by the first three characters of their names.
bool nameBegins(const RegistryValue& value, std::string_view prefix) { return value.name.starts_with(prefix); }

class PathReader {
 public:
  PathReader(Paths& paths, Registry& registry, Messages& messages)
      : paths(paths), registry(registry), messages(messages) {}

  void read() {
    if (!readInstallationValues()) return;
    if (paths.ModelLibraryPath.empty() && !readVersionValues()) return;
    if (paths.ModelLibraryPath.empty() && !readCdDirectory()) return;
    if (paths.DictionaryPath.empty()) messages.show("Zephra was unable to find the model database.", catalogTitle);
  }

 private:
  bool readInstallationValues() {
    return visitValues({"Software", "Tarnwell", "Zephra"}, [this](const RegistryValue& value) {
      keep(value);
      return true;
    });
  }

  bool readVersionValues() {
    return visitValues({"Software", "Tarnwell", "Zephra", "1.0"}, [this](const RegistryValue& value) {
      if (!nameBegins(value, "Mod")) return true;
      paths.ModelLibraryPath = value.data;
      return false;
    });
  }

  // Without models on disk they are looked for on a CD, in this folder.
  bool readCdDirectory() {
    return visitValues({"Software", "Tarnwell", "Zephra"}, [this](const RegistryValue& value) {
      if (!nameBegins(value, "Def")) return true;
      paths.CdModelDirectory = value.data;
      return false;
    });
  }

  void keep(const RegistryValue& value) {
    struct Row {
      std::string_view prefix;
      std::string Paths::*path;
    };
    static constexpr Row rows[] = {
        {"Dic", &Paths::DictionaryPath}, {"Sty", &Paths::StylePath},   {"Sys", &Paths::SystemPath},
        {"Hel", &Paths::HelpPath},       {"Liv", &Paths::ProductText},
    };
    for (const Row& row : rows) {
      if (nameBegins(value, row.prefix)) paths.*row.path = value.data;
    }
    if (nameBegins(value, "Exp")) paths.ExpansionAbsent = false;
  }

  // Opens the keys one below the other and visits the last one's values. False when a key cannot be opened; a key
  // without values is told, but is no reason to stop.
  bool visitValues(std::initializer_list<const char*> keys, const ValueVisitor& visitor) {
    std::unique_ptr<RegistryKey> key = registry.openLocalMachine();
    for (const char* name : keys) {
      long status = 0;
      key = key->open(name, status);
      if (!key) {
        tell(name, status);
        return false;
      }
    }
    enumerate(*key, visitor);
    return true;
  }

  void enumerate(RegistryKey& key, const ValueVisitor& visitor) {
    for (int index = 0;; ++index) {
      long status = 0;
      const std::optional<RegistryValue> value = key.value(index, status);
      if (!value) {
        if (index == 0) tell("Enumeration", status);
        return;
      }
      if (!visitor(*value)) return;
    }
  }

  void tell(const std::string& place, long status) {
    messages.show("Registry access error at " + place + ": " + std::to_string(status), catalogTitle);
  }

  Paths& paths;
  Registry& registry;
  Messages& messages;
};

}  // namespace

void ReadInstallationPaths(Paths& paths, Registry& registry, Messages& messages) {
  trap(
      [&] {
        paths = Paths();
        PathReader(paths, registry, messages).read();
      },
      [&](const Error&) { messages.show("An error occurred while initializing.", toolbarTitle); });
}

}  // namespace nerida
