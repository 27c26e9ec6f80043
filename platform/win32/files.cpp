#include "platform/win32/files.h"

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

#include "platform/error.h"
#include "platform/win32/com.h"
#include "platform/win32/handles.h"
#include "platform/win32/image.h"
#include "platform/win32/picture_bitmap.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

// The system would ask the user to put a disk into an empty drive; we are the ones who ask.
class QuietAboutDrives {
 public:
  QuietAboutDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before); }
  ~QuietAboutDrives() { SetThreadErrorMode(before, nullptr); }
  QuietAboutDrives(const QuietAboutDrives&) = delete;
  QuietAboutDrives& operator=(const QuietAboutDrives&) = delete;

 private:
  DWORD before = 0;
};

using UniqueListing = UniqueHandle<HANDLE, FindClose>;

bool isPlainFile(const WIN32_FIND_DATAW& entry) {
  constexpr DWORD special = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  return (entry.dwFileAttributes & special) == 0;
}

// What is not there is no failure.
void failUnlessAbsent(DWORD status) {
  switch (status) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_NO_MORE_FILES:
      return;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      throw Error(error::badFileName);
    case ERROR_NOT_READY:
      throw Error(error::diskNotReady);
    default:
      throw Error(error::deviceUnavailable);
  }
}

bool exists(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

DriveType SystemFiles::driveType(const std::string& drive) {
  return static_cast<DriveType>(GetDriveTypeW(wide(drive).c_str()));
}

std::string SystemFiles::firstFile(const std::string& path) {
  const QuietAboutDrives quiet;
  std::wstring pattern = wide(path);
  if (pattern.find_first_of(L"*?") != std::wstring::npos) throw Error(error::badFileName);
  if (pattern.ends_with(L'\\')) pattern += L'*';
  WIN32_FIND_DATAW entry = {};
  const HANDLE found = FindFirstFileW(pattern.c_str(), &entry);
  if (found == INVALID_HANDLE_VALUE) {
    failUnlessAbsent(GetLastError());
    return "";
  }
  const UniqueListing listing(found);
  do {
    if (isPlainFile(entry)) return utf8(entry.cFileName);
  } while (FindNextFileW(listing.get(), &entry));
  return "";
}

// Copied out of the system's picture object, which must not outlive the library that it comes from.
std::shared_ptr<const StoredPicture> SystemFiles::loadPicture(const std::string& path) {
  const QuietAboutDrives quiet;
  std::wstring file = wide(path);
  if (!exists(file)) throw Error(error::fileNotFound);
  ComPtr<IPicture> picture;
  OLE_HANDLE content = 0;
  SHORT kind = PICTYPE_NONE;
  const bool loaded = SUCCEEDED(OleLoadPicturePath(file.data(), nullptr, 0, 0, IID_IPicture, picture.putVoid())) &&
                      SUCCEEDED(picture->get_Type(&kind)) && kind == PICTYPE_BITMAP &&
                      SUCCEEDED(picture->get_Handle(&content));
  if (!loaded) throw Error(error::invalidPicture);
  const auto bitmap = reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(content));
  return std::make_shared<SystemPicture>(pictureOf(static_cast<HBITMAP>(bitmap)));
}

}  // namespace nerida
