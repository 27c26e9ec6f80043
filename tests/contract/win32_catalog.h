#pragma once

#include <windows.h>

#include <string>

#include "platform/form_menu.h"
#include "tests/contract/local_class.h"

namespace nerida {

// Opens the menus on the way to an entry and chooses it, as the system does for its user. False when one of them is
// grey or not there.
bool chooseMenuEntry(HWND form, const FormMenu& menu, const std::string& name, int index);

// A folder of its own with the files of the contract; gone in the end.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  std::string path() const;  // with a backslash at its end

 private:
  std::wstring folder;
};

// The prepared search component in this process, in front of any that is registered.
class SearchRegistration {
 public:
  SearchRegistration();
  void setPresent(bool present);

 private:
  LocalClass registered;
};

}  // namespace nerida
