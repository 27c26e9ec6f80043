#pragma once

#include <ZephraSearch_h.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/search/model_card.h"
#include "host/win32/com.h"

namespace nerida::host {

/// The component's file, which the test program was given as its argument.
std::filesystem::path componentFile();

/// A folder with a model database and a thesaurus, which the installation key names as the dictionary folder. What was
/// there before comes back in the end.
class SearchFiles {
 public:
  explicit SearchFiles(const std::vector<search::ModelCard>& cards);
  SearchFiles();
  SearchFiles(const SearchFiles&) = delete;
  SearchFiles& operator=(const SearchFiles&) = delete;
  ~SearchFiles();

  const std::filesystem::path& path() const { return folder; }
  std::filesystem::path database() const;
  void removeDatabase() const;
  void write(const char* name, const std::string& bytes) const;

 private:
  std::filesystem::path folder;
  std::vector<std::pair<std::wstring, std::wstring>> before;
};

/// The thesaurus in the user's own folder. One that was there before comes back in the end.
class UserThesaurus {
 public:
  explicit UserThesaurus(const std::string& text);
  UserThesaurus(const UserThesaurus&) = delete;
  UserThesaurus& operator=(const UserThesaurus&) = delete;
  ~UserThesaurus();

  void write(const std::string& text) const;

 private:
  std::filesystem::path file, before;
};

/// What SearchFiles holds when nothing else is asked for.
const std::vector<search::ModelCard>& usualCards();

/// A value of the installation key; an empty text removes it.
void writeInstallation(const std::wstring& name, const std::wstring& text);

/// A module, loaded without any registration.
class Module {
 public:
  explicit Module(const std::filesystem::path& file);
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;
  ~Module() { FreeLibrary(module); }

  template <typename Function>
  Function* entry(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }
  HRESULT call(const char* name) const { return entry<HRESULT WINAPI()>(name)(); }
  /// An object of the component's class.
  ComRef<IKeywordSearch> newSearch() const;

 private:
  HMODULE module;
};

}  // namespace nerida::host
