#pragma once

#include <functional>

namespace nerida {

class Desktop;
class Files;
class Prompts;
class Registry;
class SearchComponents;
class Settings;
class Shell;
class WindowFactory;

// The services of one platform side, named together only where the library is put together.
struct Platform {
  Desktop& desktop;
  WindowFactory& windows;
  Prompts& prompts;
  Registry& registry;
  Settings& settings;
  Shell& shell;
  Files& files;
  SearchComponents& searchComponents;
};

}  // namespace nerida
