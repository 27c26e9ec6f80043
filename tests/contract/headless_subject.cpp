#include <algorithm>
#include <array>
#include <cstdio>
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

// One recorded stroke, as it colours a point; every second twip of a focus rectangle is inverted.
void draw(const std::string& line, std::int32_t x, std::int32_t y, Rgb& color) {
  std::array<char, 8> what{};
  std::int32_t left = 0, top = 0, right = 0, bottom = 0;
  unsigned red = 0, green = 0, blue = 0;
  const int read = std::sscanf(line.c_str(), "%7s %d,%d to %d,%d in #%2x%2x%2x", what.data(), &left, &top, &right,
                               &bottom, &red, &green, &blue);
  if (read < 5 || x < left || x > right || y < top || y > bottom) return;
  const bool onEdge = x == left || x == right || y == top || y == bottom;
  if (read == 8) color = static_cast<Rgb>(red + 256 * green + 65536 * blue);
  if (std::string_view(what.data()) == "focus" && onEdge && (x + y) / 15 % 2 == 0) color ^= 0xFFFFFF;
}

SearchResult preparedSearch(std::string& query) {
  if (query == "refuse") throw Error(513, "The database is locked.");
  if (query == "fail") throw Error(error::outOfMemory);
  if (query == "rewrite") {
    query = "rewritten";
    return {};
  }
  return {{0, {"Windmill", "Sailboat", "No such file"}}, {0, {3310, 2105, 9999}}, {0, {0, 0x20, 0}}, 3};
}

class HeadlessSubject : public Subject {
 public:
  HeadlessSubject() {
    platform.registry.keys["Software"];
    platform.registry.keys[keyPath()];
    platform.files.drives["c:"] = DriveType::fixed;
    platform.files.files = {"c:\\contract\\plain.txt", "c:\\contract\\picture.bmp", "c:\\contract\\hidden.txt"};
    platform.files.hiddenFiles = {"c:\\contract\\hidden.txt"};
    platform.files.pictures = {"c:\\contract\\picture.bmp"};
    platform.search.search = preparedSearch;
    platform.search.categories = [] {
      return CategoryList{
          {0, {"Buildings", "Vehicles", "Nothing"}}, {0, {"Mills", "Salt & Pepper", "Boats"}}, {0, {2, 1, 0}}, 2};
    };
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

  void mouse(Window& window, const std::string& picture, Mouse what, Twips x, Twips y) override {
    headless::Picture& box = inner(window).picture(picture);
    if (what == Mouse::move) box.movePointer(x, y);
    if (what == Mouse::down || what == Mouse::rightDown) box.pressAt(x, y);
    if (what == Mouse::up || what == Mouse::rightUp) box.releaseAt(x, y);
  }

  void mouseOnLabel(Window& window, const std::string& name, Mouse what, bool inside) override {
    headless::Caption& label = inner(window).labelControl(name);
    if (what == Mouse::move) label.movePointer();
    if (what == Mouse::down) label.press();
    if (what == Mouse::up) label.release(inside);
  }

  void pointAt(Window& window, const std::string& bar, const std::string& key) override {
    inner(window).bar(bar).hover(key);
  }

  void pointAtForm(Window& window) override { inner(window).userMovesPointer(); }

  void key(Window& window, const std::string& picture, Key key) override { inner(window).picture(picture).key(key); }

  void keyInBar(Window& window, const std::string& bar, Key key) override { inner(window).bar(bar).key(key); }

  void enter(Window& window, const std::string& textBox, const std::string& text) override {
    inner(window).text(textBox).enter(text);
  }

  bool pressPart(Window& window, const std::string& picture, std::size_t part) override {
    headless::Picture& box = inner(window).picture(picture);
    const bool isWaiting = platform.windows.modal && platform.windows.modal != &window;
    if (isWaiting || !window.isVisible() || !box.isVisible() || !box.parts || !box.pressPart) return false;
    if (part >= box.parts().size()) return false;
    box.pressPart(part);
    return true;
  }

  void answerColorDialog(ColorAnswer answer, Rgb typed) override {
    platform.boxes.colorAnswer = [answer, typed](Rgb start) {
      return answer == ColorAnswer::cancel ? std::nullopt : std::optional(answer == ColorAnswer::own ? start : typed);
    };
  }

  bool chooseMenu(Window& window, const std::string& name, int index) override {
    return window.isVisible() && inner(window).menuBar.choose(name, index);
  }

  bool pressButton(Window& window, const std::string& name, int index) override {
    headless::PushButton& button = inner(window).pushButton(name, index);
    if (!window.isVisible() || !button.isVisible()) return false;
    button.press();
    return true;
  }

  bool clickItem(Window& window, const std::string& list, int item) override {
    if (!window.isVisible()) return false;
    inner(window).items(list).click(item);
    return true;
  }

  void typeInList(Window& window, const std::string& list, const std::string& text) override {
    inner(window).items(list).type(text);
  }

  std::string folder() override { return "c:\\contract\\"; }
  void installSearch() override { platform.search.installed = true; }
  void removeSearch() override { platform.search.installed = false; }

  void setPreviewPresent(Window& window, const std::string& preview, bool present) override {
    headless::PreviewControl& control = inner(window).previewControl(preview);
    control.installed = present;
    control.scale = 70000;
    control.angles = {100, -200, 36000};
    control.hooks["Load"] = [&control] {
      if (control.file == "nobody.twe") throw Error(error::fileNotFound, "No such model");
    };
  }

  void close(Window& window) override { inner(window).userCloses(); }
  void click(Window& window) override { inner(window).userClicks(); }

  void pass(Window& window, int milliseconds) override {
    const headless::Clock& clock = inner(window).clock;
    clock.pass(milliseconds / clock.milliseconds);
  }

  void duringModal(std::function<void()> action) override {
    platform.windows.duringModal = [action](FormWindow&) { action(); };
  }

  std::intptr_t send(Window& window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) override {
    return inner(window).send(message, wParam, lParam);
  }

  std::string captionOf(Window& window) override { return inner(window).caption; }

  Rgb colorAt(Window& window, const std::string& picture, Twips x, Twips y) override {
    Rgb color = -1;
    for (const std::string& line : inner(window).picture(picture).draw()) draw(line, x.value, y.value, color);
    return color;
  }

  std::string buttonsOf(Window& window, const std::string& bar) override {
    std::string text;
    for (const std::string& key : inner(window).bar(bar).keys()) {
      const headless::Bar::Button& button = inner(window).bar(bar).button(key);
      const std::string& name = button.accessibleName.empty() ? key : button.accessibleName;
      text += button.state == buttonDown ? "[" + name + "]" : name;
    }
    return text;
  }

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
