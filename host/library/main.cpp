// zephra-library: makes, changes and checks libraries of 3D models.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <vector>

#include "host/library/command_line.h"
#include "host/library/commands.h"

#ifdef _WIN32
int wmain(int count, wchar_t** values)
#else
int main(int count, char** values)
#endif
{
  using namespace nerida::library;
  try {
    const std::filesystem::path program = count > 0 ? values[0] : std::filesystem::path();
    return runCommand({values + std::min(count, 1), values + count}, std::filesystem::absolute(program).parent_path());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zephra-library: %s\n", error.what());
    return 1;
  }
}
