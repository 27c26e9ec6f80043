#include "platform/win32/bitmap_files.h"

#include <map>
#include <mutex>
#include <vector>

#include "platform/win32/handles.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr LONGLONG largestFile = LONGLONG{64} << 20;

std::wstring moduleFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(moduleInstance(), path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size() && path.size() < 32768) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(moduleInstance(), path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  return path.substr(0, path.find_last_of(L"\\/"));
}

std::wstring fullPath(const std::string& folder, const std::string& file) {
  std::wstring path = folder.empty() ? moduleFolder() : wide(folder);
  if (!path.ends_with(L'\\') && !path.ends_with(L'/')) path += L'\\';
  return path + wide(file);
}

std::vector<std::uint8_t> contentOf(const std::wstring& path) {
  const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return {};
  const UniqueFile file(opened);
  LARGE_INTEGER size = {};
  if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > largestFile) return {};
  std::vector<std::uint8_t> content(static_cast<std::size_t>(size.QuadPart));
  DWORD read = 0;
  if (!ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr)) return {};
  content.resize(read);
  return content;
}

}  // namespace

std::shared_ptr<const BitmapResources> openBitmapFile(const std::string& folder, const std::string& file) {
  static std::mutex mutex;
  static std::map<std::wstring, std::weak_ptr<const BitmapResources>> cache;
  const std::wstring path = fullPath(folder, file);
  const std::scoped_lock lock(mutex);
  std::weak_ptr<const BitmapResources>& known = cache[path];
  std::shared_ptr<const BitmapResources> resources = known.lock();
  if (!resources) known = resources = std::make_shared<const BitmapResources>(contentOf(path));
  return resources;
}

}  // namespace nerida
