// The menus of categories. Each category has a menu of its own below it, for as many as the form was designed with.
#include <algorithm>

#include "catalog/frm_browser.h"

namespace nerida {
namespace {

constexpr std::int32_t categoriesWithMenu = 15;

std::int16_t next(std::int16_t counter) { return roundToInt16(counter + 1.0); }

}  // namespace

// Not part of what fails when the form cannot be loaded: a catalog without categories still finds models.
void frmBrowser::AddCategories() {
  handleAs("Error while adding categories to menu: ", catalogTitle, [this] {
    const std::unique_ptr<SearchComponent> component = services.searchComponents.create();
    const CategoryList list = component->categories();
    if (list.lastCategory >= 0) fillCategories(list);
  });
}

// One category more than there are menus is shown, without one; its names are passed over, as all names stand in one
// list.
void frmBrowser::fillCategories(const CategoryList& list) {
  FormMenu& menu = loadedWindow().menu();
  const auto last = static_cast<std::int16_t>(std::min(list.lastCategory, categoriesWithMenu));
  std::int16_t name = 0;
  for (std::int16_t i = 1; i <= last + 1; i = next(i)) {
    menu.setVisible("mnuCategory", i, true);
    const std::int16_t count = list.subCategoryCounts.at(i - 1);
    const std::string subMenu = "mnuSubCategory" + std::to_string(i);
    for (std::int16_t j = 0; j < count; j = next(j)) {
      if (i <= categoriesWithMenu) {
        if (j > 0) menu.load(subMenu, j);
        if (j > 0) menu.setVisible(subMenu, j, true);
        menu.setCaption(subMenu, j, list.subCategoryNames.at(name));
      }
      name = next(name);
    }
    menu.setCaption("mnuCategory", i, list.categoryNames.at(i - 1));
  }
}

}  // namespace nerida
