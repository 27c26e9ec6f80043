#include <algorithm>
#include <stdexcept>

#include "platform/headless/platform.h"
#include "tests/contract/subject.h"

namespace nerida {
namespace {

using headless::FormWindow;
using headless::ScriptedObject;

FormWindow& inner(Window& window) { return dynamic_cast<FormWindow&>(window); }

std::string keyPath() { return std::string("Software\\") + contractKey; }

Value joined(std::span<Argument> arguments) {
  return std::int32_t{toInt16(arguments[0].value) * 10 + toInt16(arguments[1].value)};
}

class HeadlessSubject : public Subject {
 public:
  HeadlessSubject() {
    platform.registry.keys["Software"];
    platform.registry.keys[keyPath()];
  }

  Platform services() override { return platform.services(); }

  bool press(Window& window, const std::string& bar, const std::string& key) override {
    if (!window.isVisible()) return false;
    try {
      inner(window).bar(bar).press(key);
    } catch (const std::logic_error&) {
      return false;
    }
    return true;
  }

  bool choose(Window& window, const std::string& comboBox, const std::string& entry) override {
    if (!window.isVisible()) return false;
    inner(window).combo(comboBox).choose(entry);
    return true;
  }

  void close(Window& window) override { inner(window).userCloses(); }
  void click(Window& window) override { inner(window).userClicks(); }

  void duringModal(std::function<void()> action) override {
    platform.windows.duringModal = [action](FormWindow&) { action(); };
  }

  std::intptr_t send(Window& window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) override {
    return inner(window).send(message, wParam, lParam);
  }

  std::string captionOf(Window& window) override { return inner(window).caption; }

  bool exists(WindowHandle window) override {
    return std::ranges::any_of(platform.windows.living, [&](FormWindow* form) { return form->handle() == window; });
  }

  void storeText(const std::string& name, const std::string& text) override { storeBytes(name, text + '\0'); }

  void storeBytes(const std::string& name, const std::string& bytes) override {
    auto& values = platform.registry.keys[keyPath()];
    std::erase_if(values, [&](const RegistryValue& value) { return value.name == name; });
    values.push_back({name, bytes});
  }

  ObjectRef makeObject() override {
    auto object = std::make_shared<ScriptedObject>(platform.transcript);
    object->values = {{"Name", std::string()}, {"Number", std::int32_t{0}}};
    object->functions["Add"] = joined;
    object->functions["Fill"] = [](std::span<Argument> arguments) {
      *arguments[0].variable = std::string("filled");
      return Value();
    };
    object->functions["Increase"] = [](std::span<Argument> arguments) {
      *arguments[0].variable = toInt32(*arguments[0].variable) + 1;
      return Value();
    };
    object->failures.emplace("Refuse", Error(380, "Bad value"));
    object->failures.emplace("Crash", Error(error::objectNotSet));
    return object;
  }

 private:
  headless::HeadlessPlatform platform;
};

}  // namespace

std::unique_ptr<Subject> makeSubject() { return std::make_unique<HeadlessSubject>(); }

}  // namespace nerida
