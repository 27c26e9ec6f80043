#pragma once

#include "tests/unit/desk.h"

namespace nerida {

inline SearchResult hitsOf(const std::vector<std::string>& names, const std::vector<std::int32_t>& ids,
                           const std::vector<std::int32_t>& flags) {
  return {{0, names}, {0, ids}, {0, flags}, static_cast<std::int32_t>(names.size())};
}

// A catalog that is shown, over a library with the files of the models 42 and 12345 and a search that finds both.
class CatalogTest : public DeskTest {
 protected:
  CatalogTest() {
    platform.files.files.insert(windmillFile);
    platform.files.files.insert(shipFile);
    platform.search.search = [](std::string&) { return hitsOf({"Windmill", "Ship"}, {42, 12345}, {0, 0x20}); };
  }
  void SetUp() override { open(); }
  void open() {
    createAndInit();
    control->ShowCatalog();
    take();
  }

  headless::Text& searchBox() const { return catalog().text("txtSearch"); }
  headless::Items& hits() const { return catalog().items("lstModels"); }
  headless::PreviewControl& preview() const { return catalog().previewControl("zephBrowser"); }
  headless::MenuBar& menu() const { return catalog().menuBar; }
  const std::string& resultsCaption() const { return catalog().labelControl("lblResults").caption; }
  bool choose(const std::string& name, int index = 0) { return menu().choose(name, index); }
  // The model 42 is found and previewed.
  void findWindmill() {
    searchBox().enter("mill");
    take();
  }
  std::map<std::string, std::string> stored() const {
    std::map<std::string, std::string> texts;
    for (const auto& [key, text] : platform.settings.texts) {
      if (key.first == "Browser") texts[key.second] = text;
    }
    return texts;
  }
  void store(const std::string& key, const std::string& text) { platform.settings.texts[{"Browser", key}] = text; }

  const std::string windmillFile = "C:\\Zephra\\Models\\dv0000\\dv0000\\dv0040\\dv42.twe";
  const std::string shipFile = "C:\\Zephra\\Models\\dv12000\\dv12300\\dv12345\\dv12345.twe";
};

inline std::string searchBoxOf(const std::string& failure) {
  return "box [Zephra Catalog] Error while searching for models: " + failure;
}

}  // namespace nerida
