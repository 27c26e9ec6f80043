#pragma once

#include <string>

namespace nerida {

// Where the installation keeps its files. Filled when a control starts.
struct Paths {
  std::string DictionaryPath;  // search database, About box pictures, the catalog's logo
  std::string StylePath;
  std::string SystemPath;  // Toolbar.res, expansion page
  std::string HelpPath;
  std::string ProductText;       // shown in the About box
  std::string ModelLibraryPath;  // root of the model files
  std::string CdModelDirectory;  // of the model library on its CD, relative to the drive
  std::string CdDrive;           // letter and colon
  bool ExpansionAbsent = true;
};

}  // namespace nerida
