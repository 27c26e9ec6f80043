// The search component as the catalog uses it: its dual interface by position, arrays and errors.
#include <gtest/gtest.h>

#include <thread>

#include "host/search/database.h"
#include "host/search/model_database.h"
#include "platform/win32/registry_handle.h"
#include "tests/windows/search/search_files.h"

namespace nerida::host {
namespace {

/// The variables of a caller.
struct Variables {
  BSTR query = nullptr;
  SAFEARRAY* names = nullptr;
  SAFEARRAY* ids = nullptr;
  SAFEARRAY* flags = nullptr;
  long count = -77;

  Variables() = default;
  Variables(const Variables&) = delete;
  Variables& operator=(const Variables&) = delete;
  ~Variables() {
    SysFreeString(query);
    for (SAFEARRAY* each : {names, ids, flags}) SafeArrayDestroy(each);
  }
};

template <typename Element>
std::vector<Element> elements(SAFEARRAY* array, VARTYPE expected) {
  VARTYPE type = VT_EMPTY;
  SafeArrayGetVartype(array, &type);
  EXPECT_EQ(type, expected);
  LONG lower = -1, upper = -2;
  SafeArrayGetLBound(array, 1, &lower);
  SafeArrayGetUBound(array, 1, &upper);
  EXPECT_EQ(lower, 0);
  const auto* data = static_cast<const Element*>(array->pvData);
  return {data, data + (upper + 1)};
}

std::vector<std::string> texts(SAFEARRAY* array) {
  std::vector<std::string> result;
  for (BSTR text : elements<BSTR>(array, VT_BSTR)) result.push_back(utf8(viewOf(text)));
  return result;
}

std::vector<long> numbers(SAFEARRAY* array) { return elements<long>(array, VT_I4); }

/// While it lives, this program sees a machine on which nothing is installed.
class HiddenInstallation {
 public:
  HiddenInstallation() {
    RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, nothing.put(), nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nothing.get());
  }
  HiddenInstallation(const HiddenInstallation&) = delete;
  HiddenInstallation& operator=(const HiddenInstallation&) = delete;
  ~HiddenInstallation() {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteKeyW(HKEY_CURRENT_USER, path);
  }

 private:
  static constexpr const wchar_t* path = L"Software\\NeridaNothing";
  RegistryHandle nothing;
};

using Texts = std::vector<std::string>;
using Numbers = std::vector<long>;

class SearchComponent : public testing::Test {
 protected:
  static void SetUpTestSuite() { CoInitialize(nullptr); }
  static void TearDownTestSuite() { CoUninitialize(); }

  HRESULT find(const wchar_t* query, Variables& variables) {
    variables.query = SysAllocString(query);
    return search->Search(&variables.query, &variables.names, &variables.ids, &variables.flags, &variables.count);
  }
  HRESULT find(const wchar_t* query) {
    Variables variables;
    return find(query, variables);
  }
  Texts namesFor(const wchar_t* query) {
    Variables variables;
    EXPECT_EQ(find(query, variables), S_OK);
    Texts names = texts(variables.names);
    EXPECT_EQ(variables.count, static_cast<long>(names.size()));
    return names;
  }

  /// The text that an error leaves for its caller.
  static std::string description() {
    ComRef<IErrorInfo> error;
    if (GetErrorInfo(0, reinterpret_cast<IErrorInfo**>(error.out())) != S_OK) return "none";
    BSTR text = nullptr;
    error->GetDescription(&text);
    std::string result = utf8(viewOf(text));
    SysFreeString(text);
    return result;
  }

  const SearchFiles files;
  const Module module{componentFile()};
  const ComRef<IKeywordSearch> search = module.newSearch();
};

TEST_F(SearchComponent, FillsTheCallersVariables) {
  Variables variables;
  ASSERT_EQ(find(L"boat", variables), S_OK);
  EXPECT_EQ(texts(variables.names), (Texts{"Sailing Boat", "Steamer"}));
  EXPECT_EQ(numbers(variables.ids), (Numbers{1, 2}));
  EXPECT_EQ(numbers(variables.flags), (Numbers{0, 0x20}));
  EXPECT_EQ(variables.count, 2);
  EXPECT_STREQ(variables.query, L"boat");
}

TEST_F(SearchComponent, ReplacesArraysThatAreThere) {
  Variables variables;
  variables.names = SafeArrayCreateVector(VT_BSTR, 0, 1);
  variables.ids = SafeArrayCreateVector(VT_I4, 0, 1);
  variables.flags = SafeArrayCreateVector(VT_I4, 5, 9);
  ASSERT_EQ(find(L"car", variables), S_OK);
  EXPECT_EQ(texts(variables.names), Texts{"Red Car"});
  EXPECT_EQ(numbers(variables.ids), Numbers{12345});
  EXPECT_EQ(numbers(variables.flags), Numbers{0});
}

TEST_F(SearchComponent, LeavesAnArrayThatIsInUse) {
  Variables variables;
  variables.names = SafeArrayCreateVector(VT_BSTR, 0, 1);
  SafeArrayLock(variables.names);
  EXPECT_EQ(find(L"car", variables), DISP_E_ARRAYISLOCKED);
  EXPECT_EQ(variables.ids, nullptr);
  EXPECT_EQ(variables.count, -77);
  SafeArrayUnlock(variables.names);
}

TEST_F(SearchComponent, HasTheOperationsInTheirPlaces) {
  // Three of IUnknown and four of IDispatch stand before.
  void** places = *reinterpret_cast<void***>(search.get());
  Variables variables;
  variables.query = SysAllocString(L"car");
  const auto first =
      reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)(void*, BSTR*, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**, long*)>(
          places[7]);
  EXPECT_EQ(first(search.get(), &variables.query, &variables.names, &variables.ids, &variables.flags, &variables.count),
            S_OK);
  EXPECT_EQ(variables.count, 1);
  Variables lists;
  const auto third =
      reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)(void*, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**, long*)>(places[9]);
  EXPECT_EQ(third(search.get(), &lists.names, &lists.ids, &lists.flags, &lists.count), S_OK);
  EXPECT_EQ(lists.count, 2);
}

TEST_F(SearchComponent, ListsCategories) {
  Variables lists;
  ASSERT_EQ(search->GetCategories(&lists.names, &lists.ids, &lists.flags, &lists.count), S_OK);
  EXPECT_EQ(texts(lists.names), (Texts{"Buildings", "Shapes", "Transport"}));
  EXPECT_EQ(texts(lists.ids), (Texts{"Houses", "Cars", "Ships"}));
  EXPECT_EQ(elements<short>(lists.flags, VT_I2), (std::vector<short>{1, 0, 2}));
  EXPECT_EQ(lists.count, 2);
}

TEST_F(SearchComponent, ListsNoCategoriesOfAnEmptyDatabase) {
  search::buildDatabase(files.path(), {});
  Variables lists;
  ASSERT_EQ(search->GetCategories(&lists.names, &lists.ids, &lists.flags, &lists.count), S_OK);
  EXPECT_EQ(lists.count, -1);
  EXPECT_EQ(namesFor(L"boat"), Texts{});
  EXPECT_EQ(namesFor(L":Random"), Texts{});
}

TEST_F(SearchComponent, UnderstandsTheFormsOfAQuery) {
  EXPECT_EQ(namesFor(L":Ships"), (Texts{"Sailing Boat", "Steamer"}));
  EXPECT_EQ(namesFor(L":Random").size(), 5U);
  EXPECT_EQ(namesFor(L":"), Texts{});
  EXPECT_EQ(namesFor(L":random"), Texts{}) << "a sub-category of that name";
  EXPECT_EQ(namesFor(L""), Texts{});
  EXPECT_EQ(namesFor(L" \"' "), Texts{});
  EXPECT_EQ(namesFor(L"ship"), (Texts{"Sailing Boat", "Steamer"})) << "through the thesaurus";
  EXPECT_EQ(namesFor(L"saiing"), Texts{"Sailing Boat"}) << "misspelt";
  EXPECT_EQ(namesFor(std::wstring(10000, L'b').c_str()), Texts{});
}

TEST_F(SearchComponent, FindsWordsByTheirFirstLetter) {
  EXPECT_EQ(namesFor(L"c"), (Texts{"Cube", "Red Car", usualCards()[3].name}));
  EXPECT_EQ(namesFor(L"B").size(), 3U) << "boat as a name, as a keyword, and Br\u00FCcke";
  EXPECT_EQ(namesFor(L"r c"), Texts{"Red Car"});
  EXPECT_EQ(namesFor(L"x"), Texts{});
}

TEST_F(SearchComponent, ListensToTheUsersOwnThesaurus) {
  const UserThesaurus own("boat, punt\r\nsailing boat > dinghy\n");
  EXPECT_EQ(namesFor(L"punt"), (Texts{"Sailing Boat", "Steamer"}));
  EXPECT_EQ(namesFor(L"ship").size(), 2U) << "the product's own is still there";
  EXPECT_EQ(namesFor(L"boat").size(), 2U);
  own.write(std::string(70000, ',') + "\xFF\xFE" + std::string(3, '\0') + "\n, ,>,>\ncar, punt\n");
  EXPECT_EQ(namesFor(L"punt"), Texts{"Red Car"}) << "what is nonsense in it hurts nobody";
}

TEST_F(SearchComponent, TakesAnyText) {
  EXPECT_EQ(namesFor(L"caf\u00C9"), Texts{usualCards()[3].name});
  Variables variables;
  variables.query = SysAllocStringLen(L"boat\0water", 10);
  ASSERT_EQ(search->Search(&variables.query, &variables.names, &variables.ids, &variables.flags, &variables.count),
            S_OK);
  EXPECT_EQ(variables.count, 2);
  Variables none;
  ASSERT_EQ(search->Search(&none.query, &none.names, &none.ids, &none.flags, &none.count), S_OK);
  EXPECT_EQ(none.count, 0) << "a null text is an empty one";
}

TEST_F(SearchComponent, GivesLongNamesWhole) {
  std::string longName = "Boat ";
  while (longName.size() < 9000) longName += "\u6F22\u5B57 ";
  search::buildDatabase(files.path(), {{1, longName, std::string(3000, 'c'), std::string(5000, 's'), {}, false}});
  EXPECT_EQ(namesFor(L"boat"), Texts{longName});
  Variables lists;
  ASSERT_EQ(search->GetCategories(&lists.names, &lists.ids, &lists.flags, &lists.count), S_OK);
  EXPECT_EQ(texts(lists.ids), Texts{std::string(5000, 's')});
}

TEST_F(SearchComponent, GivesMoreThanAListHolds) {
  std::vector<search::ModelCard> cards;
  for (int i = 1; i <= 32768; ++i) cards.push_back({i, "Boat", "A", "B", {}, false});
  search::buildDatabase(files.path(), cards);
  EXPECT_EQ(namesFor(L"boat").size(), 32768U);
  EXPECT_EQ(namesFor(L":B").size(), 32768U);
}

TEST_F(SearchComponent, TellsWhatIsWrong) {
  const std::string place = ": " + files.database().string();
  files.removeDatabase();
  EXPECT_EQ(find(L"boat"), static_cast<HRESULT>(0x800A0035));
  EXPECT_EQ(description(), "The model database is missing" + place);
  files.write(search::databaseFileName, std::string(5000, 'x'));
  EXPECT_EQ(find(L":Random"), static_cast<HRESULT>(0x800A0141));
  EXPECT_EQ(description(), "This is no model database" + place);
  Variables lists;
  EXPECT_EQ(search->GetCategories(&lists.names, &lists.ids, &lists.flags, &lists.count),
            static_cast<HRESULT>(0x800A0141));
  EXPECT_EQ(lists.count, -77);
  EXPECT_EQ(description(), "This is no model database" + place);
}

TEST_F(SearchComponent, TellsOfADatabaseThatIsDamaged) {
  std::filesystem::resize_file(files.database(), 3 * 4096);
  EXPECT_EQ(find(L"boat"), static_cast<HRESULT>(0x800A0141));
  EXPECT_EQ(description(), "The model database is damaged: " + files.database().string());
}

TEST_F(SearchComponent, TellsOfADatabaseThatStaysLocked) {
  search::Database other = search::Database::open(files.database());
  other.run("BEGIN EXCLUSIVE");
  EXPECT_EQ(find(L"boat"), static_cast<HRESULT>(0x800A0046));
  EXPECT_EQ(description(), "The model database is in use by another program: " + files.database().string());
  other.run("ROLLBACK");
  EXPECT_EQ(namesFor(L"boat").size(), 2U);
}

TEST_F(SearchComponent, TellsOfAnInstallationWithoutAFolder) {
  writeInstallation(L"Dictionary", L"");
  EXPECT_EQ(find(L"boat"), static_cast<HRESULT>(0x800A0035));
  EXPECT_EQ(description(), "The installation names no folder for the model database");
}

TEST_F(SearchComponent, ReadsTheInstallationAsTheControlDoes) {
  const std::wstring folder = files.path().wstring();
  writeInstallation(L"Dictionary", L"");
  writeInstallation(L"dictionary path", folder);
  EXPECT_EQ(find(L"boat"), static_cast<HRESULT>(0x800A0035)) << "small letters";
  writeInstallation(L"dictionary path", L"");
  writeInstallation(L"Dic2", folder);
  EXPECT_EQ(namesFor(L"boat").size(), 2U);
}

// Of somebody who has installed for himself alone, in a folder whose name the system's code page does not know.
TEST_F(SearchComponent, ReadsTheUsersOwnInstallationWhereTheMachineHasNone) {
  constexpr const wchar_t* own = L"Software\\Tarnwell\\Zephra";
  const std::filesystem::path folder = files.path() / L"\u0142\u00f3d\u017a";
  search::buildDatabase(folder, {{1, "Sailing Boat", "Transport", "Ships", {"water"}, false}});
  const HiddenInstallation hidden;
  const auto length = static_cast<DWORD>(folder.wstring().size() + 1);
  RegSetKeyValueW(HKEY_CURRENT_USER, own, L"Dictionary", REG_SZ, folder.c_str(), length * DWORD{sizeof(wchar_t)});
  EXPECT_EQ(namesFor(L"boat").size(), 1U);
  RegDeleteKeyW(HKEY_CURRENT_USER, own);
  RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Tarnwell");
}

TEST_F(SearchComponent, SeesAChangeWithTheNextSearch) {
  EXPECT_EQ(namesFor(L"swan"), Texts{});
  search::changeDatabase(files.path(), {{99, "Swan", "Animals", "Birds", {}, false}});
  EXPECT_EQ(namesFor(L"swan"), Texts{"Swan"});
}

TEST_F(SearchComponent, HoldsNoFileBetweenSearches) {
  EXPECT_EQ(namesFor(L"boat").size(), 2U);
  std::error_code error;
  EXPECT_TRUE(std::filesystem::remove(files.database(), error)) << error.message();
}

TEST_F(SearchComponent, RefusesMissingVariables) {
  Variables some;
  EXPECT_EQ(search->Search(nullptr, &some.names, &some.ids, &some.flags, &some.count), E_POINTER);
  EXPECT_EQ(search->Search(&some.query, nullptr, &some.ids, &some.flags, &some.count), E_POINTER);
  EXPECT_EQ(search->Search(&some.query, &some.names, &some.ids, &some.flags, nullptr), E_POINTER);
  EXPECT_EQ(search->GetCategories(&some.names, &some.ids, &some.flags, nullptr), E_POINTER);
  EXPECT_EQ(search->TestEngine(1, nullptr), E_POINTER);
}

TEST_F(SearchComponent, ReachesTheEngineLibrary) {
  long result = 0;
  EXPECT_EQ(search->TestEngine(1998, &result), S_OK);
  EXPECT_EQ(result, 1999);
}

TEST_F(SearchComponent, WorksInSeveralThreadsAtOnce) {
  std::vector<std::thread> threads;
  for (const wchar_t* query : {L"boat", L"car", L":Ships", L"ship"}) {
    threads.emplace_back([this, query] {
      CoInitialize(nullptr);
      {
        const ComRef<IKeywordSearch> own = module.newSearch();
        const std::size_t expected = std::wstring_view(query) == L"car" ? 1 : 2;
        for (int i = 0; i < 15; ++i) {
          Variables variables;
          variables.query = SysAllocString(query);
          EXPECT_EQ(own->Search(&variables.query, &variables.names, &variables.ids, &variables.flags, &variables.count),
                    S_OK);
          EXPECT_EQ(texts(variables.names).size(), expected);
        }
      }
      CoUninitialize();
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST_F(SearchComponent, SaysSoWhenTheEngineLibraryIsNotThere) {
  const std::filesystem::path lonely = files.path() / "ZephraSearch.dll";
  std::filesystem::copy_file(componentFile(), lonely);
  {
    const Module alone(lonely);
    const ComRef<IKeywordSearch> own = alone.newSearch();
    long result = 0;
    EXPECT_EQ(own->TestEngine(1, &result), static_cast<HRESULT>(0x800A01AD));
    EXPECT_EQ(description(), "KwSearchDll.dll cannot be loaded");
  }
}

TEST_F(SearchComponent, OffersItsInterfaces) {
  ComRef<IUnknown> unknown;
  for (const IID& id : {IID_IUnknown, IID_IDispatch, IID_ISupportErrorInfo}) {
    EXPECT_EQ(search->QueryInterface(id, unknown.out()), S_OK);
  }
  EXPECT_EQ(search->QueryInterface(IID_IClassFactory, unknown.out()), E_NOINTERFACE);
  ComRef<ISupportErrorInfo> errors;
  ASSERT_EQ(search->QueryInterface(IID_ISupportErrorInfo, errors.out()), S_OK);
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IKeywordSearch), S_OK);
}

TEST_F(SearchComponent, DescribesItsTypes) {
  ComRef<ITypeInfo> type;
  ASSERT_EQ(search->GetTypeInfo(0, 0, reinterpret_cast<ITypeInfo**>(type.out())), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->guid, IID_IKeywordSearch);
  type->ReleaseTypeAttr(attributes);
}

TEST_F(SearchComponent, LeavesNothingBehind) {
  {
    const ComRef<IKeywordSearch> another = module.newSearch();
    EXPECT_EQ(module.call("DllCanUnloadNow"), S_FALSE);
  }
  const_cast<ComRef<IKeywordSearch>&>(search).reset();
  EXPECT_EQ(module.call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace nerida::host
