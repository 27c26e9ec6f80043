// Searching: every kind of search is one routine with another query.
#include "catalog/browser_texts.h"
#include "catalog/frm_browser.h"
#include "catalog/model_library.h"

namespace nerida {
namespace {

constexpr const char* randomQuery = ":Random";
constexpr std::int32_t animatedFlag = 0x20;
constexpr int animatedIcon = 1;

}  // namespace

// The component and what it found live until the user has been told how the search ended.
struct frmBrowser::Search {
  std::unique_ptr<SearchComponent> component;
  SearchResult hits;
  bool isUnderWay = false;
};

void frmBrowser::txtSearch_KeyPress() { searchTypedText(); }

// Only what is typed is remembered, as the box shows it after the search.
void frmBrowser::searchTypedText() {
  handleHere([this] {
    std::string query = searchBox().text();
    DictionarySearch(query);
    searches.record(searchBox().text(), loadedWindow().menu());
  });
}

void frmBrowser::searchBoxText(const std::string& text) {
  handleHere([this, &text] {
    searchBox().setText(text);
    std::string query = searchBox().text();
    DictionarySearch(query);
  });
}

void frmBrowser::DictionarySearch(std::string& query) {
  Search search;
  handleAs("Error while searching for models: ", catalogTitle, [&] { runSearch(query, search); });
  if (!search.isUnderWay) return;
  search.component.reset();
  ignoringErrors([this] { services.desktop.setMousePointer(MousePointer::standard); });
}

bool frmBrowser::hasLibrary() {
  if (!paths.ModelLibraryPath.empty()) return true;
  if (!LocateModelLibrary(paths, services.files, services.prompts, messages)) return false;
  paths.ModelLibraryPath = paths.CdDrive + paths.CdModelDirectory + "\\Graphics";
  return true;
}

void frmBrowser::runSearch(std::string& query, Search& search) {
  if (query.empty() || !hasLibrary()) return;
  search.isUnderWay = true;
  services.desktop.setMousePointer(MousePointer::hourglass);
  if (query == surpriseQuery || query == searchPrompt) {
    query = randomQuery;
    searchBox().setText(surpriseQuery);
  }
  hitList().clear();
  search.component = services.searchComponents.create();
  search.hits = search.component->search(query);
  loadedWindow().label("lblResults").setCaption(" Search Results (" + std::to_string(search.hits.count) + ")");
  if (search.hits.count < 1) return;
  listHits(search.hits);
  selectFirstHit();
}

// The counter has 16 bits: more hits than it can count end the search with an overflow. A hit whose number the
// component forgot stands in the list like the others: it can be read, though not previewed.
void frmBrowser::listHits(const SearchResult& hits) {
  ListView& list = hitList();
  for (std::int16_t i = 0; i < hits.count; i = roundToInt16(i + 1.0)) {
    const bool isAnimated = (hits.flags.at(i) & animatedFlag) != 0;
    list.add({hits.names.at(i), "", isAnimated ? animatedIcon : 0});
    list.setTag(i, std::to_string(hits.ids.at(i)));
  }
}

void frmBrowser::selectFirstHit() {
  hitList().select(0);
  SelectItem(hitList().item(0));
  hitList().refresh();
}

}  // namespace nerida
