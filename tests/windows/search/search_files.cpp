#include "tests/windows/search/search_files.h"

#include <shellapi.h>

#include <fstream>
#include <stdexcept>

#include "host/search/model_database.h"
#include "platform/win32/registry_handle.h"

namespace nerida::host {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* installationKey = L"Software\\Tarnwell\\Zephra";

RegistryHandle openInstallation() {
  RegistryHandle key;
  RegCreateKeyExW(HKEY_LOCAL_MACHINE, installationKey, 0, nullptr, 0, KEY_READ | KEY_WRITE | KEY_WOW64_32KEY, nullptr,
                  key.put(), nullptr);
  return key;
}

std::vector<std::pair<std::wstring, std::wstring>> dictionaryValues() {
  const RegistryHandle key = openInstallation();
  std::vector<std::pair<std::wstring, std::wstring>> values;
  for (DWORD index = 0;; ++index) {
    wchar_t name[256];
    wchar_t text[1024] = {};
    DWORD nameLength = 256, bytes = sizeof text - sizeof *text;
    if (RegEnumValueW(key.get(), index, name, &nameLength, nullptr, nullptr, reinterpret_cast<BYTE*>(text), &bytes) !=
        ERROR_SUCCESS) {
      return values;
    }
    if (std::wstring_view(name).starts_with(L"Dic")) values.emplace_back(name, text);
  }
}

fs::path newFolder() {
  static int count = 0;
  fs::path folder = fs::temp_directory_path() /
                    ("zephra-search-" + std::to_string(GetCurrentProcessId()) + '-' + std::to_string(++count));
  fs::create_directories(folder);
  return folder;
}

}  // namespace

fs::path componentFile() {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  const std::wstring path = arguments[count - 1];
  LocalFree(arguments);
  // Wine shows the machine's root as drive Z. The loader wants the system's own separators.
  return fs::path(path.starts_with(L'/') ? L"Z:" + path : path).make_preferred();
}

void writeInstallation(const std::wstring& name, const std::wstring& text) {
  const RegistryHandle key = openInstallation();
  if (text.empty()) {
    RegDeleteValueW(key.get(), name.c_str());
    return;
  }
  key.setText(name, text);
}

const std::vector<search::ModelCard>& usualCards() {
  static const std::vector<search::ModelCard> cards = {
      {1, "Sailing Boat", "Transport", "Ships", {"water"}, false},
      {2, "Steamer", "Transport", "Ships", {"boat", "water"}, true},
      {12345, "Red Car", "Transport", "Cars", {"road"}, false},
      {-4, "Caf\u00E9 \"Zur Br\u00FCcke\" \u6F22\U0001F980", "Buildings", "Houses", {"coffee"}, false},
      {7, "Cube", "Shapes", "", {}, false},
  };
  return cards;
}

SearchFiles::SearchFiles() : SearchFiles(usualCards()) {}

SearchFiles::SearchFiles(const std::vector<search::ModelCard>& cards)
    : folder(newFolder()), before(dictionaryValues()) {
  search::buildDatabase(folder, cards);
  write("Thesaurus.txt", "boat, ship\ncar, automobile\n");
  for (const auto& [name, text] : before) writeInstallation(name, L"");
  writeInstallation(L"Dictionary", folder.wstring());
}

SearchFiles::~SearchFiles() {
  for (const auto& [name, text] : dictionaryValues()) writeInstallation(name, L"");
  for (const auto& [name, text] : before) writeInstallation(name, text);
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

fs::path SearchFiles::database() const { return folder / search::databaseFileName; }

void SearchFiles::removeDatabase() const { fs::remove(database()); }

void SearchFiles::write(const char* name, const std::string& bytes) const {
  std::ofstream(folder / name, std::ios::binary) << bytes;
}

UserThesaurus::UserThesaurus(const std::string& text) {
  wchar_t folder[MAX_PATH] = {};
  if (GetEnvironmentVariableW(L"APPDATA", folder, MAX_PATH) == 0) throw std::runtime_error("there is no APPDATA");
  file = fs::path(folder) / "Zephra" / "Thesaurus.txt";
  before = file;
  before += ".before";
  std::error_code none;
  fs::create_directories(file.parent_path());
  fs::rename(file, before, none);
  write(text);
}

UserThesaurus::~UserThesaurus() {
  std::error_code ignored;
  fs::remove(file, ignored);
  fs::rename(before, file, ignored);
}

void UserThesaurus::write(const std::string& text) const { std::ofstream(file, std::ios::binary) << text; }

Module::Module(const fs::path& file) : module(LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
  if (module == nullptr) throw std::runtime_error(file.string() + " cannot be loaded");
}

ComRef<IKeywordSearch> Module::newSearch() const {
  ComRef<IClassFactory> factory;
  ComRef<IKeywordSearch> search;
  entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(CLSID_KeywordSearch, IID_IClassFactory,
                                                                       factory.out());
  factory->CreateInstance(nullptr, IID_IKeywordSearch, search.out());
  return search;
}

}  // namespace nerida::host
