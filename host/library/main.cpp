// zephra-library: builds, lists and checks libraries of 3D models.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <vector>

#include "host/library/fields.h"
#include "host/library/library.h"

namespace {

using namespace nerida::library;
using Arguments = std::vector<std::filesystem::path>;

constexpr const char* usage =
    "zephra-library build DESCRIPTIONS LIBRARY   make a library from the descriptions in a folder\n"
    "zephra-library list LIBRARY                 show its models\n"
    "zephra-library check LIBRARY                look whether all of its model files are whole\n";

int build(const Arguments& arguments) {
  buildLibrary(arguments[1], arguments[2], [](const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
  });
  return 0;
}

int list(const Arguments& arguments) {
  for (const ModelCard& card : readIndex(arguments[1])) {
    std::printf("%6d  %-24s %s / %s%s\n", static_cast<int>(card.number), card.name.c_str(), card.category.c_str(),
                card.subcategory.c_str(), card.animated ? "  (animated)" : "");
  }
  return 0;
}

int check(const Arguments& arguments) {
  const std::vector<std::string> faults = checkLibrary(arguments[1]);
  for (const std::string& fault : faults) std::puts(fault.c_str());
  if (faults.empty()) std::printf("%zu models, all whole\n", readIndex(arguments[1]).size());
  return faults.empty() ? 0 : 1;
}

int run(const Arguments& arguments) {
  const std::string command = arguments.empty() ? "" : arguments[0].string();
  try {
    if (command == "build" && arguments.size() == 3) return build(arguments);
    if (command == "list" && arguments.size() == 2) return list(arguments);
    if (command == "check" && arguments.size() == 2) return check(arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zephra-library: %s\n", error.what());
    return 1;
  }
  std::fputs(usage, stderr);
  return 2;
}

}  // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** values)
#else
int main(int count, char** values)
#endif
{
  return run(Arguments(values + 1, values + count));
}
